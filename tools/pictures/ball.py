"""A boccia ball: leather panels, sewn along three great circles, lit from above left.

Only gradients and strokes: some desktops draw an icon's SVG without filters and clipping.
"""

import math

from vector import dark, ellipse, light, mix


def _seam(cx, cy, r, axis, angles, steps=48):
    """The visible half of a great circle about an axis (0..2), turned by the ball's three angles in degrees."""
    ca, sa, cb, sb, cc, sc = (f(math.radians(v)) for v in angles for f in (math.cos, math.sin))
    front = []
    for k in range(steps):
        t = 2 * math.pi * k / steps
        p = [math.cos(t), math.sin(t), 0]
        x, y, z = p[axis:] + p[:axis]
        x, y = ca * x - sa * y, sa * x + ca * y
        y, z = cb * y - sb * z, sb * y + cb * z
        x, z = cc * x - sc * z, sc * x + cc * z
        front.append((cx + r * x, cy - r * y) if z > 0.02 else None)
    start = next((k for k in range(steps) if front[k] is None), 0)
    return [p for p in front[start:] + front[:start] if p]


def ball(d, cx, cy, r, colour, angles, bounce="#3fd07f", seam=0.06):
    """bounce: the light that the floor throws back up; seam: its width, in radii."""
    body = ellipse(cx, cy, r, r)
    deep = dark(colour, 0.6)
    d.path(body, d.radial((cx - r * 0.3, cy - r * 0.42), r * 1.5, (0, light(colour, 0.4)), (0.3, colour),
                          (0.68, mix(colour, deep, 0.5)), (1, deep)))
    for axis in range(3):
        arc = _seam(cx, cy, r * 0.985, axis, angles)
        d.stroke([(x - r * 0.025, y + r * 0.03) for x, y in arc], light(colour, 0.5), r * seam * 0.5, 0.5)
        d.stroke(arc, deep, r * seam, 0.75)
    d.path(body, d.radial((cx - r * 0.05, cy - r * 0.3), r * 1.32, (0.8, bounce, 0), (1, bounce, 0.55)))
    shine = (cx - r * 0.34, cy - r * 0.5)
    d.path(ellipse(*shine, r * 0.42, r * 0.36), d.radial(shine, r * 0.42, (0, "#ffffff", 0.85), (0.35, "#ffffff", 0.4),
                                                         (1, "#ffffff", 0)))


def contact_shadow(d, cx, cy, rx, ry, opacity=0.75):
    with d.group(f"translate({cx} {cy}) scale(1 {ry / rx:.3f})"):
        d.path(ellipse(0, 0, rx, rx), d.radial((0, 0), rx, (0.35, "#04210f", opacity), (1, "#04210f", 0)))
