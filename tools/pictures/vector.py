"""A small layered-drawing kit: smooth outlines, soft light and shade, readable SVG.

Every shape is drawn flat; its volume comes from a filter that multiplies a plum shade onto the side that
turns away from the hall's lamps and screens a warm rim onto the side that faces them, so all pictures share one light.
"""

import math
from contextlib import contextmanager

SHADE = "#6a4478"  # cloth and things, in multiply
FLESH_SHADE = "#a04a50"  # blood under the skin keeps its shade warm
RIM = "#ffdfb0"
WHOLE = 'filterUnits="userSpaceOnUse" x="-1500" y="-1500" width="3000" height="3000"'  # never cuts a filter off


def mix(a, b, t):
    """The colour t of the way from a to b, both '#rrggbb'."""
    ca, cb = (tuple(int(c[i : i + 2], 16) for i in (1, 3, 5)) for c in (a, b))
    return "#%02x%02x%02x" % tuple(round(x + (y - x) * t) for x, y in zip(ca, cb))


def dark(colour, t=0.3):
    return mix(colour, "#2a1438", t)


def light(colour, t=0.3):
    return mix(colour, "#fff4e2", t)


def num(x):
    return f"{x:.1f}".rstrip("0").rstrip(".") if "." in f"{x:.1f}" else f"{x:.1f}"


def pt(p):
    return f"{num(p[0])},{num(p[1])}"


def polar(origin, degrees, length):
    """The point at a compass bearing (0 up, 90 right) from origin."""
    a = math.radians(degrees)
    return (origin[0] + length * math.sin(a), origin[1] - length * math.cos(a))


def smooth(points, closed=True, tension=6.0):
    """A Catmull-Rom path through points; a point given twice makes a corner."""
    n = len(points)

    def at(i):
        return points[i % n] if closed else points[max(0, min(n - 1, i))]

    d = [f"M{pt(points[0])}"]
    for i in range(n if closed else n - 1):
        p0, p1, p2, p3 = at(i - 1), at(i), at(i + 1), at(i + 2)
        if p1 == p2:
            continue
        c1 = p1 if p0 == p1 else (p1[0] + (p2[0] - p0[0]) / tension, p1[1] + (p2[1] - p0[1]) / tension)
        c2 = p2 if p3 == p2 else (p2[0] - (p3[0] - p1[0]) / tension, p2[1] - (p3[1] - p1[1]) / tension)
        d.append(f"C{pt(c1)} {pt(c2)} {pt(p2)}")
    return " ".join(d) + (" Z" if closed else "")


def polygon(points):
    return "M" + " L".join(pt(p) for p in points) + " Z"


def ellipse(cx, cy, rx, ry):
    half = f"a{num(rx)},{num(ry)} 0 1 0"
    return f"M{num(cx - rx)},{num(cy)} {half} {num(2 * rx)},0 {half} {num(-2 * rx)},0 Z"


def _spline(values, u):
    """Catmull-Rom value of a list of tuples at u in 0..len-1."""
    n = len(values) - 1
    i = min(int(u), n - 1)
    t = u - i
    p0, p1, p2, p3 = values[max(i - 1, 0)], values[i], values[i + 1], values[min(i + 2, n)]
    return tuple(
        0.5 * (2 * b + (c - a) * t + (2 * a - 5 * b + 4 * c - d) * t * t + (3 * b - a - 3 * c + d) * t**3)
        for a, b, c, d in zip(p0, p1, p2, p3)
    )


