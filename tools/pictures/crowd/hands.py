"""Hands, in the units of a head: about 95 from the wrist to the fingertips."""

import numpy

from crowd.frame import Frame, unit


def hand_frame(wrist, fingers, palm, scale):
    """x to the thumb's side of a left hand, y along the fingers, z out of the palm."""
    y = unit(fingers)
    z = unit(palm - y * numpy.dot(palm, y))
    return Frame(wrist, numpy.column_stack([numpy.cross(y, z), y, z]), scale)


def open_hand(block, frame, clay, thumb, spread=9):
    """thumb: +1 or -1, the side on which it grows."""
    frame.ellipsoid(block, (0, 26, 0), (25, 34, 13), clay)
    for k, reach in enumerate((33, 42, 45, 38)):
        x = -21 + 14 * k
        lean = numpy.sin(numpy.radians(spread * (k - 1.5)))
        if thumb < 0:
            x, lean = -x, -lean
        frame.limb(block, [(x * 0.85, 42, 0), (x + lean * reach * 0.5, 52 + reach * 0.5, 3),
                           (x + lean * reach, 50 + reach, 8)], [8.6, 8.0, 6.6], clay)
    frame.limb(block, [(thumb * 14, 10, 4), (thumb * 34, 30, 10), (thumb * 42, 54, 12)], [11, 10, 7.5], clay)


def fist(block, frame, clay, thumb):
    """Fingers closed over what the hand holds, which runs along x at (0, 34, 12)."""
    frame.ellipsoid(block, (0, 28, 0), (27, 30, 17), clay)
    for k in range(4):
        x = -21 + 14 * k
        frame.limb(block, [(x, 48, 0), (x, 58, 14), (x, 44, 27), (x, 28, 22)], [9.5, 9.5, 9, 8], clay)
    frame.limb(block, [(thumb * 20, 10, 8), (thumb * 26, 26, 26), (0, 36, 34)], [11, 10.5, 8.5], clay)


def resting(block, frame, clay, thumb):
    """Fingers together, a little curled."""
    frame.ellipsoid(block, (0, 26, 0), (24, 33, 13), clay)
    for k, reach in enumerate((30, 37, 39, 33)):
        x = (-18 + 12 * k) * (1 if thumb > 0 else -1)
        frame.limb(block, [(x, 44, 0), (x * 0.95, 54 + reach * 0.5, 6), (x * 0.8, 48 + reach, 18)], [8.6, 8, 6.6], clay)
    frame.limb(block, [(thumb * 14, 12, 4), (thumb * 30, 32, 12), (thumb * 28, 52, 18)], [11, 9.5, 7.5], clay)


KINDS = {"open": open_hand, "fist": fist, "rest": resting}
