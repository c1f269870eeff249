#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
"""Times whole runs of dmimport beside other commands that do comparable work.

Each pair of runs follows one another, so that a machine whose speed drifts spoils
neither side alone; a ratio is the median of the pairs' ratios. CPU seconds are user
and system time together. Every run starts from a fresh store, and a failed run ends
the measurement.

Workloads (ROWS is what --rows says):
    csv-import, csv-preview, qif-import, ssx-import
                     a file of ROWS bookings, read verbatim
    csv-inspected, qif-inspected, ssx-inspected
                     the same imports without an option: inspected and prepared first
    xml-bookings     a booking list of ROWS bookings, into a store that has the account
    xml-accounts     an account list of ROWS accounts, into a new store
    xml-statements   --accounts booking lists, one for each account, ROWS bookings in all

A bound is a command to run beside a workload; {file} and {store} are replaced in it.
A bound that reads "= WORKLOAD" is that workload itself. Example:

    bench/endtoend.py --build build/release --rows 1000 65000 \\
        --bound csv-import 'store_bound csv {file} {store}' --bound ssx-import '= csv-import'
"""
import argparse
import os
import pathlib
import shlex
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from collections import namedtuple

# command: the arguments of dmimport; files: what makes its input; accounts: whether the
# store has accounts before the run.
Workload = namedtuple("Workload", "command files accounts")
Run = namedtuple("Run", "wall cpu peak")

VERBATIM = ["--verbatim", "--quiet"]
COLUMNS = ["--delimiter", ";", "--header", "--columns", "{columns}"]
STORE = ["--store", "{store}"]
WORKLOADS = {
    "csv-import": Workload(["import", "{file}", *STORE, *VERBATIM, *COLUMNS], "csv", False),
    "csv-preview": Workload(["preview", "{file}", "--limit", "0", *VERBATIM, *COLUMNS], "csv", False),
    "qif-import": Workload(["import", "{file}", *STORE, *VERBATIM], "qif", False),
    "ssx-import": Workload(["import", "{file}", *STORE, *VERBATIM], "ssx", False),
    "csv-inspected": Workload(["import", "{file}", *STORE, "--quiet"], "csv", False),
    "qif-inspected": Workload(["import", "{file}", *STORE, "--quiet"], "qif", False),
    "ssx-inspected": Workload(["import", "{file}", *STORE, "--quiet"], "ssx", False),
    "xml-bookings": Workload(["bookings", "{file}", *STORE, *VERBATIM], "bookings", True),
    "xml-accounts": Workload(["accounts", "{file}", *STORE, *VERBATIM], "accounts", False),
    "xml-statements": Workload(["bookings", "{files}", *STORE, *VERBATIM], "statements", True),
}


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", type=pathlib.Path, required=True, help="build folder of the release preset")
    parser.add_argument("--rows", type=int, nargs="+", default=[1000, 65000], help="bookings per run")
    parser.add_argument("--accounts", type=int, default=1000, help="accounts of xml-statements")
    parser.add_argument("--pairs", type=int, default=11, help="how often each pair is run")
    parser.add_argument("--only", nargs="+", choices=WORKLOADS, default=list(WORKLOADS), metavar="WORKLOAD")
    parser.add_argument("--work", type=pathlib.Path, help="folder for the files (default: a temporary one)")
    parser.add_argument("--bound", nargs=2, action="append", default=[], metavar=("WORKLOAD", "COMMAND"),
                        help="a command to run beside a workload")
    given = parser.parse_args()
    for name, command in given.bound:
        words = shlex.split(command)
        for workload in [name] + (words[1:] if words[:1] == ["="] else []):
            if workload not in WORKLOADS:
                parser.error(f"no such workload: {workload} (there are: {', '.join(WORKLOADS)})")
        if not words or (words[0] == "=" and len(words) != 2):
            parser.error(f"a bound is a command or '= WORKLOAD': {command}")
    return given


def measured(command):
    """One run of a program, which must succeed."""
    start = time.perf_counter()
    process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    wall = time.perf_counter() - start
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"exit status {process.returncode}: {shlex.join(map(str, command[:20]))}")
    return Run(wall, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024)


