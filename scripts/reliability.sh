#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# The reliability campaign at full length (docs/reliability.md): every parser fuzzed, every allocation and every change to a
# file failed once, 200 kills, the load runs. The ordinary tests hold a short form of it.
#
# usage: scripts/reliability.sh [SECONDS]     how long each parser is fuzzed; 600 by default, 0 for not at all
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
seconds=${1:-600}
[[ $seconds =~ ^[0-9]+$ ]] || {
    sed -n '/^# usage/s/^# //p' "${BASH_SOURCE[0]}" >&2
    exit 2
}

step() { printf '\n== %s (%d s so far)\n' "$1" "$SECONDS"; }

status=0
scripts/install-packages.sh build
step "Build"
cmake --preset quick
cmake --build --preset quick --parallel "$(nproc)"

export IMPORT_MODULE_CAMPAIGN=full
step "Faults, kills and load"
for program in reliability/AllocationFailureTest reliability/ReliabilityTest store/StoreTest; do
    "build/quick/tests/$program" --gtest_brief=1 || status=1
done
step "Seeds of the fuzz targets"
ctest --preset quick -R '^fuzz_replay' || status=1

if ((seconds > 0)); then
    step "Fuzzing, $seconds s for each target"
    scripts/fuzz.sh "$seconds" || status=1
fi
step "$([[ $status == 0 ]] && echo 'Nothing was found' || echo 'Something was found, see above')"
exit "$status"
