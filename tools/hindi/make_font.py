"""Makes the font that shows the encoding of "Kruti Dev 010" out of an open Devanagari font.

    make_font.py <hb-shape> <source font> <target font> <family>

Each code gets the glyph of its shape; codes that make one letter together (a half form and its stem, a letter and its
dot) join into the glyph of that letter, so that it looks as its designer drew it. The source's own tables for composing
Devanagari are dropped: what they would do is already in the codes. Its anchors for the signs above and below are kept.
"""

import subprocess
import sys

from fontTools import subset
from fontTools.feaLib.builder import addOpenTypeFeaturesFromString
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib import TTFont

import encoding

# Codes that stand for a mark or a piece and no whole letter: the source's glyph by its character or its name.
PIECES = {
    "z": "viramadeva_radeva_alt", "ª": "viramadeva_radeva", "~": "viramadeva", "+": "nuktadeva",
    "Z": "radeva_viramadeva", "±": "radeva_viramadeva_anusvaradeva", "î": "yadeva_alt", "È": "iisigndeva_anusvaradeva",
    "Á": "padeva_viramadeva_radeva", "Ã": "iideva", "è": "dhadeva_viramadeva", "Ë": "dhadeva_viramadeva",
    "Ñ": "—", "Ì": "í", "Í": "ê", "Î": "ë", "Ï": "ì", "Ô": "ï", "Ü": "'", "Ó": "yadeva_viramadeva",
}

# Signs that fall on one letter and have one shape together; the letter na carries them for the shaping.
CARRIER = "न"
SIGN_GROUPS = {
    "sa": "नें", "Sa": "नैं", "ha": "नीं", "ks": "नो", "kS": "नौ", "ksa": "नों", "kSa": "नौं", "Za": "र्नं",
    "sZ": "र्ने", "SZ": "र्नै", "hZ": "र्नी", "ksZ": "र्नो", "kSZ": "र्नौ",
    "sZa": "र्नें", "SZa": "र्नैं", "hZa": "र्नीं", "ksZa": "र्नों", "kSZa": "र्नौं",
}

DRAWN_SPACES = {"space", "zerowidthjoiner", "zerowidthnonjoiner"}


class Shaper:
    """Asks the shaping engine which glyphs of the source font show a text."""

    def __init__(self, program, path):
        self.command = [program, "--no-positions", "--no-clusters", path]

    def glyphs(self, text):
        """The names of the glyphs of a text, from left to right."""
        # As numbers: in a plain C locale the program takes no other letters than ASCII.
        points = "--unicodes=" + ",".join(f"{ord(char):x}" for char in text)
        shaped = subprocess.run(self.command + [points], check=True, capture_output=True, encoding="ascii").stdout.strip()
        return [name for name in shaped.strip("[]").split("|") if name not in DRAWN_SPACES]


def single_codes(shaper, cmap):
    """Code point -> list of source glyphs that show it."""
    shapes = {}
    for text, code in {**encoding.FULL_FORMS, **encoding.SYLLABLES}.items():
        if len(code) == 1:
            shapes[code] = shaper.glyphs(text)
    for text, code in encoding.HALF_FORMS.items():
        if len(code) == 1:
            shapes[code] = shaper.glyphs(text + encoding.ZWJ)
    for text, code in {
        **encoding.VOWELS, **encoding.SIGNS, **encoding.MODIFIERS, **encoding.OTHERS
    }.items():
        if len(code) == 1 and code not in "\r\n":
            shapes[code] = [cmap[ord(text)]]
    for code, piece in PIECES.items():
        if piece in shapes:
            shapes[code] = shapes[piece]
        else:
            shapes[code] = [cmap[ord(piece)] if len(piece) == 1 else piece]
    return shapes


def joined_codes(shaper):
    """Code sequence -> the source glyph that shows the sequence as one."""
    joined = {}
    forms = {**encoding.FULL_FORMS, **encoding.VOWELS}
    halves = {text + encoding.ZWJ: code for text, code in encoding.HALF_FORMS.items() if "~" not in code}
    for text, code in {**forms, **halves}.items():
        glyphs = shaper.glyphs(text)
        if len(code) > 1 and len(glyphs) == 1:
            joined[code] = glyphs[0]
    joined["Ük"] = joined["'k"]
    for code, text in SIGN_GROUPS.items():
        # The sign is what the shaping adds to the bare letter.
        carrier = shaper.glyphs(CARRIER)
        joined[code] = next(glyph for glyph in shaper.glyphs(text) if glyph not in carrier)
    return joined


def short_i_variants(shaper, letters):
    """Variant of the short i -> the letters before which it stands, for the hook to reach the letter's stem."""
    variants = {}
    for letter, glyph in letters.items():
        variant = shaper.glyphs(letter + encoding.SHORT_I)[0]
        if variant != "isigndeva" and variant.startswith("isigndeva"):
            variants.setdefault(variant, []).append(glyph)
    return variants


