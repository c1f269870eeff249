// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/HomeBankingDocument.h"

namespace {

constexpr HomeBankingDocument kAccountList = {
    true, "kontoliste", "konto", "Konto", "Konto", "Konten", "abgeglichen", &ImportHomeBankingData::updateAccountList};
constexpr HomeBankingDocument kBookingList = {
    false,     "buchungsliste", "buchung",    "Buchung",
    "Buchung", "Buchungen",     "importiert", &ImportHomeBankingData::importAccountingEntries};

struct Entry {
    std::string_view field;
    std::string_view element;
};

constexpr Entry kElements[] = {
    {BookingElements::kIdField, BookingElements::kId},
    {"BuchungsDatum", "datum"},
    {"ValutaDatum", "valuta"},
    {"GVCode", "gvcode"},
    {"Betrag", "betrag"},
    {"Verwendungszweck", "verwendungszweck"},
    {"Steuerrelevant", "steuerrelevant"},
    {"Empfaenger", "empfaenger"},
    {"Notiz", "notiz"},
    {"Kategorie", "kategorie"},
};

} // namespace

const HomeBankingDocument& HomeBankingDocument::accountList() { return kAccountList; }

const HomeBankingDocument& HomeBankingDocument::bookingList() { return kBookingList; }

std::string_view BookingElements::of(std::string_view field) {
    for (const Entry& entry : kElements) {
        if (field == entry.field)
            return entry.element;
    }
    return {};
}
