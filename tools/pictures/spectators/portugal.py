"""A burly Portuguese supporter in red, a green and red scarf stretched over his head, bucket hat and moustache."""

from anatomy import Skin, arm, brow, ears, eye, face_base, face_outline, fist, mouth, neck, nose, shoe
from vector import Drawing, dark, ellipse, light, smooth, tube

SKIN = Skin("#dda67c", "#d96c52", "#b55a52")
RED, GREEN, GOLD = "#c8202f", "#14703f", "#f5c63c"
JEANS = "#3b4a68"


def legs(d):
    for side in (-1, 1):
        x = 272 + side * 66
        shoe(d, (x, 846), 92, "#2c2f38", flip=side < 0)
        leg = tube([(272 + side * 52, 540), (272 + side * 60, 660), (272 + side * 60, 710), (x, 790), (x, 852)],
                   [128, 106, 92, 82, 72], True, False)
        with d.group(form=14):
            d.path(leg, JEANS)
            with d.group(clip=leg):
                d.path(ellipse(272 + side * 58, 660, 26, 46), light(JEANS, 0.5), opacity=0.35, blur=14)
                d.folds([[(272 + side * 8, 594), (272 + side * 40, 612), (272 + side * 84, 604)],
                         [(272 + side * 16, 700), (272 + side * 54, 716), (272 + side * 104, 704)],
                         [(x - 40, 812), (x, 824), (x + 40, 812)], [(x - 40, 834), (x, 844), (x + 40, 834)]], 9)
                d.stroke([(272 + side * 112, 560), (272 + side * 108, 700), (x + side * 34, 850)], "#8796b8", 2.5, 0.6)
                d.stroke([(x - 44, 850), (x + 44, 850)], "#61719a", 12)


def body(d):
    neck(d, SKIN, (272, 276), (272, 336), 76)
    shirt = smooth([(230, 318), (272, 344), (314, 318), (314, 318), (372, 330), (408, 368), (394, 430), (404, 500),
                    (392, 568), (392, 568), (272, 592), (152, 568), (152, 568),
                    (140, 500), (150, 430), (136, 368), (172, 330), (230, 318)])
    left = tube([(180, 372), (118, 322), (88, 276)], [100, 92, 86], True, False)
    right = tube([(364, 372), (426, 322), (456, 276)], [100, 92, 86], True, False)
    with d.group(form=17):
        for piece in (left, right, shirt):
            d.path(piece, RED)
        for piece, a, b in ((left, (48, 304), (126, 248)), (right, (418, 248), (496, 304))):
            with d.group(clip=piece):
                d.stroke([a, b], GREEN, 18)
        with d.group(clip=shirt):
            d.path(smooth([(218, 308), (272, 366), (326, 308)], closed=False), stroke=GREEN, stroke_width=16)
            d.path(smooth([(218, 320), (272, 380), (326, 320)], closed=False), stroke=GOLD, stroke_width=4)
            d.stroke([(130, 556), (272, 584), (414, 556)], GREEN, 14)
            d.path(ellipse(262, 478, 66, 52), light(RED, 0.5), opacity=0.28, blur=22)
            d.folds([[(148, 420), (176, 440), (216, 442)], [(398, 414), (368, 438), (330, 442)],
                     [(146, 530), (200, 550), (262, 552)], [(400, 524), (350, 550), (300, 556)]], 10)
            d.path(smooth([(322, 386), (352, 386), (352, 412), (337, 428), (322, 412)]), "#f4efe6")
            d.path(smooth([(328, 392), (346, 392), (346, 410), (337, 420), (328, 410)]), GREEN)
    d.folds([[(140, 350), (166, 364), (178, 394)], [(404, 350), (378, 364), (366, 394)]], 9)


def arms(d):
    for side in (-1, 1):
        arm(d, SKIN, [(272 + side * 152, 326), (272 + side * 196, 254), (272 + side * 200, 186),
                      (272 + side * 178, 116)], [70, 64, 58, 42])


