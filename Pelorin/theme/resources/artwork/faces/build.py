"""Builds a TrueType face from its description: build.py DESCRIPTION OUTPUT.

The description is a module of this folder (tavrin, dravik). The same description gives
the same bytes: nothing of the clock or of the machine goes into the file.
"""

import importlib
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent))
sys.dont_write_bytecode = True

from fontTools.feaLib.builder import addOpenTypeFeaturesFromString
from fontTools.fontBuilder import FontBuilder
from fontTools.misc.timeTools import timestampFromString
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib import newTable
from fontTools.agl import UV2AGL

UNITS_PER_EM = 1000
CREATED = timestampFromString("Mon Jan  1 00:00:00 2024")


def glyph_name(char):
    return UV2AGL.get(ord(char), f"uni{ord(char):04X}")


def drawn(contours, shift):
    """A glyf entry of the contours, moved to the right by `shift`."""
    pen = TTGlyphPen(None)
    for contour in contours:
        place = [tuple((round(x + shift), round(y)) for x, y in step[1:]) for step in contour]
        pen.moveTo(place[0][-1])
        last = place[0][-1]
        for (kind, *_), points in zip(contour[1:], place[1:]):
            if kind == "curve":
                pen.qCurveTo(*points)
            elif points[0] != last:
                pen.lineTo(points[0])
            last = points[-1]
        pen.closePath()
    return pen.glyph()


def extent(contours):
    xs = [x for contour in contours for step in contour for x, _ in step[1:]]
    return min(xs), max(xs)


def placed(face, entry):
    """Glyph and advance width. A fixed advance centres the glyph."""
    contours = entry["pen"].outlines(entry["parts"], entry["cuts"])
    left, right = extent(contours)
    if entry["advance"] is not None:
        advance = entry["advance"]
        bearing = (advance - (right - left)) / 2
    else:
        bearing, after = (face.SIDES[side] for side in entry["sides"])
        advance = bearing + right - left + after
    return drawn(contours, round(bearing) - left), round(advance)


def missing_glyph(face):
    """A box with a thin frame."""
    pen = TTGlyphPen(None)
    for inset, clockwise in ((0, True), (40, False)):
        left, bottom, right, top = 60 + inset, inset, 440 - inset, face.CAP - inset
        points = [(left, bottom), (left, top), (right, top), (right, bottom)]
        pen.moveTo(points[0])
        for point in points[1:] if clockwise else points[:0:-1]:
            pen.lineTo(point)
        pen.closePath()
    return pen.glyph()


def kerning(face):
    lines = []
    for first, second, value in face.KERNING:
        names = [" ".join(glyph_name(char) for char in side.split()) for side in (first, second)]
        lines.append(f"enum pos [{names[0]}] [{names[1]}] {value};")
    return "languagesystem DFLT dflt; languagesystem latn dflt;\nfeature kern {\n" + "\n".join(lines) + "\n} kern;\n"


def build(face):
    glyphs = {".notdef": missing_glyph(face), "space": TTGlyphPen(None).glyph()}
    advances = {".notdef": 500, "space": face.SPACE}
    cmap = {0x20: "space", 0xA0: "space"}
    for char in sorted(face.GLYPHS):
        name = glyph_name(char)
        glyphs[name], advances[name] = placed(face, face.GLYPHS[char])
        cmap[ord(char)] = name
    cmap[0x3BC] = cmap[0xB5]  # the Greek letter and the sign for micro look alike

    builder = FontBuilder(UNITS_PER_EM, isTTF=True)
    builder.setupGlyphOrder(list(glyphs))
    builder.setupCharacterMap(cmap)
    builder.setupGlyf(glyphs)
    table = builder.font["glyf"]
    builder.setupHorizontalMetrics({name: (advances[name], getattr(table[name], "xMin", 0)) for name in glyphs})
    builder.setupHorizontalHeader(ascent=face.LINE_ASCENDER, descent=face.LINE_DESCENDER, lineGap=face.LINE_GAP)
    builder.setupNameTable({
        "copyright": "Drawn for the Pelorin project.",
        "familyName": face.FAMILY,
        "styleName": "Regular",
        "uniqueFontIdentifier": f"{face.FAMILY} Regular 1.000",
        "fullName": face.FAMILY,
        "version": "Version 1.000",
        "psName": f"{face.FAMILY}-Regular",
    }, mac=False)
    builder.setupOS2(
        version=4,
        achVendID="PLRN",
        fsType=0,
        fsSelection=0x40 | 0x80,  # regular, typographic metrics
        usWeightClass=400,
        usWidthClass=5,
        xAvgCharWidth=round(sum(a for a in advances.values() if a) / sum(1 for a in advances.values() if a)),
        sTypoAscender=face.LINE_ASCENDER,
        sTypoDescender=face.LINE_DESCENDER,
        sTypoLineGap=face.LINE_GAP,
        usWinAscent=face.LINE_ASCENDER,
        usWinDescent=-face.LINE_DESCENDER,
        sxHeight=face.XH,
        sCapHeight=face.CAP,
        yStrikeoutPosition=round(face.XH / 2),
        yStrikeoutSize=round(face.H),
        ulUnicodeRange1=1,
        ulCodePageRange1=1,
        usDefaultChar=0,
        usBreakChar=32,
    )
    builder.setupPost(underlinePosition=-100, underlineThickness=round(face.H), keepGlyphNames=True)
    addOpenTypeFeaturesFromString(builder.font, kerning(face))
    builder.setupHead(unitsPerEm=UNITS_PER_EM, fontRevision=1.0, created=CREATED, modified=CREATED, lowestRecPPEM=8)

    # Smooth at every size: the outlines carry no instructions.
    builder.font["gasp"] = newTable("gasp")
    builder.font["gasp"].gaspRange = {0xFFFF: 0x0A}
    builder.font.recalcTimestamp = False
    return builder.font


def main():
    description, output = sys.argv[1:]
    build(importlib.import_module(description)).save(output)


if __name__ == "__main__":
    main()
