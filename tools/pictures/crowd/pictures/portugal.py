"""A stout Portuguese father spreads his scarf above his head; his son shouts beside him."""

from crowd import furniture, hair, things
from crowd.face import Face
from crowd.figure import Arm, Person, Wear
from crowd.sculpture import cloth, hard

RED, GREEN, GOLD = "#b81f2a", "#0f6b39", "#e0b02a"


def scarf_pattern(u, v):
    """Red between green ends with fringes of gold, a row of lozenges along the middle."""
    if 0.12 < v < 0.2 or 0.8 < v < 0.88:
        return GOLD
    if abs((u * 9) % 1 - 0.5) + abs(v - 0.5) * 1.4 < 0.32:
        return GOLD if 0.2 < u < 0.8 else RED
    return RED if 0.2 < u < 0.8 else GREEN


FATHER = Person(
    at=(-36, 286, -20), scale=1.0, yaw=4, look=(2, 6, -4), stout=1.22,
    face=Face("#c98d60", mouth=22, moustache="#1d1412", brows="#1d1412", jaw=1.14),
    hair=hair.topped(hair.cropped("#1d1412"), hair.peaked(GREEN, RED)),
    wear=Wear(cloth(RED), cloth("#39465e"), hard("#2a2a30"), long_sleeves=False, trim=GREEN),
    left=Arm((-150, 466, 40), elbow=(-1, -0.2, 0.1), hand="fist"),
    right=Arm((150, 470, 40), elbow=(1, -0.2, 0.1), hand="fist"),
    with_=(furniture.chair(), things.banner(scarf_pattern, (-200, 556, 60), (200, 562, 60), 92)),
)

SON = Person(
    at=(128, 240, 150), scale=0.76, yaw=-16, look=(-10, 8, 10), head_size=1.34,
    face=Face("#d69c70", mouth=24, brows="#2a1a12", stripes=(RED, GREEN)),
    hair=hair.curls("#2a1912", 1.0, 9),
    wear=Wear(cloth(GREEN), cloth("#8a3038"), hard("#c9c4bc", 0.2), bare_shins=True, trim=GOLD),
    left=Arm((-86, 40, 130), elbow=(-1, -0.2, 0), palm=(0, -1, 0)),
    right=Arm((172, 316, 110), elbow=(0.6, -1, 0), hand="fist"),
    feet=((-60, -205, 170), (64, -196, 190)),
    with_=(furniture.chair(),),
)

PEOPLE = (FATHER, SON)
