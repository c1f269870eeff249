// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/DecimalMarkDecision.h"

#include <array>

#include "intake/Money.h"
#include "intake/TextTools.h"

namespace {

constexpr std::array<char, 2> kMarks = {',', '.'};

/// How many amounts a mark reads, and the first that shows it is this one.
struct Tally {
    int plausible = 0;
    int proofLine = 0;
    int proofColumn = -1;
};

/// No bank counts in thousandths: "1.000" is a thousand.
bool isPlausible(const std::optional<AmountCell>& amount) { return amount && amount->magnitude.scale <= 2; }

} // namespace

namespace DecimalMarks {

DecimalMarkDecision decide(const RecordTable& table, const TablePlan& plan) {
    const std::array<int, 4> columns = {plan.roles.amount, plan.roles.debit, plan.roles.credit, plan.roles.balance};
    std::array<Tally, kMarks.size()> tallies;
    DecimalMarkDecision decision;
    for (std::size_t record = plan.region.begin; record < plan.region.end; ++record) {
        for (const int column : columns) {
            const std::string_view text = TextTools::trim(table.cell(record, column));
            if (text.empty())
                continue;
            std::array<std::optional<AmountCell>, kMarks.size()> read;
            for (std::size_t i = 0; i < kMarks.size(); ++i)
                read[i] = AmountCells::read(text, kMarks[i]);
            for (std::size_t i = 0; i < kMarks.size(); ++i) {
                if (!isPlausible(read[i]))
                    continue;
                ++tallies[i].plausible;
                if (tallies[i].proofLine == 0 && !isPlausible(read[1 - i])) {
                    tallies[i].proofLine = table.record(record).firstLine + 1;
                    tallies[i].proofColumn = column;
                }
            }
            const bool differ = isPlausible(read[0]) && isPlausible(read[1]) && !(read[0]->value() == read[1]->value());
            if (differ && decision.example.empty()) {
                decision.exampleLine = table.record(record).firstLine + 1;
                decision.example = text;
            }
        }
    }
    if (tallies[0].plausible != tallies[1].plausible) {
        const std::size_t winner = tallies[0].plausible > tallies[1].plausible ? 0 : 1;
        decision.mark = kMarks[winner];
        decision.reason = {tallies[winner].proofLine, tallies[winner].proofColumn,
                           std::string("Die Beträge haben „") + kMarks[winner] + "“ vor den Dezimalstellen."};
    } else if (decision.example.empty() && tallies[0].plausible > 0) {
        decision.mark = ','; // whole amounts: every mark reads the same
        decision.reason = {0, -1, "Die Beträge haben keine Dezimalstellen."};
    }
    return decision;
}

} // namespace DecimalMarks
