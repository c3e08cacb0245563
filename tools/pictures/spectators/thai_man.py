"""A Thai man in mid-cheer: both hands in the air, one knee up, a scarf in Thailand's colours."""

from anatomy import Skin, arm, brow, ears, eye, face_base, face_outline, hand, mouth, neck, nose, shoe, strands
from vector import Drawing, dark, ellipse, light, smooth, tube

SKIN = Skin("#d69a68", "#d9714e", "#b9584c")
POLO, TROUSERS, HAIR = "#2f7fc4", "#cbb893", "#191519"
RED, WHITE, BLUE = "#d5263b", "#f6f2ec", "#27307e"
SCARF = (RED, WHITE, BLUE, BLUE, WHITE, RED)


def standing_leg(d):
    shoe(d, (232, 848), 88, "#e9ebf0", sole=RED, flip=True, bearing=-4)
    leg = tube([(242, 520), (228, 620), (226, 690), (230, 780), (232, 850)], [84, 92, 78, 72, 62], True, False)
    with d.group(form=13):
        d.path(leg, TROUSERS)
        with d.group(clip=leg):
            d.folds([[(180, 676), (216, 690), (262, 684)], [(192, 700), (226, 708), (262, 700)],
                     [(196, 822), (230, 834), (268, 822)], [(196, 800), (230, 814), (262, 808)],
                     [(262, 540), (236, 566), (196, 574)]], 8)
            d.stroke([(190, 850), (276, 850)], dark(TROUSERS, 0.2), 12)


def raised_leg(d):
    shoe(d, (384, 760), 88, "#e9ebf0", sole=RED, bearing=14)
    shin = tube([(356, 624), (370, 690), (382, 762)], [84, 76, 62], True, False)
    thigh = tube([(292, 520), (326, 580), (354, 626)], [84, 104, 92])
    with d.group(form=12):
        d.path(shin, TROUSERS)
        with d.group(clip=shin):
            d.folds([[(340, 736), (376, 744), (414, 730)], [(338, 712), (374, 724), (412, 712)]], 8)
            d.stroke([(340, 766), (420, 752)], dark(TROUSERS, 0.2), 12)
    with d.group(form=14):
        d.path(thigh, TROUSERS)
        with d.group(clip=thigh):
            d.path(ellipse(352, 628, 24, 22), light(TROUSERS, 0.6), opacity=0.5, blur=9)
            d.folds([[(262, 560), (300, 574), (352, 560)], [(270, 590), (304, 598), (340, 590)],
                     [(320, 652), (346, 664), (388, 650)]], 8)


def body(d):
    neck(d, SKIN, (262, 268), (260, 326), 58)
    polo = smooth([(228, 308), (260, 330), (294, 308), (294, 308), (342, 318), (368, 350), (348, 400), (342, 460),
                   (352, 552), (352, 552), (270, 566), (184, 548), (184, 548),
                   (186, 456), (174, 398), (150, 350), (178, 318), (228, 308)])
    left = tube([(180, 352), (132, 300), (110, 262)], [84, 78, 76], True, False)
    right = tube([(342, 352), (396, 304), (420, 268)], [84, 78, 76], True, False)
    with d.group(form=14):
        for piece in (left, right, polo):
            d.path(piece, POLO)
        for piece, a, b in ((left, (74, 290), (144, 240)), (right, (384, 244), (456, 296))):
            with d.group(clip=piece):
                d.stroke([a, b], WHITE, 12)
        with d.group(clip=polo):
            d.folds([[(168, 390), (190, 408), (220, 410)], [(356, 384), (332, 404), (304, 408)],
                     [(184, 500), (220, 512), (262, 506)],
                     [(350, 494), (320, 512), (286, 516)], [(190, 536), (236, 524), (290, 532)]], 9)
            d.stroke([(268, 330), (268, 420)], dark(POLO, 0.5), 3, 0.6)
            for y in (376, 402):
                d.path(ellipse(262, y, 4, 4), WHITE)
    d.folds([[(150, 334), (172, 346), (182, 372)], [(372, 334), (350, 346), (342, 372)]], 8)
    scarf(d, polo)


