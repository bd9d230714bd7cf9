#!/usr/bin/env python3
"""Makes the tables of docs/performance.md and prints them, or writes them into a page.

usage: bench/table.py RESULTS [PAGE]
In the page, the table NAME stands between <!-- NAME --> and <!-- end of NAME -->.
"""

import os
import re
import statistics
import sys

from reasons import REASONS
from results import PEERS, best, read_part, spread

HEADER_ONLY = ["glm", "Eigen"]
SLOWER = 1.05  # the target: release no slower than this many times the best peer,
FASTER = 10   # debug at least so many times faster than the best header-only one
DEBUG_COST = 2.5, 20  # and no slower than so many times release and so many nanoseconds


def lines_of(heading, columns, rows):
    return [*heading, "| " + " | ".join(columns) + " |", "|---|" + "--:|" * (len(columns) - 1),
            *("| " + " | ".join(row) + " |" for row in rows)]


def number(value, missed=False, digits=2):
    text = f"{value:.{digits}f}"
    return f"**{text}**" if missed else text


def made_by(context):
    return f"{context['processor']}, {context['compiler']}, `{context['flags']}`, {context['peers']}:"


def optimised(directory, part):
    context, rows = read_part(directory, part)
    if not rows:
        return None
    lines = []
    for operation in sorted({operation for operation, _ in rows}):
        row = rows[operation, "throughput"]
        cells = [operation] + [number(row[name].nanoseconds) if name in row else "" for name in ["vertra"] + PEERS]
        spreads = [spread(row)]
        peer, _ = best(row)
        ours = row["vertra"].nanoseconds
        cells.append(number(ours / peer, ours > SLOWER * peer) if peer else "")
        chained = rows.get((operation, "latency"))
        if chained:
            ours = chained["vertra"].nanoseconds
            peer, name = best(chained)
            spreads.append(spread(chained))
            cells += [number(ours, digits=1)]
            cells += [f"{number(peer, digits=1)} {name}", number(ours / peer)] if peer else ["", ""]
        else:
            cells += ["", "", ""]
        cells.append(f"{100 * max(spreads):.0f} %")
        lines.append(cells)
    columns = ["operation", "vertra", *PEERS, "ours / best", "latency: vertra", "best peer", "ours / best", "spread"]
    return lines_of([made_by(context), ""], columns, lines)


def unoptimised(directory, part):
    context, rows = read_part(directory, part)
    _, release = read_part(directory, "release")
    if not rows:
        return None
    lines = []
    ratios = []
    for operation, kind in sorted(rows):
        row = rows[operation, kind]
        ours = row["vertra"].nanoseconds
        cells = [operation]
        if (operation, kind) in release:
            optimised_time = release[operation, kind]["vertra"].nanoseconds
            cells += [number(optimised_time), number(ours, ours > DEBUG_COST[0] * optimised_time + DEBUG_COST[1])]
        else:
            cells += ["", number(ours)]
        cells += [number(row[name].nanoseconds) if name in row else "" for name in PEERS]
        for peers in [HEADER_ONLY, ["Imath"], ["cglm"]]:
            peer, _ = best(row, peers)
            cells.append(number(peer / ours, peers == HEADER_ONLY and peer < FASTER * ours, 1) if peer else "")
            if peer and peers == HEADER_ONLY:
                ratios.append(peer / ours)
        cells.append(f"{100 * spread(row):.0f} %")
        lines.append(cells)
    columns = ["operation", "vertra at -O3", "vertra", *PEERS, "glm or Eigen / ours", "Imath / ours", "cglm / ours",
               "spread"]
    summary = (f"{made_by(context)} {len(ratios)} rows beside a header-only peer, "
               f"the median {statistics.median(ratios):.1f} times faster, the least {min(ratios):.1f}.")
    return lines_of([summary, ""], columns, lines)


def instruction_counts(directory):
    """{operation: {library: instructions of its leanest form}}"""
    counts = {}
    path = f"{directory}/instructions.txt"
    if os.path.exists(path):
        with open(path) as file:
            for line in file:
                count, name = line.strip().split(" ", 1)
                operation, form = name.split("/")
                row = counts.setdefault(operation, {})
                row[form.split()[0]] = min(float(count), row.get(form.split()[0], float("inf")))
    return counts


