#!/usr/bin/python3
"""Draws docs/performance.png: how many times faster than the best peer, optimised and while debugging.

usage: bench/plot.py RESULTS PICTURE
"""

import io
import sys

import matplotlib

matplotlib.use("agg")

import matplotlib.pyplot as plt
from matplotlib.ticker import FuncFormatter, NullLocator
from PIL import Image

from results import PEERS, best, read_part

SCALARS = {"float": "o", "double": "D"}


def ratios_of(directory, part, peers):
    """{operation: {scalar: times faster than the best peer}}"""
    ratios = {}
    for (operation, kind), row in read_part(directory, part)[1].items():
        peer, _ = best(row, peers)
        if kind == "throughput" and peer:
            name, scalar = operation.rsplit(", ", 1)
            ratios.setdefault(name, {})[scalar] = peer / row["vertra"].nanoseconds
    return ratios


def draw(axes, title, series, names, ticks):
    """series: [(label, colour, ratios)]"""
    drawn = [ratio for _, _, ratios in series for row in ratios.values() for ratio in row.values()]
    limits = min(ticks[:1] + drawn) / 1.2, max(ticks[-1:] + drawn) * 1.2
    for label, colour, ratios in series:
        for scalar, marker in SCALARS.items():
            points = [(ratios[name][scalar], line) for line, name in enumerate(names)
                      if scalar in ratios.get(name, {})]
            x, y = zip(*points) if points else ((), ())
            axes.plot(x, y, marker, color=colour, markersize=4.5, alpha=0.8, label=f"{label}, {scalar}",
                      markerfacecolor=colour if scalar == "float" else "white")
    axes.axvline(1, color="black", linewidth=0.8)
    axes.set_xscale("log")
    axes.set_title(title, fontsize=10)
    axes.set_xlim(*limits)
    axes.set_xticks(ticks)
    axes.xaxis.set_major_formatter(FuncFormatter(lambda value, _: f"{value:g} x"))
    axes.xaxis.set_minor_locator(NullLocator())
    axes.grid(color="#dddddd", linewidth=0.6)
    axes.set_axisbelow(True)
    for side in ["top", "right", "left"]:
        axes.spines[side].set_visible(False)
    axes.tick_params(length=0)
    axes.legend(loc="upper center", bbox_to_anchor=(0.5, -0.05), ncol=2, frameon=False, fontsize=8)


def main():
    directory, picture = sys.argv[1:]
    release, native = (ratios_of(directory, part, PEERS) for part in ["release", "native"])
    debug = {compiler: ratios_of(directory, f"debug-{compiler}", ["glm", "Eigen"]) for compiler in ["g++", "clang++"]}
    names = sorted({*release, *native, *debug["g++"], *debug["clang++"]}, reverse=True)
    if not names:
        sys.exit(f"bench/plot.py: no results in {directory}")
    figure, (left, right) = plt.subplots(1, 2, sharey=True, figsize=(10, 1.6 + 0.21 * len(names)),
                                         layout="constrained")
    draw(left, "optimised, beside the best peer",
         [("-O3", "#1f77b4", release), ("-march=native", "#2ca02c", native)], names, [0.25, 0.5, 1, 2, 4])
    draw(right, "callers at -O0, beside the better of glm and Eigen",
         [("g++", "#d62728", debug["g++"]), ("clang++", "#ff7f0e", debug["clang++"])], names,
         [1, 2, 5, 10, 20, 50, 100])
    right.axvline(10, color="black", linewidth=0.8, linestyle=":")
    left.set_yticks(range(len(names)), names)
    left.set_ylim(-0.7, len(names) - 0.3)
    drawn = io.BytesIO()
    figure.savefig(drawn, dpi=110)
    Image.open(drawn).convert("RGB").quantize(48).save(picture, optimize=True)  # a third of the bytes


main()
