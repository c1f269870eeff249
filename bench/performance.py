#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
"""Measures dmimport beside the plainest programs for the same work, pair by pair, and writes
the figures into docs/performance.md, between its two marks.

The plain programs ("bounds") are not part of the project. FOLDER has their sources and a
generator of made-up bookings:
    gen.py OUT N...             writes bank_N.csv, bank_N_utf8.csv, bank_N.qif, bank_N.ssx,
                                buchungen_N.xml and konten.xml
    bound_parse.cpp             csv|qif FILE: into a vector of typed bookings
    bound_store.cpp             csv|qif FILE DB flat: into one SQLite table
    bound_xml.cpp               FILE: into Qt's tree, and the texts out of it

usage: performance.py --build build/release --bounds FOLDER [--pairs N] [--write]

Every run starts from a fresh copy of the store that it needs, in a temporary folder. A ratio
is the median of the pairs' ratios; the figures behind it are the quartiles. Needs Python 3.8,
g++, pkg-config, and valgrind for the instructions per row.
"""
import argparse
import json
import os
import pathlib
import platform
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
from collections import namedtuple

from endtoend import Run, measured

DOCUMENT = pathlib.Path(__file__).parents[1] / "docs" / "performance.md"
BEGIN, END = "<!-- measured: begin -->\n", "<!-- measured: end -->\n"
ROWS = 65000
GROWTH = [1000, 10000, ROWS]
COLUMNS = "0=Datum,1=Empfaenger,2=Kategorie,3=Unterkategorie,4=Verwendungszweck,5=Buchungstext,6=Betrag"
VERBATIM = ["--verbatim", "--quiet"]
CSV = ["--delimiter", ";", "--header", "--columns", COLUMNS]

# ours: arguments of dmimport. bound: command lines whose times add up, or ours again. store: what lies there before.
Work = namedtuple("Work", "name ours bound goal store bound_store", defaults=(None, None))

IMPORT_CSV = ["import", "{data}/bank_{n}.csv", "--store", "{store}", *VERBATIM, *CSV]
PREVIEW_CSV = ["preview", "{data}/bank_{n}.csv", "--limit", "0", *VERBATIM, *CSV]
INSPECTED_CSV = ["import", "{data}/bank_{n}_utf8.csv", "--store", "{store}", "--quiet"]
IMPORT_QIF = ["import", "{data}/bank_{n}.qif", "--store", "{store}", *VERBATIM]
IMPORT_SSX = ["import", "{data}/bank_{n}.ssx", "--store", "{store}", *VERBATIM]
BOOKINGS = ["bookings", "{data}/buchungen_{n}.xml", "--store", "{store}", *VERBATIM]
FEW = ["import", "{data}/bank_10.csv", "--store", "{store}", *VERBATIM, *CSV]

STORE_CSV = ["{bounds}/bound_store", "csv", "{data}/bank_{n}.csv", "{store}", "flat"]
STORE_QIF = ["{bounds}/bound_store", "qif", "{data}/bank_{n}.qif", "{store}", "flat"]
PARSE_CSV = ["{bounds}/bound_parse", "csv", "{data}/bank_{n}.csv"]
TREE = ["{bounds}/bound_xml", "{data}/buchungen_{n}.xml"]

WORKS = [
    Work("CSV, read verbatim", IMPORT_CSV, [STORE_CSV], 1.35),
    Work("CSV as banks hand it out: UTF-8, CRLF, preamble; nothing given", INSPECTED_CSV, [STORE_CSV], 1.8),
    Work("CSV, simulated", PREVIEW_CSV, [PARSE_CSV], 2.0),
    Work("QIF, read verbatim", IMPORT_QIF, [STORE_QIF], 1.35),
    Work("StarMoney, read verbatim; beside our CSV", IMPORT_SSX, ["ours", IMPORT_CSV], 1.1),
    Work("booking list (XML); beside tree and table together", BOOKINGS, [TREE, STORE_CSV], 1.0, "accounts"),
    Work("10 rows into a store of 60,000; beside an empty one", FEW, ["ours", FEW], 1.2, "filled", "emptied"),
]
BOUND_NAMES = {"bound_store": "one table", "bound_parse": "a vector", "bound_xml": "the tree"}


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


