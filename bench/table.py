#!/usr/bin/env python3
"""Prints the tables of docs/performance.md from what vertra_bench and vertra_bench_debug have written."""

import json
import statistics
import sys

PEERS = ["glm", "Eigen", "Imath"]


def rows_of(report):
    """{operation: {library: (nanoseconds, spread)}}, of each library its fastest form."""
    times = {}
    for run in report["benchmarks"]:
        if run["run_type"] == "iteration":
            times.setdefault(run["name"].split("/")[0], {}).setdefault(run["name"].split("/")[1], []).append(
                1e9 / run["items_per_second"])
    rows = {}
    for operation, forms in times.items():
        row = rows.setdefault(operation, {})
        for form, values in forms.items():
            low, median, high = statistics.quantiles(values, n=4)
            library = form.split()[0]
            row[library] = min(row.get(library, (float("inf"),)), (median, (high - low) / median))
    return rows


def table_of(report, verdicts):
    """verdicts: {heading: (peers, what of our time and their best to show)}"""
    print(f"\n{report['context']['compiler']}, `{report['context']['flags']}`:\n")
    print("| operation | vertra |", " | ".join(PEERS + list(verdicts)), "| spread |")
    print("|---|" + "--:|" * (len(PEERS) + len(verdicts) + 2))
    for operation, row in sorted(rows_of(report).items()):
        cells = [f"{row[library][0]:.2f}" if library in row else "" for library in ["vertra"] + PEERS]
        for peers, show in verdicts.values():
            best = min((row[peer][0] for peer in peers if peer in row), default=None)
            cells.append(show(row["vertra"][0], best) if best else "")
        cells.append(f"{100 * max(spread for _, spread in row.values()):.0f} %")
        print("|", operation, "|", " | ".join(cells), "|")


def slower(ours, best):
    """How many times our time is the best peer's; bold above 1.5."""
    return f"**{ours / best:.2f}**" if ours > 1.5 * best else f"{ours / best:.2f}"


def faster(ours, best):
    """How many times the best peer's time is ours; bold below 10."""
    return f"**{best / ours:.1f}**" if best < 10 * ours else f"{best / ours:.1f}"


optimised, unoptimised = (json.load(open(name)) for name in sys.argv[1:])
print("Peers:", optimised["context"]["peers"])
table_of(optimised, {"ours / best peer": (PEERS, slower)})
table_of(unoptimised, {"glm or Eigen / ours": (["glm", "Eigen"], faster), "Imath / ours": (["Imath"], faster)})
