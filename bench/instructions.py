#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
"""Counts the instructions of one small run of each kind and compares them with the figures
kept in instructions.txt. Counts do not depend on what else the machine does: the same
program reads the same bytes with the same count, so that a growth is a change of ours.

usage: instructions.py DMIMPORT [--write]

Fails when a count is more than a tenth above its figure. --write keeps the counts as the
new figures; a change that makes something slower on purpose says so in its message.
Needs valgrind. The figures are those of the preset quick.
"""
import pathlib
import re
import subprocess
import sys
import tempfile

FIGURES = pathlib.Path(__file__).with_name("instructions.txt")
ALLOWED = 1.10
ROWS = 1000

NAMES = ["Drogerie Neumann", "Bäckerei Übelacker", "Stadtwerke Nordheim", "Vermieter Grün", "Bahn"]
PURPOSES = ["Rechnung", "Karte 1234", "Abschlag Strom", "Miete", "Beleg Kasse Kunde"]
COLUMNS = "0=Datum,1=Empfaenger,2=Verwendungszweck,3=Betrag"


def bookings():
    """Day, month, year, payee, purpose, amount in cents; the same ones every time."""
    state = 1
    for number in range(ROWS):
        state = (state * 1103515245 + 12345) % 2**31
        day, month, year = 1 + number % 28, 1 + number // 84 % 12, 2015 + number // 500
        yield day, month, year, NAMES[state // 7 % 5], f"{PURPOSES[state // 31 % 5]} {state % 900000}", state % 90000 - 70000


def amount(cents, mark):
    return f"{'-' if cents < 0 else ''}{abs(cents) // 100}{mark}{abs(cents) % 100:02}"


def delimited():
    lines = ["Buchungstag;Empfaenger;Verwendungszweck;Betrag"]
    lines += [f"{d:02}.{m:02}.{y};{n};{p};{amount(c, ',')}" for d, m, y, n, p, c in bookings()]
    return "\n".join(lines) + "\n"


def qif():
    return "!Type:Bank\n" + "".join(
        f"D{d}.{m}.{y}\nT{amount(c, '.')}\nP{n}\nM{p}\nLHaushalt\n^\n" for d, m, y, n, p, c in bookings())


def star_money():
    """Date, payee, amount, currency, fourteen lines of purpose, kind of booking, category, subcategory."""
    names = ["BuchDatum", "AgName1", "Betrag", "BtgWaehr", *(f"VWZ{i}" for i in range(1, 15)), "BuchText", "Kategorie", "Unterkat"]
    lines = ["|".join(names)]
    lines += ["|".join([f"{d:02}.{m:02}.{y}", n, amount(c, ","), "EUR", p, *[""] * 13, "LASTSCHRIFT", "Haushalt", "Miete"])
              for d, m, y, n, p, c in bookings()]
    return "\n".join(lines) + "\n"


def document(content):
    return f'<?xml version="1.0" encoding="UTF-8"?>\n<HomeBanking version="1.0">\n{content}</HomeBanking>\n'


def account_list():
    return document("<kontoliste>\n<konto><blz>100</blz><ktonr>0815</ktonr></konto>\n</kontoliste>\n")


def booking_list():
    return document('<buchungsliste blz="100" ktonr="0815">\n' + "".join(
        f"<buchung><id>B{i}</id><datum>{d:02}.{m:02}.{y}</datum><betrag>{amount(c, ',')}</betrag>"
        f"<empfaenger>{n}</empfaenger><verwendungszweck>{p}</verwendungszweck></buchung>\n"
        for i, (d, m, y, n, p, c) in enumerate(bookings())) + "</buchungsliste>\n")


VERBATIM = ["--verbatim", "--delimiter", ";", "--header", "--columns", COLUMNS]
# The run that is counted, after the runs that prepare its store.
RUNS = {
    "start": ([], ["formats"]),
    "csv-import": ([], ["import", "a.csv", "--store", "s.db", "--quiet", *VERBATIM]),
    "csv-preview": ([], ["preview", "a.csv", "--limit", "0", "--quiet", *VERBATIM]),
    "csv-inspected": ([], ["import", "a.csv", "--store", "s.db", "--quiet"]),
    "csv-known": ([["import", "a.csv", "--store", "s.db", "--quiet"]],
                  ["import", "a.csv", "--store", "s.db", "--quiet", "--new-only"]),
    "qif-import": ([], ["import", "a.qif", "--store", "s.db", "--quiet", "--verbatim"]),
    "ssx-import": ([], ["import", "a.ssx", "--store", "s.db", "--quiet", "--verbatim"]),
    "xml-bookings": ([["accounts", "k.xml", "--store", "s.db", "--quiet"]],
                     ["bookings", "b.xml", "--store", "s.db", "--quiet"]),
    "export": ([["import", "a.csv", "--store", "s.db", "--quiet"]], ["export", "--store", "s.db", "--to", "csv"]),
}


# The C library and the checksum take other ways on other processors: these take the oldest on each.
PLAIN_PROCESSOR = {"GLIBC_TUNABLES": "glibc.cpu.hwcaps=-AVX512F,-AVX512VL,-AVX512BW,-AVX2,-AVX,-BMI2,-BMI1,-LZCNT,-MOVBE,-ERMS,-FSRM,-RTM,-SSE4_2,-SSE4_1,-SSSE3",
                   "OPENSSL_ia32cap": "0:0"}


def count(program, folder, before, arguments):
    (folder / "s.db").unlink(missing_ok=True)
    quiet = {"cwd": folder, "stdout": subprocess.DEVNULL, "stderr": subprocess.PIPE, "check": True}
    environment = {"PATH": "/usr/bin:/bin", "HOME": str(folder), "TMPDIR": str(folder), "LC_ALL": "C", **PLAIN_PROCESSOR}
    for run in before:
        subprocess.run([program, *run], env=environment, **quiet)
    told = subprocess.run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", program, *arguments],
                          env=environment, **quiet).stderr.decode()
    return int(re.search(r"Collected : (\d+)", told).group(1))


def kept():
    words = [line.split() for line in FIGURES.read_text().splitlines() if line and not line.startswith("#")]
    return {name: int(figure) for name, figure in words}


def main():
    if len(sys.argv) not in (2, 3) or sys.argv[2:] not in ([], ["--write"]):
        sys.exit(__doc__)
    program = str(pathlib.Path(sys.argv[1]).resolve())
    with tempfile.TemporaryDirectory(prefix="instructions_") as name:
        folder = pathlib.Path(name)
        for file, text in {"a.csv": delimited(), "a.qif": qif(), "a.ssx": star_money(), "k.xml": account_list(), "b.xml": booking_list()}.items():
            (folder / file).write_text(text, encoding="utf-8" if file.endswith("xml") else "latin-1")
        counts = {run: count(program, folder, *RUNS[run]) for run in RUNS}
    if "--write" in sys.argv:
        FIGURES.write_text("# Instructions of one run over 1,000 bookings (instructions.py).\n" +
                           "".join(f"{run} {figure}\n" for run, figure in counts.items()))
        return
    figures = kept()
    grown = 0
    for run, counted in counts.items():
        if run not in figures:
            print(f"{run:14} {counted:>12,}  no figure: keep one with --write")
            grown += 1
            continue
        ratio = counted / figures[run]
        verdict = "too much" if ratio > ALLOWED else "less: keep it with --write" if ratio < 2 - ALLOWED else ""
        grown += ratio > ALLOWED
        print(f"{run:14} {counted:>12,} {ratio:6.3f} {verdict}".rstrip())
    sys.exit(1 if grown else 0)


if __name__ == "__main__":
    main()
