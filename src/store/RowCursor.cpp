// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/RowCursor.h"

void RowCursor::seek(const void* reader, std::int64_t owner, std::int64_t id) {
    stop();
    if (!m_select)
        m_select.emplace(*m_connection, m_layout->selectSql());
    int parameter = 1;
    if (m_layout->hasOwner())
        m_select->bind(parameter++, owner);
    m_select->bind(parameter, id);
    m_reader = reader;
}

const SqliteStatement* RowCursor::next() {
    if (m_select->step())
        return &*m_select;
    stop();
    return nullptr;
}

void RowCursor::stop() {
    if (m_select)
        m_select->reset();
    m_reader = nullptr;
}
