"""The mark, reduced to what still reads at sixteen pixels: three balls on a green disc."""

from ball import ball
from vector import Drawing, ellipse

RED, BLUE, WHITE = "#ee2a34", "#2a66f0", "#ffffff"


def draw():
    d = Drawing(256, 256, "Three boccia balls on a green disc")
    disc = ellipse(128, 128, 124, 124)
    d.path(disc, d.radial((100, 80), 190, (0, "#45cf7d"), (0.6, "#1f9a55"), (1, "#0a6034")))
    with d.group(clip=disc):
        for x, y, r in ((80, 164, 62), (176, 164, 62), (128, 236, 50)):
            d.path(ellipse(x + 4, y - 4, r, r * 0.4), "#04210f", opacity=0.6, blur=9)
    ball(d, 79, 104, 62, RED, (-28, 30, 40), bounce="#ff9a6a")
    ball(d, 177, 104, 62, BLUE, (24, 38, -30), bounce="#6ab8ff")
    d.path(ellipse(128, 176, 62, 62), "#08351d", opacity=0.45, blur=5)
    ball(d, 128, 178, 57, WHITE, (12, -34, 25))
    return d
