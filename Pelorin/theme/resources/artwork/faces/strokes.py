"""Turns letters that are described by their strokes into TrueType outlines.

A stroke is a chain of straight pieces along the middle of the pen's way. A point of the
chain is (x, y), or (x, y, r) where the corner is to be softened by r: rounded with that
radius, or cut off by that length, as the face wants it. The pen is as wide as `vertical`
in stems and as `horizontal` in bars, and between the two on slants.

The strokes of a glyph are widened with sharp corners, united, and only then are the
corners softened. So no two contours overlap, and every curve is a pair of quadratic
pieces with a smooth joint.
"""

from math import atan2, hypot, tan

from shapely.geometry import Polygon
from shapely.geometry.polygon import orient
from shapely.ops import unary_union

LEFT, MIDDLE, RIGHT = 0.5, 0.0, -0.5


class Stroke:
    """A chain of points. Its ends are cut level where they slant and square elsewhere;
    `square` cuts them square in any case."""

    def __init__(self, points, closed=False, square=False):
        self.points = [(p[0], p[1], p[2] if len(p) > 2 else 0) for p in points]
        self.closed = closed
        self.square = square


def line(*points, square=False):
    return Stroke(points, square=square)


def ring(*points):
    return Stroke(points, closed=True)


class Shape:
    """A polygon to fill or to cut out; its corners are softened by `r`. `brims` are the
    points where a cut meets the outline; they are softened too."""

    def __init__(self, points, r=0, brims=()):
        self.points = points
        self.r = r
        self.brims = brims


def rectangle(left, bottom, right, top, r=0):
    return Shape([(left, bottom), (right, bottom), (right, top), (left, top)], r)


def notch(side, upper, lower, y, depth, r):
    """A wedge to cut out of the waist between two bowls whose outer edges stand at
    x = upper and x = lower; `side` is 1 on the right and -1 on the left."""
    tip = min(side * upper, side * lower) - depth
    above, below = y + side * upper - tip, y - side * lower + tip
    far = tip + 1000
    return Shape([(side * tip, y), (side * far, y + 1000), (side * far, y - 1000)], r,
                 [(upper, above), (lower, below)])


