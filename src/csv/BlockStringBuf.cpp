// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/BlockStringBuf.h"

#include <cstddef>
#include <cstring>

#include "framework/AssertTypeSizes.h"

namespace {

using Length = std::uint32_t;

Length packedSize(const UnknownRowInfo& row, int count) {
    std::size_t size = 0;
    for (int i = 0; i < count; ++i)
        size += sizeof(Length) + std::strlen(row.m_columns[i]) + 1;
    return static_cast<Length>(size);
}

} // namespace

BlockStringBuf::BlockStringBuf(const UnknownRowInfo& row, int count)
    : m_size(packedSize(row, count)), m_count(count), m_buffer(new char[m_size]) {
    char* length = m_buffer.get();
    char* text = length + sizeof(Length) * static_cast<std::size_t>(count);
    for (int i = 0; i < count; ++i) {
        const auto bytes = static_cast<Length>(std::strlen(row.m_columns[i]) + 1);
        std::memcpy(length, &bytes, sizeof bytes);
        std::memcpy(text, row.m_columns[i], bytes);
        length += sizeof bytes;
        text += bytes;
    }
}

BlockStringBuf::BlockStringBuf(const BlockStringBuf& other)
    : m_size(other.m_size), m_count(other.m_count), m_buffer(new char[other.m_size]) {
    std::memcpy(m_buffer.get(), other.m_buffer.get(), m_size);
}

BlockStringBuf::~BlockStringBuf() = default;

char** BlockStringBuf::restore(int& count) {
    count = m_count;
    m_columns.reset(new char*[static_cast<std::size_t>(m_count)]);
    const char* length = m_buffer.get();
    char* text = m_buffer.get() + sizeof(Length) * static_cast<std::size_t>(m_count);
    for (int i = 0; i < m_count; ++i) {
        Length bytes = 0;
        std::memcpy(&bytes, length, sizeof bytes);
        m_columns[i] = text;
        length += sizeof bytes;
        text += bytes;
    }
    return m_columns.get();
}
