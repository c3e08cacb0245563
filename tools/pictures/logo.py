"""The game's mark, drawn to be seen 128 points wide, of which each is five units: a red ball curls in towards the blue
ball and the white jack, all three as large as each other."""

from ball import ball, contact_shadow
from vector import Drawing, ellipse, smooth

RED, BLUE, WHITE = "#e0232e", "#2158d8", "#f4efe4"
POINT = 5
RADIUS = 24 * POINT


def court(d):
    d.path(ellipse(320, 392, 310, 84), "#064a28")
    d.path(ellipse(320, 380, 310, 84), d.radial((300, 330), 330, (0, "#43c877"), (0.55, "#1f9a55"), (1, "#0b6a39")))
    d.path(ellipse(320, 380, 282, 70), stroke="#f6fbf2", stroke_width=1.6 * POINT)


def trail(d):
    """The red ball's flight, from thin to broad."""
    outer = [(16, 330), (8, 200), (56, 84), (150, 18), (262, 14)]
    inner = [(270, 150), (190, 120), (104, 130), (46, 210)]
    d.path(smooth([outer[0], *outer, outer[-1], inner[0], *inner, outer[0]]),
           d.linear((20, 330), (250, 60), (0, "#ff9a3c", 0.0), (0.4, "#ff8438", 0.8), (1, "#ff4a3a", 1)))


def draw():
    d = Drawing(128 * POINT, 96 * POINT, "Red ball, blue ball and white jack on a green court")
    court(d)
    trail(d)
    contact_shadow(d, 488, 370, 150, 44)
    contact_shadow(d, 256, 414, 160, 46)
    ball(d, 482, 266, RADIUS, BLUE, (24, 38, -30), bounce="#58c8ff")
    ball(d, 246, 138, RADIUS, RED, (-28, 30, 40), bounce="#ff9a6a")
    ball(d, 284, 320, RADIUS, WHITE, (12, -34, 25), bounce="#8fe0b0")
    return d
