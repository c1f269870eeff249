// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/ImportCSVBase.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "csv/unquoteInPlace.h"
#include "framework/AssertTypeSizes.h"

namespace {

/// The delimiter or the zero byte that ends `field`; a delimiter inside quotes
/// does not. `firstQuote` is set where there is one.
char* endOfField(char* field, char delimiter, char*& firstQuote) {
    // Fields are short: a plain walk beats a search that has to be set up for each.
    const auto nextStop = [delimiter](char* at) {
        while (*at != '"' && *at != delimiter && *at != '\0')
            ++at;
        return at;
    };
    char* at = nextStop(field);
    if (*at != '"')
        return at;
    firstQuote = at;
    for (;;) {
        at = std::strchr(at + 1, '"');
        if (at == nullptr) // never closed: the rest of the line is the field
            return firstQuote + std::strlen(firstQuote);
        at = nextStop(at + 1);
        if (*at != '"')
            return at;
    }
}

} // namespace

template <typename T>
ImportCSVBase<T>::ImportCSVBase() {
    m_columnAssignment.m_count = kNoAssignment;
}

template <typename T>
bool ImportCSVBase<T>::processLine(char* line, Node* /*target*/) {
    const int columnCount = extractColumns(line);
    if (columnCount == 0)
        return false;
    return importRowIntoTable(m_row, columnCount, m_processedCount) && compelteRowProcessing(m_skipRow);
}

template <typename T>
void ImportCSVBase<T>::assignColumns(const ColumnAssignment& assignment) {
    m_columnAssignment = assignment;
    m_dateColumn = -1;
    for (int i = 0; i < pairCount(); ++i) {
        if (m_columnAssignment.m_pairs[i].m_column == Import::eColDatum) {
            m_dateColumn = m_columnAssignment.m_pairs[i].m_inputColumn;
            return;
        }
    }
}

template <typename T>
int ImportCSVBase<T>::pairCount() const {
    return std::min(m_columnAssignment.m_count, ColumnAssignment::kMaxPairs);
}

template <typename T>
const char* ImportCSVBase<T>::getAssignedColumnNameForIndex(int fileColumn) const {
    for (int i = 0; i < pairCount(); ++i) {
        if (m_columnAssignment.m_pairs[i].m_inputColumn == fileColumn)
            return getColumnNameForIndex(m_columnAssignment.m_pairs[i].m_column);
    }
    return nullptr;
}

template <typename T>
int ImportCSVBase<T>::extractColumns(char* line) {
    m_row = T{};
    // A record takes no more fields than it has, whatever a module sets.
    constexpr int kAnyWidthLimit = std::min(kVariableColumnLimit, T::kColumns);
    const int limit = m_variableColumns ? kAnyWidthLimit : T::kColumns;
    int count = 0;
    char* at = line;
    for (;;) {
        char* const field = at;
        char* firstQuote = nullptr;
        at = endOfField(field, m_delimiter, firstQuote);
        const bool endOfLine = *at == '\0';
        *at = '\0';
        m_row.m_columns[count++] = firstQuote != nullptr ? unquoteInPlace(firstQuote) : field;
        if (endOfLine)
            break;
        if (count == limit) {
            if (m_variableColumns)
                return count;
            reportColumnCount(limit, count + 1); // how many more there are is not counted
            return 0;
        }
        ++at;
    }
    if (m_variableColumns || count == limit)
        return count;
    reportColumnCount(limit, count);
    return 0;
}

template <typename T>
void ImportCSVBase<T>::reportColumnCount(int expected, int found) {
    // Hosts show this text as it is, XML or not.
    char message[160];
    std::snprintf(message, sizeof message,
                  "Fehler beim Analysieren der Daten aus der XML-Datei.\n"
                  "Zeile %d: Erwartete Werte:%d    Vorhandene Werte %d",
                  m_lineNo, expected, found);
    m_errorMsg = message;
}

template class ImportCSVBase<UnknownRowInfo>;
template class ImportCSVBase<ImportDataSetStartMoney>;
