// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// The memory of this process, with a hand that lets one allocation fail. In an
/// ordinary build that is the C library's malloc, which everything comes from: the library, Qt, SQLite.
/// Under a sanitizer, which has a malloc of its own, it is `operator new` alone.
///
/// For one thread. While the object lives, allocations are counted.
class FailingMemory {
public:
    /// Nothing fails, and no allocation is numbered, while one lives.
    class Pause {
    public:
        Pause();
        ~Pause();
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        bool m_before;
    };

    /// Under a sanitizer.
    static const bool kFailsNewAlone;

    FailingMemory();
    ~FailingMemory();
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;

    /// Lets allocation number `nth` from now on, counted from 1, fail and no other; 0: none.
    void failAt(std::size_t nth);
    /// Whether it came to that allocation.
    bool hasFailed() const;
    /// Blocks allocated since the object was made, less those freed.
    long liveBlocks() const;
};
