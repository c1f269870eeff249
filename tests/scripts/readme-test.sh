#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# Runs the example at the top of README.md, the first fenced block, and compares what it prints
# with what stands there. Lines that begin with "$ " are commands; a backslash at the end goes on.
#
# usage: readme-test.sh PROJECT DMIMPORT
set -euo pipefail
project=$1
dmimport=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

mkdir "$folder/bin" "$folder/work"
ln -s "$dmimport" "$folder/bin/dmimport"
ln -s "$project/data" "$folder/work/data"
PATH=$folder/bin:$PATH

awk '/^```/ { fences++; next } fences == 1' "$project/README.md" >"$folder/example"
awk -v commands="$folder/commands" -v expected="$folder/expected" '
    function is_command() { return /^\$ / || continued }
    { line = $0; command = is_command(); continued = command && line ~ /\\$/ }
    command { sub(/^\$ /, "", line); print line > commands; next }
    { print line > expected }' "$folder/example"

(cd "$folder/work" && bash -eu "$folder/commands") >"$folder/printed" 2>&1 || {
    cat "$folder/printed" >&2
    echo "FAILED: a command of the example in README.md" >&2
    exit 1
}
[[ -s $folder/expected ]] || {
    echo "FAILED: no example found in README.md" >&2
    exit 1
}
diff -u --label README.md --label printed "$folder/expected" "$folder/printed"
