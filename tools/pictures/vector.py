"""A small drawing kit: smooth outlines, gradients, readable SVG."""

from contextlib import contextmanager


def mix(a, b, t):
    """The colour t of the way from a to b, both '#rrggbb'."""
    ca, cb = (tuple(int(c[i : i + 2], 16) for i in (1, 3, 5)) for c in (a, b))
    return "#%02x%02x%02x" % tuple(round(x + (y - x) * t) for x, y in zip(ca, cb))


def dark(colour, t=0.3):
    return mix(colour, "#2a1438", t)


def light(colour, t=0.3):
    return mix(colour, "#fff4e2", t)


def num(x):
    return f"{x:.2f}".rstrip("0").rstrip(".")


def pt(p):
    return f"{num(p[0])},{num(p[1])}"


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


def ellipse(cx, cy, rx, ry):
    half = f"a{num(rx)},{num(ry)} 0 1 0"
    return f"M{num(cx - rx)},{num(cy)} {half} {num(2 * rx)},0 {half} {num(-2 * rx)},0 Z"


class Drawing:
    """Collects layers back to front and writes them as one SVG."""

    def __init__(self, width, height, title):
        self.width, self.height, self.title = width, height, title
        self.body, self.defs, self.depth = [], {}, 1

    def _emit(self, text):
        self.body.append("  " * self.depth + text)

    def _gradient(self, kind, attrs, stops):
        inner = "".join(
            f'<stop offset="{s[0]}" stop-color="{s[1]}"' + (f' stop-opacity="{s[2]}"' if len(s) > 2 else "") + "/>"
            for s in stops
        )
        text = f'<{kind} id="@" gradientUnits="userSpaceOnUse" {attrs}>{inner}</{kind}>'
        return f"url(#{self.defs.setdefault(text, f'd{len(self.defs) + 1}')})"

    def linear(self, start, end, *stops):
        """A gradient in user units from start to end; stops are (offset, colour[, opacity])."""
        attrs = f'x1="{num(start[0])}" y1="{num(start[1])}" x2="{num(end[0])}" y2="{num(end[1])}"'
        return self._gradient("linearGradient", attrs, stops)

    def radial(self, centre, radius, *stops):
        attrs = f'cx="{num(centre[0])}" cy="{num(centre[1])}" r="{num(radius)}"'
        return self._gradient("radialGradient", attrs, stops)

    def path(self, d, fill="none", **attrs):
        extra = "".join(f' {k.replace("_", "-")}="{v}"' for k, v in attrs.items())
        self._emit(f'<path d="{d}" fill="{fill}"{extra}/>')

    def stroke(self, points, colour, width, opacity=1):
        """A round-ended line of even width through points."""
        self.path(smooth(points, closed=False), stroke=colour, stroke_width=num(width), opacity=opacity,
                  stroke_linecap="round", stroke_linejoin="round")

    @contextmanager
    def group(self, transform):
        self._emit(f'<g transform="{transform}">')
        self.depth += 1
        yield
        self.depth -= 1
        self._emit("</g>")

    def svg(self):
        defs = [text.replace("@", name, 1) for text, name in self.defs.items()]
        size = f'width="{self.width}" height="{self.height}" viewBox="0 0 {self.width} {self.height}"'
        return "\n".join(
            [
                f'<svg xmlns="http://www.w3.org/2000/svg" {size}>',
                f"  <title>{self.title}</title>",
                "  <defs>", *("    " + d for d in defs), "  </defs>",
                *self.body,
                "</svg>", "",
            ]
        )
