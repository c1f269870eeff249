// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

/// The host's names of the account table and of what a row of it holds.
namespace AccountFields {

inline constexpr const char* kTable = "HomeBankingImport";

inline constexpr const char* kBankCode = "BLZ";
inline constexpr const char* kNumber = "KtoNummer";
inline constexpr const char* kImportType = "ImportTyp";
inline constexpr const char* kName = "Bezeichnung";
inline constexpr const char* kExists = "ExistsInHB";

inline constexpr const char* kLastImportDate = "LetztesImportDatum";
inline constexpr const char* kLastBookingId = "LetzteBuchungsId";
inline constexpr const char* kNewBookings = "NeueBuchungen";
inline constexpr const char* kBookings = "DataSets";

} // namespace AccountFields
