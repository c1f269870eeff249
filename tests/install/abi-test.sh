#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# The libraries of a build are what the record in abi/ says; and a record that says otherwise is told from it.
#
# usage: abi-test.sh SCRIPT BUILD RECORDS
set -euo pipefail
script=$1 build=$2 records=$3

"$script" "$build"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
# differs RECORD EDIT TOLD: the build differs from a record that was edited, and the report has this.
differs() {
    cp "$records"/*.abi "$work"
    sed -i -E "$2" "$work/$1.abi"
    local status=0
    "$script" "$build" "$work" >"$work/report" 2>&1 || status=$?
    if [[ $status != 1 ]] || ! grep -qx "== $1" "$work/report" || ! grep -qF -e "$3" "$work/report" || ! grep -q -e '--write' "$work/report"; then
        echo "FAILED: $2: exit code $status, and no $3 in:"
        cat "$work/report"
        ((++failures))
    fi
}
# A function is gone, or new.
differs libDmBasicServices "s/('|14)(DayWithin)Month/\1\2Monat/g" DayWithinMonat
differs libDm "/elf-symbol name='_ZNK11DataManager4rootEv'/d; s/ elf-symbol-id='_ZNK11DataManager4rootEv'//" DataManager::root
# The layout of a class, and the order of its virtual operations.
differs libImportModule "s/(name='ImportInputParams' size-in-bits=')[0-9]+/\18/" ImportInputParams
differs libDm "/class-decl name='DMDate'/,/<.class-decl>/s/(layout-offset-in-bits=')24'/\132'/" m_day
differs libImportModule "s/(vtable-offset=')3'/\199'/" 'the vtable offset of method'
# What abidiff takes for harmless.
differs libImportModule "/enumerator name='eColDatum'/d" eColDatum

# Where there is no record it is written, and is the same then as the one that is kept, to abidiff.
rm -f "$work"/*.abi
"$script" --write "$build" "$work" >"$work/report"
for record in "$records"/*.abi; do
    abidiff --harmless "$record" "$work/${record##*/}" || ((++failures))
done
[[ $(ls "$work"/*.abi | wc -l) == $(ls "$records"/*.abi | wc -l) ]] || {
    echo "FAILED: not every record was written"
    ((++failures))
}
exit $((failures > 0 ? 1 : 0))
