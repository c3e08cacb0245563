"""The hall's light on a sculpture: lamps high above, little from the sides, darkness at the feet."""

import numpy
from PIL import Image

from crowd.sculpture import FAR

LAMPS = numpy.array([0.22, 0.78, 0.62])  # towards them
LAMPS /= numpy.linalg.norm(LAMPS)
WARM, COOL = numpy.array([1.0, 0.93, 0.82]), numpy.array([0.62, 0.72, 1.0])
FLESH_SHADE = numpy.array([1.0, 0.52, 0.40])  # blood under the skin keeps its shade warm
BRIGHTEST = 198  # of 255: no spectator outshines the balls
FEET = 0.04  # of the lamps' light arrives at the floor, all of it at the heads


def mean_around(field, radius):
    """The mean over a square, by running sums."""
    for axis in (0, 1):
        size = field.shape[axis]
        total = numpy.cumsum(field, axis=axis, dtype=numpy.float64)
        total = numpy.concatenate([numpy.zeros_like(numpy.take(total, [0], axis)), total], axis)
        low = numpy.clip(numpy.arange(size) - radius, 0, size)
        high = numpy.clip(numpy.arange(size) + radius + 1, 0, size)
        field = numpy.take(total, high, axis) - numpy.take(total, low, axis)
        count = numpy.expand_dims(high - low, tuple(k for k in range(field.ndim) if k != axis))
        field = field / count
    return field


def openness(depth, solid, scale):
    """How much of the hall each point sees: less where its surroundings stand nearer to the viewer."""
    open_ = numpy.ones(depth.shape)
    for reach in (9, 26, 70):
        radius = max(1, round(reach * scale))
        share = mean_around(solid.astype(float), radius)
        around = mean_around(numpy.where(solid, depth, 0), radius) / numpy.maximum(share, 1e-6)
        hidden = numpy.clip((around - depth) / (1.1 * reach * scale), 0, 1) * share
        open_ *= 1 - 0.62 * hidden
    return open_


def reached_by_lamps(depth, scale):
    """Soft shadows of what stands above and in front."""
    lit = numpy.ones(depth.shape)
    rise = LAMPS[2] / LAMPS[1]
    side = LAMPS[0] / LAMPS[1]
    for up in numpy.unique(numpy.geomspace(4, 190, 26).round()):
        lines, columns = max(1, round(up * scale)), round(up * side * scale)
        above = numpy.full(depth.shape, FAR, depth.dtype)
        above[lines:, : depth.shape[1] - columns] = depth[: depth.shape[0] - lines, columns:]
        over = (above - depth) / scale - up * rise
        # Far too near to the viewer: the light passes behind it.
        blocked = numpy.clip(over / (0.10 * up + 4), 0, 1) * numpy.clip(1 - (over - 150) / 60, 0, 1)
        lit = numpy.minimum(lit, 1 - blocked * (1 - 0.45 * up / 190))
    return mean_around(lit, max(1, round(3 * scale)))


def smoothed(normal, crease, scale):
    """Cloth has no steps where the pieces of a sleeve meet."""
    return numpy.where(crease > 0, mean_around(normal, max(1, round(4 * scale))), normal)


def creased(normal, crease, scale, seed=7):
    """Folds of cloth: the normals follow a smooth relief."""
    random = numpy.random.default_rng(seed)
    h, w = crease.shape
    relief = numpy.zeros(crease.shape)
    for size, height in ((100, 11.0), (46, 5.0)):
        cells = (max(3, round(h / (size * 0.7 * scale))), max(3, round(w / (size * 1.2 * scale))))
        coarse = Image.fromarray(random.standard_normal(cells).astype(numpy.float32))
        relief += height * numpy.asarray(coarse.resize((w, h), Image.BICUBIC))
    down, across = numpy.gradient(relief * scale)
    bent = normal.copy()
    bent[..., 0] -= across * crease
    bent[..., 1] += down * crease
    return bent / numpy.maximum(numpy.linalg.norm(bent, axis=2, keepdims=True), 1e-6)


def encoded(light):
    return 255 * numpy.where(light <= 0.0031308, 12.92 * light, 1.055 * numpy.maximum(light, 1e-9) ** (1 / 2.4) - 0.055)


def lit(sculpture):
    """The sculpture's picture, 8 bits of red, green, blue and alpha."""
    depth, scale = sculpture.depth, sculpture.scale
    solid = depth > FAR / 2
    gloss, crease, flesh = (sculpture.stuff[..., k, None] for k in range(3))
    normal = creased(smoothed(sculpture.normal, crease, scale), crease[..., 0], scale)
    height = 1 - (numpy.arange(depth.shape[0])[:, None, None] + 0.5) / depth.shape[0]
    arriving = FEET + (1 - FEET) * numpy.clip(height / 0.74, 0, 1) ** 1.5
    open_ = openness(depth, solid, scale)[..., None]
    shadow = reached_by_lamps(depth, scale)[..., None]

    towards = (normal @ LAMPS)[..., None]
    direct = numpy.clip((towards + 0.25) / 1.25, 0, 1) ** 1.2 * shadow
    sky = 0.5 + 0.5 * normal[..., 1:2]
    shade = COOL * (1 - flesh) + FLESH_SHADE * flesh
    light = WARM * direct * 1.6 * (0.6 + 0.4 * open_) + shade * (0.09 + 0.28 * sky) * open_
    halfway = LAMPS + numpy.array([0, 0, 1])
    shine = numpy.clip(normal @ (halfway / numpy.linalg.norm(halfway)), 0, 1)[..., None] ** 28 * shadow
    edge = numpy.clip(1 - normal[..., 2:3], 0, 1) ** 2 * numpy.clip(normal[..., 1:2], 0, 1) * shadow
    picture = arriving * (sculpture.colour * (light + 0.55 * edge * WARM) + WARM * gloss * (0.5 * shine + 0.3 * edge))
    picture = encoded(picture)
    knee = 150
    picture = numpy.where(picture > knee, knee + (BRIGHTEST - knee) * numpy.tanh((picture - knee) / (BRIGHTEST - knee)),
                          picture)
    return numpy.dstack([picture, 255.0 * solid])


def shrunk(rgba, factor):
    """Each square of pixels as one: their light, weighted by what they cover, and their cover."""
    h, w = (n // factor for n in rgba.shape[:2])
    cells = rgba[: h * factor, : w * factor].reshape(h, factor, w, factor, 4)
    cover = cells[..., 3:] / 255
    colour = (cells[..., :3] * cover).sum((1, 3)) / numpy.maximum(cover.sum((1, 3)), 1e-6)
    return numpy.dstack([colour, 255 * cover.mean((1, 3))])
