// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

/// A file descriptor, closed in the end unless it is one of the standard three.
class Descriptor {
public:
    /// Owns `number`; a negative one is a call that failed.
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor() {
        if (m_number > STDERR_FILENO)
            ::close(m_number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return m_number; }
    bool isOpen() const { return m_number >= 0; }

private:
    int m_number;
};
