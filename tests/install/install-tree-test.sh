#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# Installs a build into an empty folder, moves that folder away and looks at what it holds.
# What is there afterwards serves the other tests of the installed tree.
#
# usage: install-tree-test.sh CMAKE BUILD TREE
set -euo pipefail
shopt -s globstar
cmake=$1 build=$2 tree=$3

rm -rf "$tree" "$tree.first"
"$cmake" --install "$build" --prefix "$tree.first" >"$build/install-tree.log"
mv "$tree.first" "$tree" # nothing may know where it was

failures=0
expect() { # PATTERN: one file at least that fits
    compgen -G "$tree/$1" >/dev/null || {
        echo "missing: $1"
        ((++failures))
    }
}
expect 'bin/dmimport'
expect 'share/man/man1/dmimport.1'
expect 'share/man/man5/dmimport-store.5'
expect 'share/bash-completion/completions/dmimport'
expect 'share/zsh/*/_dmimport'
expect 'share/fish/*/dmimport.fish'
expect 'share/mime/packages/import-module.xml'
expect 'include/import-module/framework/ImportExternData.h'
for library in ImportModule Dm DmBasicServices; do
    expect "lib*/**/lib$library.*"
    expect "lib*/**/pkgconfig/$library.pc"
done
for part in Config ConfigVersion Targets; do
    expect "lib*/**/cmake/ImportModule/ImportModule$part.cmake"
done
for part in guide.md install.md de/anleitung.md formats/qif.md; do
    expect "share/doc/*/docs/$part"
done
expect 'share/doc/*/examples/smallest-host/CMakeLists.txt'
# What builds documents and examples in the project's own tree, and manual pages beside their own place.
extra=$(find "$tree"/share/doc -path '*/docs/CMakeLists.txt' -o -path '*/examples/CMakeLists.txt' -o -name '*.in' -o -name '*.dox' -o -name '*.[1-9]')
if [[ -n $extra ]]; then
    printf 'installed, but of no use there: %s\n' "$extra"
    ((++failures))
fi
# Every link of a page leads to what is there as well.
links=0
while IFS=: read -r page link; do
    ((++links))
    target=${link#*](}
    target=${target%%[#)]*}
    if [[ -n $target && $target != *://* && ! -e ${page%/*}/$target ]]; then
        echo "leads nowhere: $target in ${page#"$tree"/}"
        ((++failures))
    fi
done < <(grep -roH --include='*.md' ']([^) ]*)' "$tree"/share/doc)
if ((links == 0)); then
    echo "no page has a link"
    ((++failures))
fi
if grep -rIl --exclude='*.a' -e "$build" -e "$tree.first" "$tree"; then
    echo "the files above name the folder of the build or of the installation"
    ((++failures))
fi
"$tree/bin/dmimport" --version || ((++failures))
exit $((failures > 0 ? 1 : 0))