def anchors(font):
    """(marks, bases) of the source's two lookups that set signs on letters: {"above"|"below": {glyph: (x, y)}}."""
    marks, bases = {}, {}
    table = font["GPOS"].table
    for record in table.FeatureList.FeatureRecord:
        side = {"abvm": "above", "blwm": "below"}.get(record.FeatureTag)
        for index in record.Feature.LookupListIndex if side else ():
            lookup = table.LookupList.Lookup[index]
            for part in lookup.SubTable if lookup.LookupType == 4 else ():
                for glyph, mark in zip(part.MarkCoverage.glyphs, part.MarkArray.MarkRecord):
                    marks.setdefault(side, {})[glyph] = (mark.MarkAnchor.XCoordinate, mark.MarkAnchor.YCoordinate)
                for glyph, base in zip(part.BaseCoverage.glyphs, part.BaseArray.BaseRecord):
                    anchor = base.BaseAnchor[0]
                    bases.setdefault(side, {})[glyph] = (anchor.XCoordinate, anchor.YCoordinate)
    return marks, bases


def compose(font, names):
    """One glyph out of several that stand side by side; its name."""
    if len(names) == 1:
        return names[0]
    name = "_".join(names) + ".side"
    pen = TTGlyphPen(font.getGlyphSet())
    advance = 0
    for part in names:
        pen.addComponent(part, (1, 0, 0, 1, advance, 0))
        advance += font["hmtx"][part][0]
    font["glyf"][name] = pen.glyph()
    font.setGlyphOrder(font["glyf"].glyphOrder)
    font["hmtx"][name] = (advance, font["hmtx"][names[0]][1])
    return name


def features(cmap, joined, variants, marks, bases, kept):
    """The font's own feature file: what joins, which short i stands where, where signs sit."""
    lines = ["languagesystem DFLT dflt;", "languagesystem latn dflt;", "feature ccmp {"]
    for code, glyph in joined.items():
        if all(ord(char) in cmap for char in code):
            lines.append(f"  sub {' '.join(cmap[ord(char)] for char in code)} by {glyph};")
    lines += ["} ccmp;", "feature calt {"]
    for variant, letters in variants.items():
        lines.append(f"  sub isigndeva' [{' '.join(sorted(set(letters)))}] by {variant};")
    lines += ["} calt;"]
    for side in ("above", "below"):
        for glyph, (x, y) in marks[side].items():
            if glyph in kept:
                lines.append(f"markClass {glyph} <anchor {x} {y}> @{side};")
    lines.append("feature mark {")
    for side in ("above", "below"):
        lines.append(f"  lookup {side} {{")
        for glyph, (x, y) in bases[side].items():
            if glyph in kept:
                lines.append(f"    pos base {glyph} <anchor {x} {y}> mark @{side};")
        lines.append(f"  }} {side};")
    lines.append("} mark;")
    return "\n".join(lines)


def name_anew(font, family):
    """Gives the font its own name; the licence and the copyright lines of the source stay."""
    names = font["name"]
    kept = [record for record in names.names if record.nameID in (0, 7, 13, 14)]
    names.names = kept
    for name_id, text in {1: family, 2: "Regular", 3: family, 4: family, 6: family.replace(" ", "")}.items():
        names.setName(text, name_id, 3, 1, 0x409)
        names.setName(text, name_id, 1, 0, 0)


def main(program, source, target, family):
    font = TTFont(source, recalcTimestamp=False)
    shaper = Shaper(program, source)
    source_cmap = font.getBestCmap()
    shapes = single_codes(shaper, source_cmap)
    joined = joined_codes(shaper)
    letters = {text: shaper.glyphs(text)[0] for text in encoding.FULL_FORMS if len(shaper.glyphs(text)) == 1}
    variants = short_i_variants(shaper, letters)
    marks, bases = anchors(font)

    cmap = {ord(code): compose(font, names) for code, names in shapes.items()}
    for table in font["cmap"].tables:
        if table.isUnicode():
            table.cmap = dict(cmap)
    font["cmap"].tables = [table for table in font["cmap"].tables if table.isUnicode()]
    kept = set(cmap.values()) | set(joined.values()) | set(variants)
    for tag in ("GSUB", "GPOS", "GDEF", "FFTM"):
        if tag in font:
            del font[tag]

    options = subset.Options(glyph_names=True, name_IDs=["*"], notdef_outline=True, hinting=True)
    options.layout_features = []
    subsetter = subset.Subsetter(options)
    subsetter.populate(glyphs=kept)
    subsetter.subset(font)
    for table in font["cmap"].tables:
        table.cmap = dict(cmap)

    addOpenTypeFeaturesFromString(font, features(cmap, joined, variants, marks, bases, set(font.getGlyphOrder())))
    name_anew(font, family)
    font.save(target)


if __name__ == "__main__":
    if len(sys.argv) != 5:
        sys.exit(__doc__)
    main(*sys.argv[1:])