def scarf(d, polo):
    loop = tube([(196, 336), (228, 320), (262, 356), (300, 320), (330, 336)], [34, 40, 40, 40, 34])
    for x0, x1, bottom in ((192, 236, 470), (292, 336, 492)):
        tail = smooth([(x0, 336), (x0, 336), (x1, 336), (x1, 336), (x1 + 2, (336 + bottom) / 2), (x1 - 1, bottom),
                       (x1 - 1, bottom), (x0 - 1, bottom), (x0 - 1, bottom), (x0 - 4, (336 + bottom) / 2)])
        d.cast(polo, tail, 8, 8, 6)
        with d.group(form=6):
            d.path(tail, RED)
            with d.group(clip=tail):
                w = (x1 - x0 + 4) / 6
                for k, colour in enumerate(SCARF):
                    x = x0 - 2 + w * (k + 0.5)
                    d.stroke([(x, 330), (x - 2, (336 + bottom) / 2), (x, bottom + 2)], colour, w + 1)
        for k in range(6):
            d.stroke([(x0 + 3 + k * 7.6, bottom), (x0 + 2 + k * 8, bottom + 14)], SCARF[k], 4)
    d.cast(polo, loop, 3, 12, 6)
    with d.group(form=7):
        d.path(loop, WHITE)
        with d.group(clip=loop):
            for lift, colour, width in ((-15, RED, 8), (0, BLUE, 14), (15, RED, 9)):
                d.stroke([(190, 336 + lift), (228, 318 + lift), (262, 354 + lift), (300, 318 + lift),
                          (336, 336 + lift)], colour, width)


def arms(d):
    arm(d, SKIN, [(132, 308), (92, 234), (76, 176), (70, 106)], [56, 52, 48, 33])
    hand(d, SKIN, (70, 106), -12, 98, spread=1.5)
    arm(d, SKIN, [(394, 312), (440, 242), (456, 182), (460, 114)], [56, 52, 48, 33])
    hand(d, SKIN, (460, 112), 12, 98, flip=True, spread=1.5)


def head(d):
    with d.group("translate(263 222) rotate(-7) scale(0.76)"):
        ears(d, SKIN, 74)
        face_base(d, SKIN, face_outline(75, 48, 90))
        for x in (-29, 29):
            eye(d, SKIN, x, -2, 32, "#2c1a14", 0.98)
            brow(d, x, -27, 40, HAIR, 8, 9)
        nose(d, SKIN, 0, 30, 40)
        mouth(d, SKIN, 0, 48, 66, 34, 9, teeth_below=True)
        d.stroke([(46, 34), (60, 31)], RED, 5.5)
        d.stroke([(46, 40), (60, 37)], WHITE, 5.5)
        d.stroke([(46, 46), (60, 43)], BLUE, 5.5)
        hair = smooth([(-76, -2), (-84, -50), (-70, -104), (-30, -134), (20, -140), (62, -118), (84, -70), (78, -2),
                       (70, -22), (64, -54), (44, -74), (12, -62), (-14, -76), (-40, -60), (-62, -58), (-69, -24)])
        with d.group(form=9):
            d.path(hair, HAIR)
            for lean, x in ((-14, -58), (-8, -34), (0, -8), (8, 20), (14, 48)):
                d.path(smooth([(x - 20, -100), (x - 4 + lean * 0.5, -132), (x + lean, -144), (x + 8, -130),
                               (x + 22, -100)]), HAIR)
            strands(d, [[(-50, -70), (-44, -106), (-20, -128)], [(-20, -82), (-8, -112), (14, -132)],
                        [(14, -74), (28, -104), (48, -116)], [(44, -82), (58, -98), (66, -84)]], "#5c5566", 6, 0.7)


def draw():
    d = Drawing(527, 900, "Man from Thailand, hands in the air")
    standing_leg(d)
    raised_leg(d)
    arms(d)
    body(d)
    head(d)
    return d.fit(9, 1, 521, 897)
