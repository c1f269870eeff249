// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "matching/BookingFacts.h"

/// The identity of a booking: day, amount, payee and purpose, texts folded. Where
/// these say too little, for an undated booking or one without payee and purpose,
/// category, subcategory and kind belong to it.
class BookingKey {
public:
    explicit BookingKey(const BookingFacts& facts);

    bool operator==(const BookingKey& other) const { return m_bytes == other.m_bytes; }
    std::uint64_t hash() const { return m_hash; }

    std::string_view payee() const { return {m_bytes.data() + kTexts, m_payee}; } ///< folded
    std::string_view purpose() const { return {payee().end() + 1, m_purpose}; }   ///< folded

private:
    static constexpr std::size_t kTexts = 13; // where they begin: behind day, amount and what of them there is

    std::string m_bytes;
    std::size_t m_payee;
    std::size_t m_purpose;
    std::uint64_t m_hash;
};
