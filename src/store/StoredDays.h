// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "framework/datamodel_api/DMDate.h"

class RecordNode;

/// Which of a table's stored rows somebody asks for.
struct StoredDays {
    DMDate first; ///< both inclusive; zero dates: no dated row is wanted
    DMDate last;
    bool undated = false;             ///< rows with the zero date or none as well
    std::vector<std::string> numbers; ///< rows with these numbers of the bank's as well (bookings only); host bytes
};

/// Takes one row. The record is valid during the call only, and no part of the
/// tree; its store id is set.
using RowVisitor = std::function<void(RecordNode&)>;