def tube(points, widths, round_start=True, round_end=True, steps=5, cap=0.5):
    """The outline of a limb: a spline through points with its full width at each.

    cap is the length of a round end in widths.
    """
    rows = [(*p, w) for p, w in zip(points, widths)]
    n = (len(rows) - 1) * steps
    samples = [_spline(rows, k / steps) for k in range(n + 1)]
    left, right, normals = [], [], []
    for k, (x, y, w) in enumerate(samples):
        ax, ay, _ = samples[max(k - 1, 0)]
        bx, by, _ = samples[min(k + 1, n)]
        length = math.hypot(bx - ax, by - ay) or 1.0
        tx, ty = (bx - ax) / length, (by - ay) / length
        normals.append((tx, ty))
        left.append((x + ty * w / 2, y - tx * w / 2))
        right.append((x - ty * w / 2, y + tx * w / 2))

    def rounding(k, sign):
        (x, y, w), (tx, ty) = samples[k], normals[k]
        arc = [(math.cos(a), math.sin(a) * sign) for a in (-math.pi / 4, 0, math.pi / 4)]
        return [(x + w * (tx * c * cap * sign - ty * b / 2), y + w * (ty * c * cap * sign + tx * b / 2)) for c,
                b in arc]

    def corner(p):
        return [p, p]

    outline = left if round_end else left[:-1] + corner(left[-1])
    outline = (outline if round_start else corner(outline[0]) + outline[1:])
    outline = outline + (rounding(n, 1) if round_end else [])
    back = right[::-1]
    back = back if round_end else corner(back[0]) + back[1:]
    back = back if round_start else back[:-1] + corner(back[-1])
    return smooth(outline + back + (rounding(0, -1) if round_start else []))


