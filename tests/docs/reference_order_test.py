#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
"""Every exported class has its place in the order of the reference, and every name there is one of a class.

usage: reference_order_test.py PROJECT HEADER...      headers below src/, as they are installed
"""
import pathlib
import re
import sys

project = pathlib.Path(sys.argv[1])
groups = (project / "docs/api/groups.dox").read_text(encoding="utf-8")
placed = set(re.findall(r"/\*\* @(?:class|struct|enum) ([\w:]+)\s+@ingroup \w+", groups))

exported, declared = set(), set()
for header in sys.argv[2:]:
    text = (project / "src" / header).read_text(encoding="utf-8")
    exported.update(re.findall(r"^(?:class|struct) (?:IMPORT_MODULE_API|DM_API) (\w+)", text, re.MULTILINE))
    declared.update(re.findall(r"^\s*(?:class|struct|enum) (?:IMPORT_MODULE_API |DM_API )?(\w+)", text, re.MULTILINE))

errors = [f"groups.dox has no place for {name}" for name in sorted(exported - placed)]
errors += [f"groups.dox names {name}, which no installed header declares" for name in sorted(placed)
           if name.rpartition("::")[2] not in declared]
if not exported or not placed:
    errors.append("nothing was found")
print("\n".join(errors))
sys.exit(1 if errors else 0)
