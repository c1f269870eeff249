// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "csv/ImportCSVBase.h"

/// A module that only splits lines, and keeps what it got: opens the protected
/// operations of its base to tests.
template <typename T>
class SplittingModule : public ImportCSVBase<T> {
public:
    using Base = ImportCSVBase<T>;
    using Base::extractColumns;
    using Base::getAssignedColumnNameForIndex;
    using Base::m_columnAssignment;
    using Base::m_dateColumn;
    using Base::m_delimiter;
    using Base::m_errorMsg;
    using Base::m_lineNo;
    using Base::m_row;
    using Base::m_skipRow;
    using Base::m_variableColumns;

    struct Row {
        std::vector<std::string> fields;
        int rowIndex;
    };

    const char* getFileExtension() const override { return "test"; }

    bool importRowIntoTable(const T& row, int columnCount, int rowIndex) override {
        rows.push_back({std::vector<std::string>(row.m_columns, row.m_columns + columnCount), rowIndex});
        return acceptRows;
    }

    bool compelteRowProcessing(bool skip) override {
        skipFlags.push_back(skip);
        return completeRows && Base::compelteRowProcessing(skip);
    }

    /// The fields of one line, by the module's own delimiter.
    std::vector<std::string> split(std::string line) {
        const int count = extractColumns(line.data());
        return std::vector<std::string>(m_row.m_columns, m_row.m_columns + count);
    }

    std::vector<Row> rows;
    std::vector<bool> skipFlags;
    bool acceptRows = true;
    bool completeRows = true;
};
