// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/datamodel_api/DataType.h"

namespace IntegerCounter {

/// What a counter of the data model holds after `value`. A value that is no
/// integer counts as 0. The largest integer is followed by the smallest.
inline DataType next(const DataType& value) {
    const unsigned number = value.kind() == DataType::eInteger ? static_cast<unsigned>(value.getInt()) : 0U;
    return DataType::makeInteger(static_cast<int>(number + 1U));
}

} // namespace IntegerCounter
