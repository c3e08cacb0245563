"""A body: trunk, legs and arms, posed by where its hands and feet are.

In a body's frame the origin is the seat, y up, z forwards; an adult's skull is 100 units from its middle to its top.
Left and right are the picture's, seen from the front.
"""

from dataclasses import dataclass, field
from typing import Callable

import numpy

from crowd.face import Face, head
from crowd.frame import Frame, bend, turn
from crowd.hands import KINDS, hand_frame
from crowd.sculpture import Clay, cloth, hard, skin

SHOULDERS, NECK, SKULL = 232, 262, 366
UPPER_ARM, FOREARM, THIGH, SHIN = 138, 130, 178, 172


@dataclass(frozen=True)
class Arm:
    to: tuple  # the wrist's place in the body's frame
    elbow: tuple = (0, -1, -0.2)  # where the elbow points
    fingers: tuple = None  # their direction; along the forearm without
    palm: tuple = (0, 0, 1)
    hand: str = "rest"
    holds: Callable = None  # draws what is in the hand, given the block and the hand's frame


@dataclass(frozen=True)
class Wear:
    top: Clay
    legs: Clay
    shoes: Clay
    long_sleeves: bool = True
    bare_shins: bool = False
    trim: str = ""  # of collar and cuffs
    print: Callable = None  # the top's pattern: colours of points at t from waist to neck
    skirt: bool = False


@dataclass(frozen=True)
class Person:
    at: tuple
    face: Face
    hair: Callable
    wear: Wear
    left: Arm
    right: Arm
    scale: float = 1.0
    yaw: float = 0
    lean: float = 0
    roll: float = 0
    look: tuple = (0, 0, 0)  # the head's yaw, pitch and roll against the body
    feet: tuple = ((-62, -205, 150), (62, -205, 150))
    stout: float = 1.0
    head_size: float = 1.22
    with_: tuple = field(default=())  # more that is drawn in the body's frame


def draw_person(block, person):
    frame = Frame(person.at, turn(person.yaw, person.lean, person.roll), person.scale)
    _legs(block, frame, person)
    _trunk(block, frame, person)
    for side, arm in ((-1, person.left), (1, person.right)):
        _arm(block, frame, person, side, arm)
    _neck_and_head(block, frame, person)
    for more in person.with_:
        more(block, frame)


def _trunk(block, frame, person):
    w = person.stout
    wear = person.wear
    frame.ellipsoid(block, (0, -18, 14), (99 * w, 58, 84 * w), wear.legs)
    frame.trunk(block, [(0, 20, 2), (0, 50, 4 * w), (0, 130, 6), (0, 200, 0), (0, 236, -4), (0, 260, -4)],
                [(101 * w, 76 * w), (92 * w, 68 * w), (102 * w**0.6, 64), (112 * w**0.4, 54), (86, 42), (42, 34)],
                wear.top, paint=wear.print)
    if wear.trim:
        frame.trunk(block, [(0, 254, -2), (0, 268, 0)], [(46, 40), (42, 38)], wear.top.tinted(wear.trim))


def _neck_and_head(block, frame, person):
    clay = skin(person.face.tone)
    frame.limb(block, [(0, NECK - 20, -4), (0, NECK + 40, 0)], [38, 36], clay)
    at = (0, SKULL - 100 * (1 - person.head_size), 6)
    head_frame = frame.moved(at, turn(*person.look), person.head_size)
    head(block, head_frame, person.face)
    person.hair(block, head_frame)


def _arm(block, frame, person, side, arm):
    wear, clay = person.wear, skin(person.face.tone)
    shoulder = numpy.array([side * 100 * person.stout**0.4, SHOULDERS - 20, -2])
    elbow, wrist = bend(shoulder, arm.to, UPPER_ARM, FOREARM, arm.elbow)
    cuff = wrist + 0.1 * (elbow - wrist)
    if wear.long_sleeves:
        frame.limb(block, [shoulder, elbow, cuff], [38, 31, 25], wear.top)
    else:
        half = shoulder + 0.62 * (elbow - shoulder)
        frame.limb(block, [shoulder, half], [38, 36], wear.top)
        frame.limb(block, [shoulder, elbow, wrist], [33, 27, 19], clay)
        cuff = half
    if wear.trim:
        start = cuff + 0.1 * (elbow - cuff if not wear.long_sleeves else wrist - elbow)
        frame.limb(block, [cuff, start], [37, 37] if not wear.long_sleeves else [27, 26], wear.top.tinted(wear.trim))
    frame.limb(block, [cuff if wear.long_sleeves else elbow, wrist], [21, 18], clay)
    forward = numpy.asarray(wrist - elbow if arm.fingers is None else arm.fingers, float)
    place = hand_frame(frame.point(*wrist), frame.axes @ forward, frame.axes @ numpy.asarray(arm.palm, float),
                       frame.scale)
    across = place.axes[:, 0] @ frame.axes  # the thumb grows on the side that is up, or towards the body
    thumb = 1 if across @ numpy.array([-side * 0.7, 1.0, 0.2]) > 0 else -1
    KINDS[arm.hand](block, place, clay, thumb)
    if arm.holds:
        arm.holds(block, place)


def _legs(block, frame, person):
    wear, clay = person.wear, skin(person.face.tone)
    for side, foot in zip((-1, 1), person.feet):
        hip = numpy.array([side * 50 * person.stout, -8, 10])
        knee, ankle = bend(hip, foot, THIGH, SHIN, (side * 0.35, 0.7, 1.0))
        w = person.stout**0.5
        frame.limb(block, [hip, knee], [66 * w, 50 * w], wear.legs)
        hem = knee + 0.25 * (ankle - knee) if wear.bare_shins else ankle
        frame.limb(block, [knee, 0.5 * (knee + hem), hem], [50 * w, 46 * w, 38 if wear.bare_shins else 34], wear.legs)
        if wear.bare_shins:
            frame.limb(block, [knee, 0.6 * knee + 0.4 * ankle, ankle], [38, 36, 22], clay)
        _shoe(block, frame, ankle, side, wear.shoes)
    if wear.skirt:
        frame.trunk(block, [(0, 20, 4), (0, -40, 8), (0, -130, 14)], [(96, 72), (124, 88), (164, 108)], wear.legs)


def _shoe(block, frame, ankle, side, clay):
    toes = frame.moved(ankle, turn(side * 16))
    toes.limb(block, [(0, -4, -6), (0, -18, 2)], [27, 27], clay)
    toes.ellipsoid(block, (0, -26, 26), (29, 21, 56), clay)
    toes.ellipsoid(block, (0, -42, 26), (32, 9, 60), hard("#8c8880", 0.1))

