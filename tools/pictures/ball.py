"""A boccia ball: leather panels, sewn along three great circles, lit from above left."""

import math

from vector import dark, ellipse, light, mix, smooth


def _seam(cx, cy, r, turn, lift=0.0, steps=48):
    """The visible arc of a circle on the sphere: turn is its axis (0..2) and the ball's angles."""
    axis, a, b, c = turn
    ca, sa, cb, sb, cc, sc = (f(math.radians(v)) for v in (a, b, c) for f in (math.cos, math.sin))
    radius = math.sqrt(1 - lift * lift)
    front = []
    for k in range(steps):
        t = 2 * math.pi * k / steps
        p = [radius * math.cos(t), radius * math.sin(t), lift]
        x, y, z = p[axis:] + p[:axis]
        x, y = ca * x - sa * y, sa * x + ca * y
        y, z = cb * y - sb * z, sb * y + cb * z
        x, z = cc * x - sc * z, sc * x + cc * z
        front.append((cx + r * x, cy - r * y) if z > 0.02 else None)
    start = next((k for k in range(steps) if front[k] is None), 0)
    return [p for p in front[start:] + front[:start] if p]


def ball(d, cx, cy, r, colour, angles, bounce="#3fd07f"):
    """angles: the ball's three Euler angles in degrees; bounce: the light that the floor throws back up."""
    body = ellipse(cx, cy, r, r)
    deep = dark(colour, 0.62)
    d.path(body, d.radial((cx - r * 0.32, cy - r * 0.42), r * 1.5, (0, light(colour, 0.42)), (0.3, colour),
                          (0.68, mix(colour, deep, 0.55)), (1, deep)))
    with d.group(clip=body):
        for axis in range(3):
            arc = _seam(cx, cy, r, (axis, *angles))
            d.stroke(arc, deep, r * 0.045, 0.75)
            d.stroke([(x - r * 0.022, y + r * 0.03) for x, y in arc], light(colour, 0.5), r * 0.02, 0.6)
            for lift in (-0.085, 0.085):
                arc = _seam(cx, cy, r, (axis, *angles), lift)
                dash = f"{r * 0.05:.1f} {r * 0.05:.1f}"
                d.path(smooth(arc, closed=False), stroke=light(colour, 0.6), stroke_width=round(r * 0.018, 2),
                       opacity=0.75,
                       stroke_dasharray=dash)
        d.path(smooth([(cx - r, cy + r * 0.45), (cx - r * 0.45, cy + r * 0.86), (cx + r * 0.3, cy + r * 0.9),
                       (cx + r * 0.95, cy + r * 0.4),
                       (cx + r * 1.1, cy + r * 1.1), (cx, cy + r * 1.3), (cx - r * 1.1, cy + r * 1.1)]), bounce,
                       opacity=0.42, blur=r * 0.1)
        d.path(ellipse(cx - r * 0.3, cy - r * 0.5, r * 0.42, r * 0.26), "#ffffff", opacity=0.5, blur=r * 0.12)
        d.path(ellipse(cx - r * 0.36, cy - r * 0.56, r * 0.15, r * 0.085), "#ffffff", opacity=0.9, blur=r * 0.03)
        d.path(ellipse(cx + r * 0.05, cy + r * 0.08, r * 1.06, r * 1.08), stroke="#ffe9c8",
               stroke_width=round(r * 0.1, 1), opacity=0.55, blur=r * 0.04)


def contact_shadow(d, floor, cx, cy, r):
    with d.group(clip=floor):
        d.path(ellipse(cx + r * 0.3, cy + r * 0.95, r * 1.0, r * 0.26), "#04210f", opacity=0.75, blur=r * 0.09)