class Bench:
    def __init__(self, build, sources, folder):
        self.folder, self.dmimport = pathlib.Path(folder), str(build / "src" / "cli" / "dmimport")
        self.values = {"bounds": self.folder, "data": self.folder / "data", "store": self.folder / "bench.db", "n": ROWS}
        compiler = ["g++", "-O2", "-std=c++17", "-fPIC"]
        qt = output("pkg-config", "--cflags", "--libs", "Qt5Core", "Qt5Xml").split()
        for name, libraries in (("bound_parse", []), ("bound_store", ["-lsqlite3"]), ("bound_xml", qt)):
            subprocess.run([*compiler, sources / f"{name}.cpp", *libraries, "-o", self.folder / name], check=True)
        rows = sorted({1, 10, 60000, *GROWTH})
        subprocess.run([sys.executable, sources / "gen.py", self.values["data"], *map(str, rows)], check=True)
        self.stores = {"accounts": self.made("accounts", ["accounts", "{data}/konten.xml", "--store", "{store}", "--quiet"]),
                       "filled": self.made("filled", self.of(IMPORT_CSV, 60000)),
                       "emptied": self.made("emptied", FEW, ["undo", "1", "--store", "{store}"])}

    def of(self, arguments, rows):
        return [part.replace("{n}", str(rows)) for part in arguments]

    def words(self, arguments, ours=True):
        return ([self.dmimport] if ours else []) + [part.format(**self.values) for part in arguments]

    def made(self, name, *commands):
        """A store that some commands leave, kept as a copy."""
        self.clear()
        for command in commands:
            subprocess.run(self.words(command), check=True, stdout=subprocess.DEVNULL)
        kept = self.folder / f"{name}.db"
        shutil.copyfile(self.values["store"], kept)
        return kept

    def clear(self):
        for leftover in self.folder.glob("bench.db*"):
            leftover.unlink()

    def prepare(self, store):
        self.clear()
        if store:
            shutil.copyfile(self.stores[store], self.values["store"])
            with open(self.values["store"], "rb") as copy:
                os.fsync(copy.fileno())  # or the run would wait for the copy to reach the disk

    def run(self, words, store=None):
        self.prepare(store)
        return measured(words)

    def bound(self, work):
        if work.bound[0] == "ours":
            return self.run(self.words(work.bound[1]), work.bound_store)
        runs = [self.run(self.words(command, ours=False)) for command in work.bound]
        return Run(sum(r.wall for r in runs), sum(r.cpu for r in runs), max(r.peak for r in runs))

    def pairs(self, work, count):
        self.run(self.words(work.ours), work.store)  # so that no first run pays for a cold cache
        self.bound(work)
        return [(self.run(self.words(work.ours), work.store), self.bound(work)) for _ in range(count)]

    def instructions(self, arguments, rows, store):
        """User-space instructions of a run, which do not depend on what else the machine does."""
        self.prepare(store)
        counted = subprocess.run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null",
                                  *self.words(self.of(arguments, rows))], check=True, capture_output=True, text=True)
        return int(re.search(r"Collected : (\d+)", counted.stderr)[1])


def median(values):
    return statistics.median(list(values))


def spread(values):
    low, middle, high = statistics.quantiles(values, n=4, method="inclusive")
    return f"{middle:.2f} ({low:.2f} to {high:.2f})"


def table(head, rows):
    lines = ["| " + " | ".join(head) + " |", "|" + "---|" * len(head)]
    return lines + ["| " + " | ".join(str(cell) for cell in row) + " |" for row in rows] + [""]


