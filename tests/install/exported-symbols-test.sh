#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# A library exports what an installed header marks for export, and nothing else: no template of the standard
# library, nothing of Qt, nothing that only our own sources know.
#
# usage: exported-symbols-test.sh INCLUDES LIBRARY...
set -euo pipefail
includes=$1
shift

# Names that a header marks: of classes, of the contract's classes that are made of inline functions alone, of
# functions and of variables.
marked=$(
    grep -rhoE '(class|struct) ((IMPORT_MODULE|DM)_API )?[A-Z][A-Za-z0-9_]*( final)? *(:|\{)' "$includes" |
        sed -E 's/^(class|struct) ((IMPORT_MODULE|DM)_API )?([A-Za-z0-9_]+).*/\4/'
    grep -rhE '^(extern )?(IMPORT_MODULE|DM)_API|^namespace ' "$includes" | grep -oE '[A-Za-z_][A-Za-z0-9_]*(\(|;|\[| = | \{)' | sed -E 's/[^A-Za-z0-9_]//g'
)
[[ -n $marked ]]

unmarked=$(
    for library in "$@"; do
        nm -DC --defined-only "$library" | sed -E 's/^[0-9a-f]* *[A-Za-z] //' |
            sed -E 's/^(typeinfo name|typeinfo|vtable|VTT|guard variable) for //; s/^(non-virtual|virtual) thunk to //' |
            sed -E 's/^([A-Za-z_][A-Za-z0-9_]*).*/\1/'
    done | sort -u | grep -vxF "$marked" || true
)
if [[ -n $unmarked ]]; then
    printf 'exported, but marked in no installed header:\n%s\n' "$unmarked"
    exit 1
fi
