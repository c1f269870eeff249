// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

class RecordNode;

/// The place of one row in a table: the record, or, while it has not been
/// loaded, its number in the table's source. Both fit one word, since the
/// address of a record is even.
class RowSlot {
public:
    static RowSlot ofRecord(RecordNode* record) { return RowSlot(reinterpret_cast<std::uintptr_t>(record)); }
    /// `row` counts from 1 over the rows of the source.
    static RowSlot ofSourceRow(unsigned row) { return RowSlot((std::uintptr_t{row} << 1) | 1); }

    /// Null while the row is not loaded.
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the word was made from a pointer; half the memory of a tagged pair
    RecordNode* record() const { return isLoaded() ? reinterpret_cast<RecordNode*>(m_word) : nullptr; }
    /// Only of a row that is not loaded.
    unsigned sourceRow() const { return static_cast<unsigned>(m_word >> 1); }
    bool isLoaded() const { return (m_word & 1) == 0; }

private:
    explicit RowSlot(std::uintptr_t word) : m_word(word) {}

    std::uintptr_t m_word;
};