def scarf(d):
    """Held by the fists at (94, 84) and (450, 84), sagging a little, its ends hanging outside them."""
    for side in (-1, 1):
        x = 272 + side * 208
        tail = tube([(272 + side * 180, 66), (x, 76), (x + side * 14, 130), (x + side * 8, 214)], [54, 56, 62, 70],
                    True, False)
        with d.group(form=8):
            d.path(tail, RED if side > 0 else GREEN)
            with d.group(clip=tail):
                for y, colour in ((150, GOLD), (168, GREEN if side > 0 else RED), (186, GOLD)):
                    d.stroke([(x - 50, y), (x + 60, y)], colour, 11)
        for k in range(8):
            d.stroke([(x + side * 8 - 31 + 9 * k, 214), (x + side * 8 - 33 + 9.5 * k, 238)], (GREEN, RED)[k % 2], 5)
    band = tube([(92, 62), (180, 74), (272, 78), (364, 74), (452, 62)], [58, 62, 62, 62, 58])
    with d.group(form=9):
        d.path(band, RED)
        with d.group(clip=band):
            d.path("M60,20 H222 V130 H60 Z", GREEN)
            for x in (214, 232):
                d.stroke([(x, 30), (x - 2, 130)], GOLD, 7)
            d.path(ellipse(224, 77, 22, 22), GOLD)
            d.path(smooth([(212, 66), (236, 66), (236, 80), (224, 92), (212, 80)]), "#f6f1ea")
            d.path(smooth([(216, 69), (232, 69), (232, 79), (224, 87), (216, 79)]), RED)
            for x in (276, 306, 336, 366, 396):
                d.path(f"M{x},60 l9,17 l-9,17 l-9,-17 Z", GOLD, opacity=0.9)
            for x in (112, 142, 172):
                d.path(f"M{x},56 l9,17 l-9,17 l-9,-17 Z", RED, opacity=0.9)
            d.folds([[(120, 44), (132, 66), (128, 92)], [(424, 44), (412, 66), (416, 92)],
                     [(250, 58), (262, 80), (256, 104)], [(330, 56), (322, 80), (328, 104)]], 7)


def head(d):
    with d.group("translate(272 230) rotate(3) scale(0.76)"):
        ears(d, SKIN, 78, 6)
        with d.group(form=5):
            for side in (-1, 1):
                d.path(smooth([(side * 64, -50), (side * 84, -40), (side * 82, 6), (side * 74, 18), (side * 68, -6)]),
                       "#35261f")
        outline = face_outline(79, 58, 92)
        face_base(d, SKIN, outline)
        stubble = smooth([(-76, 16), (-50, 40), (0, 36), (50, 40), (76, 16), (66, 66), (34, 92), (0, 98), (-34, 92),
                          (-66, 66)])
        with d.group(clip=outline):
            d.path(stubble, "#3b2b28", opacity=0.25, blur=5)
        for x in (-30, 30):
            eye(d, SKIN, x, 2, 32, "#4d3220", 0.6)
            brow(d, x, -24, 44, "#2e201a", 9, 13)
        nose(d, SKIN, 0, 36, 46)
        mouth(d, SKIN, 0, 58, 68, 34, 9)
        moustache = smooth([(0, 43), (20, 43), (42, 54), (50, 62), (34, 61), (0, 56), (-34, 61), (-50, 62), (-42, 54),
                            (-20, 43)])
        d.path(moustache, "#2e201a", form=4)
        hat(d)


def hat(d):
    crown = smooth([(-72, -50), (-66, -112), (-40, -134), (0, -138), (40, -134), (66, -112), (72, -50), (0, -64)])
    with d.group(form=11):
        d.path(crown, RED)
        with d.group(clip=crown):
            d.path(smooth([(-90, -150), (-90, -150), (-14, -150), (-14, -150), (-10, -40), (-10, -40), (-90, -40),
                           (-90, -40)]), GREEN)
    brim = smooth([(-78, -66), (-40, -76), (0, -79), (40, -76), (78, -66), (106, -34), (98, -22), (52, -42), (0, -48),
                   (-52, -42), (-98, -22), (-106, -34)])
    with d.group(form=7):
        d.path(brim, dark(GREEN, 0.1))
        with d.group(clip=brim):
            d.path("M-8,-100 H120 V0 H-8 Z", dark(RED, 0.08))
    d.path(ellipse(-12, -98, 19, 19), GOLD, form=4)
    d.path(ellipse(-12, -98, 11, 11), "#f6f1ea")


def draw():
    d = Drawing(544, 905, "Supporter from Portugal with a scarf stretched overhead")
    legs(d)
    arms(d)
    body(d)
    head(d)
    scarf(d)
    for side in (-1, 1):
        fist(d, SKIN, (272 + side * 176, 122), side * 4, 88, flip=side > 0)
    return d.fit(14, 29, 530, 895)
