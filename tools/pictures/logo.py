"""The game's mark: a red ball curls in along its arc towards the blue ball and the white jack."""

from ball import ball, contact_shadow
from vector import Drawing, ellipse, smooth

RED, BLUE, WHITE = "#e0232e", "#2158d8", "#f4efe4"


def court(d):
    rim = ellipse(320, 404, 304, 74)
    top = ellipse(320, 394, 304, 74)
    d.path(rim, "#064a28")
    d.path(top, d.radial((300, 350), 330, (0, "#43c877"), (0.55, "#1f9a55"), (1, "#0b6a39")))
    with d.group(clip=top):
        d.path(ellipse(320, 394, 268, 62), stroke="#f6fbf2", stroke_width=8, opacity=0.95)
        d.path(ellipse(320, 396, 304, 74), stroke="#a9f0c0", stroke_width=5, opacity=0.7)
    return top


def trail(d):
    """The red ball's flight, from thin to broad."""
    arc = [(24, 336), (20, 200), (74, 88), (166, 32), (256, 26)]
    inner = [(262, 150), (196, 112), (122, 140), (62, 214)]
    d.path(smooth([arc[0], *arc, arc[-1], inner[0], *inner, arc[0]]),
           d.linear((30, 330), (262, 70), (0, "#ff9a3c", 0.0), (0.45, "#ff8438", 0.75), (1, "#ff4a3a", 0.95)))
    d.taper([(42, 250), (62, 154), (122, 84), (200, 62)], 9, "#fff2d0", 0.75)


def draw():
    d = Drawing(640, 480, "Red ball, blue ball and white jack on a green court")
    floor = court(d)
    trail(d)
    contact_shadow(d, floor, 462, 296, 118)
    contact_shadow(d, floor, 212, 330, 80)
    ball(d, 462, 286, 124, BLUE, (24, 38, -30))
    d.path(ellipse(330, 424, 82, 18), "#04210f", opacity=0.6, blur=8)
    ball(d, 266, 148, 124, RED, (-28, 30, 40), bounce="#ff9a6a")
    ball(d, 318, 350, 78, WHITE, (12, -34, 25))
    return d
