#!/usr/bin/env python3
"""Draws every picture of the game: writes the SVG sources, renders them with rsvg-convert and cleans the PNG edges.

Needs the Debian packages librsvg2-bin, python3-pil and python3-numpy. The same input always gives the same bytes.
Usage: make_pictures.py [NAME ...]   (all pictures without a name)
"""

import importlib
import io
import pathlib
import subprocess
import sys

import numpy
from PIL import Image

HERE = pathlib.Path(__file__).resolve().parent
RESOURCES = HERE.parent.parent / "resources"
SOURCES = RESOURCES / "pictures"

# Alpha above which a pixel's own colour is trusted: of cut-outs, whose half-covered rims are only rounding noise,
# and of marks, whose translucent parts are drawn so.
CUT_OUT, TRANSLUCENT = 0.9, 0.02

# Picture name, module that draws it, trusted alpha, output files with their widths in pixels.
PICTURES = [
    ("SpectatorBrazil1", "spectators.brazil_man", CUT_OUT, {"SpectatorBrazil1.png": 447}),
    ("SpectatorItalyBaby", "spectators.italy_baby", CUT_OUT, {"SpectatorItalyBaby.png": 487}),
    ("SpectatorPortugal", "spectators.portugal", CUT_OUT, {"SpectatorPortugal.png": 544}),
    ("SpectatorThaiMan", "spectators.thai_man", CUT_OUT, {"SpectatorThaiMan.png": 527}),
    ("SpectatorBritishOldMan", "spectators.british_old_man", CUT_OUT, {"SpectatorBritishOldMan.png": 565}),
    ("SpectatorBrazilGirl", "spectators.brazil_girl", CUT_OUT, {"SpectatorBrazilGirl.png": 447}),
    ("SpectatorGermanyWoman", "spectators.germany_woman", CUT_OUT, {"SpectatorGermanyWoman.png": 465}),
    ("Logo", "logo", TRANSLUCENT, {"Logo.png": 640}),
    ("Icon", "icon", TRANSLUCENT, {f"Icon{s}.png": s for s in (16, 32, 48, 128, 256)}),
]

BLEED = 40  # pixels to which edge colours spread into the transparent surround
STEP = 3  # colour levels that are merged, too few to be seen; a third off the file's size


def bleed(rgba, reach, trusted):
    """Gives (nearly) transparent pixels the colour of the nearest figure edge, so that filtering and mipmaps never
    mix in a foreign fringe colour. Alpha is left as it is."""
    rgb = rgba[..., :3].astype(float)
    known = (rgba[..., 3] >= trusted * 255).astype(float)
    colour = rgb * known[..., None]
    mean = colour.sum((0, 1)) / max(known.sum(), 1)
    for _ in range(reach):
        padded = numpy.pad(colour, ((1, 1), (1, 1), (0, 0)))
        weight = numpy.pad(known, 1)
        h, w = known.shape
        offsets = [(y, x) for y in range(3) for x in range(3)]
        total = sum(padded[y : y + h, x : x + w] for y, x in offsets)
        count = sum(weight[y : y + h, x : x + w] for y, x in offsets)
        new = (known == 0) & (count > 0)
        colour[new] = numpy.round(total[new] / count[new][:, None])
        known[new] = 1
    colour[known == 0] = mean
    return numpy.dstack([colour, rgba[..., 3]])


def merge_levels(rgba):
    """Rounds colours to multiples of STEP (of 16 where nothing shows), which the PNG filters compress far better."""
    rgb, alpha = rgba[..., :3], rgba[..., 3:]
    step = numpy.where(alpha == 0, 16, STEP)
    return numpy.dstack([numpy.clip(numpy.round(rgb / step) * step, 0, 255), alpha]).astype(numpy.uint8)


def render(svg, width):
    png = subprocess.run(["rsvg-convert", "--width", str(width), "--keep-aspect-ratio", str(svg)],
                         check=True, stdout=subprocess.PIPE).stdout
    return numpy.asarray(Image.open(io.BytesIO(png)).convert("RGBA"))


def main(names):
    SOURCES.mkdir(exist_ok=True)
    for name, module, trusted, outputs in PICTURES:
        if names and name not in names:
            continue
        svg = SOURCES / f"{name}.svg"
        svg.write_text(importlib.import_module(module).draw().svg(), encoding="utf-8")
        for file, width in outputs.items():
            pixels = bleed(render(svg, width), min(BLEED, width // 2), trusted)
            image = Image.fromarray(merge_levels(pixels))
            image.save(RESOURCES / file, optimize=True)
            print(f"{file}: {image.width} x {image.height}, {(RESOURCES / file).stat().st_size / 1000:.0f} KB")


if __name__ == "__main__":
    sys.path.insert(0, str(HERE))
    sys.dont_write_bytecode = True
    main(sys.argv[1:])
