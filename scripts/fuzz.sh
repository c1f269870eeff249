#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# Builds the fuzz targets and runs each for a while, one after the other (docs/fuzzing.md).
#
# usage: scripts/fuzz.sh [SECONDS [TARGET...]]      by default 60 seconds each, all targets
#
# What is found goes to build/fuzz-finds/TARGET/, inputs that reach something new to build/fuzz-corpus/TARGET/.
# The status is 1 when anything was found.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Longest input, in bytes; small inputs are fast ones. A line is read up to 4,094 bytes: two targets must see a longer one.
declare -A longest=(
    [date_parsing]=512 [amounts]=900 [line_splitting]=700 [preview_table]=600 [delimiter_detection]=1024
    [row_pipeline]=10000 [csv_import]=9000 [star_money]=6000 [qif_import]=6000
    [account_list]=6000 [booking_list]=6000 [xml_list]=6000 [intake_inspection]=6000 [intake_preparation]=6000 [csv_export]=600 [store_opening]=400
)

seconds=60
if (($# > 0)); then
    seconds=$1
    shift
fi
[[ $seconds =~ ^[1-9][0-9]*$ ]] || {
    sed -n '/^# usage/,/^# The status/s/^# \{0,1\}//p' "${BASH_SOURCE[0]}" >&2
    exit 2
}
targets=("$@")
if ((${#targets[@]} == 0)); then
    for folder in fuzz/seeds/*/; do
        targets+=("$(basename "$folder")")
    done
fi

scripts/install-packages.sh build fuzz
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz

figure() { # NAME FILE: of libFuzzer's closing figures
    sed -n "s/^stat::$1: *//p" "$2"
}

run() { # TARGET: one line of the table
    local target=$1
    local corpus=build/fuzz-corpus/$target finds=build/fuzz-finds/$target
    local log=build/fuzz-finds/$target.log status=0 pid
    mkdir -p "$corpus" "$finds"
    "build/fuzz/fuzz/fuzz_$target" "$corpus" "fuzz/seeds/$target" \
        -dict="fuzz/dictionaries/$target.dict" -max_len="${longest[$target]:-4096}" -max_total_time="$seconds" \
        -timeout=25 -rss_limit_mb=2500 -print_final_stats=1 -artifact_prefix="$finds/" >"$log" 2>&1 &
    pid=$!
    wait "$pid" || status=$?
    rm -f "/dev/shm/import-module-fuzz-$pid".* # a find ends the program before it can do so
    local reached
    reached=$(grep -oE 'cov: [0-9]+ ft: [0-9]+' "$log" | tail -n 1) || reached='cov: 0 ft: 0'
    # shellcheck disable=SC2086 # four words
    set -- $reached
    printf '%-22s %12s %8s %8s %9s %6s\n' "$target" "$(figure number_of_executed_units "$log")" \
        "$(figure average_exec_per_sec "$log")" "$2" "$4" "$((status == 0 ? 0 : 1))"
    return "$status"
}

export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_stack_use_after_return=1:strict_string_checks=1}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1}
found=0
printf '%-22s %12s %8s %8s %9s %6s\n' target executions per_s edges features finds
for target in "${targets[@]}"; do
    [[ -x build/fuzz/fuzz/fuzz_$target ]] || {
        echo "fuzz.sh: no such target: $target" >&2
        exit 2
    }
    run "$target" || found=1
done
if ((found > 0)); then
    echo "Found something: see build/fuzz-finds/ (docs/fuzzing.md says how to go on)." >&2
fi
exit "$found"
