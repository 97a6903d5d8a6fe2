"""Makes the font of the papers out of the font of the screens.

    make_paper_font.py <source font> <target font> <family>

What is read out of a PDF file goes from each glyph back to its character. A glyph that stands for a character only in some
neighbourhood (a bracket beside digits, a colon between them) has no way back and is lost. The papers' font therefore has
one glyph a character and no substitutions, and its digits are all of one width.
"""

import sys

from fontTools import subset
from fontTools.ttLib import TTFont

FAMILY, STYLE, UNIQUE, FULL, POSTSCRIPT, TYPOGRAPHIC_FAMILY, TYPOGRAPHIC_STYLE = 1, 2, 3, 4, 6, 16, 17


def single_substitutions(font, feature):
    """Glyph -> the glyph that a feature puts in its place."""
    table = font["GSUB"].table
    wanted = {i for record in table.FeatureList.FeatureRecord if record.FeatureTag == feature
              for i in record.Feature.LookupListIndex}
    mapping = {}
    for index in sorted(wanted):
        for part in table.LookupList.Lookup[index].SubTable:
            mapping.update(getattr(getattr(part, "ExtSubTable", part), "mapping", {}))
    return mapping


def name_anew(font, family):
    """Gives the font a family name of its own; the licence and the copyright lines of the source stay."""
    names = font["name"]
    source = names.getDebugName(TYPOGRAPHIC_FAMILY) or names.getDebugName(FAMILY)
    for record in names.names:
        if record.nameID in (FAMILY, UNIQUE, FULL, POSTSCRIPT, TYPOGRAPHIC_FAMILY):
            own = family.replace(" ", "") if record.nameID == POSTSCRIPT else family
            record.string = record.toUnicode().replace(source, own)
    if "CFF " in font:
        cff = font["CFF "].cff
        cff.fontNames[0] = names.getDebugName(POSTSCRIPT)
        cff.topDictIndex[0].FullName = names.getDebugName(FULL)
        cff.topDictIndex[0].FamilyName = family


def main(source, target, family):
    font = TTFont(source, recalcTimestamp=False)
    tabular = single_substitutions(font, "tnum")
    digits = {code: tabular[name] for code, name in font.getBestCmap().items() if chr(code) in "0123456789"}
    if len(digits) != 10:
        sys.exit(f"{source}: no digits of one width")
    for table in font["cmap"].tables:
        if table.isUnicode():
            table.cmap.update(digits)
    options = subset.Options(layout_features=["kern", "mark", "mkmk"], name_IDs=["*"], notdef_outline=True)
    subsetter = subset.Subsetter(options)
    # Codes for private use are the alternative shapes again.
    subsetter.populate(unicodes=[code for code in font.getBestCmap() if not 0xE000 <= code <= 0xF8FF])
    subsetter.subset(font)
    if "GSUB" in font:
        del font["GSUB"]
    name_anew(font, family)
    font.save(target)


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    main(*sys.argv[1:])
