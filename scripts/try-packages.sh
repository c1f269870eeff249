#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# Tries the Debian packages as somebody new would: builds them, makes a clean Debian 12 tree, installs them there with apt, and
# imports a file with dmimport and with a program of one's own. Needs root. Packages come from where this machine's apt takes its own.
#
# usage: scripts/try-packages.sh [PACKAGES]     with the .deb files of the folder PACKAGES instead of building some
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
release=bookworm

die() {
    printf 'try-packages.sh: %s\n' "$@" >&2
    exit 1
}

(($# < 2)) || die "too many arguments"
[[ $(id -u) == 0 ]] || die "making a Debian tree takes root"

# In a mount namespace of its own, so that nothing stays mounted whatever happens.
if [[ -z ${TRY_PACKAGES_INSIDE:-} ]]; then
    scripts/install-packages.sh build package
    export TRY_PACKAGES_INSIDE=yes
    exec unshare --mount --pid --fork --kill-child "$PWD/scripts/try-packages.sh" "$@"
fi

step() { printf '\n== %s (%d s so far)\n' "$1" "$SECONDS"; }

tree=$(mktemp -d)
trap 'umount "$tree/proc" "$tree/dev/pts" 2>/dev/null || true; rm -rf --one-file-system "$tree"' EXIT
chmod 755 "$tree" # apt downloads as a user of its own

packages=${1:-}
if [[ -z $packages ]]; then
    step "Build"
    cmake --preset package
    cmake --build --preset package --parallel "$(nproc)"
    cpack --preset package
    packages=build/package
fi
compgen -G "$packages/*.deb" >/dev/null || die "no packages in $packages"

step "What lintian says"
lintian --allow-root --tag-display-limit 0 "$packages"/*.deb

step "A clean tree of Debian $release"
mirror=$(apt-get indextargets --format '$(SITE)' "Codename: $release" 'Component: main' 'Identifier: Packages' | head -n 1)
[[ -n $mirror ]] || die "apt knows no source of Debian $release"
debootstrap --variant=minbase "$release" "$tree" "$mirror" >"$tree.log" || {
    tail "$tree.log" >&2
    die "debootstrap failed"
}
rm -f "$tree.log"
cp /etc/resolv.conf "$tree/etc/"
apt-config dump | grep -E '^Acquire::https?::Proxy' >"$tree/etc/apt/apt.conf.d/90proxy" || true
mount -t proc proc "$tree/proc"
mount -t devpts -o newinstance,ptmxmode=0666 devpts "$tree/dev/pts"
mkdir "$tree/packages" "$tree/work"
cp "$packages"/*.deb "$tree/packages"
cp data/umsaetze.csv data/girokonto.csv tests/consumer/find_package/CMakeLists.txt "$tree/work"
cp tests/consumer/count.cpp "$tree" # beside the folder of the consumer, as in the tests

# Runs a command in the tree and shows it as a person would type it.
there() {
    printf '$ %s\n' "$1"
    env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive TERM=dumb \
        chroot "$tree" bash -euo pipefail -c "cd /work && $1" </dev/null
}

step "The program"
there 'apt-get -q update'
there 'apt-get -q install --yes --no-install-recommends /packages/libimportmodule[0-9]*.deb /packages/dmimport_*.deb'
there 'dmimport --version'
there 'dmimport preview umsaetze.csv --limit 3'
there 'dmimport import umsaetze.csv --store bestand.db'
there 'dmimport show --store bestand.db --limit 3'
there 'ls /usr/share/man/man1/dmimport.1.gz /usr/share/man/man5/dmimport-store.5.gz /usr/share/bash-completion/completions/dmimport'
records=$(there 'dmimport show --store bestand.db --json' | grep -o '"Datum"' | wc -l)
[[ $records == 6 ]] || die "dmimport imported $records records instead of 6"

step "A program of one's own"
there 'apt-get -q install --yes --no-install-recommends g++ cmake make pkg-config /packages/libimportmodule-dev_*.deb'
there 'cmake -S . -B build && cmake --build build'
there 'build/count girokonto.csv'
there 'g++ -std=c++17 ../count.cpp -o counted $(pkg-config --cflags --libs ImportModule Dm)'
there './counted girokonto.csv'
for program in build/count ./counted; do
    records=$(there "$program girokonto.csv" | tail -n 1)
    [[ $records == 10 ]] || die "$program imported $records records instead of 10"
done

# docs/guide.md and the examples' own pages, with what the package brings: each example is a project of its own.
step "The guide, from an empty folder to an imported file"
there 'ls /usr/share/doc/libimportmodule-dev/docs/guide.md'
there 'cp -r /usr/share/doc/libimportmodule-dev/examples .'
there 'cd examples/smallest-host && cmake -B build && cmake --build build'
there 'cd examples/smallest-host && build/smallest-host konto.csv | diff expected.txt -'
there 'cd examples/preview && cmake -B build && cmake --build build'
there 'cd examples/preview && build/preview konto.csv header "0=Datum 1=Empfaenger 3=Betrag" import | tail -n 1 | diff <(echo "3 records imported") -'
there 'cd examples/sessions && cmake -B build && cmake --build build'
there 'cd examples/sessions && build/sessions gut.csv kasse.qif'
there 'cd examples/own-model && cmake -B build && cmake --build build'
there 'cd examples/own-model && build/own-model konto.csv'

step "And away again"
there 'apt-get -q purge --yes dmimport "libimportmodule*"'
there 'dpkg -l | grep -E "dmimport|importmodule" && exit 1 || true'
step "Everything works"
