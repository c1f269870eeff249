// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/BalanceNames.h"

#include <algorithm>
#include <array>
#include <string>

#include "intake/TextTools.h"

namespace {

struct Row {
    std::string_view name; ///< folded
    BalanceName meaning;
};
constexpr auto kOpening = BalanceName::opening;
constexpr auto kClosing = BalanceName::closing;
constexpr auto kAny = BalanceName::any;
constexpr std::array<Row, 50> kRows = {{
    {"anfangssaldo", kOpening},
    {"anfangsstand", kOpening},
    {"anfangsbestand", kOpening},
    {"eroeffnungssaldo", kOpening},
    {"saldovortrag", kOpening},
    {"alter saldo", kOpening},
    {"alter kontostand", kOpening},
    {"letzter kontostand", kOpening},
    {"voriger saldo", kOpening},
    {"startsaldo", kOpening},
    {"opening balance", kOpening},
    {"beginning balance", kOpening},
    {"starting balance", kOpening},
    {"previous balance", kOpening},
    {"balance brought forward", kOpening},
    {"brought forward", kOpening},
    {"solde initial", kOpening},
    {"solde precedent", kOpening},
    {"ancien solde", kOpening},
    {"saldo iniziale", kOpening},
    {"saldo inicial", kOpening},
    {"beginsaldo", kOpening},
    {"endsaldo", kClosing},
    {"endstand", kClosing},
    {"endbestand", kClosing},
    {"schlusssaldo", kClosing},
    {"abschlusssaldo", kClosing},
    {"neuer saldo", kClosing},
    {"neuer kontostand", kClosing},
    {"aktueller saldo", kClosing},
    {"aktueller kontostand", kClosing},
    {"closing balance", kClosing},
    {"ending balance", kClosing},
    {"balance carried forward", kClosing},
    {"carried forward", kClosing},
    {"solde final", kClosing},
    {"nouveau solde", kClosing},
    {"saldo finale", kClosing},
    {"saldo final", kClosing},
    {"eindsaldo", kClosing},
    {"saldo", kAny},
    {"kontostand", kAny},
    {"kontosaldo", kAny},
    {"stand", kAny},
    {"balance", kAny},
    {"solde", kAny},
    {"tagessaldo", kAny},
    {"zwischensaldo", kAny},
    {"account balance", kAny},
    {"current balance", kAny},
}};

// What may stand behind the name: the day, and the currency.
constexpr std::array<std::string_view, 26> kFillers = {"am",  "vom", "zum", "per", "den", "der", "bis",  "as", "of",
                                                       "at",  "on",  "au",  "al",  "du",  "le",  "il",   "a",  "in",
                                                       "eur", "chf", "usd", "gbp", "dm",  "the", "euro", "op"};

// Of these a line speaks, too, that is no booking and has no day.
constexpr std::array<std::string_view, 8> kTotals = {"summe",  "gesamt",    "gesamtsumme",   "total",
                                                     "totale", "uebertrag", "zwischensumme", "totaal"};

constexpr std::size_t kLongestName = 48;
constexpr std::size_t kLongestMention = 60;

bool isFiller(std::string_view word) {
    return std::find(kFillers.begin(), kFillers.end(), word) != kFillers.end() ||
           std::all_of(word.begin(), word.end(), TextTools::isDigit);
}

std::string_view withoutFillers(std::string_view folded) {
    for (;;) {
        const std::size_t blank = folded.rfind(' ');
        if (blank == std::string_view::npos || !isFiller(folded.substr(blank + 1)))
            return folded;
        folded = folded.substr(0, blank);
    }
}

bool beginsWith(std::string_view text, std::string_view word) {
    return text.starts_with(word) && (text.size() == word.size() || text[word.size()] == ' ');
}

/// The first two letters of all names: most texts need no closer look.
class Beginnings {
public:
    constexpr Beginnings() {
        for (const Row& row : kRows)
            m_known[index(row.name[0], row.name[1])] = true;
    }
    constexpr bool has(std::string_view text) const {
        if (text.size() < 2)
            return false;
        const char first = lower(text[0]);
        const char second = lower(text[1]);
        return first >= 'a' && first <= 'z' && second >= 'a' && second <= 'z' && m_known[index(first, second)];
    }

private:
    static constexpr char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
    static constexpr std::size_t index(char first, char second) {
        return static_cast<std::size_t>(first - 'a') * 26U + static_cast<std::size_t>(second - 'a');
    }
    std::array<bool, 26UL * 26UL> m_known{};
};
constexpr Beginnings kBeginnings;

} // namespace

namespace BalanceNames {

std::optional<BalanceName> read(std::string_view cell) {
    const std::string_view text = TextTools::trim(cell);
    if (text.size() > kLongestName || !kBeginnings.has(text))
        return std::nullopt;
    const std::string folded = TextTools::fold(text);
    const std::string_view name = withoutFillers(folded);
    const auto* row = std::find_if(kRows.begin(), kRows.end(), [&](const Row& r) { return r.name == name; });
    return row == kRows.end() ? std::nullopt : std::optional(row->meaning);
}

bool mentionedIn(const RecordTable& table, std::size_t record) {
    for (const std::string_view cell : table.cells(record)) {
        if (cell.size() > kLongestMention)
            continue;
        const std::string folded = TextTools::fold(cell);
        if (std::any_of(kRows.begin(), kRows.end(), [&](const Row& row) { return beginsWith(folded, row.name); }) ||
            std::any_of(kTotals.begin(), kTotals.end(),
                        [&](std::string_view word) { return beginsWith(folded, word); }))
            return true;
    }
    return false;
}

} // namespace BalanceNames