class Drawing:
    """Collects layers back to front and writes them as one SVG."""

    def __init__(self, width, height, title, view=None):
        self.width, self.height, self.title = width, height, title
        self.view = view or (0, 0, width, height)
        self.body, self.defs, self.depth = [], {}, 1

    def _emit(self, text):
        self.body.append("  " * self.depth + text)

    def _define(self, key, text):
        """Registers a definition once; returns its id."""
        if key not in self.defs:
            self.defs[key] = (f"d{len(self.defs) + 1}", text)
        return self.defs[key][0]

    def note(self, text):
        self._emit(f"<!-- {text} -->")

    def _gradient(self, kind, attrs, stops):
        inner = "".join(
            f'<stop offset="{s[0]}" stop-color="{s[1]}"' + (f' stop-opacity="{s[2]}"' if len(s) > 2 else "") + "/>"
            for s in stops
        )
        text = f'<{kind} id="@" gradientUnits="userSpaceOnUse" {attrs}>{inner}</{kind}>'
        return f"url(#{self._define((kind, text), text)})"

    def linear(self, start, end, *stops):
        """A gradient in user units from start to end; stops are (offset, colour[, opacity])."""
        attrs = f'x1="{num(start[0])}" y1="{num(start[1])}" x2="{num(end[0])}" y2="{num(end[1])}"'
        return self._gradient("linearGradient", attrs, stops)

    def radial(self, centre, radius, *stops):
        attrs = f'cx="{num(centre[0])}" cy="{num(centre[1])}" r="{num(radius)}"'
        return self._gradient("radialGradient", attrs, stops)

    def _form(self, size, depth, shade):
        """The filter that gives a flat shape its volume; size is the softness of the turn in user units."""
        s = size
        text = (
            f'<filter id="@" {WHOLE} color-interpolation-filters="sRGB">'
            '<feFlood flood-color="#000" result="all"/>'
            '<feComposite in="all" in2="SourceAlpha" operator="out" result="outside"/>'
            f'<feGaussianBlur in="outside" stdDeviation="{num(s)}"/>'
            f'<feOffset dx="{num(-0.55 * s)}" dy="{num(-0.9 * s)}" result="far"/>'
            f'<feFlood flood-color="{shade}" flood-opacity="{depth}"/>'
            '<feComposite in2="far" operator="in" result="shade"/>'
            f'<feGaussianBlur in="outside" stdDeviation="{num(max(0.8, s * 0.28))}"/>'
            f'<feOffset dx="{num(0.12 * s)}" dy="{num(0.4 * s)}" result="near"/>'
            f'<feFlood flood-color="{RIM}" flood-opacity="{round(depth * 0.5, 2)}"/>'
            '<feComposite in2="near" operator="in" result="rim"/>'
            '<feBlend in="shade" in2="SourceGraphic" mode="multiply" result="shaded"/>'
            '<feBlend in="rim" in2="shaded" mode="screen" result="lit"/>'
            '<feComposite in="lit" in2="SourceAlpha" operator="in"/></filter>'
        )
        return self._define(("form", size, depth, shade), text)

    def _blur(self, size):
        text = f'<filter id="@" {WHOLE}><feGaussianBlur stdDeviation="{num(size)}"/></filter>'
        return self._define(("blur", size), text)

    def path(self, d, fill="none", form=None, blur=None, depth=0.85, shade=SHADE, **attrs):
        if attrs.get("opacity") == 1:
            del attrs["opacity"]
        extra = "".join(f' {k.replace("_", "-")}="{v}"' for k, v in attrs.items())
        if form:
            extra += f' filter="url(#{self._form(form, depth, shade)})"'
        if blur:
            extra += f' filter="url(#{self._blur(blur)})"'
        self._emit(f'<path d="{d}" fill="{fill}"{extra}/>')

    def stroke(self, points, colour, width, opacity=1, blur=None):
        """A round-ended line of even width through points."""
        self.path(smooth(points, closed=False), stroke=colour, stroke_width=num(width), opacity=opacity,
                  stroke_linecap="round", stroke_linejoin="round", blur=blur)

    def taper(self, points, width, colour, opacity=1, blur=None):
        """A brush stroke that is widest in the middle and thins to both ends."""
        n = len(points) - 1
        widths = [max(0.4, width * math.sin(math.pi * (0.06 + 0.88 * k / n))) for k in range(n + 1)]
        self.path(tube(points, widths), colour, opacity=opacity, blur=blur)

    def folds(self, lines, width, opacity=0.3, colour="#2a1440"):
        """Creases of cloth: each a soft dark line with a light one on its upper side."""
        for line in lines:
            lifted = [(x - width * 0.3, y - width * 0.7) for x, y in line]
            self.taper(lifted, width * 0.7, "#fff6e6", round(opacity * 0.6, 2), blur=width * 0.22)
            self.taper(line, width * 0.8, colour, opacity, blur=width * 0.24)

    def cast(self, on, shape, dx=0, dy=10, blur=8, opacity=0.45):
        """The shadow of shape, falling on what lies under it and nowhere else."""
        with self.group(clip=on):
            with self.group(f"translate({num(dx)} {num(dy)})"):
                self.path(shape, "#241034", blur=blur, opacity=opacity)

    @contextmanager
    def group(self, transform=None, form=None, depth=0.85, shade=SHADE, clip=None, opacity=None):
        attrs = ""
        if transform:
            attrs += f' transform="{transform}"'
        if opacity is not None:
            attrs += f' opacity="{opacity}"'
        if form:
            attrs += f' filter="url(#{self._form(form, depth, shade)})"'
        if clip:
            clip_id = self._define(("clip", clip), f'<clipPath id="@"><path d="{clip}"/></clipPath>')
            attrs += f' clip-path="url(#{clip_id})"'
        self._emit(f"<g{attrs}>")
        self.depth += 1
        yield
        self.depth -= 1
        self._emit("</g>")

    def fit(self, left, top, right, bottom):
        """Shows the part of the drawing that holds this box, whole, with its bottom on the picture's bottom edge."""
        aspect = self.width / self.height
        width = max(right - left, (bottom - top) * aspect)
        height = width / aspect
        self.view = ((left + right - width) / 2, bottom - height, width, height)
        return self

    def svg(self):
        defs = [text.replace("@", name, 1) for name, text in self.defs.values()]
        size = f'width="{self.width}" height="{self.height}" viewBox="{" ".join(f"{v:.3f}" for v in self.view)}"'
        return "\n".join(
            [
                f'<svg xmlns="http://www.w3.org/2000/svg" {size}>',
                f"  <title>{self.title}</title>",
                "  <defs>", *("    " + d for d in defs), "  </defs>",
                *self.body,
                "</svg>", "",
            ]
        )
