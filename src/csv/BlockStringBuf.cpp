// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/BlockStringBuf.h"

#include <cstddef>
#include <cstring>
#include <new>

#include "framework/AssertTypeSizes.h"

namespace {

using Length = std::uint32_t;

/// Where the pointers lie: behind the texts, at an address that suits them.
std::size_t pointersAt(std::size_t size) { return (size + alignof(char*) - 1) / alignof(char*) * alignof(char*); }

/// A whole block. Pointers and all, since a row is one allocation less so and tens of thousands wait.
std::unique_ptr<char[]> makeBlock(std::size_t size, int count) {
    return std::unique_ptr<char[]>(new char[pointersAt(size) + sizeof(char*) * static_cast<std::size_t>(count)]);
}

} // namespace

/// Of the fields of a row, measured once.
struct BlockStringBuf::Lengths {
    Lengths(const UnknownRowInfo& row, int fields) : count(fields) {
        for (int i = 0; i < count; ++i) {
            of[i] = static_cast<Length>(std::strlen(row.m_columns[i]) + 1);
            size += static_cast<Length>(sizeof(Length)) + of[i];
        }
    }

    int count;
    Length size = 0; // of lengths and texts together
    Length of[UnknownRowInfo::kColumns] = {};
};

BlockStringBuf::BlockStringBuf(const UnknownRowInfo& row, int count) : BlockStringBuf(row, Lengths(row, count)) {}

BlockStringBuf::BlockStringBuf(const UnknownRowInfo& row, const Lengths& lengths)
    : m_size(lengths.size), m_count(lengths.count), m_buffer(makeBlock(m_size, m_count)) {
    const std::size_t table = sizeof(Length) * static_cast<std::size_t>(m_count);
    std::memcpy(m_buffer.get(), lengths.of, table);
    char* text = m_buffer.get() + table;
    for (int i = 0; i < m_count; ++i) {
        std::memcpy(text, row.m_columns[i], lengths.of[i]);
        text += lengths.of[i];
    }
}

BlockStringBuf::BlockStringBuf(const BlockStringBuf& other)
    : m_size(other.m_size), m_count(other.m_count), m_buffer(makeBlock(m_size, m_count)) {
    std::memcpy(m_buffer.get(), other.m_buffer.get(), m_size);
}

BlockStringBuf::~BlockStringBuf() = default;

char** BlockStringBuf::restore(int& count) {
    count = m_count;
    char* const pointers = m_buffer.get() + pointersAt(m_size);
    const char* length = m_buffer.get();
    char* text = m_buffer.get() + sizeof(Length) * static_cast<std::size_t>(m_count);
    for (int i = 0; i < m_count; ++i) {
        Length bytes = 0;
        std::memcpy(&bytes, length, sizeof bytes);
        new (pointers + sizeof(char*) * static_cast<std::size_t>(i)) char*(text);
        length += sizeof bytes;
        text += bytes;
    }
    return std::launder(reinterpret_cast<char**>(pointers));
}
