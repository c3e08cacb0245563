"""A head and its face, in a frame whose origin is the middle of the skull and whose unit is a hundredth of it."""

from dataclasses import dataclass

import numpy

from crowd.sculpture import hair, linear, skin

SKULL, JAW = ((0, 14, -4), (84, 92, 90)), ((0, -32, 14), (66, 70, 68))


@dataclass(frozen=True)
class Face:
    tone: str
    lips: str = "#a04848"
    iris: str = "#3a2416"
    brows: str = "#2a1a12"
    mouth: float = 18  # how far it stands open
    eyes: float = 1.0  # 0 squeezed to a happy arc
    gaze: tuple = (0, 0)
    jaw: float = 1.0  # breadth
    beard: str = ""
    moustache: str = ""
    stripes: tuple = ()  # painted on the cheeks
    glasses: str = ""
    old: bool = False
    baby: bool = False


def _over(base, mask, colour, strength=1.0):
    share = (numpy.clip(mask, 0, 1) * strength)[:, None]
    return base * (1 - share) + linear(colour) * share


def _edge(distance, soft=1.5):
    return 0.5 - distance / (2 * soft)


def _paint_eyes(rgb, face, x, y):
    size = 1.25 if face.baby else 1.0
    down = -6 if face.baby else 4
    for side in (-1, 1):
        ex, ey = x - side * 33, y - down
        lid = 12 * size * (1 - (ex / (17 * size)) ** 2)  # the upper lid's arc
        if face.eyes < 0.3:
            rgb = _over(rgb, _edge(numpy.abs(ey - lid * 0.7 + 2) - 3.2) * (numpy.abs(ex) < 17 * size), "#2a1512")
        else:
            ball = numpy.maximum(numpy.hypot(ex / (16 * size), ey / (11 * size * face.eyes)) - 1, -1) * 12
            rgb = _over(rgb, _edge(ball - 3, 3), "#3a1c18", 0.55)
            rgb = _over(rgb, _edge(ball), "#e2dad2")
            gx, gy = ex - face.gaze[0], ey - face.gaze[1]
            rgb = _over(rgb, _edge(numpy.hypot(gx, gy) - 9.0 * size) * (ball < 0.5), face.iris)
            rgb = _over(rgb, _edge(numpy.hypot(gx, gy) - 5.0 * size) * (ball < 0.5), "#0c0808")
            rgb = _over(rgb, _edge(numpy.hypot(gx + 3, gy - 4) - 2.4), "#ffffff")
            upper = numpy.abs(ball) - 2.6
            rgb = _over(rgb, _edge(upper) * (ey > -1), "#1e100e")
        if not face.baby:
            brow = numpy.abs(ey - 25 - 5 * (1 - (ex / 20) ** 2) + side * ex * 0.12) - (4.4 - 0.06 * numpy.abs(ex))
            rgb = _over(rgb, _edge(brow) * (numpy.abs(ex) < 22), face.brows)
        if face.glasses:
            rim = numpy.abs(numpy.maximum(numpy.abs(ex) / 25, numpy.abs(ey) / 19) * 0.55
                            + numpy.hypot(ex / 25, ey / 19) * 0.5 - 1) * 20 - 2.6
            rgb = _over(rgb, _edge(rim), face.glasses)
    if face.glasses:
        rgb = _over(rgb, _edge(numpy.abs(y - 8) - 2.6) * (numpy.abs(x) < 11), face.glasses)
    return rgb


def _paint_mouth(rgb, face, x, y):
    half = 18 if face.baby else 28
    t = x / half
    inside = numpy.abs(t) < 1
    upper = -43 + 9 * t**2
    lower = upper - max(face.mouth, 2.5) * numpy.clip(1 - t**2, 0, 1) ** 0.7
    gap = numpy.maximum(y - upper, lower - y)
    rgb = _over(rgb, _edge(gap - 3.5, 2) * (numpy.abs(t) < 1.12), face.lips, 0.9)
    rgb = _over(rgb, _edge(gap) * inside, "#43100f")
    if face.mouth > 8 and not face.baby:
        rgb = _over(rgb, _edge(gap + 1.0) * inside * (y > upper - 10), "#e6dcd0")
    for side in (-1, 1):
        fold = numpy.abs(numpy.hypot(x - side * 18, y + 34) - 27) - 1.6
        rgb = _over(rgb, _edge(fold, 2.5) * (side * x > 30) * (y > -46) * (y < -14), "#5a2018",
                    0.45 if face.old else 0.15)
    return rgb


def _paint(face, lift):
    """The colours of a face's surface; lift is the painted part's height above the skull's middle."""
    base = linear(face.tone)

    def paint(local):
        x, y, z = local[0], local[1] + lift, local[2]
        rgb = numpy.repeat(base[None], x.size, 0)
        for side in (-1, 1):
            warmth = numpy.exp(-((x - side * 46) ** 2 + (y + 22) ** 2) / 420)[:, None]
            rgb = rgb * (1 - warmth * numpy.array([-0.12, 0.22, 0.26]))
        if face.old:
            for line in (46, 55):
                rgb = _over(rgb, _edge(numpy.abs(y - line - 0.003 * x**2) - 1, 2) * (numpy.abs(x) < 34), "#7a3a2c", 0.5)
        if face.beard:
            rgb = _over(rgb, (-(y + 26) - 8 + 0.012 * x**2) / 8, face.beard, 0.9)
        front = z > 0
        for k, colour in enumerate(face.stripes):
            mark = numpy.maximum(numpy.abs(x - 50) - 11, numpy.abs(y + 14 + 6 * k) - 3.2)
            rgb = _over(rgb, _edge(mark) * front, colour)
        drawn = _paint_mouth(_paint_eyes(rgb, face, x, y), face, x, y)
        return numpy.where(front[:, None], drawn, rgb)

    return paint


def head(block, frame, face):
    clay = skin(face.tone)
    broad = 1.06 if face.baby else face.jaw
    for t in numpy.linspace(0, 1, 15):  # so many, that cheeks run smoothly from temple to chin
        centre, radii = (numpy.array(a) * (1 - t) + numpy.array(b) * t for a, b in zip(SKULL, JAW))
        radii[0] *= 1 - t + broad * t
        frame.ellipsoid(block, centre, radii, clay, paint=_paint(face, centre[1]))
    for side in (-1, 1):
        frame.ellipsoid(block, (side * 82, -4, -6), (12, 22, 16), clay)
    nose = 9 if face.baby else 16 if face.old else 13
    frame.ellipsoid(block, (0, -14, 82), (nose * 1.15, nose, nose * 1.2), clay)
    if not face.baby:
        frame.limb(block, [(0, 14, 80), (0, -4, 86), (0, -14, 90)], [6, 8, 10], clay)
    _facial_hair(block, frame, face)


def _facial_hair(block, frame, face):
    if face.beard:
        for side in (-1, 1):
            frame.limb(block, [(side * 74, -8, 6), (side * 68, -50, 22), (side * 42, -84, 46), (0, -98, 58)],
                       [12, 17, 22, 24], hair(face.beard))
    if face.moustache:
        for side in (-1, 1):
            frame.limb(block, [(0, -34, 88), (side * 20, -37, 84), (side * 40, -38, 70)], [8, 8.5, 4],
                       hair(face.moustache))
