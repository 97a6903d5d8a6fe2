"""Unicode Hindi comes out in the font's encoding as a typist of that font would type it."""

import pathlib
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools" / "hindi"))

from encoding import encode  # noqa: E402


class Encodes(unittest.TestCase):
    def check(self, *pairs):
        for text, code in pairs:
            with self.subTest(text=text):
                self.assertEqual(encode(text), code)

    def test_texts_fixed_in_the_program(self):
        self.check(("सुचना", "lqpuk"), ("ठीक है", "Bhd gS"), ("हा", "gk"), ("नही", "ugh"))

    def test_short_i_stands_before_its_whole_cluster(self):
        self.check(("कि", "fd"), ("स्थिति", "fLFkfr"), ("शक्ति", "'kfä"), ("निष्क्रिय", "fuf\"Ø;"))

    def test_r_without_vowel_stands_behind_its_syllable(self):
        self.check(("कार्य", "dk;Z"), ("शर्मा", "'kekZ"), ("वर्षों", "o\"kksZa"), ("कार्ड", "dkMZ"), ("मूर्ति", "ewfrZ"))

    def test_r_below_its_letter(self):
        self.check(("ग्राहक", "xzkgd"), ("प्रति", "çfr"), ("ट्रायल", "Vªk;y"), ("राष्ट्र", "jk\"Vª"), ("द्रव", "æo"))

    def test_half_letters_and_conjuncts(self):
        self.check(("क्या", "D;k"), ("अच्छा", "vPNk"), ("क्षेत्र", "{ks="), ("ज्ञान", "Kku"), ("विद्या", "fo|k"),
                   ("उत्तर", "mÙkj"), ("शुल्क", "'kqYd"), ("चिट्ठी", "fpëh"), ("प्रसन्न", "çlé"))

    def test_dots_below(self):
        self.check(("जोड़ें", "tksM+sa"), ("मज़दूरी", "et+nwjh"), ("ख़बर", "[+kcj"), ("पढ़ाई", "i<+kbZ"))

    def test_shapes_of_their_own(self):
        self.check(("कृपया", "—i;k"), ("दृश्य", "–';"), ("हृदय", "ân;"), ("रुपये", "#i;s"), ("ज़रूरी", "t+:jh"))

    def test_vowels_and_marks(self):
        self.check(("आइए", "vkb,"), ("ऐसा", ",slk"), ("और", "vkSj"), ("हाँ", "gk¡"), ("दुःख", "nq%[k"), ("ऑर्डर", "v‚MZj"))

    def test_letter_without_vowel_at_the_end(self):
        self.check(("जगत्", "txR"), ("षट्", "\"kV~"))

    def test_numerals_punctuation_and_line_breaks(self):
        self.check(("१०!", "ƒå!"), ("ठीक?", "Bhd\\"), ("हाँ, ना।", "gk¡] ukA"), ("एक\r\nदो", ",d\r\nnks"), ("(12-3.5)", "¼12&3-5½"))

    def test_composed_and_decomposed_letters_are_one(self):
        self.assertEqual(encode("\u0958"), encode("\u0915\u093c"))

    def test_what_the_encoding_lacks_is_refused(self):
        with self.assertRaises(ValueError):
            encode("SMS")


if __name__ == "__main__":
    unittest.main()
