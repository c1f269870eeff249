// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/datamodel_api/DataType.h"

/// One field of a record's schema.
struct FieldSpec {
    std::string name;
    DataType::E_Kind kind = DataType::eString;
    /// Date fields only: whether the zero date ("no date") may be stored.
    bool takesZeroDate = false;
};
