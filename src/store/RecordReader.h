// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "datamodel/RecordNode.h"
#include "store/SqliteConnection.h"
#include "store/SqliteStatement.h"
#include "store/TableLayout.h"

namespace RecordReader {

/// Fills `record` from the current row of a statement as `TableLayout::selectSql`
/// makes it, and sets its store id. Throws StoreError (badValue) for a value that
/// the model cannot have stored, which somebody else must have put there.
void read(const SqliteStatement& row, const TableLayout& layout, const SqliteConnection& connection,
          RecordNode& record);

} // namespace RecordReader
