"""An Italian mother who waves a small tricolour, her baby in azure on her arm."""

from anatomy import (
    Skin, arm, brow, ears, eye, face_base, face_outline, fist, hand, mirror, mouth, neck, nose, shoe, strands,
)
from props import stick, striped_flag
from vector import Drawing, dark, ellipse, light, smooth, tube

SKIN = Skin("#e8b48c", "#e07a62", "#c2444c")
BABY = Skin("#f0c19c", "#ee8672", "#cf6a66")
HAIR, BLOUSE, TROUSERS, AZURE = "#46291c", "#f3ede2", "#2c5a4a", "#2f8fe0"
TRICOLOUR = ("#159048", "#f7f4ee", "#d22c3a")
MX = 212  # the mother's middle


def legs(d):
    for side in (-1, 1):
        x = MX + side * 54
        shoe(d, (x, 814), 84, "#c8404a", flip=side < 0)
        leg = tube([(MX + side * 36, 500), (MX + side * 48, 610), (MX + side * 46, 680), (x, 760), (x, 818)],
                   [88, 90, 78, 74, 78], True, False)
        with d.group(form=13):
            d.path(leg, TROUSERS)
            with d.group(clip=leg):
                d.path(ellipse(MX + side * 44 - 6, 620, 18, 60), light(TROUSERS, 0.5), opacity=0.35, blur=12)
                d.folds([[(MX + side * 8, 540), (MX + side * 36, 556), (MX + side * 76, 548)],
                         [(MX + side * 14, 670), (MX + side * 46, 684), (MX + side * 84, 672)],
                         [(x - 36, 792), (x, 804), (x + 38, 792)]], 8)
                d.taper([(MX + side * 46, 560), (MX + side * 46, 680), (x, 810)], 4, dark(TROUSERS, 0.5), 0.5)


def flag_arm(d):
    stick(d, (64, 178), (46, 8))
    striped_flag(d, (47, 10), (112, 4), (8, 72), 6, TRICOLOUR, True)
    arm(d, SKIN, [(92, 320), (56, 252), (56, 206), (62, 160)], [50, 48, 42, 30])
    fist(d, SKIN, (62, 166), -4, 70)


def body(d):
    neck(d, SKIN, (MX, 246), (MX, 312), 50)
    blouse = smooth([(178, 292), (MX, 330), (246, 292), (246, 292), (292, 304), (312, 340), (296, 400), (284, 450),
                     (302, 536), (302, 536), (MX, 554), (122, 536), (122, 536),
                     (140, 450), (128, 400), (116, 340), (134, 304), (178, 292)])
    sleeve = tube([(144, 348), (104, 316), (76, 268)], [84, 76, 66], True, False)
    near = tube([(276, 342), (290, 380), (298, 420)], [84, 78, 70])
    with d.group(form=14):
        for piece in (sleeve, near, blouse):
            d.path(piece, BLOUSE)
        with d.group(clip=sleeve):
            d.stroke([(40, 288), (112, 246)], TRICOLOUR[0], 9)
        with d.group(clip=blouse):
            for k, colour in enumerate(TRICOLOUR):
                if k != 1:
                    d.stroke([(110, 404 + 12 * k), (MX, 414 + 12 * k), (320, 404 + 12 * k)], colour, 12)
            d.folds([[(126, 384), (150, 400), (182, 400)], [(134, 470), (170, 482), (MX, 476)],
                     [(296, 460), (260, 482), (222, 484)], [(126, 516), (180, 532), (236, 526)]], 8)
    d.folds([[(120, 330), (140, 344), (150, 366)]], 8)
    return blouse


def mother_hair_back(d):
    back = [(0, -122), (56, -112), (92, -66), (104, -10), (122, 40), (116, 90), (130, 130), (104, 172), (64, 150),
            (30, 168)]
    with d.group(f"translate({MX} 194) rotate(-7) scale(0.76)", form=14):
        d.path(smooth(back + mirror(back[:0:-1])), dark(HAIR, 0.25))


def mother_head(d):
    with d.group(f"translate({MX} 194) rotate(-7) scale(0.78)"):
        ears(d, SKIN, 70)
        for x in (-80, 80):
            d.path(ellipse(x, 32, 5, 9), "#f0c04a", form=2)
        face_base(d, SKIN, face_outline(72, 43, 92))
        for x in (-29, 29):
            eye(d, SKIN, x, 0, 36, "#5a3a1e", 0.5, gaze=(3, 1), lash=True)
            brow(d, x, -27, 40, "#3a2116", 9, 7)
        nose(d, SKIN, 1, 33, 30)
        mouth(d, SKIN, 1, 54, 56, 17, 11, lips=4.6)
        front = smooth([(-70, 120), (-104, 84), (-96, 40), (-104, -6), (-88, -64), (-54, -112), (4, -132), (58, -116),
                        (92, -66), (104, -8), (98, 40), (106, 84), (76, 118),
                        (84, 70), (72, 30), (70, -16), (48, -54), (14, -82), (-16, -62), (-50, -44), (-70, -10),
                        (-74, 32), (-84, 72)])
        with d.group(form=11):
            d.path(front, HAIR)
            strands(d, [[(10, -112), (-30, -90), (-70, -50), (-88, 0), (-80, 40), (-92, 84)],
                        [(16, -108), (-10, -84), (-52, -60), (-76, -20), (-86, 30)],
                        [(20, -112), (58, -84), (82, -30), (86, 10), (82, 44), (94, 86)],
                        [(18, -100), (46, -72), (72, -30), (82, 20)]], "#83513a", 6, 0.7)
            strands(d, [[(0, -122), (-50, -98), (-88, -40), (-96, 10)], [(30, -118), (74, -80), (94, -30), (96, 20)]],
                    "#b07a54", 4, 0.6)


