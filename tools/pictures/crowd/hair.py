"""Hair and hats, in a head's frame."""

import numpy

from crowd.sculpture import cloth, hair, linear


def _strands(colour, turns=46):
    base = linear(colour)

    def paint(local):
        around = numpy.arctan2(local[0], local[2] + 30)
        return base * (1 + 0.28 * numpy.sin(turns * around + 0.05 * local[1]))[:, None]

    return paint


def _cap_of_hair(block, frame, colour, line, grow=1.0, low=-40):
    """Hair on the skull above the line across the forehead, and behind the ears down to `low`."""
    def keep(local):
        x, y, z = local
        return ((y > line + 10 - 0.006 * x**2) | (z < 8 - 0.25 * y)) & (y > low)

    frame.ellipsoid(block, (0, 16, -6), (90 * grow, 100 * grow, 96 * grow), hair(colour), keep=keep,
                    paint=_strands(colour))


def short(colour, line=48, top=14):
    def draw(block, frame):
        _cap_of_hair(block, frame, colour, line)
        for x in range(-60, 61, 12):
            back = abs(x) * 0.45
            frame.limb(block, [(x, 92 - back, -30), (x * 0.9, 98 + top - back, 16),
                               (x * 0.9 + 8, 92 + top * 0.6 - back, 56 - back),
                               (x * 0.9 + 20, 78 - back * 0.6, 74 - back)], [19, 20, 15, 5], hair(colour))
    return draw


def cropped(colour, line=50):
    """Also what shows under a hat."""
    def draw(block, frame):
        _cap_of_hair(block, frame, colour, line)
    return draw


def bald(colour):
    """A wreath of hair around a bare crown."""
    def draw(block, frame):
        for side in (-1, 1):
            frame.limb(block, [(side * 78, 34, 10), (side * 86, 14, -22), (side * 78, -20, -40)], [12, 19, 15],
                       hair(colour))
    return draw


def long(colour, length=150, parting=0.3):
    def draw(block, frame):
        _cap_of_hair(block, frame, colour, 52, 1.04, -90)
        for side in (-1, 1):
            frame.limb(block, [(parting * 60, 106, 34), (side * 56, 84, 48), (side * 86, 20, 28),
                               (side * 86, -50, 22), (side * 72, -length, 24)], [12, 20, 18, 20, 12], hair(colour))
            frame.limb(block, [(side * 66, 40, -40), (side * 74, -40, -30), (side * 62, -length - 8, -24)],
                       [32, 34, 22], hair(colour))
        frame.limb(block, [(0, 20, -60), (0, -60, -60), (0, -length, -50)], [66, 62, 44], hair(colour))
    return draw


def bob(colour):
    return long(colour, 74, -0.4)


def bun(colour):
    def draw(block, frame):
        _cap_of_hair(block, frame, colour, 46)
        frame.ellipsoid(block, (0, 112, -34), (44, 36, 40), hair(colour), paint=_strands(colour, 30))
        for side in (-1, 1):
            frame.limb(block, [(0, 102, 44), (side * 52, 76, 50), (side * 84, 20, 14)], [10, 17, 12], hair(colour))
    return draw


def curls(colour, size=1.0, seed=3, down=-30):
    """A cloud of locks."""
    def draw(block, frame):
        random = numpy.random.default_rng(seed)
        _cap_of_hair(block, frame, colour, 50)
        for _ in range(420):
            d = random.standard_normal(3)
            d /= numpy.linalg.norm(d)
            x, y, z = d * (98, 108, 100) * size
            if y + 14 > down and not (z > 20 and y < 62 and abs(x) < 74 * size):
                frame.ellipsoid(block, (x, y + 14, z - 8), (15, 14, 15), hair(colour))
    return draw


def puffs(colour, ribbon):
    """Two balls of curls with ribbons."""
    def draw(block, frame):
        _cap_of_hair(block, frame, colour, 48)
        random = numpy.random.default_rng(5)
        for side in (-1, 1):
            frame.limb(block, [(side * 56, 84, -6), (side * 68, 96, -8)], [26, 26], cloth(ribbon))
            for _ in range(110):
                d = random.standard_normal(3)
                d *= 38 / numpy.linalg.norm(d)
                frame.ellipsoid(block, (side * 84 + d[0], 116 + d[1], -12 + d[2]), (12, 12, 12), hair(colour))
    return draw


def tuft(colour):
    """A baby's first hair."""
    def draw(block, frame):
        _cap_of_hair(block, frame, colour, 66)
        frame.limb(block, [(-14, 104, 44), (6, 118, 40), (22, 112, 46)], [10, 8, 4], hair(colour))
    return draw


def topped(*parts):
    def draw(block, frame):
        for part in parts:
            part(block, frame)
    return draw


def peaked(colour, peak, tall=1.0):
    """A baseball cap."""
    def draw(block, frame):
        frame.ellipsoid(block, (0, 30, -4), (95, 94 * tall, 98), cloth(colour, 0.5), keep=lambda p: p[1] > 10)
        frame.ellipsoid(block, (0, 52, 92), (66, 9, 50), cloth(peak, 0.2))
        frame.ellipsoid(block, (0, 30 + 94 * tall, -4), (8, 6, 8), cloth(peak, 0))
    return draw


def flat_cap(colour):
    def draw(block, frame):
        base = linear(colour)

        def check(p):
            weave = 0.16 * numpy.sign(numpy.sin(p[0] / 3)) + 0.1 * numpy.sign(numpy.sin(p[2] / 3))
            return base * (1 + weave)[:, None]

        frame.ellipsoid(block, (4, 82, -4), (104, 40, 106), cloth(colour, 0.6), paint=check)
        frame.ellipsoid(block, (0, 70, 82), (62, 10, 38), cloth(colour, 0.2))
    return draw


def beanie(colours, bobble):
    """A knitted hat in rings."""
    def draw(block, frame):
        lights = [linear(c) for c in colours]
        rings = lambda p: numpy.array(lights)[(numpy.floor(p[1] / 22).astype(int)) % len(lights)]
        frame.ellipsoid(block, (0, 36, -4), (98, 100, 102), cloth(colours[0], 0.5), paint=rings,
                        keep=lambda p: p[1] > 6)
        frame.ellipsoid(block, (0, 150, -4), (30, 28, 30), cloth(bobble, 2.0))
    return draw


def headwrap(colour, knot):
    def draw(block, frame):
        frame.ellipsoid(block, (0, 38, -8), (97, 96, 100), cloth(colour, 1.4), keep=lambda p: p[1] > 12 - 0.2 * p[2])
        for x, y, r in ((-26, 124, 34), (26, 128, 36), (0, 138, 30)):
            frame.ellipsoid(block, (x, y, 18), (r, r * 0.9, r), cloth(knot, 1.6))
    return draw


def straw_hat(colour, band):
    def draw(block, frame):
        frame.ellipsoid(block, (0, 72, -8), (140, 12, 136), cloth(colour, 0.3))
        frame.ellipsoid(block, (0, 78, -8), (84, 62, 86), cloth(colour, 0.3),
                        paint=lambda p: numpy.where((p[1] < 20)[:, None], linear(band), linear(colour)))
    return draw
