"""A German woman in her wheelchair waves; her friend stands behind her with the flag."""

from crowd import furniture, hair, things
from crowd.face import Face
from crowd.figure import Arm, Person, Wear
from crowd.sculpture import cloth, hard, linear

import numpy

BLACK, RED, GOLD, GREY = "#1d1c20", "#b81f28", "#dfa51c", "#c6c2bc"


def _jersey(local, t):
    """Light cloth with the three colours across the chest."""
    band = BLACK if 0.52 < t < 0.6 else RED if 0.44 < t < 0.52 else GOLD if 0.36 < t < 0.44 else GREY
    return numpy.repeat(linear(band)[None], local.shape[1], 0)


FRIEND = Person(
    at=(84, 384, -230), scale=0.89, yaw=-6, look=(-4, -2, -4), feet=((-56, -350, 10), (56, -350, 10)),
    face=Face("#e2ac8c", mouth=24, beard="#8a4a20", brows="#7a401c", iris="#48708a"),
    hair=hair.topped(hair.cropped("#8a4a20"), hair.beanie((BLACK, RED, GOLD), GOLD)),
    wear=Wear(cloth("#35383f"), cloth("#3a4660"), hard("#22222a")),
    left=Arm((-112, 430, 60), elbow=(-1, -0.5, 0), hand="fist",
              holds=things.flag(things.bands((BLACK, RED, GOLD)), 190, 126, 150, lean=(0.06, 1, 0),
                               flow=(-1, 0.1, 0.1))),
    right=Arm((92, 40, 130), elbow=(0.6, -0.3, -0.6), palm=(0, -1, 0.3)),
)

WOMAN = Person(
    at=(-56, 274, 20), scale=0.96, yaw=16, look=(-8, 2, -6),
    face=Face("#ecba9a", mouth=24, iris="#3f6f9a", lips="#c0404a", brows="#8a6030", glasses="#3a2a34",
              stripes=(BLACK, RED, GOLD)),
    hair=hair.long("#c8963c", 110),
    wear=Wear(cloth(GREY), cloth("#2f4a7c"), hard("#8c2430", 0.3), print=_jersey),
    left=Arm((-148, 286, 110), elbow=(-0.8, -1, 0), hand="open"),
    right=Arm((78, 40, 140), elbow=(1, -0.3, -0.2), palm=(0, -1, 0)),
    feet=((-60, -208, 180), (60, -208, 180)),
    with_=(furniture.wheelchair(hard("#5a1c24")),),
)

PEOPLE = (FRIEND, WOMAN)
