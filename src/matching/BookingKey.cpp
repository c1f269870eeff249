// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "matching/BookingKey.h"

#include <cstring>
#include <functional>

#include "matching/TextFolding.h"

namespace {

// No folded text has it.
constexpr char kEnd = '\0';

template <typename Number>
void appendBytes(std::string& out, Number number) {
    char bytes[sizeof number];
    std::memcpy(bytes, &number, sizeof number);
    out.append(bytes, sizeof number);
}

} // namespace

BookingKey::BookingKey(const BookingFacts& facts) {
    m_bytes.reserve(kTexts + facts.payee.size() + facts.purpose.size() + 2);
    m_bytes += static_cast<char>((facts.day ? 1 : 0) + (facts.amount ? 2 : 0));
    appendBytes(m_bytes, static_cast<std::int32_t>(facts.day ? facts.day->time_since_epoch().count() : 0));
    appendBytes(m_bytes, facts.amount.value_or(0.0) + 0.0); // negative zero is zero
    TextFolding::append(m_bytes, facts.payee);
    const std::size_t payeeEnd = m_bytes.size();
    m_payee = payeeEnd - kTexts;
    m_bytes += kEnd;
    TextFolding::append(m_bytes, facts.purpose);
    const std::size_t purposeEnd = m_bytes.size();
    m_purpose = purposeEnd - payeeEnd - 1;
    m_bytes += kEnd;
    if (!facts.day || (m_payee == 0 && m_purpose == 0)) {
        for (const std::string_view detail : facts.details) {
            TextFolding::append(m_bytes, detail);
            m_bytes += kEnd;
        }
    }
    m_hash = std::hash<std::string_view>()(m_bytes);
}
