// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "datamodel/RecordNode.h"
#include "store/SqliteStatement.h"

/// Hands a record's fields to a statement. Keeps the texts that had to be
/// converted until the next record, and the memory for them for good.
class RecordBinder {
public:
    /// Binds to the parameters from `firstParameter` on. What was bound is
    /// valid until the record changes or the next one is bound.
    void bind(SqliteStatement& statement, int firstParameter, const RecordNode& record);

private:
    std::vector<std::string> m_converted; // by field
};
