"""An Italian family: the mother has the baby on her lap, the father stands behind with the flag."""

from crowd import furniture, hair, things
from crowd.face import Face
from crowd.figure import Arm, Person, Wear
from crowd.sculpture import cloth, hard, linear

import numpy

TRICOLORE = things.bands(("#0f8f45", "#dcd8d0", "#c9202c"), upright=True)


def _breton(local, t):
    """Stripes around the body."""
    return numpy.repeat(linear("#1f3f78" if int(t * 17) % 2 else "#cfcac2")[None], local.shape[1], 0)


FATHER = Person(
    at=(122, 376, -230), scale=0.9, yaw=-14, look=(-8, -6, -6), feet=((-56, -350, 10), (56, -350, 10)),
    face=Face("#d39a70", mouth=22, beard="#2b1b14", brows="#2b1b14"),
    hair=hair.short("#2b1b14", 50, 12),
    wear=Wear(cloth("#1f6fc0"), cloth("#3c3a44"), hard("#22222a"), long_sleeves=False, trim="#d4d0c8"),
    left=Arm((-96, 120, 110), elbow=(-1, -0.4, 0), palm=(0, -1, 0.3)),
    right=Arm((124, 462, 20), elbow=(1, -0.3, 0.5), hand="open"),
)

MOTHER = Person(
    at=(-72, 282, 0), scale=1.0, yaw=6, look=(10, -4, -2),
    face=Face("#e0a880", mouth=16, lips="#b0383c", brows="#3a2014", gaze=(3, -3)),
    hair=hair.long("#3a1f14", 130),
    wear=Wear(cloth("#cfcac2"), cloth("#2c5a4c"), hard("#8c2430", 0.3), print=_breton),
    left=Arm((18, 60, 230), elbow=(-1, -0.5, 0), fingers=(1, 0.2, 0.2), palm=(0, 0.2, -1)),
    right=Arm((132, 110, 150), elbow=(1, -0.6, 0.3), fingers=(-0.6, 0.5, 0.6), palm=(-1, 0, 0)),
    with_=(furniture.chair(),),
)

BABY = Person(
    at=(44, 300, 170), scale=0.54, yaw=-6, look=(-6, 6, 8), head_size=1.6,
    face=Face("#ecb892", mouth=15, lips="#c0504c", baby=True, iris="#3a2a20"),
    hair=hair.tuft("#5a3420"),
    wear=Wear(cloth("#2f86d8"), cloth("#2f86d8"), cloth("#d4d0c8"), trim="#d4d0c8"),
    left=Arm((-170, 320, 60), elbow=(-1, -0.5, 0), hand="fist",
             holds=things.flag(TRICOLORE, 150, 104, 150, lean=(-0.3, 1, 0.2), flow=(-1, 0.15, 0.2))),
    right=Arm((120, 130, 130), elbow=(1, -0.5, 0), hand="open"),
    feet=((-70, -120, 190), (70, -120, 190)),
)

PEOPLE = (FATHER, MOTHER, BABY)
