"""A German woman in a sports wheelchair, clapping: white jersey, black-red-gold scarf, red glasses."""

from anatomy import Skin, brow, ears, eye, face_base, face_outline, hand, mouth, neck, nose, shoe, strands
from vector import Drawing, ellipse, smooth, tube

SKIN = Skin("#f2c3a2", "#e9816f", "#c4525a")
HAIR, JEANS, METAL = "#d9a54c", "#34456e", "#5b6476"
FLAG = ("#23202a", "#d8232f", "#f7c52e")


def wheel(d, cx, side):
    """A cambered wheel seen nearly edge-on, with its hand rim outside."""
    with d.group(f"rotate({side * -5} {cx} 640)"):
        d.path(ellipse(cx, 640, 33, 204), "#343b50")
        for k in range(7):
            y = 470 + k * 56
            d.stroke([(cx + side * 6, 640), (cx - side * 24 * (1 - abs(y - 640) / 230), y)], "#c9d0dc", 2, 0.7)
        d.path(ellipse(cx, 640, 33, 204), stroke="#23232d", stroke_width=17, form=5)
        d.path(ellipse(cx, 640, 27, 194), stroke="#9aa3b4", stroke_width=4)
        d.path(ellipse(cx + side * 13, 640, 28, 172), stroke="#d7dce6", stroke_width=6, form=2)
        d.path(ellipse(cx + side * 8, 640, 9, 20), "#d8232f", form=4)


def chair(d):
    back = smooth([(118, 330), (232, 316), (346, 330), (356, 420), (350, 570), (232, 590), (114, 570), (108, 420)])
    d.path(back, "#23232f", form=14)
    for side in (-1, 1):
        x = 232 + side * 128
        d.stroke([(x, 600), (x + side * 3, 320), (x + side * 14, 300)], METAL, 13)
        d.stroke([(x + side * 14, 300), (x + side * 32, 296)], "#1b1b24", 19)
        wheel(d, 232 + side * 170, side)


def footrest(d):
    for side in (-1, 1):
        x = 232 + side * 92
        d.stroke([(x + side * 20, 610), (x, 700), (x - side * 18, 818)], METAL, 11)
        d.stroke([(x + side * 18, 612), (x - side * 2, 700), (x - side * 20, 816)], "#aeb6c6", 3.5, 0.9)
        with d.group(form=4):
            d.path(ellipse(x + side * 16, 822, 15, 36), "#23232d")
            d.path(ellipse(x + side * 16, 822, 6, 18), "#9aa3b4")
    d.path(tube([(150, 834), (232, 838), (314, 834)], [20, 22, 20]), "#3a3f4d", form=4)


def legs(d):
    for side in (-1, 1):
        hip, knee, ankle = (232 + side * 44, 540), (232 + side * 66, 612), (232 + side * 48, 782)
        shoe(d, (ankle[0], 784), 88, "#e4ecf2", sole="#d8232f", flip=side < 0, bearing=side * -14)
        shin = tube([knee, (232 + side * 62, 700), (ankle[0], 788)], [94, 78, 60], True, False)
        thigh = tube([hip, knee], [126, 112])
        with d.group(form=13):
            d.path(shin, JEANS)
            with d.group(clip=shin):
                d.folds([[(ankle[0] - 40, 754), (ankle[0], 764), (ankle[0] + 40, 752)],
                         [(ankle[0] - 36, 730), (ankle[0] + 4, 742), (ankle[0] + 46, 736)]], 8)
                d.stroke([(ankle[0] - 44, 784), (ankle[0] + 44, 786)], "#5b6f9e", 12)
        with d.group(form=15):
            d.path(thigh, JEANS)
            with d.group(clip=thigh):
                d.path(ellipse(knee[0] - 8, knee[1] - 6, 32, 24), "#7488b8", opacity=0.6, blur=11)
                d.folds([[(knee[0] - side * 40, knee[1] + 22), (knee[0], knee[1] + 36),
                          (knee[0] + side * 44, knee[1] + 20)],
                         [(hip[0] - side * 20, hip[1] - 6), (hip[0] + side * 18, hip[1] + 10),
                          (hip[0] + side * 58, hip[1] + 4)]], 8)


SHIRT = smooth([(198, 232), (232, 250), (266, 232), (266, 232), (318, 246), (350, 290), (336, 360), (322, 440),
                (338, 560), (338, 560),
                (232, 584), (126, 560), (126, 560), (142, 440), (128, 360), (114, 290), (146, 246), (198, 232)])


def elbow(side):
    return 232 + side * 146, 424


def body(d):
    neck(d, SKIN, (232, 170), (232, 252), 58)
    with d.group(form=14):
        for side in (-1, 1):
            d.path(tube([(232 + side * 84, 284), (232 + side * 126, 344), elbow(side)], [84, 74, 66]), "#f1efec")
        d.path(SHIRT, "#f1efec")
        with d.group(clip=SHIRT):
            for k, colour in enumerate(FLAG):
                y = 466 + 13 * k
                d.stroke([(110, y - 8), (180, y + 4), (284, y + 4), (354, y - 8)], colour, 13)
            d.folds([[(130, 528), (180, 542), (226, 536)], [(334, 522), (290, 540), (248, 542)]], 9)
            for side in (-1, 1):
                d.taper([(232 + side * 104, 318), (232 + side * 100, 380), (232 + side * 92, 450)], 14, "#3a2450",
                        0.32, blur=5)


