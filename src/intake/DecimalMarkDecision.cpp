// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/DecimalMarkDecision.h"

#include <array>
#include <vector>

#include "intake/Money.h"
#include "intake/TextTools.h"

namespace {

constexpr std::array<char, 2> kMarks = {',', '.'};
/// Fewer have a zero at the end by chance.
constexpr int kAmountsThatTell = 2;

/// What the amounts of some columns say for and against each mark.
class Evidence {
public:
    Evidence(const RecordTable& table, const TablePlan& plan, const std::vector<int>& columns) {
        for (std::size_t record = plan.region.begin; record < plan.region.end; ++record) {
            for (const int column : columns) {
                if (const std::string_view text = TextTools::trim(table.cell(record, column)); !text.empty())
                    consider(table.record(record).firstLine + 1, column, text);
            }
        }
    }

    DecimalMarkDecision decision() const {
        DecimalMarkDecision result;
        const std::size_t winner = isBetter(0, 1) ? 0 : 1;
        if (couldBeThousandths(1 - winner)) {
            // "1,250" and "12,500" throughout: thousands, or cents with a zero behind them.
            tellExample(m_for[winner].proof, result);
        } else if (isBetter(0, 1) || isBetter(1, 0)) {
            result.mark = kMarks[winner];
            result.thousandths = m_for[winner].onlyThousandths();
            const Place& proof = m_for[winner].proof;
            result.reason = {proof.line, proof.column,
                             std::string("Die Beträge haben „") + kMarks[winner] + "“ vor den Dezimalstellen."};
        } else if (m_for[0].plausible > 0) { // as many speak for the one as for the other
            tellExample(m_for[0].proof.line > m_for[1].proof.line ? m_for[0].proof : m_for[1].proof, result);
        } else if (m_anyWhole) {
            result.mark = ','; // whole amounts: every mark reads the same
            result.reason = {0, -1, "Die Beträge haben keine Dezimalstellen."};
        }
        return result;
    }

private:
    struct Place {
        int line = 0;
        int column = -1;
        std::string text{};
    };
    struct ForMark {
        int plausible = 0;
        int decimals = 0;         ///< amounts with this mark and other than three digits behind it
        int thousandths = 0;      ///< amounts with three digits behind it that group no thousands
        int groups = 0;           ///< amounts where it could be either, and the third digit is a zero
        bool cents = false;       ///< of those, not all are round thousands
        bool tellsGroups = false; ///< the third digit is none: nobody counts in thousandths of a cent
        bool impossible = false;  ///< there are amounts that this mark cannot read
        Place proof{};            ///< the first amount that speaks for it

        bool onlyThousandths() const { return thousandths > 0 && decimals == 0 && !impossible; }
    };

    static void tellExample(const Place& place, DecimalMarkDecision& result) {
        result.exampleLine = place.line;
        result.example = place.text;
    }

    /// Every amount has this mark, three digits behind it, and the last of them is a zero.
    bool couldBeThousandths(std::size_t mark) const {
        const ForMark& m = m_for[mark];
        return m.groups >= kAmountsThatTell && m.cents && !m.tellsGroups && !m_anyWhole && m.decimals == 0 &&
               !m.impossible && m_for[1 - mark].plausible == m.groups;
    }

    /// A mark that reads everything beats one that does not; otherwise the more, the better.
    bool isBetter(std::size_t mark, std::size_t other) const {
        if (m_for[mark].impossible != m_for[other].impossible)
            return m_for[other].impossible;
        return m_for[mark].plausible > m_for[other].plausible;
    }

    void consider(int line, int column, std::string_view text) {
        if (text.find_first_of(",.") == std::string_view::npos) {
            m_anyWhole = m_anyWhole || AmountCells::read(text, ',').has_value();
            return;
        }
        const std::array<std::optional<AmountCell>, kMarks.size()> read = {AmountCells::read(text, kMarks[0]),
                                                                           AmountCells::read(text, kMarks[1])};
        // Hardly any bank counts in thousandths: "1.000" is a thousand.
        const auto isPlausible = [&](std::size_t i) { return read[i] && !read[i]->thousand; };
        for (std::size_t i = 0; i < kMarks.size(); ++i) {
            if (read[i])
                countDecimals(*read[i], m_for[i]);
        }
        if (isPlausible(0) && isPlausible(1)) { // the point of "Fr. 5"
            m_anyWhole = true;
            return;
        }
        for (std::size_t i = 0; i < kMarks.size(); ++i) {
            m_for[i].impossible = m_for[i].impossible || (!read[i] && read[1 - i]);
            if (isPlausible(i) && ++m_for[i].plausible == 1)
                m_for[i].proof = {line, column, std::string(text)};
        }
    }

    static void countDecimals(const AmountCell& amount, ForMark& mark) {
        if (!amount.marked)
            return;
        const bool three = amount.magnitude.scale == 3;
        mark.decimals += three ? 0 : 1;
        mark.thousandths += three && !amount.thousand ? 1 : 0;
        mark.cents = mark.cents || (amount.thousand && amount.magnitude.mantissa % 1000 != 0);
        mark.groups += amount.thousand && amount.magnitude.mantissa % 10 == 0 ? 1 : 0;
        mark.tellsGroups = mark.tellsGroups || (amount.thousand && amount.magnitude.mantissa % 10 != 0);
    }

    std::array<ForMark, kMarks.size()> m_for;
    bool m_anyWhole = false;
};

} // namespace

namespace DecimalMarks {

DecimalMarkDecision decide(const RecordTable& table, const TablePlan& plan) {
    const ColumnRoles& roles = plan.roles;
    DecimalMarkDecision decision = Evidence(table, plan, {roles.amount, roles.debit, roles.credit}).decision();
    // Whole amounts: the balance may have decimals. It may also be written otherwise.
    const bool open = !decision.mark || decision.reason.line == 0;
    if (open && roles.balance >= 0)
        return Evidence(table, plan, {roles.amount, roles.debit, roles.credit, roles.balance}).decision();
    return decision;
}

} // namespace DecimalMarks