class Bench:
    """The files in one folder, and runs that read them."""

    def __init__(self, build, folder, accounts):
        self.make_bookings = str(build / "bench" / "make_bookings")
        self.dmimport = str(build / "src" / "cli" / "dmimport")
        self.folder = pathlib.Path(folder)
        self.store = self.folder / "bench.db"
        self.accounts = accounts
        columns = subprocess.run([self.make_bookings, "--columns"], check=True, capture_output=True, text=True)
        self.columns = columns.stdout.strip()
        self.known_accounts = self.folder / "accounts.db"
        account_list = self.made("accounts", accounts, self.folder / "known.xml")
        subprocess.run([self.dmimport, "accounts", account_list, "--store", self.known_accounts, "--quiet"], check=True)

    def made(self, form, count, path, account=1):
        if not path.exists():
            subprocess.run([self.make_bookings, form, str(count), path, str(account)], check=True)
        return str(path)

    def inputs(self, form, rows):
        """The paths of a workload's files, which are made where they are missing."""
        if form != "statements":
            suffix = "xml" if form in ("bookings", "accounts") else form
            return [self.made(form, rows, self.folder / f"{form}_{rows}.{suffix}")]
        folder = self.folder / f"statements_{rows}"
        folder.mkdir(exist_ok=True)
        share, rest = divmod(rows, self.accounts)
        return [self.made("bookings", share + (account <= rest), folder / f"{account}.xml", account)
                for account in range(1, self.accounts + 1)]

    def filled(self, command, files):
        values = {"file": files[0], "store": str(self.store), "columns": self.columns}
        words = []
        for part in command:
            words += files if part == "{files}" else [part.format(**values)]
        return words

    def timed(self, workload, rows):
        """A run of a workload, as a function without arguments."""
        command = [self.dmimport] + self.filled(workload.command, self.inputs(workload.files, rows))
        return lambda: self.run(command, workload.accounts)

    def timed_bound(self, text, workload, rows):
        words = shlex.split(text)
        if words[0] == "=":
            return self.timed(WORKLOADS[words[1]], rows)
        command = self.filled(words, self.inputs(workload.files, rows))
        return lambda: self.run(command, False)

    def run(self, command, with_accounts):
        for leftover in self.folder.glob(self.store.name + "*"):
            leftover.unlink()
        if with_accounts:
            shutil.copyfile(self.known_accounts, self.store)
        return measured(command)


def print_row(name, rows, runs, bound_runs=()):
    wall = statistics.median(run.wall for run in runs)
    cpu = statistics.median(run.cpu for run in runs)
    peak = max(run.peak for run in runs)
    ratios = ""
    if bound_runs:
        for ratio in ([a.cpu / b.cpu for a, b in zip(runs, bound_runs)], [a.wall / b.wall for a, b in zip(runs, bound_runs)]):
            ratios += f" {statistics.median(ratio):9.2f}"
    print(f"{name:30} {rows:6} {wall:8.4f} {cpu:8.4f} {cpu / rows * 1e6:9.3f} {peak:8.1f}{ratios}", flush=True)


def measure(bench, name, rows, pairs, bounds):
    workload = WORKLOADS[name]
    ours = bench.timed(workload, rows)
    ours()  # so that no first run pays for a cold cache
    if not bounds:
        print_row(name, rows, [ours() for _ in range(pairs)])
    for bound in bounds:
        theirs = bench.timed_bound(bound, workload, rows)
        theirs()
        runs = [(ours(), theirs()) for _ in range(pairs)]
        our_runs, their_runs = zip(*runs)
        print_row(name, rows, our_runs, their_runs)
        print_row("  " + " ".join(pathlib.Path(word).name for word in shlex.split(bound)[:2]), rows, their_runs)


def main():
    given = arguments()
    with tempfile.TemporaryDirectory(prefix="import_bench_", dir=given.work) as folder:
        bench = Bench(given.build, folder, given.accounts)
        print(f"{'run':30} {'rows':>6} {'wall s':>8} {'CPU s':>8} {'CPU us/row':>9} {'peak MiB':>7}"
              f" {'CPU ratio':>9} {'wall ratio':>9}")
        for rows in given.rows:
            for name in given.only:
                measure(bench, name, rows, given.pairs, [command for bound, command in given.bound if bound == name])


if __name__ == "__main__":
    main()
