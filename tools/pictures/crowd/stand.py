"""One cut-out of the stand: its people, drawn and lit."""

import importlib

import numpy

from crowd.figure import draw_person
from crowd.light import lit, shrunk
from crowd.sculpture import Sculpture, fitted

FINER = 2  # times as many lines are drawn as kept


def cut_out(module, aspect, lines):
    people = importlib.import_module(module).PEOPLE

    def draw(block):
        for person in people:
            draw_person(block, person)

    block = Sculpture(fitted(draw, aspect), lines * FINER)
    draw(block)
    return shrunk(lit(block), FINER)
