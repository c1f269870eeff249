// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/BalanceCheck.h"

#include <algorithm>
#include <optional>

#include "intake/BalanceChain.h"
#include "intake/BalanceNames.h"
#include "intake/TextTools.h"

namespace {

/// A chain of balances is believed when hardly any link is broken.
constexpr int kBreaksInAHundred = 5;

BalanceCheck checkRunningColumn(const std::vector<BalanceChain::Link>& links, const std::vector<Day>& days) {
    const BalanceChain chain = BalanceChain::follow(links, BalanceChain::orderOf(days));
    BalanceCheck result;
    result.runningColumn = true;
    result.newestFirst = chain.newestFirst;
    result.steps = chain.steps;
    result.fitting = chain.fitting;
    if (chain.steps > 0 && (chain.steps - chain.fitting) * 100 <= chain.steps * kBreaksInAHundred) {
        result.proof = chain.breaks.empty() ? BalanceProof::certified : BalanceProof::broken;
        result.breaks = chain.breaks;
    } else if (chain.steps >= 2 && chain.fittingSizes == chain.steps) {
        result.signsFromBalance = true;
        result.proof = BalanceProof::certified;
    } else if (chain.fitting * 2 > chain.steps) {
        result.proof = BalanceProof::broken;
        result.breaks = chain.breaks;
    } else {
        result.signsContradict = chain.steps > 0 && chain.fittingSizes * 2 > chain.steps;
    }
    return result;
}

/// An amount outside the bookings that could be a balance, and what it is called.
struct StatedBalance {
    Money value;
    std::optional<BalanceName> name;
};

/// The one amount of a record, with the sign that a word beside it gives.
std::optional<StatedBalance> statedIn(const RecordTable& table, std::size_t record, char decimalMark) {
    std::optional<StatedBalance> found;
    std::optional<BalanceName> name;
    bool debit = false;
    for (const std::string_view raw : table.cells(record)) {
        const std::string_view text = TextTools::trim(raw);
        if (const auto amount = AmountCells::read(text, decimalMark); amount && amount->marked) {
            if (found)
                return std::nullopt;
            found = StatedBalance{amount->value(), std::nullopt};
        } else if (text == "S") {
            debit = true;
        } else if (!name) {
            name = BalanceNames::read(text);
        }
    }
    if (found) {
        found->value = debit ? found->value.negated() : found->value;
        found->name = name;
    }
    return found;
}

/// The balances around the bookings of a table.
class Ends {
public:
    Ends(const RecordTable& table, const TablePlan& plan, std::size_t firstBooking, std::size_t lastBooking) {
        const std::size_t top = plan.region.header.value_or(plan.region.begin);
        for (std::size_t i = 0; i < top; ++i)
            collect(table, i, plan, m_above);
        for (std::size_t i = plan.region.begin; i < firstBooking; ++i)
            collect(table, i, plan, m_above);
        for (std::size_t i = lastBooking + 1; i < plan.region.end; ++i)
            collect(table, i, plan, m_below);
    }

    /// Whether two of them differ by `sum`, the opening one first.
    bool differBy(const Money& sum) const {
        const auto reaches = [&](const StatedBalance& from, const StatedBalance& to) {
            return &from != &to && from.value + sum == to.value;
        };
        for (const StatedBalance& to : m_below) {
            if (std::any_of(m_above.begin(), m_above.end(), [&](const auto& from) { return reaches(from, to); }) ||
                std::any_of(m_below.begin(), m_below.end(), [&](const auto& from) { return reaches(from, to); }))
                return true;
        }
        return namedDifferBy(sum);
    }

    /// The same for those that are called opening and closing balance.
    bool namedDifferBy(const Money& sum) const {
        const auto opening = named(BalanceName::opening);
        const auto closing = named(BalanceName::closing);
        return opening && closing && *opening + sum == *closing;
    }

private:
    static void collect(const RecordTable& table, std::size_t record, const TablePlan& plan,
                        std::vector<StatedBalance>& into) {
        if (const auto balance = statedIn(table, record, plan.decimalMark))
            into.push_back(*balance);
    }

    std::optional<Money> named(BalanceName name) const {
        for (const auto* balances : {&m_above, &m_below}) {
            for (const StatedBalance& balance : *balances) {
                if (balance.name == name)
                    return balance.value;
            }
        }
        return std::nullopt;
    }

    std::vector<StatedBalance> m_above;
    std::vector<StatedBalance> m_below;
};

BalanceCheck checkEnds(const Ends& ends, const Money& sum) {
    BalanceCheck result;
    if (ends.differBy(sum)) {
        result.proof = BalanceProof::certified;
    } else if (ends.namedDifferBy(sum.negated())) {
        result.proof = BalanceProof::certified;
        result.signsInverted = true;
    }
    // What does not fit proves nothing: the balances may be of another day.
    result.fitting = result.proof == BalanceProof::certified ? 1 : 0;
    result.steps = result.fitting;
    return result;
}

} // namespace

namespace BalanceChecks {

BalanceCheck check(const RecordTable& table, const TablePlan& plan, const std::vector<BookingRow>& rows) {
    std::vector<BalanceChain::Link> links;
    std::vector<Day> days;
    Money sum;
    std::optional<std::size_t> first;
    std::size_t last = plan.region.begin;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const BookingRow& row = rows[i];
        if (row.kind != BookingRow::Kind::booking)
            continue;
        const std::size_t record = plan.region.begin + i;
        first = first.value_or(record);
        last = record;
        sum = sum + *row.amount;
        if (!row.balance)
            continue;
        links.push_back({*row.amount, *row.balance, table.record(record).firstLine + 1});
        days.push_back(*row.day);
    }
    if (plan.roles.balance >= 0)
        return links.size() >= 2 ? checkRunningColumn(links, days) : BalanceCheck{};
    return first ? checkEnds(Ends(table, plan, *first, last), sum) : BalanceCheck{};
}

} // namespace BalanceChecks
