#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# Runs scripts/install-packages.sh on machines that exist only as programs in PATH: what dpkg
# knows, who the user is, whether there is sudo. Nothing is installed.
#
# usage: install-packages-test.sh SCRIPT
set -uo pipefail
script=$1
folder=$(mktemp -d) || exit 1
trap 'rm -rf "$folder"' EXIT
failures=0

fake() { # NAME, body on standard input
    printf '#!%s\n' "$BASH" >"$folder/bin/$1"
    cat >>"$folder/bin/$1"
    chmod +x "$folder/bin/$1"
}

# A machine on which nothing is installed and every command is logged.
new_machine() { # UID
    rm -rf "${folder:?}/bin" "${folder:?}/log"
    mkdir "$folder/bin"
    : >"$folder/log"
    local tool
    for tool in env cat; do
        ln -s "$(command -v "$tool")" "$folder/bin/$tool"
    done
    fake id <<<"echo $1"
    fake dpkg-query <<<"exit 1"
    fake apt-get <<<"echo \"apt-get \$* [\$DEBIAN_FRONTEND]\" >>'$folder/log'"
}

with_sudo() { fake sudo <<<"echo sudo >>'$folder/log'; exec \"\$@\""; }

run() { # GROUP...
    output=$(PATH="$folder/bin" "$BASH" "$script" "$@" 2>&1)
    status=$?
    log=$(cat "$folder/log")
}

expect() { # WHAT, then a command that must succeed
    local what=$1
    shift
    if ! "$@"; then
        failures=$((failures + 1))
        printf 'FAILED %s: %s\nstatus %s\noutput: %s\nlog: %s\n' "$case" "$what" "$status" "$output" "$log" >&2
    fi
}
succeeds() { [[ $status == 0 ]]; }
fails() { [[ $status != 0 ]]; }
logged() { [[ $log == *"$1"* ]]; }
says() { [[ $output == *"$1"* ]]; }
not() { ! "$@"; }

case="root installs what is missing"
new_machine 0
run
expect "succeeds" succeeds
expect "fetches the lists first" logged "update [noninteractive]"
expect "installs" logged "install --yes --no-install-recommends g++ cmake"
expect "needs no sudo" not logged "sudo"
expect "leaves the checks' packages alone" not logged "clang"

case="a user with sudo"
new_machine 1000
with_sudo
run
expect "succeeds" succeeds
expect "asks through sudo" logged "sudo"$'\n'"apt-get"
expect "installs" logged "install --yes"

case="a user without sudo"
new_machine 1000
run
expect "fails" fails
expect "says so in German" says "Es fehlen Pakete"
expect "says so in English" says "Packages are missing"
expect "says what root would run" says "apt-get install --no-install-recommends g++"
expect "touches nothing" not logged "apt-get"

case="everything is there"
new_machine 1000
fake dpkg-query <<<'echo installed'
run build check
expect "succeeds without rights" succeeds
expect "touches nothing" not logged "apt-get"

case="only one package is missing"
new_machine 0
fake dpkg-query <<<'[[ ${*: -1} != cmake ]] && echo installed'
run
expect "succeeds" succeeds
expect "installs that one only" logged "--no-install-recommends cmake [noninteractive]"

case="a package was removed but not purged"
new_machine 0
fake dpkg-query <<<'echo config-files'
run
expect "it counts as missing" logged "install --yes"

case="no network"
new_machine 0
fake apt-get <<<'exit 100'
run
expect "fails" fails
expect "says what to check" says "check the network"

case="the packages cannot be installed"
new_machine 0
fake apt-get <<<'[[ $* == *update* ]]'
run
expect "fails" fails
expect "says so" says "could not be installed"

case="not a Debian"
new_machine 0
rm "$folder/bin/apt-get"
run
expect "fails" fails
expect "lists what to install" says "qtbase5-dev"

case="a group that does not exist"
new_machine 0
run built
expect "fails" fails
expect "names it" says "no such group: built"

exit $((failures != 0))
