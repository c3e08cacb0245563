"""A block of clay seen straight from the front: ellipsoids, limbs and cloth, of which the nearest surface is kept.

x to the right, y up, z towards the viewer, in units of which a seated adult is about 700 high; the floor is at y = 0.
The view looks a little down, so that laps and shoulders show.
"""

from dataclasses import dataclass

import numpy

LOOK_DOWN = numpy.radians(8)
VIEW = numpy.array([[1, 0, 0],
                    [0, numpy.cos(LOOK_DOWN), -numpy.sin(LOOK_DOWN)],
                    [0, numpy.sin(LOOK_DOWN), numpy.cos(LOOK_DOWN)]])
FAR = -1e6


def linear(colour):
    """'#rrggbb' as light."""
    encoded = numpy.array([int(colour[i : i + 2], 16) for i in (1, 3, 5)]) / 255
    return numpy.where(encoded <= 0.04045, encoded / 12.92, ((encoded + 0.055) / 1.055) ** 2.4)


@dataclass(frozen=True)
class Clay:
    """What a surface is made of: its colour, how it shines, how deeply it creases, how warm its shade is."""

    colour: str
    gloss: float = 0.05
    crease: float = 0.0
    flesh: float = 0.0

    def tinted(self, colour):
        return Clay(colour, self.gloss, self.crease, self.flesh)


def skin(colour):
    return Clay(colour, gloss=0.16, flesh=1.0)


def cloth(colour, crease=1.0):
    return Clay(colour, gloss=0.02, crease=crease)


def hair(colour):
    return Clay(colour, gloss=0.22, crease=0.4)


def hard(colour, gloss=0.5):
    return Clay(colour, gloss=gloss)


def spline(rows, t):
    """Catmull-Rom through rows, at t from 0 to 1."""
    n = len(rows) - 1
    i = min(int(t * n), n - 1)
    u = t * n - i
    a, b, c, d = rows[max(i - 1, 0)], rows[i], rows[i + 1], rows[min(i + 2, n)]
    return 0.5 * (2 * b + (c - a) * u + (2 * a - 5 * b + 4 * c - d) * u**2 + (3 * b - a - 3 * c + d) * u**3)


