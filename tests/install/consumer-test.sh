#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# Builds the small program of tests/consumer as somebody else would, and lets it import a file.
#
# usage: consumer-test.sh find_package|pkg-config|add_subdirectory PROJECT WORK TREE [CMAKE_OPTION...]
#   PROJECT  the sources of the project; WORK  a folder for the build; TREE  the installed tree
set -euo pipefail
way=$1 project=$2 work=$3 tree=$4
shift 4
consumer=$project/tests/consumer/$way
file=$project/data/girokonto.csv
records=$(($(grep -c . "$file") - 1)) # every line but the header

rm -rf "$work"
mkdir -p "$work"
libraries=$(dirname "$(find "$tree" -name pkgconfig -print -quit)")
find_package() { build -DCMAKE_PREFIX_PATH="$tree"; }
add_subdirectory() { build -DIMPORT_MODULE_SOURCES="$project"; }
build() {
    cmake -S "$consumer" -B "$work" -G Ninja "${options[@]}" "$@" >"$work/configure.log" || {
        cat "$work/configure.log"
        return 1
    }
    cmake --build "$work" --target count
}
pkg-config() {
    local pkg_config
    pkg_config=$(type -P pkg-config)
    [[ ! -e $libraries/libImportModule.a ]] || pkg_config+=" --static"
    PKG_CONFIG_PATH=$libraries/pkgconfig make -C "$work" -f "$consumer/Makefile" count PKG_CONFIG="$pkg_config"
}
options=("$@")
"$way"

counted=$(LD_LIBRARY_PATH=$libraries "$work/count" "$file")
[[ $counted == "$records" ]] || {
    echo "FAILED: imported $counted of $records records"
    exit 1
}
echo "$way: $counted records"
