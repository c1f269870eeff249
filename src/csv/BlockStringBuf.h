// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>

#include "csv/UnknownRowInfo.h"
#include "framework/ImportModuleApi.h"

/// An owned copy of one split row in one block: the lengths of the fields (32
/// bits each, zero byte included), then their texts, then room for the pointers
/// that `restore` makes.
class IMPORT_MODULE_API BlockStringBuf {
public:
    /// Packs the first `count` fields of `row`, none of them null.
    BlockStringBuf(const UnknownRowInfo& row, int count);
    /// The copy's fields are there after its own `restore`.
    BlockStringBuf(const BlockStringBuf& other);
    BlockStringBuf& operator=(const BlockStringBuf&) = delete;
    ~BlockStringBuf();

    /// The fields, valid as long as this object; `count` is set to their number.
    char** restore(int& count);

private:
    struct Lengths;
    BlockStringBuf(const UnknownRowInfo& row, const Lengths& lengths);

    std::uint32_t m_size; ///< bytes of lengths and texts
    int m_count;
    std::unique_ptr<char[]> m_buffer;
};
