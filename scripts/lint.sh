#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# Checks the layout of every C++ file (.clang-format) and lints the sources (.clang-tidy).
#
# usage: scripts/lint.sh [FILE...]    lint these sources only; by default everything under src, bench and examples
#        scripts/lint.sh --format     the layout alone
#        scripts/lint.sh --recent     the layout, and lint of the sixty sources that were changed last
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/install-packages.sh build check

folders=()
for folder in src tests bench examples fuzz; do
    [[ ! -d $folder ]] || folders+=("$folder")
done
find "${folders[@]}" \( -name '*.h' -o -name '*.cpp' \) -print0 | xargs -0 clang-format --dry-run -Werror

if [[ ${1:-} == --format ]]; then
    exit 0
fi

# clang-tidy reads the flags of each source from the clang build; nothing needs to be built for it. It gets every source by
# itself: in a large unit the analyzer takes sources for headers and looks at no path through them.
cmake --preset clang >/dev/null
if [[ ${1:-} == --recent ]]; then
    mapfile -t changed < <(git log --name-only --pretty=format: -- 'src/*.cpp' 'bench/*.cpp' 'examples/*.cpp' | awk 'NF && !seen[$0]++')
    recent=()
    for source in "${changed[@]}"; do
        [[ ! -f $source ]] || ((${#recent[@]} == 60)) || recent+=("$source")
    done
    printf '%s\0' "${recent[@]}"
elif (($# > 0)); then
    printf '%s\0' "$@"
else
    find src bench examples -name '*.cpp' -print0
fi | xargs -0 -n 1 -P "$(nproc)" clang-tidy -p build/clang --quiet
