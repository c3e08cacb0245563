#!/usr/bin/env python3
"""Makes every picture of the game: the spectators, sculpted and lit; the marks, drawn as SVG and rendered by
rsvg-convert. Cleans the edges of the PNG files.

Needs the Debian packages librsvg2-bin, python3-pil and python3-numpy. The same input always gives the same bytes.
Usage: make_pictures.py [NAME ...]   (all pictures without a name)
"""

import io
import pathlib
import subprocess
import sys

import numpy
from PIL import Image

sys.dont_write_bytecode = True

import icon  # noqa: E402
import logo  # noqa: E402
from crowd.stand import cut_out  # noqa: E402

HERE = pathlib.Path(__file__).resolve().parent
RESOURCES = HERE.parent.parent / "resources"
SOURCES = RESOURCES / "pictures"

# Alpha above which a pixel's own colour is trusted: of cut-outs, whose half-covered rims are only rounding noise,
# and of marks, whose translucent parts are drawn so.
CUT_OUT, TRANSLUCENT = 0.9, 0.02

LINES = 512  # of a spectator: twice what the game keeps

# Picture name, module with its people, width divided by height as the stands expect it.
SPECTATORS = [
    ("SpectatorBrazil1", "crowd.pictures.brazil1", 447 / 796),
    ("SpectatorItalyBaby", "crowd.pictures.italy_baby", 487 / 870),
    ("SpectatorPortugal", "crowd.pictures.portugal", 544 / 905),
    ("SpectatorThaiMan", "crowd.pictures.thai_man", 527 / 900),
    ("SpectatorBritishOldMan", "crowd.pictures.british_old_man", 565 / 907),
    ("SpectatorBrazilGirl", "crowd.pictures.brazil_girl", 149 / 284),
    ("SpectatorGermanyWoman", "crowd.pictures.germany_woman", 155 / 287),
]

# Picture name, what draws it, output files with their widths in pixels.
MARKS = [
    ("Logo", logo.draw, {"Logo.png": 640}),
    ("Icon", icon.draw, {f"Icon{s}.png": s for s in (32, 48, 64, 96, 128, 256, 512)}),
    ("Icon16", icon.draw16, {"Icon16.png": 16}),
    ("Icon22", icon.draw22, {"Icon22.png": 22, "Icon24.png": 24}),
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


def save(pixels, trusted, file):
    pixels = bleed(pixels, min(BLEED, pixels.shape[1] // 2), trusted)
    image = Image.fromarray(merge_levels(pixels))
    image.save(RESOURCES / file, optimize=True)
    print(f"{file}: {image.width} x {image.height}, {(RESOURCES / file).stat().st_size / 1000:.0f} KB", flush=True)


def main(names):
    for name, module, aspect in SPECTATORS:
        if not names or name in names:
            save(cut_out(module, aspect, LINES), CUT_OUT, f"{name}.png")
    SOURCES.mkdir(exist_ok=True)
    for name, draw, outputs in MARKS:
        if not names or name in names:
            svg = SOURCES / f"{name}.svg"
            svg.write_text(draw().svg(), encoding="utf-8")
            for file, width in outputs.items():
                save(render(svg, width), TRANSLUCENT, file)


if __name__ == "__main__":
    main(sys.argv[1:])
