// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "datamodel/RecordSpec.h"

/// A table of a record's schema: its name and the schema of its rows.
struct TableSpec {
    std::string name;
    RecordSpec row;
};
