#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# Reads off the built files that they are hardened: position independent, relocations read-only
# and bound at the start, no executable stack, stack protector, checked functions of the C library.
#
# usage: hardening-test.sh PROGRAM LIBRARY...
set -uo pipefail
failures=0

expect() { # FILE, WHAT, and a command that succeeds when the file has it
    local file=$1 what=$2
    shift 2
    if ! "$@"; then
        printf '%s: %s is missing\n' "$file" "$what"
        ((++failures))
    fi
}

holds() { grep -qE -- "$2" <<<"$1"; }
lacks() { ! grep -qE -- "$2" <<<"$1"; }

for file in "$@"; do
    header=$(readelf -hW "$file") || exit 1
    segments=$(readelf -lW "$file")
    dynamic=$(readelf -dW "$file")
    symbols=$(readelf --dyn-syms -W "$file")
    expect "$file" "position independence (PIE)" holds "$header" 'Type: +DYN'
    expect "$file" "read-only relocations (RELRO)" holds "$segments" 'GNU_RELRO'
    expect "$file" "binding at the start (BIND_NOW)" holds "$dynamic" 'BIND_NOW|FLAGS_1.*NOW'
    expect "$file" "a stack that is not executable" holds "$segments" 'GNU_STACK.* RW '
    expect "$file" "a lack of segments both writable and executable" lacks "$segments" 'LOAD.* RWE '
done

# Not every library has an array on the stack or a copy of unknown length; the program has both.
symbols=$(readelf --dyn-syms -W "$1")
expect "$1" "the stack protector" holds "$symbols" '__stack_chk_fail'
expect "$1" "a checked function (_FORTIFY_SOURCE)" holds "$symbols" '__[a-z]+_chk(@|$| )'
expect "$2" "the stack protector" holds "$(readelf --dyn-syms -W "$2")" '__stack_chk_fail'

exit $((failures > 0 ? 1 : 0))
