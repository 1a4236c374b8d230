#!/usr/bin/env python3
"""Writes a copy of an Inter face whose digits are Inter's own tabular ones, as family "Inter Tabular".

Qt 6.4 cannot switch on a font's OpenType features (QFont::setFeatures came with 6.6), and
Inter's default digits are proportional. The copy maps the digits straight to the glyphs of
Inter's "tnum" feature, so that figures set in it line up from one line to the next.

Usage: tabular_figures.py INPUT.otf OUTPUT.otf
"""
import sys

from fontTools.ttLib import TTFont

FAMILY = "Inter"
TABULAR_FAMILY = "Inter Tabular"


def tabular_substitutions(font):
    """The single substitutions of the font's "tnum" feature: glyph name to glyph name."""
    gsub = font["GSUB"].table
    lookups = set()
    for record in gsub.FeatureList.FeatureRecord:
        if record.FeatureTag == "tnum":
            lookups.update(record.Feature.LookupListIndex)
    substitutions = {}
    for index in sorted(lookups):
        lookup = gsub.LookupList.Lookup[index]
        for table in lookup.SubTable:
            if lookup.LookupType == 7:  # an extension wraps the real subtable
                table = table.ExtSubTable
            substitutions.update(getattr(table, "mapping", {}))
    return substitutions


def main(source, target):
    font = TTFont(source)
    substitutions = tabular_substitutions(font)
    if not substitutions:
        sys.exit(f"{source}: no tabular figures to take")
    for table in font["cmap"].tables:
        for code, glyph in list(table.cmap.items()):
            if glyph in substitutions:
                table.cmap[code] = substitutions[glyph]
    for record in font["name"].names:
        text = record.toUnicode()
        if record.nameID == 6:  # the PostScript name takes no spaces
            record.string = text.replace(FAMILY, TABULAR_FAMILY.replace(" ", ""), 1)
        elif record.nameID in (1, 3, 4, 16, 21):
            record.string = text.replace(FAMILY, TABULAR_FAMILY, 1)
    font.save(target)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(sys.argv[1], sys.argv[2])
