// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/StatusWords.h"

#include <array>
#include <string>

#include "intake/TextTools.h"

namespace {

struct Row {
    std::string_view part; ///< folded; found anywhere in the text
    BookingStatus status;
};
constexpr auto kBooked = BookingStatus::booked;
constexpr auto kPending = BookingStatus::pending;
constexpr auto kFailed = BookingStatus::failed;
// In this order: "nicht gebucht" is not "gebucht".
constexpr std::array<Row, 78> kRows = {{
    {"vorgemerkt", kPending},      {"vormerk", kPending},      {"pending", kPending},
    {"nicht gebucht", kPending},   {"noch nicht", kPending},   {"not booked", kPending},
    {"not yet", kPending},         {"unbooked", kPending},     {"ausstehend", kPending},
    {"en attente", kPending},      {"en cours", kPending},     {"a venir", kPending},
    {"in attesa", kPending},       {"in sospeso", kPending},   {"in bearbeitung", kPending},
    {"processing", kPending},      {"autoris", kPending},      {"autoriz", kPending},
    {"authoriz", kPending},        {"authoris", kPending},     {"non comptabilis", kPending},
    {"non contabilizz", kPending}, {"pendiente", kPending},    {"pendente", kPending},
    {"venter", kPending},          {"gereserveerd", kPending}, {"reserver", kPending},
    {"in behandeling", kPending},  {"oczekuj", kPending},      {"blokada", kPending},
    {"abgelehnt", kFailed},        {"storniert", kFailed},     {"fehlgeschlagen", kFailed},
    {"zurueckgewiesen", kFailed},  {"abgebrochen", kFailed},   {"verfallen", kFailed},
    {"geloescht", kFailed},        {"cancel", kFailed},        {"declined", kFailed},
    {"denied", kFailed},           {"failed", kFailed},        {"rejected", kFailed},
    {"reverted", kFailed},         {"expired", kFailed},       {"voided", kFailed},
    {"refuse", kFailed},           {"annul", kFailed},         {"rechazad", kFailed},
    {"rifiutat", kFailed},         {"geweigerd", kFailed},     {"geannuleerd", kFailed},
    {"odrzucon", kFailed},         {"anulowan", kFailed},      {"avvist", kFailed},
    {"gebucht", kBooked},          {"berechnet", kBooked},     {"abgerechnet", kBooked},
    {"abgeschlossen", kBooked},    {"ausgefuehrt", kBooked},   {"booked", kBooked},
    {"posted", kBooked},           {"cleared", kBooked},       {"settled", kBooked},
    {"complete", kBooked},         {"executed", kBooked},      {"comptabilis", kBooked},
    {"contabilizz", kBooked},      {"contabilizad", kBooked},  {"effettuat", kBooked},
    {"udfort", kBooked},           {"utfort", kBooked},        {"bokford", kBooked},
    {"bokfort", kBooked},          {"zaksiegowan", kBooked},   {"rozliczon", kBooked},
    {"zrealizowan", kBooked},      {"verwerkt", kBooked},      {"uitgevoerd", kBooked},
}};

} // namespace

namespace StatusWords {

std::optional<BookingStatus> read(std::string_view cell) {
    constexpr std::size_t kLongest = 60;
    const std::string_view text = TextTools::trim(cell);
    if (text.empty() || text.size() > kLongest)
        return std::nullopt;
    const std::string folded = TextTools::fold(text);
    if (folded == "offen" || folded == "open")
        return kPending;
    for (const Row& row : kRows) {
        if (folded.find(row.part) != std::string::npos)
            return row.status;
    }
    return std::nullopt;
}

} // namespace StatusWords
