"""A Brazilian girl of about eight, on tiptoe with joy: curly puffs, yellow shirt, green skirt, waving both arms."""

from itertools import product

from anatomy import Skin, arm, brow, ears, eye, face_base, face_outline, hand, mouth, neck, nose, shoe
from vector import Drawing, ellipse, smooth, tube

SKIN = Skin("#b87a4e", "#d3603f", "#b2504c")
YELLOW, GREEN, BLUE, HAIR = "#ffd42a", "#14944c", "#2a58b8", "#33201a"
CX = 224


def legs(d):
    arm(d, SKIN, [(252, 596), (290, 668), (312, 716), (334, 776)], [76, 60, 56, 38])
    sock = tube([(322, 728), (334, 782)], [52, 42], False, False)
    d.path(sock, "#f8f4ee", form=5)
    shoe(d, (334, 776), 84, GREEN, sole="#ffd42a", bearing=-8)
    arm(d, SKIN, [(194, 596), (178, 670), (176, 724), (170, 790)], [76, 58, 56, 38])
    sock = tube([(174, 746), (170, 800)], [54, 44], False, False)
    d.path(sock, "#f8f4ee", form=5)
    with d.group(clip=sock):
        d.stroke([(130, 756), (220, 758)], GREEN, 7)
    shoe(d, (168, 796), 88, GREEN, sole="#ffd42a", flip=True, bearing=2)
    for x, y in ((176, 672), (292, 668)):
        d.path(ellipse(x - 4, y - 2, 15, 13), SKIN.glow, opacity=0.4, blur=5)


def skirt(d):
    cloth = smooth([(146, 500), (146, 500), (302, 500), (302, 500), (338, 580), (362, 640), (362, 640), (318, 652),
                    (282, 640), (236, 656), (190, 642), (144, 654),
                    (100, 634), (100, 634), (118, 576)])
    with d.group(form=13):
        d.path(cloth, GREEN)
        with d.group(clip=cloth):
            for top, bottom in ((170, 142), (200, 188), (232, 236), (262, 284), (286, 326)):
                d.taper([(top, 506), ((top + bottom) / 2, 570), (bottom, 660)], 13, "#06381f", 0.45, blur=4)
                d.taper([(top + 12, 520), ((top + bottom) / 2 + 15, 576), (bottom + 18, 650)], 11, "#8ee0a8", 0.38,
                        blur=4)
            d.stroke([(96, 626), (144, 644), (190, 632), (236, 646), (282, 630), (318, 642), (366, 630)], "#ffd42a", 7)


def body(d):
    neck(d, SKIN, (CX, 318), (CX, 364), 50)
    shirt = smooth([(194, 348), (CX, 368), (254, 348), (254, 348), (296, 358), (316, 392), (302, 440), (306, 520),
                    (306, 520), (CX, 532), (142, 520), (142, 520),
                    (146, 440), (132, 392), (152, 358), (194, 348)])
    left = tube([(156, 392), (112, 346), (92, 312)], [76, 72, 70], True, False)
    right = tube([(290, 394), (336, 404), (366, 394)], [76, 70, 66], True, False)
    with d.group(form=13):
        for piece in (left, right, shirt):
            d.path(piece, YELLOW)
        for piece, a, b in ((left, (60, 334), (126, 292)), (right, (354, 356), (368, 430))):
            with d.group(clip=piece):
                d.stroke([a, b], GREEN, 14)
        with d.group(clip=shirt):
            d.path(smooth([(186, 340), (CX, 382), (262, 340)], closed=False), stroke=GREEN, stroke_width=13)
            d.folds([[(146, 424), (166, 438), (194, 440)], [(302, 420), (282, 438), (254, 442)],
                     [(146, 496), (186, 508), (CX, 504)], [(304, 490), (268, 506), (236, 508)]], 8)
            star = ellipse(CX, 450, 26, 26)
            d.path(star, BLUE, form=4)
            d.stroke([(200, 444), (CX, 444), (248, 458)], "#ffffff", 5)
    d.folds([[(134, 372), (152, 384), (160, 404)], [(316, 424), (300, 428), (288, 420)]], 7)


