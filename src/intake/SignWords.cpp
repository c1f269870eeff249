// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/SignWords.h"

#include <array>
#include <string>

#include "intake/TextTools.h"

namespace {

struct Row {
    std::string_view word; ///< folded
    AmountCell::Sign sign;
};
constexpr auto kMinus = AmountCell::Sign::minus;
constexpr auto kPlus = AmountCell::Sign::plus;
constexpr std::array<Row, 47> kRows = {{
    {"s", kMinus},
    {"h", kPlus},
    {"soll", kMinus},
    {"haben", kPlus},
    {"d", kMinus},
    {"c", kPlus},
    {"dr", kMinus},
    {"cr", kPlus},
    {"dbit", kMinus},
    {"crdt", kPlus},
    {"debit", kMinus},
    {"credit", kPlus},
    {"debet", kMinus},
    {"deb", kMinus},
    {"cred", kPlus},
    {"ausgang", kMinus},
    {"eingang", kPlus},
    {"belastung", kMinus},
    {"gutschrift", kPlus},
    {"abgang", kMinus},
    {"zugang", kPlus},
    {"ausgabe", kMinus},
    {"einnahme", kPlus},
    {"af", kMinus},
    {"bij", kPlus},
    {"out", kMinus},
    {"in", kPlus},
    {"withdrawal", kMinus},
    {"deposit", kPlus},
    {"addebito", kMinus},
    {"accredito", kPlus},
    {"dare", kMinus},
    {"avere", kPlus},
    {"uscita", kMinus},
    {"entrata", kPlus},
    {"debito", kMinus},
    {"credito", kPlus},
    {"auszahlung", kMinus},
    {"einzahlung", kPlus},
    {"lastschrift", kMinus},
    {"ausgehend", kMinus},
    {"eingehend", kPlus},
    {"income", kPlus},
    {"expense", kMinus},
    {"zahlungseingang", kPlus},
    {"zahlungsausgang", kMinus},
    {"payment", kMinus},
}};

} // namespace

namespace SignWords {

std::optional<AmountCell::Sign> read(std::string_view cell) {
    const std::string_view text = TextTools::trim(cell);
    if (text == "-")
        return kMinus;
    if (text == "+")
        return kPlus;
    if (text.empty() || text.size() > 20)
        return std::nullopt;
    const std::string folded = TextTools::fold(text);
    for (const Row& row : kRows) {
        if (row.word == folded)
            return row.sign;
    }
    return std::nullopt;
}

} // namespace SignWords
