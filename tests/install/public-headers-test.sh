#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# The headers that are installed are those of the contract, those that declare something exported, and what
# these include; all other headers of the project stay at home.
#
# usage: public-headers-test.sh SOURCES INCLUDES    SOURCES is src/, INCLUDES the installed include folder
set -euo pipefail
sources=$1 includes=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cd "$sources"
{
    printf '%s\n' framework/datamodel_api/*.h datamodel/DataManager.h datamodel/TableSpec.h
    grep -rlE --include='*.h' '(IMPORT_MODULE|DM)_API' .
} | sed 's|^\./||' | sort -u >"$work/wanted"
while true; do # and what they include, until nothing is new
    xargs sed -n 's/^#include "\(.*\)"$/\1/p' <"$work/wanted" | sort -u - "$work/wanted" >"$work/closed"
    cmp -s "$work/wanted" "$work/closed" && break
    mv "$work/closed" "$work/wanted"
done
[[ -s $work/wanted ]]

(cd "$includes" && find . -type f | sed 's|^\./||' | sort) >"$work/installed"
diff -u --label 'to be installed' --label 'installed (cmake/PublicHeaders.cmake)' "$work/wanted" "$work/installed"
while read -r header; do
    cmp "$header" "$includes/$header"
done <"$work/installed"
