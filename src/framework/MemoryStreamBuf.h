// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <streambuf>

/// Reads from memory that somebody else owns and that is never written to.
class MemoryStreamBuf : public std::streambuf {
public:
    MemoryStreamBuf(const char* bytes, unsigned long size) {
        // The get area is not const by its type alone; nothing here writes to it.
        char* begin = const_cast<char*>(bytes);
        setg(begin, begin, begin + size);
    }
};
