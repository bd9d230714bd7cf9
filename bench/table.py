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


def table_of(report, heading, verdict):
    """verdict(ours, best peer) is what stands under the heading."""
    print(f"\n{report['context']['compiler']}, `{report['context']['flags']}`:\n")
    print("| operation | vertra |", " | ".join(PEERS), "|", heading, "| spread |")
    print("|---|" + "--:|" * (len(PEERS) + 3))
    for operation, row in sorted(rows_of(report).items()):
        cells = [f"{row[library][0]:.2f}" if library in row else "" for library in ["vertra"] + PEERS]
        peers = [row[peer][0] for peer in PEERS if peer in row]
        cells.append(verdict(row["vertra"][0], min(peers)) if peers else "")
        cells.append(f"{100 * max(spread for _, spread in row.values()):.0f} %")
        print("|", operation, "|", " | ".join(cells), "|")


def mark(text, behind):
    return f"**{text}**" if behind else text


optimised, unoptimised = (json.load(open(name)) for name in sys.argv[1:])
print("Peers:", optimised["context"]["peers"])
table_of(optimised, "ours / best peer", lambda ours, best: mark(f"{ours / best:.2f}", ours > 1.5 * best))
table_of(unoptimised, "best peer / ours", lambda ours, best: mark(f"{best / ours:.1f}", best < 10 * ours))
