#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# The manual pages are well-formed, name the commands and options that the program has, and the tables and columns
# that a new store has.
#
# usage: man-pages-test.sh PAGES DMIMPORT SAMPLE    PAGES is docs/man; SAMPLE a file that needs no option
set -euo pipefail
pages=$1 dmimport=$2 sample=$3
source "$(dirname "${BASH_SOURCE[0]}")/program-options.sh"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

lint() { # with what is there
    if command -v mandoc >/dev/null; then
        mandoc -T lint -W warning "$@" | grep -v 'outdated mandoc.db' || true
    elif command -v groff >/dev/null; then
        for page in "$@"; do groff -mdoc -Kutf8 -Tutf8 -ww -z "$page" 2>&1; done
    fi
}
complaints=$(lint "$pages"/*.[15])
[[ -z $complaints ]] || {
    echo "$complaints"
    exit 1
}

commands=$(sed -n 's/^\.It Cm \([a-z]*\).*/\1/p' "$pages/dmimport.1")
same commands "$(program_commands "$dmimport")" "$commands"

# Below each command stands one line with its options.
options=$(awk '/^\.Sh/ { inside = $2 == "COMMANDS" } inside && /^\.It Cm/ { command = $3 }
    inside && command && above == ".Pp" && /^\.Fl/ { for (i = 2; i <= NF; ++i) if ($i ~ /^-/) print command, "-" $i }
    { above = $0 }' "$pages/dmimport.1" | LC_ALL=C sort)
same 'options of commands' "$(program_options "$dmimport")" "$options"

# And each option is explained, with the operand that the program names.
explained=$(sed -nE 's/^\.It Fl (h , Fl )?-([a-z-]+)( Ar ([^ ]+))?$/--\2 \4/p' "$pages/dmimport.1" | sed 's/ $//' | LC_ALL=C sort)
named=$({ "$dmimport" --help; for command in $(program_commands "$dmimport"); do "$dmimport" "$command" --help; done; } |
    sed -nE 's/^  (-h,)?(--[a-z-]+)( ([A-Z/]+))? .*/\2 \4/p' | sed 's/ $//' | LC_ALL=C sort -u)
same 'explained options' "$named" "$explained"

"$dmimport" import "$sample" --store "$work/bestand.db" --quiet
columns=$(sqlite3 "$work/bestand.db" "select t.name || ' ' || c.name from sqlite_master t, pragma_table_info(t.name) c
    where t.type = 'table' and c.name <> 'id'" | LC_ALL=C sort)
described=$(awk '/^\.Sh/ { inside = $2 == "TABLES" } inside && /^\.Ss/ { table = $2 }
    inside && /^\.It Va/ { for (i = 3; i <= NF; ++i) if ($i != "," && $i != "Va") print table, $i }' "$pages/dmimport-store.5" | LC_ALL=C sort)
same columns "$columns" "$described"
