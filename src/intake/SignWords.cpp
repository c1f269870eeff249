// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/SignWords.h"

#include <algorithm>
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

constexpr std::array<Row, 67> kMarks = {{
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
    {"ausgehend", kMinus},
    {"eingehend", kPlus},
    {"income", kPlus},
    {"expense", kMinus},
    {"zahlungseingang", kPlus},
    {"zahlungsausgang", kMinus},
    {"outgoing", kMinus},
    {"incoming", kPlus},
    {"outflow", kMinus},
    {"inflow", kPlus},
    {"cargo", kMinus},
    {"abono", kPlus},
    {"depense", kMinus},
    {"recette", kPlus},
    {"uit", kMinus},
    {"credited", kPlus},
    {"debited", kMinus},
    {"ut", kMinus},
    {"inn", kPlus},
    {"wplyw", kPlus},
    {"wydatek", kMinus},
    {"uznanie", kPlus},
    {"obciazenie", kMinus},
    {"erhalten", kPlus},
    {"gesendet", kMinus},
    {"sell", kPlus},
    {"buy", kMinus},
    {"fee", kMinus},
}};

// Parts of words, in this order: a returned direct debit brings the money back.
constexpr std::array<Row, 55> kKinds = {{
    {"ruecklastschrift", kPlus},
    {"rueckbuchung", kPlus},
    {"erstattung", kPlus},
    {"rueckzahlung", kPlus},
    {"refund", kPlus},
    {"remboursement", kPlus},
    {"rimborso", kPlus},
    {"gutschrift", kPlus},
    {"gehalt", kPlus},
    {"lohn", kPlus},
    {"rente", kPlus},
    {"einzahlung", kPlus},
    {"zahlungseingang", kPlus},
    {"deposit", kPlus},
    {"accredito", kPlus},
    {"stipendio", kPlus},
    {"salaire", kPlus},
    {"salary", kPlus},
    {"nomina", kPlus},
    {"pensione", kPlus},
    {"dividend", kPlus},
    {"verkauf", kPlus},
    {"vente", kPlus},
    {"vendita", kPlus},
    {"kauf", kMinus},
    {"achat", kMinus},
    {"acquisto", kMinus},
    {"lastschrift", kMinus},
    {"abbuchung", kMinus},
    {"belastung", kMinus},
    {"dauerauftrag", kMinus},
    {"kartenzahlung", kMinus},
    {"kartenumsatz", kMinus},
    {"bargeldauszahlung", kMinus},
    {"auszahlung", kMinus},
    {"geldautomat", kMinus},
    {"card payment", kMinus},
    {"purchase", kMinus},
    {"withdrawal", kMinus},
    {"direct debit", kMinus},
    {"standing order", kMinus},
    {"prelevement", kMinus},
    {"retrait", kMinus},
    {"addebito", kMinus},
    {"prelievo", kMinus},
    {"incasso", kMinus},
    {"betaalautomaat", kMinus},
    {"geldautomaat", kMinus},
    {"recibo", kMinus},
    {"adeudo", kMinus},
    {"entgelt", kMinus},
    {"gebuehr", kMinus},
    {"commission", kMinus},
    {"paiement par carte", kMinus},
    {"pagamento pos", kMinus},
}};

constexpr auto kMarksByWord = [] {
    auto sorted = kMarks;
    std::sort(sorted.begin(), sorted.end(), [](const Row& a, const Row& b) { return a.word < b.word; });
    return sorted;
}();
static_assert(std::adjacent_find(kMarksByWord.begin(), kMarksByWord.end(),
                                 [](const Row& a, const Row& b) { return a.word == b.word; }) == kMarksByWord.end());

constexpr std::size_t kLongestMark = 20;
constexpr std::size_t kLongestKind = 60;

} // namespace

namespace SignWords {

std::optional<AmountCell::Sign> read(std::string_view cell) {
    const std::string_view text = TextTools::trim(cell);
    if (text == "-")
        return kMinus;
    if (text == "+")
        return kPlus;
    if (text.empty() || text.size() > kLongestMark)
        return std::nullopt;
    const std::string folded = TextTools::fold(text);
    const auto* row = std::lower_bound(kMarksByWord.begin(), kMarksByWord.end(), folded,
                                       [](const Row& known, const std::string& word) { return known.word < word; });
    return row != kMarksByWord.end() && row->word == folded ? std::optional(row->sign) : std::nullopt;
}

std::optional<AmountCell::Sign> ofKind(std::string_view cell) {
    if (const auto mark = read(cell))
        return mark;
    if (cell.size() > kLongestKind)
        return std::nullopt;
    const std::string folded = TextTools::fold(cell);
    const auto* row = std::find_if(kKinds.begin(), kKinds.end(),
                                   [&](const Row& r) { return folded.find(r.word) != std::string::npos; });
    return row == kKinds.end() ? std::nullopt : std::optional(row->sign);
}

} // namespace SignWords
