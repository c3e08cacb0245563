"""Seats and wheelchairs, in a sitter's frame."""

import numpy

from crowd.sculpture import cloth, hard

PLASTIC = hard("#27466f", 0.25)
STEEL, RUBBER, DARK = hard("#aeb4bd", 0.8), hard("#1b1b20", 0.2), hard("#2b2d35", 0.4)


def chair(shell=PLASTIC):
    """A seat of the stand: a bowed shell on four steel legs."""
    def draw(block, frame):
        frame.ellipsoid(block, (0, 80, -74), (110, 150, 22), shell)
        frame.ellipsoid(block, (0, -62, 30), (108, 26, 112), shell)
        for x in (-88, 88):
            frame.limb(block, [(x, -70, 110), (x * 1.1, -250, 124)], [9, 9], STEEL)
            frame.limb(block, [(x, -70, -60), (x * 1.1, -250, -84)], [9, 9], STEEL)
    return draw


def _ring(block, frame, centre, radius, thick, clay, tilt):
    turns = numpy.linspace(0, 2 * numpy.pi, 25)
    points = [(centre[0] + tilt * radius * numpy.sin(a), centre[1] + radius * numpy.sin(a),
               centre[2] + radius * numpy.cos(a)) for a in turns]
    frame.limb(block, points, [thick] * len(points), clay)


def wheelchair(shell, wheel=150):
    def draw(block, frame):
        frame.ellipsoid(block, (0, 70, -74), (104, 110, 14), shell)
        frame.ellipsoid(block, (0, -60, 30), (106, 20, 108), shell)
        for side in (-1, 1):
            x = side * 142
            centre = (x, -250 + wheel + 9, -10)
            _ring(block, frame, centre, wheel, 10, RUBBER, -side * 0.08)
            _ring(block, frame, (x + side * 13, *centre[1:]), wheel - 26, 4.5, STEEL, -side * 0.08)
            for a in numpy.linspace(0, 2 * numpy.pi, 13)[:-1]:
                frame.limb(block, [centre, (x - side * 0.08 * wheel * numpy.sin(a), centre[1] + wheel * numpy.sin(a),
                                            centre[2] + wheel * numpy.cos(a))], [2.2, 2.2], STEEL)
            frame.ellipsoid(block, centre, (13, 15, 15), STEEL)
            frame.limb(block, [(side * 104, 150, -88), (side * 104, -60, -70)], [8, 8], STEEL)
            frame.limb(block, [(side * 104, 150, -88), (side * 104, 156, -128)], [11, 11], RUBBER)
            frame.limb(block, [(side * 116, 22, -70), (side * 118, 24, 80)], [13, 13], DARK)
            frame.limb(block, [(side * 98, -60, 120), (side * 84, -170, 176), (side * 74, -252, 190)], [8, 8, 8], STEEL)
            frame.ellipsoid(block, (side * 62, -258, 196), (52, 7, 46), DARK)
            frame.limb(block, [(side * 98, -70, 110), (side * 110, -196, 112)], [8, 8], STEEL)
            frame.ellipsoid(block, (side * 112, -226, 116), (11, 30, 30), RUBBER)
            frame.ellipsoid(block, (side * 112, -226, 120), (13, 12, 12), STEEL)
    return draw


def blanket(colours):
    """A rug over the knees."""
    lap = 0.5  # of its length lies on the thighs, the rest hangs over the knees

    def draw(block, frame):
        def at(u, v):
            x = -126 + 252 * u
            out = numpy.cos((u - 0.5) * numpy.pi * 2) * 10
            if v < lap:
                return frame.point(x, 58 + out - abs(x) * 0.1, 40 + 196 * v / lap)
            return frame.point(x * 1.02, 58 + out - abs(x) * 0.1 - 230 * (v - lap), 236 + 10 * numpy.sin(u * 14))

        def tartan(u, v):
            return colours[2] if int(u * 40) % 8 == 4 or int(v * 40) % 8 == 4 else colours[
                (int(u * 10) + int(v * 10)) % 2]

        block.sheet(at, 130, 170, 9 * frame.scale, cloth(colours[0]), tartan)
    return draw
