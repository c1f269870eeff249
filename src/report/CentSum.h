// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// A sum of amounts in hundredths, exact however many there are: whole units
/// and hundredths are kept apart, so that 65,535 of the largest amounts a model
/// takes do not overflow.
class CentSum {
public:
    CentSum() = default;
    explicit CentSum(std::int64_t cents) { add(cents); }

    void add(std::int64_t cents) { add(cents / kInWhole, cents % kInWhole); }
    CentSum& operator+=(const CentSum& other);
    friend CentSum operator+(CentSum a, const CentSum& b) { return a += b; }

    bool isZero() const { return m_whole == 0 && m_cents == 0; }
    /// In hundredths; nothing where a drawing could not calculate with it any more.
    std::optional<std::int64_t> drawable() const;
    /// The nearest double; sums of books are far below where it would not be exact to the hundredth.
    double inUnits() const;
    /// `-1.234,56`
    std::string text() const;

    friend bool operator==(const CentSum& a, const CentSum& b) {
        return a.m_whole == b.m_whole && a.m_cents == b.m_cents;
    }

private:
    static constexpr std::int64_t kInWhole = 100;

    void add(std::int64_t whole, std::int64_t cents);

    std::int64_t m_whole = 0;
    std::int64_t m_cents = 0; ///< below 100, never against the sign of `m_whole`
};
