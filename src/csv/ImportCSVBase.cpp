// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/ImportCSVBase.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "csv/unquoteInPlace.h"
#include "framework/AssertTypeSizes.h"

namespace {

/// Finds where the fields of one line end.
class FieldEnds {
public:
    FieldEnds(char* line, char delimiter)
        : m_end(line + std::strlen(line)), m_delimiter(delimiter),
          m_hasQuotes(std::memchr(line, '"', static_cast<std::size_t>(m_end - line)) != nullptr) {}

    /// The delimiter or the zero byte that ends `field`; a delimiter inside
    /// quotes does not. `firstQuote` is set where there is one.
    char* endOf(char* field, char*& firstQuote) const {
        if (m_hasQuotes)
            return endOfQuotable(field, firstQuote);
        if (*field == m_delimiter) // empty, as many fields of a wide layout are
            return field;
        void* found = std::memchr(field, m_delimiter, static_cast<std::size_t>(m_end - field));
        return found != nullptr ? static_cast<char*>(found) : m_end;
    }

private:
    char* endOfQuotable(char* field, char*& firstQuote) const {
        char* at = nextStop(field);
        if (*at != '"')
            return at;
        firstQuote = at;
        for (;;) {
            at = std::strchr(at + 1, '"');
            if (at == nullptr) // never closed: the rest of the line is the field
                return m_end;
            at = nextStop(at + 1);
            if (*at != '"')
                return at;
        }
    }

    char* nextStop(char* at) const {
        // Fields are short: a plain walk beats a search for three that has to be set up for each.
        while (*at != '"' && *at != m_delimiter && *at != '\0')
            ++at;
        return at;
    }

    char* m_end;
    char m_delimiter;
    bool m_hasQuotes;
};

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
    const FieldEnds ends(line, m_delimiter);
    for (;;) {
        char* const field = at;
        char* firstQuote = nullptr;
        at = ends.endOf(field, firstQuote);
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