def scarf(d):
    left = smooth([(164, 236), (206, 244), (222, 300), (214, 412), (214, 412), (150, 406), (150, 406), (160, 320),
                   (150, 262)])
    right = smooth([(300, 236), (258, 244), (244, 300), (252, 420), (252, 420), (316, 414), (316, 414), (306, 320),
                    (314, 262)])
    for piece, x0, x1 in ((left, 146, 220), (right, 248, 320)):
        with d.group(form=8):
            d.path(piece, FLAG[1])
            with d.group(clip=piece):
                for k in range(9):
                    y = 232 + k * 24
                    d.stroke([(x0 - 8, y), ((x0 + x1) / 2, y + 7), (x1 + 8, y)], FLAG[k % 3], 26)
                d.folds([[((x0 + x1) / 2 + 4, 260), ((x0 + x1) / 2 - 4, 330), ((x0 + x1) / 2 + 6, 400)]], 9)
    for x0, y in ((150, 408), (252, 416)):
        for k in range(8):
            x = x0 + 4 + k * 8
            d.stroke([(x, y), (x + (-1) ** k * 2, y + 18)], FLAG[2 - k % 2], 4)
    collar = tube([(160, 250), (192, 246), (232, 264), (272, 246), (304, 250)], [36, 40, 36, 40, 36])
    with d.group(form=8):
        d.path(collar, FLAG[0])
        with d.group(clip=collar):
            d.stroke([(150, 240), (190, 235), (232, 252), (274, 235), (314, 240)], FLAG[1], 10)
            d.stroke([(150, 266), (192, 260), (232, 278), (272, 260), (314, 266)], FLAG[2], 9)


def arms(d):
    """Both forearms rise to the clap in front of the chest."""
    hand(d, SKIN, (266, 372), -20, 108, spread=0.5)
    for side, wrist in ((1, (280, 368)), (-1, (184, 384))):
        bend = elbow(side)
        fore = tube([bend, ((bend[0] + wrist[0]) / 2 + side * 4, 410), wrist], [68, 64, 48], True, False)
        d.cast(SHIRT, fore, 4, 22, 10)
        with d.group(form=12):
            d.path(fore, "#f1efec")
            with d.group(clip=fore):
                nx = wrist[0] + side * 9
                d.stroke([(nx - 6, wrist[1] - 34), (nx + 6, wrist[1] + 34)], FLAG[1], 10)
                d.folds([[(bend[0] - side * 34, bend[1] - 28), (bend[0] - side * 22, bend[1]),
                          (bend[0] - side * 30, bend[1] + 26)]], 8)
        if side < 0:
            hand(d, SKIN, (196, 380), 24, 110, spread=0.35, palm=False)


def head(d):
    with d.group("translate(232 124) rotate(-5) scale(0.9)"):
        ears(d, SKIN, 68)
        face_base(d, SKIN, face_outline(70, 42, 92))
        for x in (-28, 28):
            eye(d, SKIN, x, 0, 36, "#3f7398", 0.5, lash=True)
            brow(d, x, -27, 36, "#9a6a30", 8, 7)
        nose(d, SKIN, 0, 32, 28)
        mouth(d, SKIN, 0, 54, 54, 21, 11, lips=3.6)
        for k, colour in enumerate(FLAG):
            d.stroke([(40, 28 + 7 * k), (58, 25 + 7 * k)], colour, 6.5, 0.92)
        for side in (-1, 1):
            d.path(smooth([(side * 8, -12), (side * 30, -19), (side * 54, -12), (side * 52, 14), (side * 30, 22),
                           (side * 10, 14)]),
                   "#ffffff", stroke="#c81f3a", stroke_width=5, fill_opacity=0.14)
            d.stroke([(side * 54, -8), (side * 68, -10)], "#c81f3a", 5)
        d.stroke([(-9, -6), (0, -10), (9, -6)], "#c81f3a", 5)
        fringe = smooth([(-88, 92), (-100, 50), (-92, -10), (-86, -62), (-58, -110), (-6, -128), (50, -116),
                         (84, -68), (94, -8), (104, 50), (90, 92),
                         (70, 78), (72, 30), (68, -14), (56, -46), (30, -68), (10, -76), (-18, -54), (-48, -34),
                         (-66, -8), (-70, 36), (-68, 78)])
        with d.group(form=10):
            d.path(fringe, HAIR)
            strands(d, [[(6, -110), (-32, -84), (-64, -36), (-72, 30)], [(10, -104), (-10, -76), (-40, -46),
                (-60, -22)], [(14, -112), (50, -84), (70, -30), (74, 40)],
                        [(-10, -120), (-50, -96), (-76, -40), (-78, 20)], [(24, -116), (62, -90), (80, -30),
                            (80, 24)]], "#a06e26", 5, 0.55)
            strands(d, [[(0, -116), (-40, -92), (-68, -44)], [(18, -108), (46, -86), (64, -46)]], "#f8dd96", 7, 0.6)


def hair_back(d):
    with d.group("translate(232 124) rotate(-5) scale(0.9)"):
        d.path(smooth([(0, -124), (76, -88), (96, 0), (108, 78), (92, 104), (40, 96), (-40, 96), (-92, 104),
                       (-108, 78), (-96, 0), (-76, -88)]), "#a8742e", form=12)


def draw():
    d = Drawing(465, 861, "Woman from Germany in a wheelchair, clapping")
    chair(d)
    hair_back(d)
    legs(d)
    footrest(d)
    body(d)
    scarf(d)
    head(d)
    arms(d)
    return d.fit(12, 5, 453, 859)
