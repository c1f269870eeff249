#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
"""Times whole runs of dmimport beside other commands that do comparable work.

Each pair of runs follows one another, so that a machine whose speed drifts spoils
neither side alone; the ratio is the median of the pairs' ratios. Every run starts
from a new store, and a failed run ends the measurement.

Example, with a bound for each workload (the placeholders are replaced):

    bench/endtoend.py --build build/release --rows 1000 65000 \\
        --bound import 'store_bound csv {csv} {store}' --bound preview 'parse_bound csv {csv}'
"""
import argparse
import os
import pathlib
import shlex
import statistics
import subprocess
import sys
import tempfile
import time

VERBATIM = ["--verbatim", "--delimiter", ";", "--header", "--columns", "{columns}"]
WORKLOADS = {
    "import": ["{dmimport}", "import", "{csv}", "--store", "{store}", "--quiet", *VERBATIM],
    "preview": ["{dmimport}", "preview", "{csv}", "--limit", "0", "--quiet", *VERBATIM],
}


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", type=pathlib.Path, required=True, help="build folder of the release preset")
    parser.add_argument("--rows", type=int, nargs="+", default=[1000, 65000], help="bookings per file")
    parser.add_argument("--pairs", type=int, default=11, help="how often each pair is run")
    parser.add_argument("--work", type=pathlib.Path, help="folder for the files (default: a temporary one)")
    parser.add_argument("--bound", nargs=2, action="append", default=[], metavar=("WORKLOAD", "COMMAND"),
                        help="a command to run beside a workload (import or preview)")
    given = parser.parse_args()
    for workload, _ in given.bound:
        if workload not in WORKLOADS:
            parser.error(f"no such workload: {workload} (there are: {', '.join(WORKLOADS)})")
    return given


def timed_run(command, values):
    """Seconds and peak memory (MiB) of one run, from a new store."""
    store = pathlib.Path(values["store"])
    for leftover in store.parent.glob(store.name + "*"):
        leftover.unlink()
    filled = [part.format(**values) for part in command]
    start = time.perf_counter()
    process = subprocess.Popen(filled, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    seconds = time.perf_counter() - start
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"exit status {process.returncode}: {shlex.join(filled)}")
    return seconds, usage.ru_maxrss / 1024


def row(name, rows, runs, ratios):
    seconds = statistics.median(run[0] for run in runs)
    peak = max(run[1] for run in runs)
    ratio = f"{statistics.median(ratios):7.2f}" if ratios else " " * 7
    print(f"{name:34} {rows:7} {seconds:9.4f} {seconds / rows * 1e6:9.3f} {peak:8.1f} {ratio}")


def measure(workload, rows, pairs, bounds, values):
    command = WORKLOADS[workload]
    timed_run(command, values)  # so that no first run pays for a cold cache
    if not bounds:
        row(f"dmimport {workload}", rows, [timed_run(command, values) for _ in range(pairs)], [])
    for bound in bounds:
        timed_run(bound, values)
        ours, theirs = [], []
        for _ in range(pairs):
            ours.append(timed_run(command, values))
            theirs.append(timed_run(bound, values))
        row(f"dmimport {workload}", rows, ours, [a[0] / b[0] for a, b in zip(ours, theirs)])
        row(f"  {pathlib.Path(bound[0]).name}", rows, theirs, [])


def main():
    given = arguments()
    make_bookings = str(given.build / "bench" / "make_bookings")
    columns = subprocess.run([make_bookings, "--columns"], check=True, capture_output=True, text=True).stdout.strip()
    with tempfile.TemporaryDirectory(prefix="import_bench_", dir=given.work) as folder:
        print(f"{'run':34} {'rows':>7} {'median s':>9} {'us/row':>9} {'peak MiB':>8} {'ratio':>7}")
        for rows in given.rows:
            csv = os.path.join(folder, f"bookings_{rows}.csv")
            subprocess.run([make_bookings, str(rows), csv], check=True)
            values = {
                "dmimport": str(given.build / "src" / "cli" / "dmimport"),
                "csv": csv,
                "store": os.path.join(folder, "bench.db"),
                "columns": columns,
            }
            for workload in WORKLOADS:
                bounds = [shlex.split(command) for name, command in given.bound if name == workload]
                measure(workload, rows, given.pairs, bounds, values)


if __name__ == "__main__":
    main()
