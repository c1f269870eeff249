// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

/// The bytes of a long text, shared by the values and fields that hold it and
/// released by the last of them. Counted without locks: a tree and its values
/// belong to one thread.
///
/// Count and bytes lie in one allocation, and the bytes end with a zero byte in
/// place of a stored length: with tens of thousands of rows the bytes saved per
/// text count.
class SharedText {
public:
    /// A block with one owner. `text` holds no zero byte.
    static SharedText* make(std::string_view text);

    SharedText(const SharedText&) = delete;
    SharedText& operator=(const SharedText&) = delete;

    SharedText* acquire() {
        ++m_owners;
        return this;
    }
    void release() {
        if (--m_owners == 0)
            dispose();
    }
    std::string_view text() const { return reinterpret_cast<const char*>(this + 1); }

private:
    SharedText() = default;
    ~SharedText() = default;
    void dispose();

    std::uint32_t m_owners = 1;
};
