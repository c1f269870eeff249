// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "report/CentSum.h"

#include <limits>

#include "report/GermanText.h"

CentSum& CentSum::operator+=(const CentSum& other) {
    add(other.m_whole, other.m_cents);
    return *this;
}

void CentSum::add(std::int64_t whole, std::int64_t cents) {
    m_cents += cents;
    m_whole += whole + m_cents / kInWhole;
    m_cents %= kInWhole;
    if (m_whole > 0 && m_cents < 0) {
        --m_whole;
        m_cents += kInWhole;
    } else if (m_whole < 0 && m_cents > 0) {
        ++m_whole;
        m_cents -= kInWhole;
    }
}

std::optional<std::int64_t> CentSum::drawable() const {
    constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max() / kInWhole / 10; // room for scales
    if (m_whole > kMost || m_whole < -kMost)
        return std::nullopt;
    return m_whole * kInWhole + m_cents;
}

double CentSum::inUnits() const {
    const std::optional<std::int64_t> all = drawable();
    // One division, so that the quotient is the double nearest to the sum.
    return all ? static_cast<double>(*all) / static_cast<double>(kInWhole) : static_cast<double>(m_whole);
}

std::string CentSum::text() const {
    const bool negative = m_whole < 0 || m_cents < 0;
    const std::int64_t whole = m_whole < 0 ? -m_whole : m_whole;
    const std::int64_t cents = m_cents < 0 ? -m_cents : m_cents;
    return (negative ? "-" : "") + GermanText::grouped(static_cast<std::uint64_t>(whole)) + (cents < 10 ? ",0" : ",") +
           std::to_string(cents);
}