def scalars_of(directory, part, missed):
    """{operation without its scalar: {scalar: row}}, of throughput rows for which missed(row) is true"""
    found = {}
    for (operation, kind), row in sorted(read_part(directory, part)[1].items()):
        if kind == "throughput" and missed(row):
            name, scalar = operation.rsplit(", ", 1)
            found.setdefault(name, {})[scalar] = row
    return found


def slower(row):
    return row["vertra"].nanoseconds / best(row)[0] if best(row)[0] else 0


def faster(row):
    peer, _ = best(row, HEADER_ONLY)
    return peer / row["vertra"].nanoseconds if peer else float("inf")


def optimised_losses(directory):
    parts = {part: scalars_of(directory, part, lambda row: slower(row) > SLOWER) for part in ["release", "native"]}
    counts = instruction_counts(directory)
    lines = []
    for name in sorted({name for rows in parts.values() for name in rows}):
        line = [name]
        for rows in parts.values():
            line.append(", ".join(f"{slower(row):.1f} {scalar}" for scalar, row in rows.get(name, {}).items()))
        counted = []
        for scalar in ["float", "double"]:
            row = counts.get(f"{name}, {scalar}", {})
            peers = [f"{row[peer]:.0f} {peer}" for peer in PEERS if peer in row]
            if "vertra" in row:
                counted.append(f"{scalar} {row['vertra']:.0f}: " + ", ".join(peers))
        reason = REASONS.get(name) or REASONS.get(name.split(",")[0])
        if not reason:
            print(f"bench/table.py: bench/reasons.py has no reason why {name} is slow", file=sys.stderr)
        lines.append(line + ["<br>".join(counted), reason or "**Not known yet.**"])
    return lines_of([], ["operation", "-O3", "-march=native", "instructions: ours, theirs", "why"], lines)


def unoptimised_losses(directory):
    """Of g++, with our nanoseconds taken apart."""
    _, release = read_part(directory, "release")
    _, debug = read_part(directory, "debug-g++")
    if not release or not debug:
        return None
    loop = debug["the empty loop, float", "throughput"]["vertra"].nanoseconds
    lines = []
    for name, rows in scalars_of(directory, "debug-g++", lambda row: faster(row) < FASTER).items():
        for scalar, row in rows.items():
            ours = row["vertra"].nanoseconds
            work = release[f"{name}, {scalar}", "throughput"]["vertra"].nanoseconds
            peer, peers_name = best(row, HEADER_ONLY)
            lines.append([f"{name}, {scalar}", number(peer / ours, digits=1), number(ours, digits=1),
                          number(work, digits=1), number(loop, digits=1), number(ours - work - loop, digits=1),
                          f"{number(peer, digits=1)} {peers_name}"])
    columns = ["operation", "times faster", "our ns", "the function at -O3", "caller's loop", "the call", "their ns"]
    return lines_of([], columns, lines)


def text_file(directory, name):
    path = f"{directory}/{name}"
    if not os.path.exists(path):
        return None
    with open(path) as file:
        return file.read().splitlines()


def tables(directory):
    return {
        "release": optimised(directory, "release"),
        "native": optimised(directory, "native"),
        "debug": unoptimised(directory, "debug-g++"),
        "debug by clang": unoptimised(directory, "debug-clang++"),
        "headers": text_file(directory, "headers.txt"),
        "losses": optimised_losses(directory),
        "losses while debugging": unoptimised_losses(directory),
    }


def main():
    directory, *page = sys.argv[1:]
    made = {name: lines for name, lines in tables(directory).items() if lines}
    if not page:
        for name, lines in made.items():
            print(f"\n## {name}\n", *lines, sep="\n")
        return
    with open(page[0]) as file:
        text = file.read()
    for name, lines in made.items():
        block = re.compile(f"(?<=<!-- {name} -->\n).*?(?=<!-- end of {name} -->)", re.DOTALL)
        body = "\n" + "\n".join(lines) + "\n\n"
        text, found = block.subn(lambda _: body, text)
        if found != 1:
            sys.exit(f"bench/table.py: {page[0]} has no place for the table {name}")
    with open(page[0], "w") as file:
        file.write(text)


main()
