#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# Compares what hosts are built against - exported functions, layouts of classes, virtual slots, numbers of enumerations -
# with the record in abi/. Docs: docs/releasing.md.
#
# usage: scripts/abi.sh [--write] [BUILD [RECORDS]]
#   --write  renews the records that differ; all others stay as they are, byte for byte
#   BUILD    a build of the preset dev (which is the default) or quick: by g++, with debug info, and up to date
#   RECORDS  the folder of the records; by default abi/
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

die() {
    printf 'abi.sh: %s\n' "$@" >&2
    exit 2
}

write=
if [[ ${1:-} == --write ]]; then
    write=yes
    shift
fi
(($# <= 2)) || die "too many arguments"
build=${1:-$here/build/dev}
records=${2:-$here/abi}
command -v abidw >/dev/null && command -v abidiff >/dev/null || die "abidw and abidiff are missing: scripts/install-packages.sh build"
grep -q '^CMAKE_BUILD_TYPE:[A-Z]*=RelWithDebInfo$' "$build/CMakeCache.txt" || die "$build: no build of preset dev or quick"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for component in Library Development; do
    cmake --install "$build" --component "$component" --prefix "$work/tree" >"$work/log" || {
        cat "$work/log" >&2
        die "$build: cannot be installed; is it built?"
    }
done

# The label is known to the tools' library alone, which compares it whole.
tools=$(ldd "$(command -v abidw)" | awk '/libabigail/ { print $3 }')
label=$(grep -aom1 'Artificial private types [a-z ]*' "$tools") || die "$tools has no label for private types"
sed "s/@PRIVATE_TYPES@/$label/" "$here/abi/ours.ini" >"$work/ours.ini"

# The same wherever the sources lie and whatever the units are called; how the classes of others are made is left out.
recorded() { # LIBRARY
    abidw --exported-interfaces-only --drop-private-types --headers-dir "$work/tree/include/import-module" \
        --suppressions "$work/ours.ini" --type-id-style hash --no-parameter-names --no-show-locs --no-elf-needed \
        --no-corpus-path --no-comp-dir-path --no-write-default-sizes "$1" | sed -E "s|path='[^']*/src/|path='src/|"
}

# Prints what differs; fails where nothing does. What abidiff takes for harmless counts as well: a number of an
# enumeration may be one that hosts store.
compare() { # NAME
    local both=("$records/$1.abi" "$work/$1.abi") status=0
    abidiff --harmless "${both[@]}" >"$work/report" || status=$?
    ((status != 0)) || return
    ((status & 3)) && die "abidiff failed" "$(<"$work/report")"
    printf '== %s\n' "$1"
    # Each change where it was made, rather than at every function that it reaches.
    abidiff --harmless --leaf-changes-only "${both[@]}" >"$work/leaves" || cp "$work/leaves" "$work/report"
    cat "$work/report"
    return 0 # whatever becomes of what was printed
}

differ=()
for name in libImportModule libDm libDmBasicServices; do
    library=$(find "$work/tree" -name "$name.so" -print -quit)
    [[ -n $library ]] || die "$build has no $name.so"
    recorded "$library" >"$work/$name.abi" || die "abidw failed for $library"
    grep -q '<function-decl ' "$work/$name.abi" || die "$library has no debug info"
    if [[ -e $records/$name.abi ]]; then
        compare "$name" || continue
    else
        printf '== %s: no record\n' "$name"
    fi
    differ+=("$name")
    [[ -z $write ]] || cp "$work/$name.abi" "$records/$name.abi"
done

((${#differ[@]} > 0)) || exit 0
if [[ -n $write ]]; then
    printf 'renewed: %s\n' "${differ[@]}"
    exit 0
fi
cat <<END
What hosts are built against differs from its record (above: the record first, then this build).
Something removed or changed breaks hosts: the version must be raised, which changes the SONAME (docs/releasing.md, "The
record of what hosts are built against"). Something added does not. If it is meant, renew the record and commit it with the change:
  scripts/abi.sh --write ${build@Q}
END
exit 1
