#!/usr/bin/env python3
"""Reads what vertra_bench has written; as a program prints a filter of the rows that are to be timed again.

usage: bench/results.py REPORT...
"""

import collections
import glob
import json
import statistics
import sys

PEERS = ["glm", "Eigen", "Imath", "cglm"]
UNSTEADY = 0.03

Timing = collections.namedtuple("Timing", ["nanoseconds", "spread"])


def rows_of(report):
    """{(operation, kind): {library: Timing of its fastest form}}"""
    times = {}
    for run in report["benchmarks"]:
        if run["run_type"] == "iteration":
            operation, form, kind = run["name"].split("/")
            row = times.setdefault((operation, kind), {})
            row.setdefault(form, []).append(1e9 / run["items_per_second"])
    rows = {}
    for key, forms in times.items():
        row = rows.setdefault(key, {})
        for form, values in forms.items():
            low, median, high = statistics.quantiles(values, n=4)
            library = form.split()[0]
            timing = Timing(median, (high - low) / median)
            row[library] = min(row.get(library, timing), timing)
    return rows


def spread(row):
    return max(timing.spread for timing in row.values())


def read(paths):
    """The context and the rows of reports; of a row timed more than once, its steadiest."""
    context, rows = {}, {}
    for path in sorted(paths):
        with open(path) as file:
            report = json.load(file)
        context = report["context"]
        for key, row in rows_of(report).items():
            if key not in rows or spread(row) < spread(rows[key]):
                rows[key] = row
    return context, rows


def best(row, peers=PEERS):
    """The fastest of the peers and its nanoseconds, or none."""
    there = [(row[peer].nanoseconds, peer) for peer in peers if peer in row]
    return min(there, default=(None, None))


def read_part(directory, part):
    return read(glob.glob(f"{directory}/{part}-[0-9].json"))


if __name__ == "__main__":
    unsteady = [f"{operation}/.*/{kind}" for (operation, kind), row in read(sys.argv[1:])[1].items()
                if spread(row) > UNSTEADY]
    print("|".join(f"^{row}$" for row in unsteady))
