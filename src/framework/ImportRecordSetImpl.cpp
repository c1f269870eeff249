// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/ImportRecordSetImpl.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "framework/AssertTypeSizes.h"

namespace {
constexpr std::size_t kReservedRows = 20;
}

ImportRecordSetImpl::ImportRecordSetImpl() { m_rows.reserve(kReservedRows); }

int ImportRecordSetImpl::getRowCount() const { return static_cast<int>(m_rows.size()) - (m_hasHeader ? 1 : 0); }

std::string ImportRecordSetImpl::getString(int row, int column) const {
    if (row < 0 || row >= getRowCount()) // no row number reaches the header row
        return {};
    const std::string* text = cell(m_hasHeader ? row + 1 : row, column);
    return text != nullptr ? *text : std::string();
}

std::string ImportRecordSetImpl::getColumnHeader(int column) const {
    const std::string* text = m_hasHeader ? cell(0, column) : nullptr;
    return text != nullptr ? *text : std::string();
}

int ImportRecordSetImpl::addRow(int columns) {
    if (m_columnCount == 0) {
        m_columnCount = columns;
    } else {
        m_ragged = m_ragged || columns != m_columnCount;
        m_columnCount = std::max(m_columnCount, columns);
    }
    m_rows.emplace_back(static_cast<std::size_t>(std::max(m_columnCount, 0)));
    return static_cast<int>(m_rows.size()) - 1;
}

bool ImportRecordSetImpl::setString(int row, int column, const std::string& text, bool header) {
    return takeString(row, column, text, header);
}

bool ImportRecordSetImpl::takeString(int row, int column, std::string text, bool header) {
    if (cell(row, column) == nullptr)
        return false;
    if (header) {
        if (row != 0)
            return false;
        m_hasHeader = true;
    }
    m_rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = std::move(text);
    return true;
}

bool ImportRecordSetImpl::isValid(int row, int column) const {
    return row >= 0 && static_cast<std::size_t>(row) < m_rows.size() && column >= 0 && column < m_columnCount;
}

const std::string* ImportRecordSetImpl::cell(int row, int column) const {
    if (!isValid(row, column))
        return nullptr;
    const auto& cells = m_rows[static_cast<std::size_t>(row)];
    // Rows added before the table grew are narrower than the table.
    return static_cast<std::size_t>(column) < cells.size() ? &cells[static_cast<std::size_t>(column)] : nullptr;
}
