// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/datamodel_api/DataType.h"
#include "framework/datamodel_api/DmApi.h"

/// One field of a record's schema.
struct DM_API FieldSpec {
    std::string name;
    DataType::E_Kind kind = DataType::eString;
    /// Date fields only: whether the zero date ("no date") may be stored.
    bool takesZeroDate = false;

    /// Whether the field stores `value`: of its kind, not empty, an amount
    /// within the bounds, and no zero date unless the field takes it.
    bool takes(const DataType& value) const;
};
