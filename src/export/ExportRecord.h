// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "datamodel/RecordNode.h"
#include "framework/datamodel_api/DMDate.h"

/// What a booking of the home-banking exchange has beside a record of a file.
/// Texts are the host's bytes, owned by the model.
struct ExportBooking {
    const RecordNode* account = nullptr;
    std::string_view bank;   ///< "BLZ"
    std::string_view number; ///< "KtoNummer"
    std::string_view id;     ///< the bank's own, "BuchungsID"
    DMDate valueDay;         ///< zero: none
    std::string_view note;   ///< "Notiz"
    std::optional<bool> isTaxRelevant;
};

/// One record of the file imports, or one booking, as formats write it out.
/// Texts are the host's bytes, owned by the model.
struct ExportRecord {
    const RecordNode* row = nullptr; ///< all of its fields, for a format that has room for them
    DMDate day;                      ///< zero: none
    std::optional<double> amount;
    std::string_view payee;
    std::string_view purpose;
    std::string_view postingText; ///< of a booking its "GVCode"
    std::string_view category;
    std::string_view subcategory; ///< empty for a booking
    std::optional<std::int32_t> uniqueId;
    std::optional<std::int32_t> session; ///< none for a booking
    std::optional<std::int32_t> line;    ///< of the imported file, from 1
    std::optional<ExportBooking> booking;
};
