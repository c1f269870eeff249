#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# What a shell offers behind "dmimport" is what the program takes: commands, the options of each, and files where it
# takes files.
#
# usage: completion-test.sh SHELL FILE DMIMPORT
set -euo pipefail
shell=$1 file=$2 dmimport=$3
source "$(dirname "${BASH_SOURCE[0]}")/program-options.sh"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
touch "$work/umsaetze januar.csv"
cd "$work"

# offered WORD...: what completes the last word, one a line.
offered_bash() {
    bash --norc -c 'source "$1"; shift; COMP_WORDS=(dmimport "$@"); COMP_CWORD=$#; _dmimport; printf "%s\n" "${COMPREPLY[@]}"' bash "$file" "$@"
}
offered_fish() {
    HOME=$work fish --no-config -c 'source $argv[1]; complete -C "$argv[2]"' "$file" "dmimport $*" | cut -f 1
}
offered_zsh() { # the library function that shows a list is not there without a terminal: what it would be given
    zsh -f -c '
        source $1; shift
        _arguments() { [[ $1 == -C ]] && { (( ${#words} > 2 )) && { state=operands; shift words; } || state=command; return 1; }; print -l -- $@ }
        _describe() { print -l -- ${(P)2} | sed "s/:.*//" }
        words=(dmimport "$@"); _dmimport' zsh "$file" "$@" |
        sed -E 's/^\(- \*\)//; s/[=[].*//; s/^\*:Datei:_files$/umsaetze januar.csv/'
}
offered() { "offered_$shell" "$@" | sed '/^$/d' | LC_ALL=C sort -u; }

same commands "$(program_commands "$dmimport" | LC_ALL=C sort)" "$(offered '' | grep -v '^-')"

options=$(for command in $(program_commands "$dmimport"); do
    offered "$command" "--" | sed -nE "/^--(json|quiet|color|help)$/d; s/^--/$command &/p"
done | LC_ALL=C sort)
same options "$(program_options "$dmimport")" "$options"

takers=$(for command in $(program_commands "$dmimport"); do
    ! "$dmimport" "$command" --help | grep -q '^Aufruf: .* DATEI' || echo "$command"
done)
offering=$(for command in $(program_commands "$dmimport"); do
    ! offered "$command" '' | grep -q 'umsaetze.*januar.csv' || echo "$command"
done)
same 'commands that take files' "$takers" "$offering"
