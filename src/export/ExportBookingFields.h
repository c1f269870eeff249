// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "datamodel/RecordSpec.h"
#include "export/ExportRecord.h"

/// Takes the bookings of one account out of the model.
class ExportBookingFields {
public:
    /// `account` is a row of "HomeBankingImport", `spec` that of its bookings; both must outlive the object.
    ExportBookingFields(const RecordNode& account, const RecordSpec& spec);

    /// Valid until the booking or the account changes.
    ExportRecord of(const RecordNode& row) const;

private:
    const RecordNode& m_account;
    std::size_t m_bank;
    std::size_t m_number;
    std::size_t m_id;
    std::size_t m_day;
    std::size_t m_valueDay;
    std::size_t m_amount;
    std::size_t m_payee;
    std::size_t m_purpose;
    std::size_t m_postingText;
    std::size_t m_category;
    std::size_t m_note;
    std::size_t m_tax;
    std::size_t m_uniqueId;
};