class Pen:
    """A pen of a face. `corner` is 'round' or 'chamfer'; `edge` softens every outer corner
    that has no radius of its own; `fullness` above 1 makes round corners squarer."""

    def __init__(self, vertical, horizontal, corner, edge=0, fullness=1.0):
        self.vertical = vertical
        self.horizontal = horizontal
        self.corner = corner
        self.edge = edge
        self.fullness = fullness

    def width(self, dx, dy):
        """The pen's width across a stroke of the direction (dx, dy)."""
        length2 = dx * dx + dy * dy
        return (self.vertical * dy * dy + self.horizontal * dx * dx) / length2

    def slant(self, side0, x0, y0, side1, x1, y1):
        """A slanting stroke. Its ends are level, and each stands with its left edge, its
        middle or its right edge at the x given."""
        a, b = x0, x1
        for _ in range(20):
            level = self.width(b - a, y1 - y0) * hypot(b - a, y1 - y0) / abs(y1 - y0)
            a, b = x0 + side0 * level, x1 + side1 * level
        return line((a, y0), (b, y1))

    def outlines(self, parts, cuts=()):
        """The contours of a glyph: lists of ('line', p) and ('curve', c0, c1, p). What lies
        in one of the shapes `cuts` is taken away."""
        softness = {}
        areas = []
        for part in parts:
            if isinstance(part, Shape):
                areas.append(Polygon(part.points))
                for point in part.points:
                    softness[key(point)] = (part.r, part.r)
            else:
                areas += self._widened(part, softness)
        area = unary_union(areas)
        for cut in cuts:
            area = area.difference(Polygon(cut.points))
            softness.update((key(point), (cut.r, cut.r)) for point in cut.brims)
        polygons = sorted(getattr(area, "geoms", [area]), key=lambda polygon: polygon.bounds)
        contours = []
        for polygon in polygons:
            polygon = orient(polygon, -1.0)
            for loop in [polygon.exterior, *sorted(polygon.interiors, key=lambda i: i.bounds)]:
                contours.append(self._softened(corners(loop.coords[:-1]), softness))
        return contours

    def _widened(self, stroke, softness):
        """One quadrilateral for each piece of the stroke, mitred at the joints."""
        points = stroke.points
        count = len(points)
        pieces = []
        for i in range(count if stroke.closed else count - 1):
            (x0, y0, _), (x1, y1, _) = points[i], points[(i + 1) % count]
            length = hypot(x1 - x0, y1 - y0)
            ux, uy = (x1 - x0) / length, (y1 - y0) / length
            half = self.width(ux, uy) / 2
            # Its ends, its direction and half its width.
            pieces.append(((x0, y0), (x1, y1), (ux, uy), half))

        def border(piece, side):
            (x, y), _, (ux, uy), half = piece
            return (x - side * uy * half, y + side * ux * half), (ux, uy)

        def end(piece, point):
            ux, uy = piece[2]
            level = not stroke.square and abs(ux) > 1e-9 and abs(uy) > 1e-9
            across = (point, (1, 0) if level else (-uy, ux))
            return [crossing(border(piece, side), across) for side in (1, -1)]

        def joint(before, after, radius):
            pair = [crossing(border(before, side), border(after, side)) for side in (1, -1)]
            (ux, uy), (vx, vy) = before[2], after[2]
            turn = atan2(ux * vy - uy * vx, ux * vx + uy * vy)
            for side, point in zip((1, -1), pair):
                if radius:
                    softness[key(point)] = self._legs(radius, abs(turn), -side if turn > 0 else side)
            return pair

        areas = []
        for i, piece in enumerate(pieces):
            first, last = i == 0, i == len(pieces) - 1
            start = (end(piece, piece[0]) if first and not stroke.closed
                     else joint(pieces[i - 1], piece, points[i][2]))
            stop = (end(piece, piece[1]) if last and not stroke.closed
                    else joint(piece, pieces[(i + 1) % len(pieces)], points[(i + 1) % count][2]))
            areas.append(Polygon([start[0], stop[0], stop[1], start[1]]))
        return areas

    def _legs(self, radius, turn, outside):
        """How much of a bar and of a stem the softened corner takes on the outer
        (`outside` 1) or inner (-1) border, when the middle takes `radius`."""
        if self.corner == "round":
            base, growth = radius * tan(turn / 2), tan(turn / 2)
        else:
            base, growth = radius, tan(turn / 2) - tan(turn / 4)
        return tuple(max(0.0, base + outside * growth * pen / 2) for pen in (self.vertical, self.horizontal))

    def _softened(self, points, softness):
        count = len(points)
        wanted = []
        for i, point in enumerate(points):
            before, after = points[i - 1], points[(i + 1) % count]
            legs = softness.get(key(point))
            if legs is None:
                edge = self.edge if turning(before, point, after) < 0 else 0
                legs = (edge, edge)
            wanted.append([along(legs, before, point), along(legs, point, after)])
        for i in range(count):
            j = (i + 1) % count
            length = hypot(points[j][0] - points[i][0], points[j][1] - points[i][1])
            needed = wanted[i][1] + wanted[j][0]
            if needed > length:
                # The small one gives way to the large one.
                small, large = sorted((wanted[i][1], wanted[j][0]))
                large = min(large, length)
                small = length - large
                wanted[i][1], wanted[j][0] = (large, small) if wanted[i][1] > wanted[j][0] else (small, large)
        contour = []
        for i, point in enumerate(points):
            leg0, leg1 = wanted[i]
            if min(leg0, leg1) < 1:
                contour.append(("line", point))
                continue
            start, stop = towards(point, points[i - 1], leg0), towards(point, points[(i + 1) % count], leg1)
            contour.append(("line", start))
            if self.corner == "chamfer":
                contour.append(("line", stop))
                continue
            turn = abs(turning(points[i - 1], point, points[(i + 1) % count]))
            reach = min(0.9, self.fullness * tan(turn / 4) / tan(turn / 2))
            contour.append(("curve", between(start, point, reach), between(stop, point, reach), stop))
        return contour


def key(point):
    return round(point[0], 2), round(point[1], 2)


def between(a, b, share):
    return a[0] + (b[0] - a[0]) * share, a[1] + (b[1] - a[1]) * share


def towards(a, b, distance):
    return between(a, b, distance / hypot(b[0] - a[0], b[1] - a[1]))


def along(legs, a, b):
    dx, dy = b[0] - a[0], b[1] - a[1]
    return (legs[0] * dx * dx + legs[1] * dy * dy) / (dx * dx + dy * dy)


def turning(a, b, c):
    ux, uy, vx, vy = b[0] - a[0], b[1] - a[1], c[0] - b[0], c[1] - b[1]
    return atan2(ux * vy - uy * vx, ux * vx + uy * vy)


def crossing(first, second):
    ((px, py), (ux, uy)), ((qx, qy), (vx, vy)) = first, second
    t = ((qx - px) * vy - (qy - py) * vx) / (ux * vy - uy * vx)
    return px + t * ux, py + t * uy


def corners(points):
    """The points without those on a straight way and without doubles, from the leftmost on."""
    points = [p for i, p in enumerate(points) if hypot(p[0] - points[i - 1][0], p[1] - points[i - 1][1]) > 0.05]
    points = [p for i, p in enumerate(points)
              if abs(turning(points[i - 1], p, points[(i + 1) % len(points)])) > 0.002]
    first = points.index(min(points, key=key))
    return points[first:] + points[:first]
