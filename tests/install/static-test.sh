#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# Builds the libraries alone and as archives, installs them, and lets programs of others use them.
#
# usage: static-test.sh PROJECT WORK [CMAKE_OPTION...]
#   PROJECT  the sources of the project; WORK  a folder for the builds
set -euo pipefail
project=$1 work=$2
shift 2

rm -rf "$work"
mkdir -p "$work"
cmake -S "$project" -B "$work/build" -G Ninja -DBUILD_SHARED_LIBS=OFF -DIMPORT_MODULE_BUILD_PROGRAM=OFF \
    -DIMPORT_MODULE_BUILD_TESTS=OFF "$@" >"$work/configure.log" || {
    cat "$work/configure.log"
    exit 1
}
cmake --build "$work/build"
cmake --install "$work/build" --prefix "$work/tree" >"$work/install.log"

libraries=$(dirname "$(find "$work/tree" -name libImportModule.a -print -quit)")
ls "$libraries/libDm.a" "$libraries/libDmBasicServices.a"
if find "$work/tree" -name '*.so*' | grep .; then
    echo "FAILED: a shared library among the archives"
    exit 1
fi
for way in find_package pkg-config; do
    "$project/tests/install/consumer-test.sh" "$way" "$project" "$work/$way" "$work/tree" "$@"
    if readelf --dynamic "$work/$way/count" | grep -E 'NEEDED.*(ImportModule|libDm)'; then
        echo "FAILED: $way: the program needs the library above at run time"
        exit 1
    fi
done
