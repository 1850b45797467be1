"""Cost against size, logarithmic both ways, as an SVG: one plot a workload, with the lines named where they end."""
import math
from xml.sax.saxutils import escape

import figures

# What is shown, and what one of it costs.
PANELS = {"W1": "µs/row", "W2": "µs/row", "W3": "µs/value", "W4": "µs/page", "W5": "bytes/row"}
TITLES = {"W1": "Build until painted", "W2": "Refit when a caption grows", "W3": "Write a value until painted",
          "W4": "Scroll by a page", "W5": "Memory"}
# Name, colour and width of each line, by contender and display.
LINES = {
    ("grid", "offscreen"): ("widget grid", "#b3541e", 1.6),
    ("table", "offscreen"): ("Qt table", "#2d7d46", 1.6),
    ("fltk", "xcb"): ("FLTK, Xvfb", "#7b4aa8", 1.6),
    ("panel", "headless"): ("panel, headless", "#6f9bd1", 1.6),
    ("panel", "offscreen"): ("panel", "#1257a8", 2.8),
}
WIDTH, HEIGHT, COLUMNS = 330, 258, 3  # of one plot, names included
LEFT, RIGHT, TOP, BOTTOM = 52, 96, 52, 36  # around its axes
LINE = 13  # height of a name
INK, FAINT = "#333333", "#dddddd"


def cost(figure):
    """Of one row, value or page, in the unit of PANELS."""
    return figure.median * 1000 / figure.rows if figure.unit == "ms" else figure.median


def short(value):
    return f"{value:g}" if 0.01 <= value < 10000 else f"{value / 1000:g}k" if value >= 1 else f"{value:.0e}"


class Plot:
    """One workload: a scale for each axis, and what is drawn by them."""

    def __init__(self, at, workload, known):
        self.left, self.top = at[0] + LEFT, at[1] + TOP
        self.right, self.bottom = at[0] + WIDTH - RIGHT, at[1] + HEIGHT - BOTTOM
        self.workload = workload
        self.lines = {}
        for who in LINES:
            found = [one for key, one in known.items() if key[:2] == who and key[2] == figures.processor(workload) and one.median > 0]
            if found:
                self.lines[who] = sorted((one.rows, cost(one)) for one in found)
        points = [point for line in self.lines.values() for point in line]
        self.sizes = sorted({size for size, _ in points})
        costs = [value for _, value in points]
        self.low, self.high = math.floor(math.log10(min(costs))), math.ceil(math.log10(max(costs)))
        self.high = max(self.high, self.low + 1)

    def x(self, size):
        first, last = math.log10(self.sizes[0]), math.log10(self.sizes[-1])
        return self.left + (math.log10(size) - first) / max(last - first, 1) * (self.right - self.left)

    def y(self, value):
        return self.bottom - (math.log10(value) - self.low) / (self.high - self.low) * (self.bottom - self.top)

    def svg(self):
        return [text(self.left - LEFT + 8, self.top - 30, TITLES[self.workload], size=13, weight="bold"),
                text(self.left - LEFT + 8, self.top - 15, f"{self.workload}, {PANELS[self.workload]}", size=10.5),
                *self.grid(), *self.drawn(), *self.names()]

    def grid(self):
        for power in range(self.low, self.high + 1):
            y = self.y(10.0**power)
            yield f'<path d="M{self.left} {y:.1f}H{self.right}" stroke="{FAINT}"/>'
            yield text(self.left - 6, y + 3.5, short(10.0**power), anchor="end")
        for size in self.sizes:
            yield f'<path d="M{self.x(size):.1f} {self.top}V{self.bottom}" stroke="{FAINT}"/>'
            yield text(self.x(size), self.bottom + 15, short(size), anchor="middle")
        yield text((self.left + self.right) / 2, self.bottom + 29, "rows", anchor="middle")

    def drawn(self):
        for who, line in self.lines.items():
            _, color, width = LINES[who]
            points = " ".join(f"{self.x(size):.1f},{self.y(value):.1f}" for size, value in line)
            yield f'<polyline points="{points}" fill="none" stroke="{color}" stroke-width="{width}"/>'
            for size, value in line:
                yield f'<circle cx="{self.x(size):.1f}" cy="{self.y(value):.1f}" r="{width + 0.6:.1f}" fill="{color}"/>'

    def names(self):
        """Beside the ends of their lines, but none over another."""
        ends = sorted((self.y(line[-1][1]), self.x(line[-1][0]), who) for who, line in self.lines.items())
        for (y, x, who), place in zip(ends, apart([end[0] for end in ends])):
            name, color, width = LINES[who]
            if abs(place - y) > 2 or x < self.right - 2:
                yield (f'<path d="M{x + 4:.1f} {y:.1f}L{self.right + 6:.1f} {place:.1f}" stroke="{color}" '
                       'stroke-width="0.7" stroke-dasharray="2 2"/>')
            yield text(self.right + 8, place + 3.5, name, color=color, weight="bold" if width > 2 else "normal")


