"""An old British gentleman on his seat: flat cap, moustache, tweed; he raises a mug of tea and swings his scarf."""

from anatomy import Skin, brow, ears, eye, face_base, face_outline, fist, mouth, neck, nose, strands
from vector import Drawing, dark, ellipse, light, smooth, tube

SKIN = Skin("#efb79c", "#e2695c", "#b9565a")
TWEED, CORD, CAP = "#7d6a4c", "#4c5a68", "#8a7a5a"
RED, WHITE, NAVY = "#cf2a36", "#f5f1ea", "#23326b"
WOOL = (RED, WHITE, NAVY)


def seat(d):
    d.path(smooth([(112, 380), (282, 352), (452, 380), (470, 470), (462, 690), (282, 706), (102, 690), (94, 470)]),
           "#27456e", form=18)
    for x in (150, 414):
        d.stroke([(x, 690), (x, 890)], "#2b2d3a", 22)
        d.stroke([(x - 6, 690), (x - 6, 890)], "#6d7484", 5, 0.8)
        d.path(tube([(x - 34, 896), (x + 34, 896)], [18, 18]), "#2b2d3a", form=4)


def legs(d):
    for side in (-1, 1):
        knee, ankle = (282 + side * 96, 668), (282 + side * 100, 838)
        x = ankle[0]
        with d.group(form=8):
            toe = side * 26
            d.path(smooth([(x - 40 + toe, 890), (x - 40 + toe, 890), (x + 44 + toe, 890), (x + 44 + toe, 890),
                           (x + 42 + toe, 905), (x - 38 + toe, 905)]), "#2a1812")
            d.path(smooth([(x - 34, 840), (x - 34, 840), (x + 34, 840), (x + 34, 840), (x + 38 + toe * 0.5, 866),
                           (x + 46 + toe, 892), (x + toe, 899), (x - 42 + toe, 892),
                           (x - 38 + toe * 0.5, 866)]), "#6b3a24")
            for y in (862, 873):
                d.stroke([(x - 14 + toe * 0.5, y), (x + 14 + toe * 0.5, y)], "#2e150e", 3.5)
            d.path(ellipse(x + toe - 6, 884, 20, 6), "#c98c70", opacity=0.75, blur=3)
        shin = tube([knee, (282 + side * 104, 760), (x, 852)], [112, 98, 86], True, False)
        thigh = tube([(282 + side * 62, 590), knee], [150, 136])
        with d.group(form=14):
            d.path(shin, CORD)
            with d.group(clip=shin):
                for k in range(8):
                    d.stroke([(x - 46 + 13 * k, 700), (x - 42 + 12 * k, 856)], dark(CORD, 0.35), 2.4, 0.5)
                d.folds([[(x - 50, 818), (x, 832), (x + 48, 820)]], 10)
        with d.group(form=17):
            d.path(thigh, CORD)
            with d.group(clip=thigh):
                d.path(ellipse(knee[0] - 12, knee[1] - 14, 36, 26), light(CORD, 0.55), opacity=0.5, blur=13)
                d.folds([[(knee[0] - 56, knee[1] + 30), (knee[0], knee[1] + 50), (knee[0] + 56, knee[1] + 30)],
                         [(282 + side * 20, 600), (282 + side * 60, 622), (282 + side * 120, 606)]], 10)


def tweed(d, outline):
    """A woven check."""
    with d.group(clip=outline):
        for k in range(26):
            d.stroke([(60 + 18 * k, 60), (64 + 18 * k, 660)], "#a08c66" if k % 3 else "#5d3b30", 2.2, 0.4)
            d.stroke([(40, 90 + 22 * k), (540, 94 + 22 * k)], "#4e432f" if k % 3 else "#b29a6e", 2.2, 0.38)


