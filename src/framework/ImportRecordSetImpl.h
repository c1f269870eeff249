// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "framework/ImportRecordSet.h"

/// The preview table as a module fills it. The filling side counts raw rows:
/// the header row, where there is one, is raw row 0.
class IMPORT_MODULE_API ImportRecordSetImpl : public ImportRecordSet {
public:
    ImportRecordSetImpl();

    int getColumnCount() const override { return m_columnCount; }
    int getRowCount() const override;
    std::string getString(int row, int column) const override;
    std::string getColumnHeader(int column) const override;
    bool hasHeader() const override { return m_hasHeader; }

    /// Appends a row as wide as the widest row so far (this one included) and
    /// returns its raw number. Rows are never widened afterwards.
    int addRow(int columns);
    /// Stores one cell. False, and nothing changes, outside the row, and for a
    /// header cell anywhere but in raw row 0.
    bool setString(int row, int column, const std::string& text, bool header);
    /// The same with a text that the caller gives away.
    bool takeString(int row, int column, std::string text, bool header);
    /// Whether the raw row exists and some row is wide enough for the column.
    bool isValid(int row, int column) const;

private:
    /// The cell of a raw row; null outside the row's own width.
    const std::string* cell(int row, int column) const;

    std::vector<std::vector<std::string>> m_rows;
    int m_columnCount = 0;
    bool m_hasHeader = false;
    bool m_ragged = false; ///< rows of different widths were added
};
