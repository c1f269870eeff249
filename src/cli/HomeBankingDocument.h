// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "cli/Problem.h"
#include "homebanking/ImportHomeBankingData.h"
#include "homebanking/XmlImportData.h"

/// What the program knows of one of the two home-banking documents.
struct HomeBankingDocument {
    bool isAccountList;
    const char* listTag;
    const char* recordTag;
    const char* record; ///< what a record is called, German
    const char* one;    ///< for the summary
    const char* many;
    const char* done;
    bool (ImportHomeBankingData::*import)(const XmlImportData& data);

    static const HomeBankingDocument& accountList();
    static const HomeBankingDocument& bookingList();
};

/// The element of a booking that feeds a field of it.
namespace BookingElements {

inline constexpr const char* kId = "id";
inline constexpr const char* kIdField = "BuchungsID";

/// Empty for a field that no element feeds.
std::string_view of(std::string_view field);

} // namespace BookingElements
