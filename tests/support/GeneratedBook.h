// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "support/RecordBook.h"

/// Records of everything that can stand in one: the same on every machine for
/// the same seed.
class GeneratedBook {
public:
    explicit GeneratedBook(std::uint32_t seed) : m_state(seed) {}

    std::vector<BookRow> rows(std::size_t count) {
        std::vector<BookRow> rows;
        rows.reserve(count);
        for (std::size_t i = 0; i < count; ++i)
            rows.push_back(row());
        return rows;
    }

private:
    /// From 0 to `sides` - 1.
    unsigned roll(unsigned sides) {
        m_state = m_state * 1664525U + 1013904223U;
        return (m_state >> 8U) % sides;
    }

    BookRow row() {
        BookRow row;
        if (roll(8) != 0)
            row.day = day();
        row.hasAmount = roll(10) != 0;
        if (row.hasAmount)
            row.amount = amount();
        for (std::string& words : row.texts)
            words = text();
        return row;
    }

    DMDate day() {
        static constexpr unsigned kYears[] = {1, 12, 999, 1399, 1400, 1969, 2004, 2024, 9999};
        return {1 + roll(28), 1 + roll(12), kYears[roll(std::size(kYears))]};
    }

    double amount() {
        static constexpr double kOdd[] = {0.0,
                                          9999999999999.99,
                                          -9999999999999.99,
                                          0.001,
                                          1.234,
                                          -1.2345678,
                                          1e-7,
                                          5e-324,
                                          1e-300,
                                          1.0005,
                                          100.0,
                                          0.1 + 0.2,
                                          1e-16,
                                          12.5};
        if (roll(3) == 0)
            return kOdd[roll(std::size(kOdd))];
        const double cents = static_cast<double>(roll(1U << 24U)) / 100.0;
        return roll(2) == 0 ? -cents : cents;
    }

    std::string text() {
        static constexpr std::size_t kLengths[] = {0, 0, 1, 2, 5, 12, 30, 60};
        static constexpr std::string_view kMeaning = "\"\"\"\"'';;==+-@\t\r\n  ,|:!*^()[]";
        std::size_t length = kLengths[roll(std::size(kLengths))];
        if (roll(60) == 0)
            length = 3900 + roll(4000);
        std::string text;
        for (std::size_t i = 0; i < length; ++i)
            text += roll(2) == 0 ? kMeaning[roll(kMeaning.size())] : static_cast<char>(1 + roll(255));
        return text;
    }

    std::uint32_t m_state;
};
