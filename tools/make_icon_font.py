#!/usr/bin/python3
"""Builds resources/BaseConfig/kelvarimiconfont.ttf from the drawings in resources/icons.

usage: make_icon_font.py [--check]     --check only tells whether the committed font is what the drawings give.

A drawing is named <name>-<code point>.svg and lies on a grid of 16 by 16. It is painted in its own order, as any viewer
shows it: black adds, white takes away; strokes become outlines here. The font has these glyphs and no others, so that
letters set in it come from the text font. Every glyph is as wide as the em and stands a little below the baseline, as
a Chinese character does. The line has the same room above and below it: a glyph at the beginning of a line stands at the
height of the letters there, and one that is centred stays so. At 8 and 16 pixels the grid lies on whole pixels. A glyph
that fills a place of its own height stands at the top of its line instead, where it is drawn from.

Needs the Debian packages python3-fonttools and python3-shapely.
"""

import io
import pathlib
import sys
import xml.etree.ElementTree as ElementTree

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.basePen import BasePen
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.svgLib.path import parse_path
from fontTools.svgLib.path.shapes import PathBuilder
from shapely.geometry import LineString, Polygon
from shapely.geometry.polygon import orient
from shapely.ops import unary_union

ROOT = pathlib.Path(__file__).resolve().parent.parent
DRAWINGS = ROOT / "resources" / "icons"
FONT = ROOT / "resources" / "BaseConfig" / "kelvarimiconfont.ttf"
FAMILY = "kelvarimiconfont"
VERSION = "1.000"
MADE = 3786912000  # seconds since 1904: fixed, so that the same drawings give the same file

GRID = 16
EM = 2048
UNIT = EM // GRID
BELOW = 2  # how much of a glyph lies below the baseline; this and the next in units of the grid
ROOM = 3  # above and below a glyph in its line
AT_THE_TOP = {"Detail"}
ASCENT = (GRID - BELOW + ROOM) * UNIT
DESCENT = (BELOW + ROOM) * UNIT
CURVE_STEPS = 24
ROUND_STEPS = 12  # pieces of a quarter circle
FLATNESS = 0.003  # in units of the grid


class Polylines(BasePen):
    """Takes a path apart into lists of points, each with whether it is closed."""

    def __init__(self):
        super().__init__(None)
        self.lines = []

    def _moveTo(self, point):
        self.lines.append(([point], False))

    def _lineTo(self, point):
        self.lines[-1][0].append(point)

    def _curveToOne(self, b, c, d):
        points = self.lines[-1][0]
        a = points[-1]
        for step in range(1, CURVE_STEPS + 1):
            t = step / CURVE_STEPS
            s = 1 - t
            weights = (s * s * s, 3 * s * s * t, 3 * s * t * t, t * t * t)
            points.append(tuple(sum(w * p[i] for w, p in zip(weights, (a, b, c, d))) for i in (0, 1)))

    def _closePath(self):
        points = self.lines[-1][0]
        if points[0] != points[-1]:
            points.append(points[0])
        self.lines[-1] = (points, True)


def polylines(element):
    builder = PathBuilder()
    builder.add_path_from_element(element)
    pen = Polylines()
    for path in builder.paths:
        parse_path(path, pen)
    return pen.lines


def stroke_of(points, closed, width):
    """The outline of a stroke with round caps and joins."""
    line = LineString(points)
    if closed:
        # The seam of a closed line is rounded by its two caps, as its corners are by their joins.
        line = LineString(points + points[1:2])
    return line.buffer(width / 2, resolution=ROUND_STEPS)


def painted(ground, shape, colour):
    return ground.difference(shape) if colour == "#fff" else ground.union(shape)


def outline(file):
    """The black area of a drawing, y upwards, in units of the grid."""
    drawing = ElementTree.parse(file).getroot()
    area = Polygon()
    for element in drawing:
        look = {**drawing.attrib, **element.attrib}
        lines = polylines(element)
        if look["fill"] != "none":
            for points, _ in lines:
                area = painted(area, Polygon(points).buffer(0), look["fill"])
        if look["stroke"] != "none":
            width = float(look["stroke-width"])
            shape = unary_union([stroke_of(points, closed, width) for points, closed in lines])
            area = painted(area, shape, look["stroke"])
    return area.simplify(FLATNESS)


def glyph_of(area, top=GRID - BELOW):
    """`top` is how far above the baseline the grid begins, in its units."""
    pen = TTGlyphPen(None)
    pieces = area.geoms if hasattr(area, "geoms") else [area]
    for piece in sorted(pieces, key=lambda p: p.bounds):
        piece = orient(piece, 1)  # anticlockwise with y downwards is clockwise in the font
        for ring in [piece.exterior, *piece.interiors]:
            points = [(round(x * UNIT), round((top - y) * UNIT)) for x, y in ring.coords[:-1]]
            pen.moveTo(points[0])
            for point in points[1:]:
                pen.lineTo(point)
            pen.closePath()
    return pen.glyph()


def missing_glyph():
    frame = Polygon([(2, 1), (14, 1), (14, 15), (2, 15)])
    return glyph_of(frame.difference(frame.buffer(-1, join_style=2)))


def built_font():
    drawings = {}
    for file in sorted(DRAWINGS.glob("*.svg")):
        name, code = file.stem.rsplit("-", 1)
        drawings[int(code, 16)] = (name, file)
    codes = sorted(drawings)
    names = {code: drawings[code][0] for code in codes}
    glyphs = {".notdef": missing_glyph()}
    for name, file in (drawings[code] for code in codes):
        glyphs[name] = glyph_of(outline(file), ASCENT // UNIT if name in AT_THE_TOP else GRID - BELOW)

    builder = FontBuilder(EM, isTTF=True)
    builder.setupGlyphOrder(list(glyphs))
    builder.setupCharacterMap(names)
    builder.setupGlyf(glyphs)
    builder.setupHorizontalMetrics({name: (EM, builder.font["glyf"][name].xMin) for name in glyphs})
    builder.setupHorizontalHeader(ascent=ASCENT, descent=-DESCENT)
    builder.setupOS2(sTypoAscender=ASCENT, sTypoDescender=-DESCENT, sTypoLineGap=0, usWinAscent=ASCENT,
                     usWinDescent=DESCENT, sxHeight=EM // 2, sCapHeight=EM - BELOW * UNIT, fsSelection=0x40, fsType=0)
    builder.setupPost(keepGlyphNames=True)
    builder.setupNameTable({
        "familyName": FAMILY, "styleName": "Regular", "uniqueFontIdentifier": f"{FAMILY} {VERSION}",
        "fullName": FAMILY, "psName": FAMILY, "version": f"Version {VERSION}"})
    builder.updateHead(fontRevision=float(VERSION), created=MADE, modified=MADE, lowestRecPPEM=8)
    builder.font.recalcTimestamp = False
    data = io.BytesIO()
    builder.save(data)
    return data.getvalue()


def main():
    font = built_font()
    if sys.argv[1:] == ["--check"]:
        if FONT.read_bytes() != font:
            sys.exit(f"{FONT} is not what {DRAWINGS} gives: run {sys.argv[0]}")
        return
    FONT.parent.mkdir(parents=True, exist_ok=True)
    FONT.write_bytes(font)


if __name__ == "__main__":
    main()