def baby_body(d, blouse):
    suit = smooth([(318, 372), (350, 362), (384, 372), (402, 400), (406, 452), (398, 500), (352, 520), (304, 498),
                   (298, 450), (302, 400)])
    d.cast(blouse, suit, -16, 10, 10)
    for hip, knee, foot, flip in (((324, 490), (306, 534), (300, 560), True), ((380, 490), (402, 530), (410, 556),
        False)):
        leg = tube([hip, knee, foot], [60, 54, 44])
        d.path(leg, AZURE, form=9)
        d.path(tube([foot, (foot[0] + (-12 if flip else 12), foot[1] + 18)], [40, 42]), "#f7f4ee", form=6)
    left = tube([(318, 396), (288, 358), (284, 336)], [48, 44, 40], True, False)
    right = tube([(386, 396), (420, 350), (426, 330)], [48, 44, 40], True, False)
    arm(d, BABY, [(290, 360), (276, 326), (280, 300)], [34, 33, 26])
    hand(d, BABY, (281, 302), 0, 48, spread=1.6, fold=0.3)
    arm(d, BABY, [(420, 352), (436, 318), (440, 288)], [34, 33, 26])
    hand(d, BABY, (440, 290), 6, 48, flip=True, spread=1.6, fold=0.3)
    neck(d, BABY, (352, 344), (352, 372), 44)
    with d.group(form=10):
        for piece in (left, right, suit):
            d.path(piece, AZURE)
        with d.group(clip=suit):
            d.path(smooth([(330, 366), (352, 382), (374, 366)], closed=False), stroke="#f7f4ee", stroke_width=9)
            d.path(smooth([(336, 398), (368, 398), (368, 422), (352, 438), (336, 422)]), TRICOLOUR[1])
            d.path("M336,397 h11 v36 h-11 Z", TRICOLOUR[0], opacity=0.95)
            d.path("M358,397 h11 v36 h-11 Z", TRICOLOUR[2], opacity=0.95)
            d.folds([[(302, 470), (330, 482), (352, 480)], [(402, 466), (380, 482), (360, 484)]], 7)
    return suit


def baby_head(d):
    with d.group("translate(354 290) rotate(7) scale(0.76)"):
        ears(d, BABY, 76, 14)
        face_base(d, BABY, smooth([(0, -96), (52, -86), (82, -40), (84, 8), (82, 44), (54, 78), (0, 90), (-54, 78),
                                   (-82, 44), (-84, 8), (-82, -40), (-52, -86)]))
        for x in (-34, 34):
            eye(d, BABY, x, 8, 42, "#4a3120", 0.25, gaze=(-2, -1))
            brow(d, x, -26, 32, "#8d6142", 6, 5)
        nose(d, BABY, 0, 36, 24)
        mouth(d, BABY, 0, 54, 42, 20, 6)
        d.path(ellipse(1, 57, 8, 4), "#fff8ef")
        tuft = smooth([(-70, -44), (-52, -84), (-14, -104), (20, -110), (6, -98), (44, -98), (34, -90), (60, -76),
                       (76, -40), (48, -62), (20, -72), (-8, -66), (-32, -72), (-52, -58)])
        with d.group(form=6):
            d.path(tuft, "#7d5335")
            strands(d, [[(-50, -64), (-30, -86), (0, -98)], [(-10, -74), (10, -90), (34, -92)],
                        [(24, -78), (44, -78), (62, -62)]], "#b98a5e", 4, 0.7)


def holding_arm(d, suit):
    """Around the baby's middle, in front of it."""
    line, widths = [(304, 448), (316, 474), (350, 486), (398, 474)], [54, 50, 44, 33]
    d.cast(suit, tube(line, widths), 0, 12, 7)
    arm(d, SKIN, line, widths)
    hand(d, SKIN, (384, 478), 70, 66, flip=True, spread=0.3, fold=0.5)
    cuff = tube([(288, 372), (296, 412), (304, 448)], [72, 70, 64], True, False)
    d.path(cuff, BLOUSE, form=10)


def draw():
    d = Drawing(487, 870, "Mother from Italy with her baby in azure on her arm")
    legs(d)
    mother_hair_back(d)
    flag_arm(d)
    blouse = body(d)
    mother_head(d)
    suit = baby_body(d, blouse)
    holding_arm(d, suit)
    baby_head(d)
    return d.fit(26, 1, 467, 858)
