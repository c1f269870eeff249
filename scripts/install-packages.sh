#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# Installs the Debian packages that are missing, and asks for root's rights only then.
#
# usage: scripts/install-packages.sh [GROUP...]
#   build   what building, testing and trying the project needs (the default)
#   check   what the further checks need: formatting, lint, a second compiler, coverage
#   fuzz    what scripts/fuzz.sh needs
#   package what scripts/try-packages.sh needs
set -euo pipefail

# The one list of packages. CMakeLists.txt files name the libraries they link.
declare -A packages=(
    [build]="g++ cmake ninja-build pkg-config libgtest-dev libgmock-dev libbenchmark-dev
             libsqlite3-dev sqlite3 libcli11-dev nlohmann-json3-dev qtbase5-dev qt6-base-dev libicu-dev libssl-dev libmimalloc-dev libxml2-utils binutils locales
             python3 valgrind make hledger ledger abigail-tools"
    [check]="clang clang-format clang-tidy gcovr doxygen mandoc zsh fish shared-mime-info"
    [package]="dpkg-dev file fakeroot lintian debootstrap"
    [fuzz]="clang libclang-rt-dev llvm"
)

die() {
    printf '%s\n' "$@" >&2
    exit 1
}

if (($# == 0)); then
    set -- build
fi
wanted=()
for group in "$@"; do
    [[ -n ${packages[$group]:-} ]] || die "install-packages.sh: no such group: $group (there are: ${!packages[*]})"
    read -r -d '' -a names <<<"${packages[$group]}" || true
    wanted+=("${names[@]}")
done

{ command -v dpkg-query && command -v apt-get; } >/dev/null || die \
    "Dieses Skript kennt nur Debian und seine Abkömmlinge. Bitte diese Pakete von Hand einspielen:" \
    "This script knows Debian and its relatives only. Please install these packages by hand:" \
    "  ${wanted[*]}"

missing=()
for package in "${wanted[@]}"; do
    [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == installed ]] || missing+=("$package")
done
if ((${#missing[@]} == 0)); then
    exit 0
fi

if [[ $(id -u) == 0 ]]; then
    as_root=()
elif command -v sudo >/dev/null; then
    as_root=(sudo)
else
    die "Es fehlen Pakete, und zum Einspielen braucht es root oder sudo. Als root ausführen:" \
        "Packages are missing, and installing them takes root or sudo. As root, run:" \
        "  apt-get update && apt-get install --no-install-recommends ${missing[*]}"
fi

echo "Installing: ${missing[*]}"
apt() { "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o Dpkg::Use-Pty=0 "$@" </dev/null; }
apt update || die \
    "Die Paketlisten ließen sich nicht holen: Netz, /etc/apt/sources.list und Rechte (sudo) prüfen." \
    "The package lists could not be fetched: check the network, /etc/apt/sources.list and your rights (sudo)."
apt install --yes --no-install-recommends "${missing[@]}" || die \
    "Die Pakete ließen sich nicht einspielen; der Grund steht oben." \
    "The packages could not be installed; the reason stands above."
