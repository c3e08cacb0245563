"""Heads, hands and limbs, drawn in their own units and placed by a transform."""

from vector import FLESH_SHADE, SHADE, dark, ellipse, light, mix, polar, smooth, tube


def mirror(points):
    return [(-x, y) for x, y in points]


class Skin:
    """The tones of one complexion."""

    def __init__(self, base, blush, lips):
        self.base, self.blush, self.lips = base, blush, lips
        self.deep = mix(base, "#6e2430", 0.42)
        self.line = mix(base, "#401420", 0.72)
        self.glow = mix(base, "#ffd2a0", 0.5)


def hand(d, skin, at, bearing, length, flip=False, spread=1.0, fold=0.0, palm=True):
    """An open hand, wrist at `at`, fingers towards `bearing`; the thumb lies right unless flipped.
    fold 0..1 shortens the fingers; palm says whether the palm or the back of the hand is seen."""
    s = length / 100
    with d.group(f"translate({at[0]:.1f} {at[1]:.1f}) rotate({bearing:.1f}) scale({-s if flip else s:.3f} {s:.3f})",
                 form=9, shade=FLESH_SHADE):
        d.path(tube([(12, -8), (30, -34), (45, -54)], [26, 21, 15]), skin.base)
        fingers = [(-21, -46, -13, 43, 14), (-7.5, -50, -4, 51, 15), (7, -50, 4, 48, 15), (20, -45, 12, 37, 13)]
        for x, y, lean, reach, width in fingers[::-1]:
            tip = polar((x, y), lean * spread, reach * (1 - 0.55 * fold))
            mid = polar((x, y), lean * spread * 0.8, reach * 0.5 * (1 - 0.55 * fold))
            d.path(tube([(x * 0.9, y + 16), mid, tip], [width + 2, width, width * 0.8]), skin.base)
        d.path(smooth([(-19, 8), (-28, -24), (-29, -46), (-10, -56), (12, -56), (27, -46), (29, -22), (19, 8)]),
               skin.base)
        for x, y, lean, reach, width in fingers[:-1]:
            root = (x + 7, y + 4)
            d.stroke([root, polar(root, lean * spread + 3, 13)], skin.line, 2.4, 0.5)
        if palm:
            d.stroke([(24, -6), (12, -18), (10, -32), (16, -44)], skin.deep, 2.6, 0.45)
            d.stroke([(-24, -34), (-8, -40), (8, -38)], skin.deep, 2.2, 0.4)
            d.path(ellipse(-2, -26, 15, 12), skin.blush, opacity=0.28, blur=6)
            return
        for x, y, lean, reach, width in fingers:
            d.path(ellipse(x, y - 3, 5, 4), skin.glow, opacity=0.4, blur=1.5)
            d.path(ellipse(*polar((x, y), lean * spread, reach * 0.86), width * 0.24, 5), skin.blush, opacity=0.55)


def fist(d, skin, at, bearing, length, flip=False):
    """A closed hand that grips a rod running through it along its own x axis."""
    s = length / 100
    with d.group(f"translate({at[0]:.1f} {at[1]:.1f}) rotate({bearing:.1f}) scale({-s if flip else s:.3f} {s:.3f})",
                 form=9, shade=FLESH_SHADE):
        d.path(smooth([(-20, 10), (-30, -20), (-32, -48), (-16, -66), (10, -68), (31, -54), (32, -24), (21, 10)]),
               skin.base)
        for k, y in enumerate((-58, -43, -28, -14)):
            width = 44 - 3 * k
            d.path(tube([(-28 + k, y), (-6, y - 1), (width - 18, y + 1)], [15, 16, 14]), light(skin.base, 0.06),
                   form=4, depth=0.6, shade=FLESH_SHADE)
        d.path(tube([(26, -6), (32, -28), (16, -44), (0, -46)], [20, 19, 15, 13]), skin.base, form=5, depth=0.7,
               shade=FLESH_SHADE)


