"""Small flags, scarves and other things in spectators' hands."""

import math

from vector import ellipse, polygon, smooth


def waving_strip(corner, across, down, wave, steps=8):
    """The outline of a cloth from `corner` along its edge vectors `across` and `down`, rippled along `across`."""
    top = []
    for k in range(steps + 1):
        t = k / steps
        ripple = wave * math.sin(2 * math.pi * t) * min(1, 2.5 * t)
        top.append((corner[0] + across[0] * t, corner[1] + across[1] * t + ripple))
    bottom = [(x + down[0], y + down[1]) for x, y in top[::-1]]
    return smooth([top[0]] + top + [top[-1], bottom[0]] + bottom + [bottom[-1]])


def cloth_light(d, corner, across, down, waves=1):
    """Light and shade of a cloth's ripples, drawn over its pattern."""
    stops = []
    for k in range(4 * waves + 1):
        stops.append((round(k / (4 * waves), 3), "#fff6e0" if k % 4 == 1 else "#2a1440", (0.0, 0.28, 0.0, 0.34)[k % 4]))
    end = (corner[0] + across[0], corner[1] + across[1])
    outline = [corner, end, (end[0] + down[0], end[1] + down[1]), (corner[0] + down[0], corner[1] + down[1])]
    grown = [(x, y + (-20 if i < 2 else 20)) for i, (x, y) in enumerate(outline)]
    d.path(polygon(grown), d.linear(corner, end, *stops))


def stick(d, start, end, width=5):
    d.stroke([start, end], "#8a5a33", width)
    d.stroke([(start[0] - 1, start[1]), (end[0] - 1, end[1])], "#e0b483", width * 0.35, 0.8)
    d.path(ellipse(end[0], end[1], width * 0.8, width * 0.8), "#f0c872")


def brazil_flag(d, corner, across, down, wave):
    outline = waving_strip(corner, across, down, wave)
    cx, cy = corner[0] + across[0] / 2 + down[0] / 2, corner[1] + across[1] / 2 + down[1] / 2
    w, h = math.hypot(*across), math.hypot(*down)
    with d.group(form=3, depth=0.6):
        d.path(outline, "#12994a")
        with d.group(clip=outline):
            d.path(polygon([(cx - w * 0.42, cy), (cx, cy - h * 0.4), (cx + w * 0.42, cy), (cx, cy + h * 0.4)]),
                   "#ffd91a")
            d.path(ellipse(cx, cy, h * 0.22, h * 0.22), "#20489c")
            d.stroke([(cx - h * 0.2, cy - h * 0.05), (cx, cy - h * 0.04), (cx + h * 0.2, cy + h * 0.06)], "#ffffff",
                     h * 0.05)
            cloth_light(d, corner, across, down)


def striped_flag(d, corner, across, down, wave, colours, upright):
    """A flag of equal stripes, upright (along `across`) or lying."""
    outline = waving_strip(corner, across, down, wave)
    n = len(colours)
    with d.group(form=3, depth=0.6):
        d.path(outline, colours[0])
        with d.group(clip=outline):
            for k, colour in enumerate(colours):
                if k == 0:
                    continue
                t = k / n
                if upright:
                    a = (corner[0] + across[0] * t, corner[1] + across[1] * t)
                    d.path(polygon([(a[0], a[1] - 40), (a[0] + across[0], a[1] + across[1] - 40),
                                    (a[0] + across[0] + down[0], a[1] + across[1] + down[1] + 40),
                                    (a[0] + down[0], a[1] + down[1] + 40)]), colour)
                else:
                    rest = (down[0] * (1 - t), down[1] * (1 - t))
                    d.path(waving_strip((corner[0] + down[0] * t, corner[1] + down[1] * t), across, rest, wave), colour)
            cloth_light(d, corner, across, down)
