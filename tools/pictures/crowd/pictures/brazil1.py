"""A young man with the flag of Brazil; his friend claps and laughs at him."""

from crowd import furniture, hair, things
from crowd.face import Face
from crowd.figure import Arm, Person, Wear
from crowd.sculpture import cloth, hard

MAN = Person(
    at=(-84, 272, 0), scale=0.98, yaw=14, look=(4, 4, 6),
    face=Face("#8a5230", mouth=20, lips="#8a4438", jaw=1.04),
    hair=hair.cropped("#17100e", 54),
    wear=Wear(cloth("#e8b80c"), cloth("#1d49a0"), hard("#c9c4bc", 0.2), long_sleeves=False, bare_shins=True,
              trim="#0f8f45"),
    left=Arm((-112, 464, 30), elbow=(-1, -0.2, 0.6), hand="fist",
             holds=things.flag(things.brazil, 210, 142, 150, lean=(-0.12, 1, 0), flow=(1, 0.06, 0.1))),
    right=Arm((74, 46, 150), elbow=(1, 0, -0.2), fingers=(-0.4, -0.2, 1), palm=(0, -1, 0)),
    with_=(furniture.chair(),),
)

WOMAN = Person(
    at=(108, 306, -360), scale=0.94, yaw=-22, look=(-14, 4, -10),
    face=Face("#b87446", mouth=18, eyes=0.2, lips="#a04a44"),
    hair=hair.curls("#2a1712", 1.12),
    wear=Wear(cloth("#127a43"), cloth("#31405e"), hard("#30343c"), trim="#e8b80c"),
    left=Arm((-22, 150, 150), elbow=(-1, -0.6, 0), fingers=(0.25, 1, 0.2), palm=(1, -0.2, 0.3), hand="open"),
    right=Arm((26, 146, 156), elbow=(1, -0.6, 0), fingers=(-0.2, 1, 0.2), palm=(-1, 0, 0.2), hand="open"),
    with_=(furniture.chair(),),
)

PEOPLE = (WOMAN, MAN)
