// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "datamodel/RecordSpec.h"
#include "export/ExportRecord.h"

/// Takes records out of the model; knows where their fields are.
class ExportRecordFields {
public:
    /// `spec` is that of "DataSets" and must outlive the object.
    explicit ExportRecordFields(const RecordSpec& spec);

    /// Valid until the record changes.
    ExportRecord of(const RecordNode& row) const;

private:
    std::size_t m_day;
    std::size_t m_amount;
    std::size_t m_payee;
    std::size_t m_purpose;
    std::size_t m_postingText;
    std::size_t m_category;
    std::size_t m_subcategory;
    std::size_t m_uniqueId;
    std::size_t m_session;
    std::size_t m_line;
};