def eye(d, skin, x, y, width, iris, smile, gaze=(0, 0), lash=False):
    """A smiling eye; smile 0..1 lifts the lower lid, 1 closes it to a happy arc."""
    w, top, bottom = width, width * 0.40, width * (0.32 - 0.30 * smile)
    d.path(ellipse(x, y - 2, w * 0.8, w * 0.56), skin.deep, opacity=0.26, blur=4)
    upper = [(x - w * 0.55, y + 2), (x - w * 0.26, y - top * 0.88), (x + w * 0.12, y - top), (x + w * 0.55, y + 1)]
    if smile >= 0.95:
        d.stroke(upper, skin.line, 4.6)
        d.stroke([(x - w * 0.5, y + 8), (x, y + 10), (x + w * 0.5, y + 7)], skin.deep, 2.2, 0.5)
        return
    shape = smooth([upper[0], upper[0], *upper[1:3], upper[3], upper[3], (x, y + bottom)])
    d.path(shape, "#fbf4ec")
    with d.group(clip=shape):
        ix, iy, r = x + gaze[0], y - 1 + gaze[1], w * 0.33
        d.path(ellipse(ix, iy, r, r), iris)
        d.path(ellipse(ix, iy, r * 0.52, r * 0.52), "#160d10")
        d.path(ellipse(x, y - top * 1.1, w * 0.6, w * 0.24), SHADE, opacity=0.45, blur=1.5)
        d.path(ellipse(ix - r * 0.35, iy - r * 0.4, r * 0.28, r * 0.28), "#ffffff")
    d.taper(upper, 7 if lash else 5.4, skin.line)
    if lash:
        out = 1 if x > 0 else -1
        d.taper([(x + out * w * 0.34, y - top * 0.7), (x + out * w * 0.56, y - 3), (x + out * w * 0.74, y - 9)], 5,
                skin.line)
    d.stroke([(x - w * 0.45, y + 5), (x, y + bottom + 4), (x + w * 0.48, y + 4)], skin.deep, 2, 0.55)
    d.stroke([(px, py - 6) for px, py in upper], skin.deep, 2, 0.5)


def mouth(d, skin, x, y, width, opening, corners=8, teeth_below=False, lips=4.4):
    """A smile; opening is its height in units, 0 for closed lips."""
    w = width / 2
    d.stroke([(x - w - 7, y - corners - 5), (x - w - 1, y - corners + 3)], skin.deep, 3.2, 0.45, blur=1)
    d.stroke([(x + w + 7, y - corners - 5), (x + w + 1, y - corners + 3)], skin.deep, 3.2, 0.45, blur=1)
    if opening < 4:
        d.taper([(x - w, y - corners), (x - w * 0.4, y - 1), (x + w * 0.4, y - 1), (x + w, y - corners)], 6,
                mix(skin.lips, "#4a1020", 0.55))
        d.taper([(x - w * 0.5, y + 7), (x, y + 10), (x + w * 0.5, y + 7)], 8, skin.lips, 0.75)
        return
    left, right = (x - w, y - corners), (x + w, y - corners)
    upper = [left, left, (x - w * 0.62, y - corners * 0.36), (x, y), (x + w * 0.62, y - corners * 0.36), right, right]
    shape = smooth(upper + [(x + w * 0.78, y + opening * 0.5), (x + w * 0.36, y + opening * 0.93), (x, y + opening),
                            (x - w * 0.36, y + opening * 0.93), (x - w * 0.78, y + opening * 0.5)])
    d.path(shape, "#571424", stroke=skin.lips, stroke_width=lips, stroke_linejoin="round")
    with d.group(clip=shape):
        d.path(ellipse(x, y + opening * 1.02, w * 0.62, opening * 0.42), "#c4515a")
        teeth = max(9, min(15, opening * 0.45))
        d.path(smooth([(x - w, y - corners - 8), (x - w, y - corners - 8), (x + w, y - corners - 8),
                       (x + w, y - corners - 8),
                       (x + w * 0.55, y + teeth * 0.55), (x, y + teeth), (x - w * 0.55, y + teeth * 0.55)]), "#fff8ef")
        if teeth_below:
            d.path(ellipse(x, y + opening + 2, w * 0.5, 6), "#f3e6dc")
    d.taper([(x - w * 0.55, y + opening + 6), (x, y + opening + 9), (x + w * 0.55, y + opening + 6)], 5, skin.deep,
            0.5, blur=1)


def nose(d, skin, x, y, width=30, turn=0.0):
    """Seen from the front, its tip at (x, y)."""
    w = width / 2
    d.path(smooth([(x - 5, y - 46), (x + 6, y - 46), (x + w + 2, y - 4), (x + w * 0.6, y + 6), (x + 3, y)]),
           skin.deep, opacity=0.30, blur=3)
    d.path(ellipse(x - 2 + 2 * turn, y - 4, w * 0.62, 8), skin.glow, opacity=0.55, blur=3)
    d.taper([(x - w, y - 3), (x - w * 0.55, y + 5), (x, y + 7), (x + w * 0.55, y + 5), (x + w, y - 3)], 5, skin.deep,
            0.9)
    for side in (-1, 1):
        d.path(ellipse(x + side * w * 0.5, y + 4, 3.6, 2.2), skin.line, opacity=0.75)


