#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# The installed headers compile as C++17 and as C++20 with every compiler that is there; each twice.
#
# usage: headers-test.sh INCLUDES together|alone [FLAG...]
#   together   all in one unit: what clashes or lacks a guard is found
#   alone      a unit for each: what lacks an include is found as well; takes minutes
set -euo pipefail
includes=$1 how=$2
shift 2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

mapfile -t headers < <(cd "$includes" && find . -name '*.h' | sed 's|^\./||' | sort)
((${#headers[@]} > 0))
for header in "${headers[@]}"; do
    unit=$work/all.cpp
    [[ $how == together ]] || unit=$work/${header//\//-}.cpp
    printf '#include "%s"\n#include "%s"\n' "$header" "$header" >>"$unit"
done

for compiler in g++ clang++; do
    command -v "$compiler" >/dev/null || continue
    for standard in 17 20; do
        echo "$compiler, C++$standard"
        "$compiler" "-std=c++$standard" -fsyntax-only -fPIC -Wall -Wextra -Wpedantic -Werror -I "$includes" "$@" "$work"/*.cpp
    done
done
