"""The 8-bit encoding of the font "Kruti Dev 010", and Unicode Hindi turned into it.

The encoding names shapes, not letters, and takes them from left to right as they stand on paper: the sign of a short i
comes before its consonant, the mark of an r without vowel behind its syllable. Its upper half is read as Windows-1252.
"""

import re
import unicodedata

VIRAMA = "\u094d"
NUKTA = "\u093c"
ZWJ = "\u200d"
RA = "र"
SHORT_I = "ि"

# Letter: (full form, half form or None). A full form that ends in "k" is the half form with the stem behind it.
LETTERS = {
    "क": ("d", "D"), "ख": ("[k", "["), "ग": ("x", "X"), "घ": ("?k", "?"), "ङ": ("³", None),
    "च": ("p", "P"), "छ": ("N", None), "ज": ("t", "T"), "झ": (">", "÷"), "ञ": ("¥", None),
    "ट": ("V", None), "ठ": ("B", None), "ड": ("M", None), "ढ": ("<", None), "ण": (".k", "."),
    "त": ("r", "R"), "थ": ("Fk", "F"), "द": ("n", None), "ध": ("/k", "/"), "न": ("u", "U"),
    "प": ("i", "I"), "फ": ("Q", "¶"), "ब": ("c", "C"), "भ": ("Hk", "H"), "म": ("e", "E"),
    "य": (";", "¸"), "र": ("j", None), "ल": ("y", "Y"), "ळ": ("G", None), "व": ("o", "O"),
    "श": ("'k", "'"), "ष": ('"k', '"'), "स": ("l", "L"), "ह": ("g", "º"),
}

# Conjuncts with a shape of their own, likewise.
CONJUNCTS = {
    "क्ष": ("{k", "{"), "त्र": ("=", "«"), "ज्ञ": ("K", None), "श्र": ("J", None), "त्त": ("Ùk", "Ù"),
    "क्त": ("ä", None), "क्क": ("ô", None), "क्र": ("Ø", None), "फ्र": ("Ý", None), "प्र": ("ç", None),
    "ट्ट": ("ê", None), "ट्ठ": ("ë", None), "ड्ड": ("ì", None), "ड्ढ": ("ï", None),
    "द्द": ("í", None), "द्ध": (")", None), "द्य": ("|", None), "द्व": ("}", None), "द्र": ("æ", None),
    "न्न": ("é", "™"), "ह्न": ("à", None), "ह्य": ("á", None), "ह्म": ("ã", None),
    "ट्य": ("Vî", None), "ठ्य": ("Bî", None), "ड्य": ("Mî", None), "ढ्य": ("<î", None), "छ्य": ("Nî", None),
}

# An r below its letter: under the round letters that hang from the line, and beside a stem.
RAKAR_BELOW = "ª"
RAKAR = "z"
ROUND_LETTERS = "छटठडढ"

# A consonant with its vowel in one shape.
SYLLABLES = {"कृ": "—", "दृ": "–", "हृ": "â", "रु": "#", "रू": ":"}

VOWELS = {
    "अ": "v", "आ": "vk", "इ": "b", "ई": "bZ", "उ": "m", "ऊ": "Å", "ऋ": "_", "ए": ",", "ऐ": ",s",
    "ऑ": "v‚", "ओ": "vks", "औ": "vkS",
}

SIGNS = {
    "ा": "k", "ि": "f", "ी": "h", "ु": "q", "ू": "w", "ृ": "`", "े": "s", "ै": "S", "ॅ": "W",
    "ॉ": "‚", "ो": "ks", "ौ": "kS",
}
REPH = "Z"
MODIFIERS = {"ं": "a", "ँ": "¡", "ः": "%"}

OTHERS = {
    "०": "å", "१": "ƒ", "२": "„", "३": "…", "४": "†", "५": "‡", "६": "ˆ", "७": "‰", "८": "Š", "९": "‹",
    "।": "A", "ऽ": "·", "॰": "Œ", ",": "]", ".": "-", "-": "&", "/": "@", "?": "\\", "!": "!", ";": "(",
    "(": "¼", ")": "½", "{": "¿", "}": "À", "=": "¾", "+": "$", "‘": "^", "’": "*", "“": "Þ", "”": "ß",
    " ": " ", "\r": "\r", "\n": "\n", **{digit: digit for digit in "0123456789"},
}


def with_nukta(code):
    """The code of a letter with a dot below: the dot goes before the stem."""
    return code[:-1] + "+k" if len(code) > 1 and code.endswith("k") else code + "+"


def _forms():
    full, half = {}, {}
    for text, (full_code, half_code) in {**LETTERS, **CONJUNCTS}.items():
        full[text] = full_code
        half[text + VIRAMA] = half_code or full_code + "~"
    for letter, (full_code, half_code) in LETTERS.items():
        full[letter + NUKTA] = with_nukta(full_code)
        half[letter + NUKTA + VIRAMA] = with_nukta(half_code) if half_code else with_nukta(full_code) + "~"
        rakar = RAKAR_BELOW if letter in ROUND_LETTERS else RAKAR
        full.setdefault(letter + VIRAMA + RA, full_code + rakar)
    return full, half


# The end of a cluster of consonants, and what may stand before the end, each longest first.
FULL_FORMS, HALF_FORMS = _forms()
_HALVES_LONGEST_FIRST = sorted(HALF_FORMS, key=len, reverse=True)

_CONSONANT = f"[क-ह]{NUKTA}?"
_SYLLABLE = re.compile(
    f"(?P<cluster>(?:{_CONSONANT}{VIRAMA})*{_CONSONANT}{VIRAMA}?)(?P<sign>[{''.join(SIGNS)}]?)(?P<marks>[{''.join(MODIFIERS)}]*)"
    f"|(?P<vowel>[{''.join(VOWELS)}])(?P<vowel_marks>[{''.join(MODIFIERS)}]*)"
)


def _cluster(text):
    code = ""
    while text not in FULL_FORMS:
        for half in _HALVES_LONGEST_FIRST:
            if text.startswith(half):
                code += HALF_FORMS[half]
                text = text[len(half):]
                break
        else:
            raise ValueError(f"no shape for {text!r}")
        if not text:
            return code
    return code + FULL_FORMS[text]


def _syllable(match):
    marks = "".join(MODIFIERS[mark] for mark in match["marks"] or match["vowel_marks"] or "")
    if match["vowel"]:
        return VOWELS[match["vowel"]] + marks
    cluster, sign = match["cluster"], match["sign"]
    reph = ""
    if cluster.startswith(RA + VIRAMA) and len(cluster) > 2:
        cluster, reph = cluster[2:], REPH
    if cluster + sign in SYLLABLES:
        return SYLLABLES[cluster + sign] + reph + marks
    code = _cluster(cluster)
    if sign == SHORT_I:
        return SIGNS[sign] + code + reph + marks
    return code + SIGNS.get(sign, "") + reph + marks


def encode(text):
    """Unicode Hindi in the font's encoding. Raises ValueError for a character that the encoding lacks."""
    text = unicodedata.normalize("NFD", text).replace(ZWJ, "").replace("\u200c", "")
    code, at = "", 0
    while at < len(text):
        match = _SYLLABLE.match(text, at)
        if match:
            code += _syllable(match)
            at = match.end()
        elif text[at] in OTHERS:
            code += OTHERS[text[at]]
            at += 1
        else:
            raise ValueError(f"the encoding has no {text[at]!r} (in {text!r})")
    return code
