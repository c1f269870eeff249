#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# Installs what is missing, builds the project and runs all tests.
#
# usage: scripts/test.sh [OPTION...]     without options: the tests, built with g++
#   --format     layout of the sources (scripts/lint.sh --format)
#   --lint       layout and lint of the sources (scripts/lint.sh)
#   --recent     layout of the sources, and lint of those that were changed last
#   --clang      build with clang++, warnings are errors
#   --sanitize   the tests under AddressSanitizer and UndefinedBehaviorSanitizer
#   --coverage   the tests, instrumented, with a report (scripts/coverage.sh)
#   --tests      the tests, as without options
#   --consumers  the same build used by others: each installed header alone, the library in a program's own build
#   --all        all of these, in this order
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
jobs=$(nproc)

usage() { sed -n '/^# usage/,/^set/{/^set/d;s/^# \{0,1\}//p}' "${BASH_SOURCE[0]}"; }

step() { printf '\n== %s (%d s so far)\n' "$1" "$SECONDS"; }

build() {
    cmake --preset "$1"
    cmake --build --preset "$1" --parallel "$jobs"
}

run_tests() {
    ctest --preset "$1" --parallel "$jobs"
}

do_lint() {
    step "Layout and lint"
    scripts/lint.sh
}

do_recent() {
    step "Layout, and lint of what was changed last"
    scripts/lint.sh --recent
}

do_format() {
    step "Layout"
    scripts/lint.sh --format
}

do_clang() {
    step "Build with clang++"
    build clang
}

do_sanitize() {
    step "Tests under AddressSanitizer and UndefinedBehaviorSanitizer"
    build sanitize
    run_tests sanitize
}

do_coverage() {
    step "Coverage of the library"
    scripts/coverage.sh
}

do_tests() {
    step "Tests"
    build quick
    run_tests quick
}

do_consumers() {
    step "Programs of others"
    build quick
    run_tests consumer-full
}

# In the order of the list above, whatever the order on the command line.
declare -A chosen=()
for option in "$@"; do
    case $option in
    --format | --lint | --recent | --clang | --sanitize | --coverage | --tests | --consumers) chosen[${option#--}]=1 ;;
    --all) chosen=([lint]=1 [clang]=1 [sanitize]=1 [coverage]=1 [tests]=1 [consumers]=1) ;;
    --help) usage && exit 0 ;;
    *)
        printf 'test.sh: no such option: %s\n\n' "$option" >&2
        usage >&2
        exit 2
        ;;
    esac
done
if ((${#chosen[@]} == 0)); then
    chosen[tests]=1
fi

step "Packages"
scripts/install-packages.sh build
for name in format lint recent clang sanitize coverage tests consumers; do
    [[ -n ${chosen[$name]:-} ]] || continue
    [[ $name == tests || $name == sanitize ]] || scripts/install-packages.sh check
    "do_$name"
done