def brow(d, x, y, width, colour, lift=8, thick=9, tilt=0):
    side = 1 if x > 0 else -1
    w = width / 2
    points = [(-1.0, -0.25), (-0.55, -0.7), (0.0, -0.95), (0.5, -0.8), (1.0, 0.3)]
    d.taper([(x + side * u * w, y + lift * v - tilt * u) for u, v in points], thick, colour, 0.95)


def face_outline(width=74, jaw=46, chin=92, top=-104):
    half = [(0, top), (width * 0.62, top + 9), (width * 0.98, top + 52), (width, -4), (width * 0.93, 36),
            (jaw + 6, chin - 26), (jaw * 0.5, chin - 3)]
    return smooth(half + [(0, chin)] + mirror(half[:0:-1]))


def ears(d, skin, width=74, y=4, size=1.0):
    for side in (-1, 1):
        d.path(smooth([(side * (width - 8), y - 22), (side * (width + 9 * size), y - 20), (side * (width + 11 * size),
            y + 2),
                       (side * (width + 4), y + 24), (side * (width - 8), y + 24)]), skin.base, form=6,
                       shade=FLESH_SHADE)
        d.stroke([(side * (width + 4 * size), y - 13), (side * (width + 5 * size), y), (side * width, y + 10)],
                 skin.deep, 3.4, 0.65)


def face_base(d, skin, outline):
    """The modelled face without its features: forehead light, cheek blush, shade under the hair and at the jaw."""
    d.path(outline, skin.base, form=16, depth=0.8, shade=FLESH_SHADE)
    with d.group(clip=outline):
        d.path(ellipse(-14, -56, 44, 26), skin.glow, opacity=0.35, blur=12)
        for x in (-44, 44):
            d.path(ellipse(x, 30, 22, 16), skin.blush, opacity=0.50, blur=8)
            d.path(ellipse(x * 0.98 - 3, 20, 13, 7), skin.glow, opacity=0.42, blur=4)
        d.path(ellipse(0, 80, 15, 8), skin.glow, opacity=0.28, blur=5)


def neck(d, skin, top, bottom, width, flare=1.35):
    """From under the chin to the collar and on below it; the chin's shadow falls on it."""
    (tx, ty), (bx, by) = top, (bottom[0], bottom[1] + width * 0.5)
    w = width / 2
    outline = smooth([(tx - w, ty), (tx - w, ty), (tx + w, ty), (tx + w, ty), ((tx + bx) / 2 + w, (ty + by) / 2),
                      (bx + w * flare, by), (bx + w * flare, by),
                      (bx - w * flare, by), (bx - w * flare, by), ((tx + bx) / 2 - w, (ty + by) / 2)])
    d.path(outline, skin.base, form=8, shade=FLESH_SHADE)
    with d.group(clip=outline):
        d.path(ellipse(tx, ty + (by - ty) * 0.22, w * 1.4, (by - ty) * 0.42), skin.deep, opacity=0.75, blur=5)


def strands(d, lines, colour, width, opacity=0.5):
    """Locks of hair, each a tapered stroke."""
    for line in lines:
        d.taper(line, width, colour, opacity)


def arm(d, skin, points, widths):
    """A bare limb."""
    d.path(tube(points, widths), skin.base, form=max(widths) * 0.17, shade=FLESH_SHADE)


def shoe(d, at, length, colour, sole="#f2ece2", flip=False, bearing=0):
    """A trainer seen three-quarter from the front, its ankle at `at`, toes down and outwards."""
    s = length / 100
    with d.group(f"translate({at[0]:.1f} {at[1]:.1f}) rotate({bearing:.1f}) scale({-s if flip else s:.3f} {s:.3f})",
                 form=7):
        d.path(smooth([(-26, 34), (-26, 34), (-27, 46), (10, 52), (58, 50), (62, 38), (62, 38)]), sole)
        d.path(smooth([(-24, -10), (-24, -10), (24, -10), (24, -10), (32, 8), (54, 20), (62, 36), (40, 42), (-10, 42),
                       (-27, 36)]), colour)
        d.path(smooth([(-20, -10), (0, -4), (20, -10), (12, -16), (-14, -16)]), dark(colour, 0.5))
        for k in range(3):
            d.stroke([(2 + 8 * k, 2 + 8 * k), (20 + 9 * k, -1 + 8 * k)], "#fff8ee", 3.6, 0.9)
        d.stroke([(30, 38), (42, 28), (60, 32)], dark(colour, 0.4), 2, 0.5)
