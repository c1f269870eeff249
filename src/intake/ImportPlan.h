// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "intake/IntakeMessage.h"
#include "intake/Reason.h"
#include "intake/RecordTable.h"
#include "intake/TablePlan.h"

/// How a delimited file is read: what was found, how sure it is, and why.
struct ImportPlan {
    char delimiter = ';';
    std::vector<TablePlan> tables; ///< in file order; records are imported from all of them
    double confidence = 0.0;       ///< 0 to 1
    std::vector<Reason> reasons;
    std::vector<IntakeMessage> remarks; ///< odd things that change nothing
    /// Set when something that changes amounts or dates cannot be decided; its
    /// text names the options that decide it. Nothing is imported then.
    std::optional<IntakeMessage> undecided;

    /// Record of the column names: of the first table, or of the one that could not be decided.
    std::optional<std::size_t> header;

    bool hasHeader() const { return !tables.empty() && tables.front().region.header.has_value(); }
    /// Lines above the first table.
    int preambleLines(const RecordTable& table) const;
    /// Field of the data model to the input columns (from 0) that feed it.
    std::map<std::string, std::vector<int>> columns() const;
};
