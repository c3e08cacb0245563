"""A Thai man in his wheelchair clenches his fist; his mother stands behind him with a fan."""

from crowd import furniture, hair, things
from crowd.face import Face
from crowd.figure import Arm, Person, Wear
from crowd.sculpture import cloth, hard

RED, WHITE, BLUE = "#b02434", "#cfcac4", "#26306e"

MOTHER = Person(
    at=(-104, 372, -260), scale=0.9, yaw=16, look=(6, 2, 6), feet=((-50, -350, 10), (50, -350, 10)),
    face=Face("#c98f5e", mouth=4, eyes=0.2, old=True, lips="#a8443e", brows="#4a4440"),
    hair=hair.topped(hair.cropped("#4a4648", 46), hair.straw_hat("#c9a05a", "#8c2430")),
    wear=Wear(cloth("#c0662a"), cloth("#4a2f52"), hard("#33262a")),
    left=Arm((-96, 150, 150), elbow=(-1, -0.8, 0), fingers=(-0.1, 1, 0.2), hand="fist",
             holds=things.fan_of_paper("#a03038")),
    right=Arm((112, 60, 120), elbow=(1, -0.4, 0), palm=(0, -1, 0)),
)

MAN = Person(
    at=(66, 276, 20), scale=0.98, yaw=-16, look=(2, 6, 6),
    face=Face("#cf9866", mouth=22, eyes=0.85, lips="#a8483e", brows="#141114", stripes=(RED, WHITE, BLUE)),
    hair=hair.short("#141216", 50, 20),
    wear=Wear(cloth("#2468b0"), cloth("#8a7a58"), hard("#b4b0aa", 0.2), long_sleeves=False, trim=WHITE),
    left=Arm((-106, 40, 110), elbow=(-1, 0, -0.3), palm=(0, -1, 0)),
    right=Arm((128, 452, 40), elbow=(1, -0.3, 0.4), hand="fist"),
    feet=((-60, -208, 180), (60, -208, 180)),
    with_=(furniture.wheelchair(hard("#242a38")), things.scarf((RED, WHITE, BLUE, BLUE, WHITE))),
)

PEOPLE = (MOTHER, MAN)
