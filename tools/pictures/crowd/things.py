"""What spectators wave, wear and drink from. Flags are upright squares of u along and v down, from 0 to 1."""

import numpy

from crowd.sculpture import cloth, hard

WOOD = hard("#8a5a33", 0.3)


def bands(colours, upright=False):
    return lambda u, v: colours[min(int((u if upright else v) * len(colours)), len(colours) - 1)]


def brazil(u, v):
    x, y = u - 0.5, v - 0.5
    if numpy.hypot(x * 1.4, y) < 0.21:
        return "#e8e8e0" if abs(y + 0.16 - 0.5 * numpy.hypot(x + 0.2, 0.3) + 0.05) < 0.03 else "#24418f"
    return "#f2c618" if abs(x) / 0.43 + abs(y) / 0.41 < 1 else "#0f8f45"


def portugal(u, v):
    if numpy.hypot((u - 0.4) * 1.5, v - 0.5) < 0.19:
        return "#d9d3c8" if numpy.hypot((u - 0.4) * 1.5, v - 0.5) < 0.1 else "#f0c32a"
    return "#0f6b39" if u < 0.4 else "#c9202c"


def britain(u, v):
    x, y = abs(u - 0.5), abs(v - 0.5)
    if x < 0.045 or y < 0.075:
        return "#c8202f"
    if x < 0.085 or y < 0.14:
        return "#e4e0da"
    slope = abs(x - y)
    return "#c8202f" if slope < 0.03 else "#e4e0da" if slope < 0.085 else "#22336f"


def flag(pattern, width, height, stick, lean=(0, 1, 0), flow=(1, 0.05, 0.1), wave=10):
    """On a stick in a closed hand; lean is the stick's direction, flow the cloth's, both in the picture."""
    def draw(block, hand):
        grip = hand.point(0, 34, 14)
        up, along = (numpy.asarray(v, float) / numpy.linalg.norm(v) for v in (lean, flow))
        s = hand.scale
        top = grip + up * stick * s
        block.limb([grip - up * 34 * s, top], [4.2 * s, 4.2 * s], WOOD)
        block.ball(top, 7 * s, hard("#d8b050"))

        def at(u, v):
            swing = wave * numpy.sin(2 * numpy.pi * (u * 1.15 + 0.12 * v)) * min(1, 2.5 * u)
            return (top - up * (6 + height * v) * s + along * width * u * s
                    + numpy.array([0, 0.35 * swing - 8 * u * u, 1.6 * swing]) * s)
        block.sheet(at, width * s, height * s, 2.6 * s, cloth("#ffffff", 0.25), pattern)
    return draw


def banner(pattern, left, right, height, sag=14):
    """A cloth held by its upper corners, given in the body's frame."""
    def draw(block, frame):
        a, b = numpy.asarray(left, float), numpy.asarray(right, float)

        def at(u, v):
            p = a + (b - a) * u
            droop = sag * 4 * u * (1 - u)
            return frame.point(p[0], p[1] - droop - height * v, p[2] + 9 * numpy.sin(u * 11 + v) + 6 * v)
        width = numpy.linalg.norm(b - a)
        block.sheet(at, width * frame.scale, height * frame.scale, 3.2 * frame.scale, cloth("#ffffff", 0.25), pattern)
    return draw


def scarf(colours, ends=(96, 78), bands_=14):
    """Around the neck, two ends on the chest."""
    def stripe(offset):
        return lambda t: colours[int(t * bands_ + offset) % len(colours)]

    def draw(block, frame):
        ring = [(80 * numpy.sin(a), 254 - 14 * numpy.cos(a), 4 + 52 * numpy.cos(a)) for a in
                numpy.linspace(0, 2 * numpy.pi, 17)]
        frame.limb(block, ring, [21] * len(ring), cloth(colours[0]), stripe(0))
        for x, low in zip((-32, 30), ends):
            frame.limb(block, [(x * 0.6, 240, 62), (x, 180, 78), (x * 1.1, 240 - low * 1.4, 82)], [21, 20, 22],
                       cloth(colours[0]), stripe(1))
    return draw


def mug(colour, band):
    def draw(block, hand):
        grip, s = hand.point(0, 34, 16), hand.scale
        low, high = (grip + numpy.array([0, y, 12]) * s for y in (-14, 26))
        block.limb([low, high], [30 * s, 30 * s], hard(colour, 0.5), lambda t: band if 0.25 < t < 0.75 else colour)
        block.ellipsoid(grip + numpy.array([0, 54, 14]) * s, (24 * s, 5 * s, 22 * s), hard("#6b3a1c", 0.3))
    return draw


def telephone(block, hand):
    hand.ellipsoid(block, (0, 66, 20), (36, 66, 9), hard("#4a5564", 0.9))


def fan_of_paper(colour):
    def draw(block, hand):
        hand.ellipsoid(block, (0, 100, 16), (58, 58, 5), hard(colour, 0.05))
        hand.limb(block, [(0, 20, 16), (0, 60, 16)], [6, 6], WOOD)
    return draw
