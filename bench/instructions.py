#!/usr/bin/env python3
"""Counts with callgrind the instructions of a call of each row of vertra_bench, and prints them.

usage: bench/instructions.py PROGRAM
"""

import os
import pathlib
import re
import subprocess
import sys
import tempfile


def counted(program):
    """{operation: {form of a library: instructions}}"""
    # One path of the C library's sine for all processors.
    environment = dict(os.environ, GLIBC_TUNABLES="glibc.cpu.hwcaps=-AVX2,-FMA,-FMA4")
    counts = {}
    with tempfile.TemporaryDirectory() as directory:
        subprocess.run(["valgrind", "-q", "--tool=callgrind", "--instr-atstart=no",
                        f"--callgrind-out-file={directory}/profile", program, "--instructions"],
                       env=environment, check=True, stdout=subprocess.DEVNULL)
        for profile in pathlib.Path(directory).iterdir():
            text = profile.read_text()
            request = re.search(r"^desc: Trigger: Client Request: (.+)/(.+)/(\d+)$", text, re.MULTILINE)
            if request:
                operation, form, calls = request.groups()
                total = re.search(r"^(?:totals|summary): (\d+)", text, re.MULTILINE)
                counts.setdefault(operation, {})[form] = int(total[1]) / int(calls)
    return counts


if __name__ == "__main__":
    for operation, forms in counted(sys.argv[1]).items():
        for form, count in forms.items():
            print(f"{count:8.1f} {operation}/{form}")
