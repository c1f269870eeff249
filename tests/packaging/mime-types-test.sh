#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# The MIME types make a valid package, and cover every extension that the program reads.
#
# usage: mime-types-test.sh FILE DMIMPORT
set -euo pipefail
file=$1 dmimport=$2
source "$(dirname "${BASH_SOURCE[0]}")/program-options.sh"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

xmllint --noout "$file"
mkdir -p "$work/mime/packages"
cp "$file" "$work/mime/packages"
if command -v update-mime-database >/dev/null; then
    complaints=$(XDG_DATA_HOME=$work update-mime-database "$work/mime" 2>&1)
    [[ -z $complaints ]] || {
        echo "$complaints"
        exit 1
    }
fi
extensions=$("$dmimport" formats --json | grep -o '"extension":"[a-z]*"' | cut -d '"' -f 4 | grep -vx csv | LC_ALL=C sort)
same extensions "$extensions" "$(grep -o 'pattern="\*\.[a-z]*"' "$file" | sed 's/.*\.//; s/"//' | LC_ALL=C sort)"
