"""An old British couple: he warms himself with tea under a rug, she waves a small flag."""

import numpy

from crowd import furniture, hair, things
from crowd.face import Face
from crowd.figure import Arm, Person, Wear
from crowd.sculpture import cloth, hard, linear

TWEED, RED, NAVY, WOOL = "#7a6848", "#a82834", "#23315e", "#cfc9be"


def _tweed(local, t):
    """The weave of a jacket, open over a red waistcoat."""
    x = local[0]
    weave = 1 + 0.05 * numpy.sign(numpy.sin(x / 2.5)) + 0.05 * numpy.sign(numpy.sin(t * 120))
    jacket = linear(TWEED) * weave[:, None]
    inner = numpy.where((numpy.abs(x) < 7)[:, None], linear(NAVY), linear(WOOL)) if t > 0.72 else linear("#7c2630")
    return numpy.where(((numpy.abs(x) < 16 + 30 * t) & (local[2] > 0))[:, None], inner, jacket)


MAN = Person(
    at=(-90, 274, 10), scale=1.0, yaw=10, look=(2, 0, 5), stout=1.08,
    face=Face("#dba488", mouth=12, eyes=0.8, iris="#4a7890", moustache="#c9c6c2", brows="#c0bcb8", old=True,
              lips="#b0605a"),
    hair=hair.topped(hair.bald("#c4c0bc"), hair.flat_cap("#8a7650")),
    wear=Wear(cloth(TWEED), cloth("#46505c"), hard("#4a2a1a", 0.4), print=_tweed),
    left=Arm((-92, 128, 150), elbow=(-1, -0.5, 0), fingers=(0.5, 0.25, 1), palm=(1, 0, 0.1), hand="fist",
             holds=things.mug("#cfcac4", "#23315e")),
    right=Arm((84, 66, 140), elbow=(1, -0.4, 0), palm=(0, -1, 0)),
    with_=(furniture.chair(hard("#5a2430", 0.25)), furniture.blanket(("#7c2630", "#2a4a3c", "#b89a4a"))),
)

WOMAN = Person(
    at=(108, 300, -340), scale=0.94, yaw=-16, look=(-16, 2, -6),
    face=Face("#e6b49a", mouth=14, iris="#4a6a50", glasses="#5a2a4a", old=True, brows="#a8a09c", lips="#b84454"),
    hair=hair.curls("#989294", 1.0, 12, -20),
    wear=Wear(cloth("#7d5a98"), cloth("#3a3450"), hard("#2a2026"), trim="#cfc4d8"),
    left=Arm((-70, 50, 150), elbow=(-1, -0.4, 0), palm=(0, -1, 0)),
    right=Arm((122, 458, 30), elbow=(1, -0.6, 0.5), hand="fist",
              holds=things.flag(things.britain, 172, 104, 140, lean=(0.1, 1, 0.1), flow=(-1, 0.06, 0.1))),
    with_=(furniture.chair(hard("#5a2430", 0.25)), things.scarf((RED, WOOL, NAVY))),
)

PEOPLE = (WOMAN, MAN)
