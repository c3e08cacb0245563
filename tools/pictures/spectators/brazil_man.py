"""A young Brazilian: yellow shirt with green trim, both arms up, a small flag in his left hand."""

from anatomy import Skin, arm, brow, ears, eye, face_base, face_outline, fist, hand, mouth, neck, nose, shoe
from props import brazil_flag, stick
from vector import Drawing, ellipse, smooth, tube

SKIN = Skin("#8a5536", "#c0603f", "#a04a44")
YELLOW, GREEN, BLUE = "#ffd42a", "#138a4a", "#2450b4"


def legs(d):
    for side, knee, ankle in ((-1, (180, 628), (164, 742)), (1, (268, 626), (284, 742))):
        hip = (222 + side * 34, 500)
        arm(d, SKIN, [hip, knee, ((knee[0] + ankle[0]) / 2 + side * 3, 680), ankle], [66, 47, 48, 32])
        d.path(ellipse(knee[0] - 3, knee[1] - 8, 13, 12), SKIN.glow, opacity=0.35, blur=4)
        sock = tube([((knee[0] + ankle[0]) / 2 + side * 4, 694), (ankle[0], 750)], [46, 32], False, False)
        d.path(sock, "#f6f1ea", form=5)
        with d.group(clip=sock):
            d.stroke([(ankle[0] - 34, 700), (ankle[0] + 34, 703)], GREEN, 7)
        shoe(d, (ankle[0], 744), 78, BLUE, flip=side < 0)
    for side in (-1, 1):
        leg = tube([(222 + side * 30, 440), (222 + side * 38, 520), (222 + side * 45, 600)], [72, 84, 82], True, False)
        with d.group(form=10):
            d.path(leg, BLUE)
            with d.group(clip=leg):
                d.stroke([(222 + side * 76, 450), (222 + side * 82, 610)], "#f4f4fa", 8)
                d.folds([[(222 + side * 8, 488), (222 + side * 26, 500), (222 + side * 50, 500)],
                         [(222 + side * 20, 560), (222 + side * 36, 570), (222 + side * 62, 562)]], 7)


def body(d):
    neck(d, SKIN, (222, 215), (222, 278), 50)
    shirt = smooth([(196, 262), (222, 282), (248, 262), (248, 262), (290, 272), (318, 300), (302, 350), (296, 410),
                    (300, 466), (300, 466),
                    (222, 474), (144, 466), (144, 466), (148, 410), (142, 350), (126, 300), (154, 272), (196, 262)])
    left = tube([(150, 300), (104, 246), (88, 212)], [72, 66, 62], True, False)
    right = tube([(294, 300), (342, 250), (360, 218)], [72, 66, 62], True, False)
    with d.group(form=13):
        for piece in (left, right, shirt):
            d.path(piece, YELLOW)
        for piece, a, b in ((left, (116, 198), (60, 226)), (right, (332, 204), (390, 232))):
            with d.group(clip=piece):
                d.stroke([a, b], GREEN, 13)
        with d.group(clip=shirt):
            d.path(smooth([(186, 254), (222, 298), (258, 254)], closed=False), stroke=GREEN, stroke_width=13)
            d.folds([[(142, 330), (160, 346), (190, 350)], [(304, 326), (284, 346), (256, 352)],
                     [(146, 404), (176, 420), (214, 420)],
                     [(298, 398), (276, 416), (246, 420)], [(160, 450), (200, 440), (240, 450)]], 8)
            d.path(ellipse(258, 322, 11, 13), GREEN)
            d.path(ellipse(258, 320, 5, 6), "#ffe88a")
    d.folds([[(128, 290), (146, 300), (154, 322)], [(318, 292), (300, 302), (292, 324)]], 7)


def arms(d):
    arm(d, SKIN, [(112, 258), (80, 204), (70, 150), (70, 100)], [52, 46, 42, 29])
    hand(d, SKIN, (70, 98), -6, 84, spread=1.2)
    stick(d, (374, 150), (352, 10))
    brazil_flag(d, (350, 12), (96, 4), (9, 66), 5)
    arm(d, SKIN, [(330, 262), (362, 212), (372, 168), (367, 126)], [52, 46, 42, 29])
    fist(d, SKIN, (367, 134), -6, 62, flip=True)


def head(d):
    with d.group("translate(222 184) rotate(4) scale(0.68)"):
        ears(d, SKIN, 72)
        outline = face_outline(73, 50, 94)
        face_base(d, SKIN, outline)
        beard = smooth([(-72, 6), (-66, 34), (-44, 42), (-26, 40), (0, 34), (26, 40), (44, 42), (66, 34), (72, 6),
                        (70, 44), (46, 82), (0, 100), (-46, 82), (-70, 44)])
        with d.group(clip=outline):
            d.path(beard, "#1d1210", opacity=0.78, blur=2.5)
        for x in (-29, 29):
            eye(d, SKIN, x, 0, 34, "#4a2a18", 0.55)
            brow(d, x, -28, 40, "#1d1210", 9, 11)
        nose(d, SKIN, 0, 34, 42)
        mouth(d, SKIN, 0, 52, 62, 27, 9)
        hair = smooth([(-76, 4), (-80, -40), (-66, -88), (-34, -118), (4, -126), (44, -116), (72, -86), (80, -38),
                       (76, 4), (70, -8), (66, -40),
                       (54, -62), (26, -70), (-6, -66), (-36, -70), (-58, -58), (-66, -36), (-70, -8)])
        with d.group(form=9):
            d.path(hair, "#221815")
            with d.group(clip=hair):
                for k in range(40):
                    x = -76 + (k * 37) % 152
                    y = -122 + (k * 53) % 60 + abs(x) * 0.3
                    d.path(ellipse(x, y, 8, 6), "#56413a" if y < -80 else "#3b2b26", opacity=0.6, blur=1.5)


def draw():
    d = Drawing(447, 796, "Young man from Brazil, arms up with a small flag")
    legs(d)
    arms(d)
    body(d)
    head(d)
    return d.fit(30, 3, 452, 785)