def machine():
    cpu = re.search(r"model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text())
    memory = int(re.search(r"MemTotal:\s*(\d+)", pathlib.Path("/proc/meminfo").read_text())[1]) // 2**20
    system = re.search(r'PRETTY_NAME="(.*)"', pathlib.Path("/etc/os-release").read_text())[1]
    return [f"{cpu[1] if cpu else platform.machine()}, {os.cpu_count()} cores, {memory} GiB; {system}, Linux {platform.release().split('-')[0]};",
            f"{output('g++', '--version').splitlines()[0]}; SQLite {output('pkg-config', '--modversion', 'sqlite3').strip()}, "
            f"Qt {output('pkg-config', '--modversion', 'Qt5Core').strip()}.", ""]


def whole_runs(bench, count):
    rows = []
    for work in WORKS:
        pairs = bench.pairs(work, count)
        ratios = [ours.wall / bound.wall for ours, bound in pairs]
        rows.append([work.name, f"{median(o.wall for o, _ in pairs):.3f}", f"{median(b.wall for _, b in pairs):.3f}",
                     spread(ratios), f"{median(o.cpu / b.cpu for o, b in pairs):.2f}", work.goal,
                     "yes" if median(ratios) <= work.goal else "**no**",
                     f"{max(o.peak for o, _ in pairs):.0f} / {max(b.peak for _, b in pairs):.0f}"])
        print(*rows[-1], sep="  ", flush=True)
    start = [(bench.run(bench.words(["formats"])).wall, bench.run(["/bin/true"]).wall) for _ in range(4 * count)]
    more = median((ours - true) * 1000 for ours, true in start)
    print("formats", more, flush=True)
    return [f"### Whole runs, {ROWS:,} bookings", ""] + table(
        ["work", "ours (s)", "bound (s)", "ratio of the wall times", "of CPU times", "goal", "reached", "peak memory (MiB)"], rows) + [
        f"`dmimport formats` takes {more:.1f} ms more than `/bin/true` (goal: at most 10).", ""]


GROWING = [("CSV", IMPORT_CSV, None), ("CSV, nothing given", INSPECTED_CSV, None), ("CSV, simulated", PREVIEW_CSV, None),
           ("QIF", IMPORT_QIF, None), ("StarMoney", IMPORT_SSX, None), ("XML", BOOKINGS, "accounts")]


def growth_in_time(bench, count):
    """CPU microseconds of a row, by work and number of rows."""
    def of(arguments, store, number):
        pairs = [(bench.run(bench.words(bench.of(arguments, number)), store).cpu,
                  bench.run(bench.words(bench.of(arguments, 1)), store).cpu) for _ in range(count)]
        return median(many - one for many, one in pairs) / (number - 1) * 1e6
    return {name: [of(arguments, store, number) for number in GROWTH] for name, arguments, store in GROWING}


def growth(bench, timed):
    rows = []
    for name, arguments, store in GROWING:
        few = bench.instructions(arguments, 1, store)
        counted = [(bench.instructions(arguments, number, store) - few) / (number - 1) for number in GROWTH]
        rows.append([name, *(f"{value:,.0f}" for value in counted), f"{max(counted) / min(counted) - 1:.1%}",
                     *(f"{value:.2f}" for value in timed[name])])
        print(*rows[-1], sep="  ", flush=True)
    sizes = [f"{number:,}" for number in GROWTH]
    return ["### Growth", "", "Cost of a row over a run of one row: instructions in user space, and CPU microseconds, in files of so many rows.", ""] + table(
        ["work", *(f"instructions, {size}" for size in sizes), "spread", *(f"µs, {size}" for size in sizes)], rows)


def stages(build):
    result = json.loads(output(str(build / "bench" / "import_bench"), "--benchmark_format=json", "--benchmark_min_time=0.2"))
    rows = []
    failed = [case["name"] for case in result["benchmarks"] if case.get("error_occurred")]
    if failed:
        sys.exit(f"cases that failed: {', '.join(failed)}")
    largest = {case["name"].rpartition("/")[0]: case for case in result["benchmarks"]}  # sizes ascend
    for case in largest.values():
        rate = case.get("items_per_second")
        bytes_rate = case.get("bytes_per_second")
        rows.append([f"`{case['name']}`", f"{case['cpu_time']:,.0f} {case['time_unit']}", f"{1e9 / rate:,.0f} ns" if rate else "",
                     f"{bytes_rate / 2**20:,.0f} MiB/s" if bytes_rate else ""])
    return ["### Stages", "", "One stage at a time, in memory (`import_bench`).", ""] + table(["case", "CPU time", "an item", "bytes"], rows)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", type=pathlib.Path, required=True, help="build folder of the release preset")
    parser.add_argument("--bounds", type=pathlib.Path, required=True, help="folder with the bounds and their generator")
    parser.add_argument("--pairs", type=int, default=15, help="how often each pair is run")
    parser.add_argument("--write", action="store_true", help="write the figures into docs/performance.md")
    given = parser.parse_args()
    with tempfile.TemporaryDirectory(prefix="performance_") as folder:
        bench = Bench(given.build.resolve(), given.bounds.resolve(), folder)
        lines = machine() + whole_runs(bench, given.pairs)
        timed = growth_in_time(bench, max(3, given.pairs // 3))
        staged = stages(given.build.resolve())
        print("What follows is counted, not timed.", flush=True)
        lines += growth(bench, timed) + staged
    if not given.write:
        print("\n".join(lines))
        return
    before, _, rest = DOCUMENT.read_text().partition(BEGIN)
    DOCUMENT.write_text(before + BEGIN + "\n" + "\n".join(lines) + END + rest.partition(END)[2])


if __name__ == "__main__":
    main()
