#!/usr/bin/env python3
"""Plots how the time of a solve grows, with the exponent of the fit.

    ordwise_bench --benchmark_filter=growth --benchmark_out=growth.json
    bench/growth.py growth.json docs/growth.svg

Both axes are logarithmic, so that a power of the size is a straight line and its exponent the slope.
The fit is by least squares on the logarithms. Prints the exponents of a solve and of a step.
"""
import json
import math
import sys

WIDTH, HEIGHT, LEFT, TOP, RIGHT, BOTTOM = 720, 460, 70, 30, 30, 60
SERIES = [("growthOfArithmetic", "1+2+3+..., terms", "#1f5fa8"),
          ("growthOfLikeTerms", "1x+2x+3x+..., terms", "#b5402a"),
          ("growthOfDepth", "((1+2)+3)+..., depth", "#2c7a3f")]


def read(file):
    """(size, microseconds of a solve, steps) by series, the least of the repetitions."""
    points = {}
    for run in json.load(open(file))["benchmarks"]:
        if run.get("run_type") == "aggregate" or "error_occurred" in run:
            continue
        name, size = run["name"].split("/")[:2]
        micro = run["cpu_time"] / {"ns": 1000, "us": 1, "ms": 0.001}[run["time_unit"]]
        key = (name, int(size))
        if key not in points or micro < points[key][0]:
            points[key] = (micro, run["steps"])
    return {name: sorted((size, *points[n, size]) for n, size in points if n == name) for name, _, _ in SERIES}


def fit(pairs):
    """The exponent k and factor c of y = c * x^k."""
    logs = [(math.log(x), math.log(y)) for x, y in pairs]
    mx = sum(x for x, _ in logs) / len(logs)
    my = sum(y for _, y in logs) / len(logs)
    k = sum((x - mx) * (y - my) for x, y in logs) / sum((x - mx) ** 2 for x, _ in logs)
    return k, math.exp(my - k * mx)


class Plot:
    def __init__(self, xs, ys):
        self.x = (min(xs) * 0.9, max(xs) * 1.12)
        self.y = (min(ys) * 0.6, max(ys) * 1.7)
        self.parts = []

    @staticmethod
    def place(value, span):
        return (math.log(value) - math.log(span[0])) / (math.log(span[1]) - math.log(span[0]))

    def across(self, value):
        return LEFT + self.place(value, self.x) * (WIDTH - LEFT - RIGHT)

    def down(self, value):
        return HEIGHT - BOTTOM - self.place(value, self.y) * (HEIGHT - TOP - BOTTOM)

    def text(self, x, y, words, anchor="middle", colour="#333"):
        self.parts.append(f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" fill="{colour}">{words}</text>')

    def line(self, x1, y1, x2, y2, colour, width=1, dash=""):
        self.parts.append(f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" stroke="{colour}" '
                          f'stroke-width="{width}"{dash and f" stroke-dasharray={chr(34)}{dash}{chr(34)}"}/>')

    def axes(self):
        for tick in (1, 2, 3, 5, 10, 20, 30, 50):
            if self.x[0] <= tick <= self.x[1]:
                x = self.across(tick)
                self.line(x, TOP, x, HEIGHT - BOTTOM, "#ddd")
                self.text(x, HEIGHT - BOTTOM + 18, str(tick))
        for power in range(0, 7):
            for tick in (10 ** power, 3 * 10 ** power):
                if self.y[0] <= tick <= self.y[1]:
                    y = self.down(tick)
                    self.line(LEFT, y, WIDTH - RIGHT, y, "#ddd")
                    self.text(LEFT - 8, y + 4, str(tick), "end")
        self.text((LEFT + WIDTH - RIGHT) / 2, HEIGHT - 16, "terms, or depth of parentheses")
        self.parts.append(f'<text transform="translate(18 {HEIGHT / 2 - 10}) rotate(-90)" text-anchor="middle" '
                          'fill="#333">microseconds of a solve</text>')

    def series(self, points, k, c, colour, label, row):
        for x, y in points:
            self.parts.append(f'<circle cx="{self.across(x):.1f}" cy="{self.down(y):.1f}" r="4" fill="{colour}"/>')
        a, b = points[0][0], points[-1][0]
        self.line(self.across(a), self.down(c * a ** k), self.across(b), self.down(c * b ** k), colour, 1.5, "6 4")
        y = TOP + 18 + 20 * row
        self.parts.append(f'<circle cx="{LEFT + 18}" cy="{y - 4}" r="4" fill="{colour}"/>')
        self.text(LEFT + 30, y, f"{label}: exponent {k:.2f}", "start")

    def svg(self):
        return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" '
                f'viewBox="0 0 {WIDTH} {HEIGHT}" font-family="sans-serif" font-size="13">\n'
                f'<rect width="{WIDTH}" height="{HEIGHT}" fill="white"/>\n' + "\n".join(self.parts) + "\n</svg>\n")


def main():
    data = read(sys.argv[1])
    plot = Plot([p[0] for s in data.values() for p in s], [p[1] for s in data.values() for p in s])
    plot.axes()
    for row, (name, label, colour) in enumerate(SERIES):
        solve = [(size, micro) for size, micro, _ in data[name]]
        k, c = fit(solve)
        step, _ = fit([(size, micro / max(steps, 1)) for size, micro, steps in data[name]])
        plot.series(solve, k, c, colour, label, row)
        print(f"{label}: solve {k:.2f}, step {step:.2f}; {solve[0][1]:.0f} us at {solve[0][0]}, "
              f"{solve[-1][1]:.0f} us at {solve[-1][0]}")
    with open(sys.argv[2], "w") as out:
        out.write(plot.svg())


main()
