// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/BalanceCheck.h"

#include <algorithm>
#include <optional>

#include "intake/BookingRow.h"
#include "intake/TextTools.h"

namespace {

struct Link {
    Money amount;
    Money balance;
    int line;
};

/// A chain of balances is believed when hardly any link is broken.
constexpr int kBreaksInAHundred = 5;

struct Fit {
    int steps = 0;
    int fitting = 0;
    int fittingSizes = 0; ///< steps whose amount fits but for its sign
    std::vector<int> breaks;
};

Fit follow(const std::vector<Link>& links, bool newestFirst) {
    Fit fit;
    for (std::size_t i = 1; i < links.size(); ++i) {
        const Link& before = newestFirst ? links[i] : links[i - 1];
        const Link& after = newestFirst ? links[i - 1] : links[i];
        const Money step = after.balance - before.balance;
        ++fit.steps;
        if (step == after.amount)
            ++fit.fitting;
        else
            fit.breaks.push_back(links[i].line);
        fit.fittingSizes += step.magnitude() == after.amount.magnitude() ? 1 : 0;
    }
    return fit;
}

bool holds(const Fit& fit) { return fit.steps > 0 && (fit.steps - fit.fitting) * 100 <= fit.steps * kBreaksInAHundred; }

BalanceCheck checkRunningColumn(const std::vector<Link>& links) {
    BalanceCheck result;
    result.runningColumn = true;
    const Fit up = follow(links, false);
    const Fit down = follow(links, true);
    const bool newestFirst =
        down.fitting != up.fitting ? down.fitting > up.fitting : down.fittingSizes > up.fittingSizes;
    const Fit& fit = newestFirst ? down : up;
    result.newestFirst = newestFirst;
    result.steps = fit.steps;
    result.fitting = fit.fitting;
    if (holds(fit)) {
        result.proof = fit.breaks.empty() ? BalanceProof::certified : BalanceProof::broken;
        result.breaks = fit.breaks;
    } else if (fit.steps >= 2 && fit.fittingSizes == fit.steps) {
        result.signsFromBalance = true;
        result.proof = BalanceProof::certified;
    } else if (fit.fitting * 2 > fit.steps) {
        result.proof = BalanceProof::broken;
        result.breaks = fit.breaks;
    }
    return result;
}

/// The one amount of a record outside the bookings that could be a balance,
/// with the sign that a word beside it gives.
std::optional<Money> balanceOf(const RecordTable& table, std::size_t record, const TablePlan& plan) {
    std::optional<Money> found;
    std::optional<AmountCell::Sign> word;
    for (const std::string_view raw : table.cells(record)) {
        const std::string_view text = TextTools::trim(raw);
        if (const auto amount = AmountCells::read(text, plan.decimalMark); amount && amount->marked) {
            if (found)
                return std::nullopt;
            found = amount->value();
        } else if (text == "S" || text == "H") {
            word = text == "S" ? AmountCell::Sign::minus : AmountCell::Sign::plus;
        }
    }
    if (found && word == AmountCell::Sign::minus)
        found = found->negated();
    return found;
}

BalanceCheck checkEnds(const RecordTable& table, const TablePlan& plan, const Money& sum, std::size_t firstBooking,
                       std::size_t lastBooking) {
    std::vector<Money> above;
    std::vector<Money> below;
    const std::size_t top = plan.region.header.value_or(plan.region.begin);
    for (std::size_t i = 0; i < top; ++i) {
        if (const auto balance = balanceOf(table, i, plan))
            above.push_back(*balance);
    }
    for (std::size_t i = plan.region.begin; i < plan.region.end; ++i) {
        if (i > firstBooking && i < lastBooking)
            continue;
        const auto balance = i < firstBooking || i > lastBooking ? balanceOf(table, i, plan) : std::nullopt;
        if (balance)
            (i < firstBooking ? above : below).push_back(*balance);
    }
    BalanceCheck result;
    const auto matches = [&](const Money& opening, const Money& closing) {
        result.steps = 1;
        if (opening + sum == closing) {
            result.fitting = 1;
            result.proof = BalanceProof::certified;
        }
    };
    for (const Money& opening : above) {
        for (const Money& closing : below)
            matches(opening, closing);
    }
    for (std::size_t i = 0; i < below.size(); ++i) {
        for (std::size_t j = 0; j < below.size(); ++j) {
            if (i != j)
                matches(below[i], below[j]);
        }
    }
    return result; // what does not fit proves nothing: the balances may be of another day
}

} // namespace

namespace BalanceChecks {

BalanceCheck check(const RecordTable& table, const TablePlan& plan, int centuryWindow) {
    std::vector<Link> links;
    Money sum;
    std::optional<std::size_t> first;
    std::size_t last = plan.region.begin;
    for (std::size_t i = plan.region.begin; i < plan.region.end; ++i) {
        const BookingRow row = BookingRows::read(table, i, plan, centuryWindow);
        if (row.kind != BookingRow::Kind::booking)
            continue;
        first = first.value_or(i);
        last = i;
        sum = sum + *row.amount;
        if (row.balance)
            links.push_back({*row.amount, *row.balance, table.record(i).firstLine + 1});
    }
    if (plan.roles.balance >= 0)
        return links.size() >= 2 ? checkRunningColumn(links) : BalanceCheck{};
    return first ? checkEnds(table, plan, sum, *first, last) : BalanceCheck{};
}

} // namespace BalanceChecks
