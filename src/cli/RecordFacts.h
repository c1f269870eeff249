// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>

#include "datamodel/RecordNode.h"
#include "matching/BookingFacts.h"

/// What tells records of one table from each other: either the records of the
/// file imports or the bookings of the home-banking exchange.
class RecordFacts {
public:
    /// `spec` must be that of one of the two, and outlive the object.
    explicit RecordFacts(const RecordSpec& spec);

    /// Texts belong to `record` and hold until it changes.
    BookingFacts of(const RecordNode& record) const;

    std::optional<int> uniqueId(const RecordNode& record) const { return number(record, m_uniqueId); }
    std::optional<int> session(const RecordNode& record) const { return number(record, m_session); }
    std::optional<int> line(const RecordNode& record) const { return number(record, m_line); }

private:
    using Place = std::optional<std::size_t>; // of a field; none where the table lacks it

    static std::optional<int> number(const RecordNode& record, Place place);
    static std::string_view text(const RecordNode& record, Place place);

    Place m_day;
    Place m_amount;
    Place m_payee;
    Place m_purpose;
    Place m_details[3];
    Place m_number;
    Place m_uniqueId;
    Place m_session;
    Place m_line;
};
