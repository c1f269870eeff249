#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# Copies each example, as a reader would, builds it with the installed library and holds its page against what it prints.
#
# usage: examples-alone-test.sh PROJECT WORK TREE PYTHON [CMAKE OPTION...]
set -euo pipefail
project=$1 work=$2 tree=$3 python=$4
shift 4

rm -rf "$work"
for example in smallest-host own-model preview sessions; do
    mkdir -p "$work/$example"
    cp -r "$project/examples/$example/." "$work/$example/source"
    cmake -S "$work/$example/source" -B "$work/$example/build" -G Ninja -DCMAKE_PREFIX_PATH="$tree" "$@" >"$work/log" || {
        cat "$work/log"
        exit 1
    }
    cmake --build "$work/$example/build"
    "$python" "$project/tests/docs/check_document.py" --project "$project" \
        --program "$work/$example/build/$example" "$project/examples/$example/README.md"
done
