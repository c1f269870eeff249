// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <type_traits>

#include "csv/ImportCSVInterface.h"
#include "csv/ImportDataSetStartMoney.h"
#include "csv/UnknownRowInfo.h"

/// The delimited-text modules: splits a line in place into a row record `T` of
/// pointers and hands the row on. `UnknownRowInfo` takes lines of any width,
/// every other record exactly its own.
template <typename T>
class IMPORT_MODULE_API ImportCSVBase : public ImportCSVInterface {
public:
    bool processLine(char* line, Node* target) override;
    void assignColumns(const ColumnAssignment& assignment) override;

    /// Handles one split row; false ends the import. `row` is valid for the
    /// call; `rowIndex` counts the rows completed so far, from 0.
    virtual bool importRowIntoTable(const T& row, int columnCount, int rowIndex) = 0;

protected:
    /// How many fields of a line of any width are read; the rest is ignored.
    static constexpr int kVariableColumnLimit = 49;
    static constexpr int kNoAssignment = -1;

    ImportCSVBase();

    /// Splits `line` into `m_row` and returns the number of fields; 0 after
    /// reporting a line of the wrong width.
    int extractColumns(char* line);

    /// The data-model column that a file column (from 0) feeds, or null.
    const char* getAssignedColumnNameForIndex(int fileColumn) const;

    bool hasColumnAssignment() const { return m_columnAssignment.m_count != kNoAssignment; }
    /// Pairs in use that exist, whatever the caller's count says.
    int pairCount() const;

    char m_delimiter = ',';
    bool m_variableColumns = std::is_same_v<T, UnknownRowInfo>;
    ColumnAssignment m_columnAssignment{};
    T m_row{};
    int m_dateColumn = -1; ///< file column of the booking date, or -1

private:
    void reportColumnCount(int expected, int found);
};

extern template class ImportCSVBase<UnknownRowInfo>;
extern template class ImportCSVBase<ImportDataSetStartMoney>;
