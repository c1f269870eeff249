// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "intake/Dates.h"
#include "intake/Encoding.h"

/// What the user fixed; everything else is found. What is fixed narrows the search.
struct InspectionOptions {
    std::optional<Encoding> encoding;
    std::optional<char> delimiter;
    std::optional<bool> header;
    std::optional<DateOrder> dateOrder;
    std::optional<char> decimalMark;
    /// Field of the data model to input column (from 0).
    std::optional<std::map<std::string, int>> columns;
    /// Beside those: columns whose texts go on in "Verwendungszweck".
    std::vector<int> furtherPurpose;
    bool allowUndated = false; ///< records without a readable date are taken
    int centuryWindow = 30;
};