def body(d):
    neck(d, SKIN, (282, 244), (282, 310), 74)
    shirt = smooth([(240, 284), (282, 300), (324, 284), (350, 400), (340, 540), (224, 540), (214, 400)])
    d.path(shirt, "#e9eef2", form=8)
    vest = smooth([(222, 300), (282, 420), (342, 300), (342, 300), (372, 420), (368, 566), (282, 590), (196, 566),
                   (192, 420), (222, 300)])
    with d.group(form=14):
        d.path(vest, "#8c2f38")
        for y in (440, 480, 520, 560):
            d.path(ellipse(282, y, 6.5, 6.5), "#e9c46a")
        d.stroke([(282, 424), (282, 584)], "#561a24", 2.5, 0.6)
        d.folds([[(206, 528), (240, 542), (276, 536)], [(362, 516), (330, 536), (292, 540)]], 9)
    d.path(smooth([(270, 300), (294, 300), (300, 322), (292, 400), (282, 420), (272, 400), (264, 322)]), NAVY, form=5)
    for k in range(4):
        d.stroke([(270, 340 + 20 * k), (294, 330 + 20 * k)], RED, 4)
    for side in (-1, 1):
        x = lambda v: 282 + side * v
        collar = smooth([(x(8), 306), (x(8), 306), (x(44), 276), (x(56), 300), (x(38), 338), (x(38), 338)])
        d.path(collar, "#f5f8fa", form=5)
        front = smooth([(x(46), 280), (x(46), 280), (x(112), 296), (x(156), 350), (x(150), 450), (x(164), 584),
                        (x(164), 584), (x(88), 612), (x(88), 612), (x(70), 500), (x(44), 420), (x(60), 340)])
        with d.group(form=15):
            d.path(front, TWEED)
            tweed(d, front)
            d.folds([[(x(150), 420), (x(120), 448), (x(86), 452)], [(x(150), 560), (x(122), 548), (x(90), 556)]], 10)
        lapel = smooth([(x(46), 282), (x(46), 282), (x(86), 330), (x(64), 350), (x(80), 372), (x(80), 372),
                        (x(46), 440), (x(46), 440), (x(34), 360)])
        with d.group(form=7):
            d.path(lapel, light(TWEED, 0.12))
            tweed(d, lapel)


def upper_arms(d):
    """Behind the jacket's fronts, so that the armholes read as seams."""
    upper = tube([(176, 336), (120, 404), (94, 470)], [100, 94, 86])
    with d.group(form=15):
        d.path(upper, TWEED)
        tweed(d, upper)
    sleeve = tube([(386, 352), (440, 318), (464, 262), (454, 188)], [108, 98, 84, 68], True, False)
    with d.group(form=15):
        d.path(sleeve, TWEED)
        tweed(d, sleeve)
        d.folds([[(424, 262), (448, 276), (496, 276)], [(420, 294), (444, 304), (492, 306)]], 9)


def mug_arm(d):
    d.path(tube([(98, 352), (100, 322)], [56, 54], False, False), "#e9eef2", form=6)
    with d.group(form=6):
        d.path(tube([(68, 232), (42, 240), (40, 274), (70, 284)], [13, 13, 13, 13]), "#f5f1ea")
    cup = smooth([(66, 214), (66, 214), (138, 214), (138, 214), (136, 280), (126, 300), (78, 300), (68, 280)])
    with d.group(form=9):
        d.path(cup, "#f5f1ea")
        with d.group(clip=cup):
            d.path("M66,236 h72 v44 h-72 Z", NAVY)
            d.stroke([(66, 236), (138, 280)], WHITE, 11)
            d.stroke([(66, 280), (138, 236)], WHITE, 11)
            d.stroke([(66, 236), (138, 280)], RED, 4.5)
            d.stroke([(66, 280), (138, 236)], RED, 4.5)
            d.path("M66,250 h72 v16 h-72 Z M94,236 h16 v44 h-16 Z", WHITE)
            d.path("M66,254 h72 v8 h-72 Z M98,236 h8 v44 h-8 Z", RED)
    d.path(ellipse(102, 214, 36, 8), "#fffaf0")
    d.path(ellipse(102, 215, 30, 5.5), "#a4602a")
    fist(d, SKIN, (104, 326), -4, 92)
    fore = tube([(92, 474), (92, 416), (99, 346)], [86, 80, 66], True, False)
    with d.group(form=13):
        d.path(fore, TWEED)
        tweed(d, fore)
        d.folds([[(58, 440), (90, 452), (128, 440)]], 9)


def knit(d, outline, start, step, count, half):
    """Wool stripes across a scarf that follows start + k * step."""
    with d.group(form=7):
        d.path(outline, RED)
        with d.group(clip=outline):
            for k in range(count):
                x, y = start[0] + step[0] * k, start[1] + step[1] * k
                nx, ny = -step[1], step[0]
                s = half / max(1, (nx * nx + ny * ny) ** 0.5)
                d.stroke([(x - nx * s, y - ny * s), (x + nx * s, y + ny * s)], WOOL[k % 3],
                         (step[0] ** 2 + step[1] ** 2) ** 0.5 + 1)