def arms(d):
    arm(d, SKIN, [(110, 352), (68, 292), (58, 226), (74, 158)], [54, 48, 44, 30])
    hand(d, SKIN, (74, 158), 8, 84, spread=1.5)
    arm(d, SKIN, [(330, 402), (388, 394), (404, 344), (398, 278)], [52, 48, 44, 30])
    hand(d, SKIN, (398, 278), 8, 84, flip=True, spread=1.5)
    for x, y, lean in ((64, 190, 6), (400, 306, -4)):
        for k, colour in enumerate((GREEN, YELLOW)):
            d.stroke([(x - 17, y + 9 * k), (x + 17, y + 9 * k + lean * 0.4)], colour, 7)


def puff(d, cx, cy, rx, ry):
    """A cloud of curls."""
    lobes = [(0.0, 0.0, 0.82), (-0.62, -0.42, 0.42), (0.05, -0.72, 0.42), (0.62, -0.40, 0.44), (0.78, 0.22, 0.38),
             (0.36, 0.68, 0.40), (-0.32, 0.70, 0.40), (-0.78, 0.20, 0.40)]
    with d.group(form=12):
        for x, y, r in lobes:
            d.path(ellipse(cx + x * rx, cy + y * ry, r * rx, r * ry), HAIR)
        with d.group(clip=" ".join(ellipse(cx + x * rx, cy + y * ry, r * rx, r * ry) for x, y, r in lobes)):
            curls(d, cx, cy, rx, ry)


def curls(d, cx, cy, rx, ry):
    for k in range(20):
        x, y = cx + rx * (((k * 37) % 31) / 15.5 - 1) * 0.74, cy + ry * (((k * 23) % 29) / 14.5 - 1) * 0.74 - 5
        d.path(ellipse(x, y, 10, 7.5), "#7a5140" if y < cy else "#563629", opacity=0.55, blur=2)


def head(d):
    with d.group(f"translate({CX} 252) rotate(9) scale(0.94)"):
        puff(d, -84, -76, 50, 52)
        puff(d, 84, -76, 50, 52)
        ears(d, SKIN, 72, 10)
        face_base(d, SKIN, face_outline(76, 46, 86))
        for x in (-31, 31):
            eye(d, SKIN, x, 4, 40, "#4a2a18", 0.35, lash=True)
            brow(d, x, -28, 36, "#3a2218", 8, 7)
        nose(d, SKIN, 0, 34, 30)
        mouth(d, SKIN, 0, 50, 56, 26, 9)
        for k, colour in enumerate((GREEN, YELLOW, BLUE)):
            d.stroke([(-60, 26 + 7 * k), (-42, 29 + 7 * k)], colour, 6, 0.95)
        hair = smooth([(-78, 6), (-84, -40), (-68, -92), (-30, -116), (0, -112), (30, -116), (68, -92), (84, -40),
                       (78, 6), (72, -16), (58, -52), (30, -72), (0, -78), (-30, -72), (-58, -52), (-72, -16)])
        with d.group(form=9):
            d.path(hair, HAIR)
            d.stroke([(0, -112), (1, -78)], "#8a5a42", 3, 0.8)
            with d.group(clip=hair):
                for side, (a, b, c) in product((-1, 1), ((8, -98, -80), (8, -88, -66), (14, -80, -52), (34, -68, -34))):
                    d.stroke([(side * a, c - 2), (side * (a + 26), (b + c) / 2 - 8), (side * 66, b + 4)], "#6a4636",
                             2.8, 0.6)
        for side in (-1, 1):
            bow(d, side * 62, -88, side)


def bow(d, x, y, side):
    with d.group(f"translate({x} {y}) rotate({side * 34})", form=4):
        d.path(smooth([(0, 0), (-12, -16), (-28, -18), (-30, 4), (-26, 16), (-10, 10)]), "#2fb968")
        d.path(smooth([(0, 0), (12, -16), (28, -18), (30, 4), (26, 16), (10, 10)]), "#2fb968")
        d.path(ellipse(0, -1, 8, 9), YELLOW)


def draw():
    d = Drawing(447, 852, "Girl from Brazil, waving both arms")
    legs(d)
    skirt(d)
    arms(d)
    body(d)
    head(d)
    return d.fit(33, 57, 446, 842)
