#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# Runs all tests instrumented and reports which lines and branches of the library they reach.
# Fails below 100 % of lines or 95 % of branches. Branches that only an exception takes, and
# those the compiler knows to be dead, do not count. Details: build/coverage/report/index.html
#
# usage: scripts/coverage.sh
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/install-packages.sh build check

build=build/coverage
cmake --preset coverage
cmake --build --preset coverage --parallel "$(nproc)"
find "$build" -name '*.gcda' -delete
ctest --preset coverage --parallel "$(nproc)"

mkdir -p "$build/report"
gcovr --root . --object-directory "$build" -j "$(nproc)" \
    --filter 'src/(framework|dmwrite|csv|qif|homebanking)/' \
    --exclude-throw-branches --exclude-unreachable-branches \
    --json "$build/coverage.json"
merged=(gcovr --root . --add-tracefile "$build/coverage.json")
"${merged[@]}" --txt
"${merged[@]}" --txt --branches
"${merged[@]}" --html-details "$build/report/index.html" --print-summary --fail-under-line 100 --fail-under-branch 95 \
    --txt /dev/null
