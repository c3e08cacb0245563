"""A girl from Brazil waves from the edge of the row; her mother films the court."""

from crowd import furniture, hair, things
from crowd.face import Face
from crowd.figure import Arm, Person, Wear
from crowd.sculpture import cloth, hard

YELLOW, GREEN = "#e8b80c", "#128a48"

MOTHER = Person(
    at=(64, 344, -330), scale=0.96, yaw=-6, look=(-8, 0, -6),
    face=Face("#7c4a2c", mouth=14, lips="#84403a", brows="#150d0a"),
    hair=hair.headwrap(GREEN, "#d8a020"),
    wear=Wear(cloth("#2a5cb0"), cloth("#3a3a48"), hard("#2a2a30"), trim="#d8a020"),
    left=Arm((-80, 60, 140), elbow=(-1, -0.4, 0), palm=(0, -1, 0)),
    right=Arm((126, 440, 60), elbow=(1, -0.6, 0.3), fingers=(-0.1, 1, 0.1), palm=(0, 0, 1), hand="fist",
              holds=things.telephone),
    with_=(furniture.chair(),),
)

GIRL = Person(
    at=(-62, 336, 60), scale=0.84, yaw=12, look=(2, 6, 8), head_size=1.34, feet=((-46, -342, 6), (52, -340, 30)),
    face=Face("#8a5432", mouth=22, lips="#a84440", brows="#20120c", stripes=(GREEN, YELLOW)),
    hair=hair.puffs("#20130e", GREEN),
    wear=Wear(cloth(YELLOW), cloth(GREEN), hard("#c9c4bc", 0.2), long_sleeves=False, bare_shins=True,
              trim=GREEN, skirt=True),
    left=Arm((-176, 424, 40), elbow=(-1, -0.6, 0.4), hand="open"),
    right=Arm((108, 70, 130), elbow=(1, -0.2, -0.2), hand="fist",
              holds=things.flag(things.brazil, 124, 86, 130, lean=(0.35, 1, 0.3), flow=(1, -0.05, 0.2))),
)

PEOPLE = (MOTHER, GIRL)