class Bars:
    """Numbers formatted and read: there is no size to plot them by."""

    GROUPS = {"W6.format": "0.000 formatted", "W6.read": "and read back"}

    def __init__(self, at, known):
        self.left, self.top = at[0] + 8, at[1] + TOP
        self.groups = {}
        for workload in self.GROUPS:
            found = [one for key, one in known.items() if key[2] == workload and "Variant" not in key[0]]
            self.groups[workload] = sorted(found, key=lambda one: one.median)
        self.longest = max(one.median for group in self.groups.values() for one in group)

    def svg(self):
        yield text(self.left, self.top - 30, "Numbers", size=13, weight="bold")
        yield text(self.left, self.top - 15, "W6, ns")
        y = self.top
        for workload, group in self.groups.items():
            yield text(self.left, y + 11, self.GROUPS[workload])
            y += 17
            for one in group:
                yield from self.bar(one, y)
                y += 17
            y += 8

    def bar(self, one, y):
        ours = one.contender == "panel"
        color, weight = ("#1257a8", "bold") if ours else ("#999999", "normal")
        start, length = self.left + 76, one.median / self.longest * 190
        yield text(start - 6, y + 10, "the library" if ours else one.contender, anchor="end", weight=weight,
                   color=color if ours else INK)
        yield f'<rect x="{start}" y="{y + 1}" width="{length:.1f}" height="11" fill="{color}"/>'
        yield text(start + length + 4, y + 10, f"{one.median:.0f}")


def apart(wished):
    """Places for names, close to where they are wished but a line from each other; both come in order."""
    places = list(wished)
    for _ in range(200):
        for i in range(len(places) - 1):
            missing = LINE - (places[i + 1] - places[i])
            if missing > 0:
                places[i] -= missing / 2
                places[i + 1] += missing / 2
    return places


def text(x, y, words, size=10.5, anchor="start", color=INK, weight="normal"):
    return (f'<text x="{x:.1f}" y="{y:.1f}" font-size="{size}" text-anchor="{anchor}" fill="{color}" '
            f'font-weight="{weight}">{escape(words)}</text>')


def picture(known):
    shown = [workload for workload in PANELS if any(key[2] == figures.processor(workload) for key in known)]
    rows = len(shown) // COLUMNS + 1
    width, height = COLUMNS * WIDTH, rows * HEIGHT + 8
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" viewBox="0 0 {width} {height}" '
             'font-family="DejaVu Sans, Verdana, sans-serif">',
             "<title>Cost of a form by its number of rows</title>",
             f'<rect width="{width}" height="{height}" fill="#ffffff"/>']
    for place, workload in enumerate(shown):
        at = place % COLUMNS * WIDTH, place // COLUMNS * HEIGHT
        parts += Plot(at, workload, known).svg()
    if any(key[2] in Bars.GROUPS for key in known):
        at = len(shown) % COLUMNS * WIDTH, len(shown) // COLUMNS * HEIGHT
        parts += Bars(at, known).svg()
    return "\n".join([*parts, "</svg>", ""])