def scarf_arm(d):
    knit(d, tube([(470, 84), (508, 96), (530, 150), (524, 230), (536, 300)], [40, 46, 48, 50, 54], True, False),
         (524, 60), (1, 22), 13, 60)
    for k in range(6):
        d.stroke([(513 + 9 * k, 300), (512 + 10 * k, 320)], WOOL[k % 3], 5)
    with d.group(form=8):
        d.path(tube([(452, 190), (462, 120)], [50, 44]), SKIN.base)
    knit(d, tube([(470, 70), (440, 80), (418, 120), (422, 176)], [40, 44, 44, 48], True, False), (422, 50), (0.5, 22),
         8, 60)
    for k in range(5):
        d.stroke([(402 + 9 * k, 176), (401 + 10 * k, 194)], WOOL[(k + 1) % 3], 5)
    fist(d, SKIN, (464, 122), 4, 92, flip=True)
    d.path(tube([(454, 196), (459, 166)], [60, 56], False, False), "#e9eef2", form=6)


def head(d):
    with d.group("translate(282 192) rotate(3) scale(0.82)"):
        ears(d, SKIN, 74, 8, 1.3)
        with d.group(form=7):
            for side in (-1, 1):
                d.path(smooth([(side * 62, -44), (side * 82, -30), (side * 84, 0), (side * 76, 26), (side * 66, 10)]),
                       "#e9e6e4")
        face_base(d, SKIN, face_outline(75, 52, 94))
        for side in (-1, 1):
            d.stroke([(side * 48, -8), (side * 60, -12)], SKIN.deep, 2.4, 0.7)
            d.stroke([(side * 48, 2), (side * 62, 3)], SKIN.deep, 2.4, 0.7)
            d.taper([(side * 24, 36), (side * 42, 48), (side * 46, 66)], 4, SKIN.deep, 0.6)
        for y in (-50, -42):
            d.taper([(-34, y), (0, y - 5), (34, y)], 3, SKIN.deep, 0.5)
        for x in (-29, 29):
            eye(d, SKIN, x, 2, 31, "#4f86a8", 0.85)
            with d.group(form=3):
                brow(d, x, -24, 42, "#f1eeea", 10, 14)
        d.path(ellipse(0, 30, 19, 15), SKIN.blush, opacity=0.35, blur=5)
        nose(d, SKIN, 0, 36, 42)
        mouth(d, SKIN, 0, 60, 64, 20, 10)
        moustache = smooth([(0, 44), (16, 42), (38, 52), (56, 62), (62, 52), (58, 70), (38, 72), (14, 62), (0, 58),
                            (-14, 62), (-38, 72), (-58, 70), (-62, 52), (-56, 62), (-38, 52), (-16, 42)])
        with d.group(form=6):
            d.path(moustache, "#f4f1ee")
            strands(d, [[(4, 48), (24, 54), (46, 66)], [(-4, 48), (-24, 54), (-46, 66)],
                        [(2, 54), (18, 58), (36, 68)], [(-2, 54), (-18, 58), (-36, 68)]], "#a9a2a4", 3, 0.7)
        cap(d)


def cap(d):
    crown = smooth([(-84, -34), (-98, -66), (-76, -112), (-20, -136), (44, -130), (92, -100), (100, -60), (82, -34),
                    (0, -54)])
    with d.group(form=12):
        d.path(crown, CAP)
        with d.group(clip=crown):
            for k in range(12):
                d.stroke([(-96 + 18 * k, -140), (-100 + 18 * k, -20)], "#5d4a34" if k % 2 else "#b5a176", 3, 0.45)
                d.stroke([(-110, -136 + 12 * k), (110, -132 + 12 * k)], "#5d3b30" if k % 3 == 0 else "#b5a176", 3, 0.35)
            d.taper([(-10, -134), (-40, -100), (-48, -58)], 4, "#3e3222", 0.6)
            d.taper([(10, -134), (44, -102), (52, -58)], 4, "#3e3222", 0.6)
        d.path(ellipse(2, -132, 9, 6), dark(CAP, 0.2))
    with d.group(form=6):
        d.path(smooth([(-84, -44), (-84, -44), (-40, -66), (4, -72), (48, -66), (86, -42), (86, -42), (74, -26),
                       (40, -40), (0, -45), (-40, -41), (-74, -26)]), dark(CAP, 0.25))


def draw():
    d = Drawing(565, 907, "Old gentleman from Britain with flat cap, tea and scarf")
    seat(d)
    legs(d)
    scarf_arm(d)
    upper_arms(d)
    body(d)
    mug_arm(d)
    head(d)
    return d.fit(27, 46, 566, 907)
