"""The program's icon: three balls on a green disc, and on their own where there are too few pixels for more."""

from ball import ball, contact_shadow
from vector import Drawing, dark, ellipse, light

RED, BLUE, WHITE = "#ee2a34", "#2a66f0", "#f6f2ea"
TITLE = "Three boccia balls on a green disc"


def draw():
    d = Drawing(256, 256, TITLE)
    d.path(ellipse(128, 128, 125, 125), d.radial((100, 80), 190, (0, "#45cf7d"), (0.6, "#1f9a55"), (1, "#0a6034")))
    for x, y in ((78, 148), (178, 148), (128, 224)):
        contact_shadow(d, x, y, 56, 26, 0.6)
    ball(d, 77, 94, 57, RED, (-28, 30, 40), bounce="#ff9a6a", seam=0.075)
    ball(d, 179, 94, 57, BLUE, (24, 38, -30), bounce="#6ab8ff", seam=0.075)
    contact_shadow(d, 128, 182, 64, 60, 0.5)
    ball(d, 128, 178, 57, WHITE, (12, -34, 25), bounce="#9fe6bc", seam=0.075)
    return d


def small(size, radius, balls):
    """In pixels of the size shown: whole ones where edges meet, one light and one dark crescent a ball, no seams."""
    d = Drawing(size, size, TITLE)
    half = size / 2
    d.path(ellipse(half, half, half, half), "#0d6b3a")
    d.path(ellipse(half, half, half - 1, half - 1), "#22a35b")
    for (x, y), colour in zip(balls, (RED, BLUE, WHITE)):
        d.path(ellipse(x, y, radius + 0.7, radius + 0.7), "#063d20")
        d.path(ellipse(x, y, radius, radius), d.radial((x - radius * 0.3, y - radius * 0.4), radius * 1.5,
                                                       (0, light(colour, 0.45)), (0.4, colour), (1, dark(colour, 0.5))))
        d.path(ellipse(x - radius * 0.35, y - radius * 0.4, radius * 0.26, radius * 0.26), "#ffffff", opacity=0.9)
    return d


def draw16():
    return small(16, 3.3, ((4.5, 5.5), (11.5, 5.5), (8, 11.5)))


def draw22():
    return small(22, 4.5, ((6.2, 7.5), (15.8, 7.5), (11, 15.5)))
