#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# Installs what is missing, builds dmimport, previews and imports the sample files of data/ into
# a fresh store and shows it.
#
# usage: scripts/try.sh
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/install-packages.sh build

cmake --preset release -DIMPORT_MODULE_BUILD_TESTS=OFF -DIMPORT_MODULE_BUILD_BENCH=OFF
cmake --build --preset release --parallel "$(nproc)"
dmimport=build/release/src/cli/dmimport
store=build/bestand.db
rm -f "$store" "$store"-*

# Shows a command as a person would type it, then runs it.
show() {
    printf '\n$'
    printf ' %s' "${@@Q}" | sed "s|'\([][A-Za-z0-9_=./:-]*\)'|\1|g; s|$dmimport|dmimport|"
    printf '\n'
    "$@"
}

# Previews and imports one file.
sample() {
    show "$dmimport" preview "$1" --limit 5
    show "$dmimport" import "$1" --store "$store"
}

show "$dmimport" inspect data/umsaetze.csv
sample data/umsaetze.csv
sample data/girokonto.csv
sample data/steuerdaten.sdi
sample data/haushalt.zhof
sample data/girokonto.ssx
sample data/haushaltsbuch.qif

show "$dmimport" show --store "$store"
show "$dmimport" show sessions --store "$store"
show sqlite3 -header -column "$store" \
    "select Datum, Betrag, Empfaenger from DataSets where Betrag > 0 order by Datum desc limit 5"

printf '\nThe store is %s. "%s --help" tells what else there is.\n' "$store" "$dmimport"
