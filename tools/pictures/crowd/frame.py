"""Places and directions of bodies, and the bend of elbows and knees."""

import numpy


def turn(yaw=0, pitch=0, roll=0):
    """Degrees; yaw to the picture's right, pitch up, roll against the clock."""
    y, p, r = numpy.radians([yaw, -pitch, roll])
    about_y = [[numpy.cos(y), 0, numpy.sin(y)], [0, 1, 0], [-numpy.sin(y), 0, numpy.cos(y)]]
    about_x = [[1, 0, 0], [0, numpy.cos(p), -numpy.sin(p)], [0, numpy.sin(p), numpy.cos(p)]]
    about_z = [[numpy.cos(r), -numpy.sin(r), 0], [numpy.sin(r), numpy.cos(r), 0], [0, 0, 1]]
    return numpy.array(about_y) @ about_x @ numpy.array(about_z)


class Frame:
    """An origin, three axes and a scale within the picture."""

    def __init__(self, origin=(0, 0, 0), axes=None, scale=1.0):
        self.origin = numpy.asarray(origin, float)
        self.axes = numpy.eye(3) if axes is None else axes
        self.scale = scale

    def point(self, *p):
        return self.origin + self.scale * self.axes @ numpy.asarray(p, float)

    def moved(self, at, axes=None, scale=1.0):
        return Frame(self.point(*at), self.axes if axes is None else self.axes @ axes, self.scale * scale)

    # The same shapes as a sculpture's, in this frame.
    def ellipsoid(self, clay_block, centre, radii, clay, axes=None, paint=None, keep=None):
        """paint and keep get points in this frame's units, relative to the centre."""
        s = self.scale
        clay_block.ellipsoid(self.point(*centre), numpy.asarray(radii, float) * s, clay,
                             self.axes if axes is None else self.axes @ axes,
                             None if paint is None else (lambda p: paint(p / s)),
                             None if keep is None else (lambda p: keep(p / s)))

    def limb(self, clay_block, points, radii, clay, colour_at=None):
        clay_block.limb([self.point(*p) for p in points], [r * self.scale for r in radii], clay, colour_at)

    def trunk(self, clay_block, points, sizes, clay, paint=None):
        s = self.scale
        clay_block.trunk([self.point(*p) for p in points], [(w * s, d * s) for w, d in sizes], clay, self.axes,
                         None if paint is None else (lambda p, t: paint(p / s, t)))


def unit(v):
    return numpy.asarray(v, float) / max(numpy.linalg.norm(v), 1e-9)


def bend(root, target, upper, lower, towards):
    """The joint and the end of a limb of two bones that reaches for the target, its joint pointing `towards`."""
    root, target = numpy.asarray(root, float), numpy.asarray(target, float)
    direction = unit(target - root)
    reach = min(numpy.linalg.norm(target - root), 0.985 * (upper + lower))
    along = (upper**2 - lower**2 + reach**2) / (2 * reach)
    out = numpy.asarray(towards, float) - direction * numpy.dot(towards, direction)
    joint = root + direction * along + unit(out) * numpy.sqrt(max(upper**2 - along**2, 0))
    return joint, root + direction * reach
