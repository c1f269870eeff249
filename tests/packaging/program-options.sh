# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# For sourcing: what the program says of its commands and options.

# The commands, one a line.
program_commands() { # DMIMPORT
    "$1" --help | sed -n '/^Befehle:/,/^$/s/^  \([a-z]*\) .*/\1/p'
}

# "COMMAND OPTION", sorted, of all commands; without what every command takes.
program_options() { # DMIMPORT
    local command
    for command in $(program_commands "$1"); do
        "$1" "$command" --help | grep -oE '^  (-h,)?--[a-z-]+' | sed -E 's/^  (-h,)?//' |
            sed -E "/^--(json|quiet|color|help)$/d; s/^/$command /"
    done | LC_ALL=C sort
}

# Compares two lists; the first is the program's.
same() { # WHAT PROGRAM OTHER
    [[ -n $2 ]] || {
        echo "FAILED: the program names no $1"
        return 1
    }
    diff -u --label "dmimport: $1" --label "here: $1" <(echo "$2") <(echo "$3")
}