class Sculpture:
    """Depth, normal, colour and material of the nearest surface at each pixel."""

    def __init__(self, view, lines):
        """view: the left, bottom, width and height of what is seen."""
        left, bottom, width, height = view
        self.scale = lines / height
        self.left, self.top = left * self.scale, (bottom + height) * self.scale
        self.shape = (lines, round(width * self.scale))
        self.depth = numpy.full(self.shape, FAR, numpy.float32)
        self.normal = numpy.zeros((*self.shape, 3), numpy.float32)
        self.colour = numpy.zeros((*self.shape, 3), numpy.float32)
        self.stuff = numpy.zeros((*self.shape, 3), numpy.float32)  # gloss, crease, flesh

    def ellipsoid(self, centre, radii, clay, axes=None, paint=None, keep=None):
        """paint(points) gives colours, keep(points) says which points remain; points are (3, n), along the axes."""
        radii = numpy.asarray(radii, float) * self.scale
        axes = VIEW @ (numpy.eye(3) if axes is None else axes)
        place = VIEW @ numpy.asarray(centre, float) * self.scale
        cx, cy = place[0] - self.left, self.top - place[1]
        reach = numpy.sqrt(((axes * radii) ** 2).sum(1))
        x0, x1 = max(int(cx - reach[0]), 0), min(int(cx + reach[0]) + 2, self.shape[1])
        y0, y1 = max(int(cy - reach[1]), 0), min(int(cy + reach[1]) + 2, self.shape[0])
        if x0 >= x1 or y0 >= y1:
            return
        into = axes.T / radii[:, None]
        dx = numpy.arange(x0, x1) + 0.5 - cx
        dy = cy - (numpy.arange(y0, y1) + 0.5)
        flat = into[:, 0, None, None] * dx[None, None, :] + into[:, 1, None, None] * dy[None, :, None]
        ray = into[:, 2]
        square, cross = ray @ ray, numpy.tensordot(ray, flat, 1)
        root = cross**2 - square * ((flat**2).sum(0) - 1)
        z = (numpy.sqrt(numpy.maximum(root, 0)) - cross) / square
        nearest = self.depth[y0:y1, x0:x1]
        seen = (root > 0) & (z + place[2] > nearest)
        if not seen.any():
            return
        unit = flat[:, seen] + ray[:, None] * z[seen]
        local = unit * radii[:, None] / self.scale
        if keep is not None:
            kept = keep(local)
            if not kept.any():
                return
            seen[seen] = kept
            unit, local = unit[:, kept], local[:, kept]
        normal = into.T @ unit
        nearest[seen] = z[seen] + place[2]
        self.normal[y0:y1, x0:x1][seen] = (normal / numpy.linalg.norm(normal, axis=0)).T
        self.colour[y0:y1, x0:x1][seen] = linear(clay.colour) if paint is None else paint(local)
        self.stuff[y0:y1, x0:x1][seen] = (clay.gloss, clay.crease, clay.flesh)

    def ball(self, centre, radius, clay):
        self.ellipsoid(centre, (radius, radius, radius), clay)

    def limb(self, points, radii, clay, colour_at=None):
        """A tube through points with its radius at each; colour_at(t) gives the colour from end to end."""
        rows = numpy.array([(*p, r) for p, r in zip(points, radii)], float)
        length = numpy.linalg.norm(numpy.diff(rows[:, :3], axis=0), axis=1).sum()
        steps = max(2, int(length / max(0.07 * rows[:, 3].min(), 1.2, 0.8 / self.scale)))
        for k in range(steps + 1):
            x, y, z, r = spline(rows, k / steps)
            self.ball((x, y, z), r, clay if colour_at is None else clay.tinted(colour_at(k / steps)))

    def trunk(self, points, sizes, clay, axes=None, paint=None):
        """A tube with an oval section: its half width and half depth at each point; paint(points, t)."""
        rows = numpy.array([(*p, *s) for p, s in zip(points, sizes)], float)
        length = numpy.linalg.norm(numpy.diff(rows[:, :3], axis=0), axis=1).sum()
        steps = max(2, int(length / max(2.5, 0.8 / self.scale)))
        for k in range(steps + 1):
            x, y, z, w, d = spline(rows, k / steps)
            t = k / steps
            self.ellipsoid((x, y, z), (w, 0.45 * min(w, d), d), clay, axes,
                           None if paint is None else (lambda local, t=t: paint(local, t)))

    def sheet(self, at, width, height, thickness, clay, colour_at):
        """Cloth: at(u, v) is its place and colour_at(u, v) its colour, both from 0 to 1."""
        step = max(1.8, 0.8 / self.scale)
        for v in numpy.linspace(0, 1, int(height / step) + 2):
            for u in numpy.linspace(0, 1, int(width / step) + 2):
                self.ball(at(u, v), thickness, clay.tinted(colour_at(u, v)))

    def bounds(self):
        """The left, bottom, right and top of what there is."""
        lines, columns = numpy.nonzero(self.depth > FAR / 2)
        return ((columns.min() + self.left) / self.scale, (self.top - lines.max() - 1) / self.scale,
                (columns.max() + 1 + self.left) / self.scale, (self.top - lines.min()) / self.scale)


def fitted(draw, aspect):
    """The view of this aspect that shows the whole of what draw(block) makes, standing on its lower edge."""
    rough = Sculpture((-600, -150, 1200, 1300), 260)
    draw(rough)
    left, bottom, right, top = rough.bounds()
    height = max(top - bottom, (right - left) / aspect)
    return ((left + right - height * aspect) / 2, bottom, height * aspect, height)
