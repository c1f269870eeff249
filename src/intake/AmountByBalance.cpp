// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/AmountByBalance.h"

#include <algorithm>
#include <vector>

#include "intake/BalanceChain.h"
#include "intake/Dates.h"
#include "intake/Money.h"
#include "intake/SignWords.h"
#include "intake/TextTools.h"

namespace {

constexpr std::size_t kMaxColumns = 10; // of amounts; no statement has more
// Steps that fit by chance: a single amount hardly ever, a pair of columns or sizes without sign sooner.
constexpr int kStepsOfAmount = 1;
constexpr int kStepsOfPair = 2;
constexpr int kStepsOfSizes = 3;

/// The amounts of one column, one element a booking.
struct Column {
    int index;
    std::vector<std::optional<Money>> values;

    bool isFull() const {
        return std::all_of(values.begin(), values.end(), [](const auto& value) { return value.has_value(); });
    }
};

/// Marks for debit and credit in a column of their own, one element a booking.
struct SignMarks {
    int index;
    std::vector<AmountCell::Sign> signs;
};

struct Solution {
    int amount = -1;
    int debit = -1;
    int credit = -1;
    int balance = -1;
    int sign = -1;
    std::vector<Money> amounts;
};

class Search {
public:
    Search(const RecordTable& table, const ColumnChoice& choice, const TablePlan& plan) : m_plan(plan) {
        std::vector<std::size_t> bookings;
        std::vector<Day> days;
        for (std::size_t i = plan.region.begin; i < plan.region.end; ++i) {
            const auto date = DateCells::read(table.cell(i, plan.roles.date));
            if (!date)
                continue;
            bookings.push_back(i);
            if (const auto day = date->day(plan.dateOrder, plan.centuryWindow))
                days.push_back(*day);
        }
        m_newestFirst = BalanceChain::orderOf(days);
        for (int c = 0; c < static_cast<int>(choice.profiles.size()) && m_columns.size() < kMaxColumns; ++c) {
            const ColumnProfile& profile = choice.profiles[static_cast<std::size_t>(c)];
            if (c == plan.roles.date || !profile.isAmount() || profile.isDate())
                continue;
            Column column{c, {}};
            for (const std::size_t booking : bookings)
                column.values.push_back(valueOf(TextTools::trim(table.cell(booking, c))));
            m_columns.push_back(std::move(column));
        }
        for (int c = 0; c < static_cast<int>(choice.profiles.size()); ++c) {
            const ColumnProfile& profile = choice.profiles[static_cast<std::size_t>(c)];
            if (profile.minusWords > 0 && profile.plusWords > 0 && profile.isSignColumn())
                collectMarks(table, bookings, c);
        }
    }

    std::vector<Solution> solutions() {
        forEachBalance([&](const Column& balance) {
            for (const Column& amount : m_columns)
                trySingle(amount, balance, false);
        });
        if (m_found.empty()) {
            forEachBalance([&](const Column& balance) {
                for (const Column& amount : m_columns) {
                    for (const SignMarks& marks : m_marks)
                        tryMarked(amount, marks, balance);
                }
            });
        }
        if (m_found.empty()) {
            forEachBalance([&](const Column& balance) {
                for (const Column& debit : m_columns) {
                    for (const Column& credit : m_columns)
                        tryPair(debit, credit, balance);
                }
            });
        }
        if (m_found.empty()) {
            forEachBalance([&](const Column& balance) {
                for (const Column& amount : m_columns)
                    trySingle(amount, balance, true);
            });
        }
        return std::move(m_found);
    }

private:
    std::optional<Money> valueOf(std::string_view text) const {
        const auto amount = text.empty() ? std::nullopt : AmountCells::read(text, m_plan.decimalMark);
        return amount ? std::optional(amount->value()) : std::nullopt;
    }

    void collectMarks(const RecordTable& table, const std::vector<std::size_t>& bookings, int column) {
        SignMarks marks{column, {}};
        for (const std::size_t booking : bookings) {
            const auto sign = SignWords::read(table.cell(booking, column));
            if (!sign)
                return;
            marks.signs.push_back(*sign);
        }
        m_marks.push_back(std::move(marks));
    }

    template <typename Action>
    void forEachBalance(Action action) {
        for (const Column& column : m_columns) {
            if (column.isFull() && (m_plan.roles.balance < 0 || m_plan.roles.balance == column.index))
                action(column);
        }
    }

    static bool moves(const std::vector<Money>& amounts) {
        return std::any_of(amounts.begin(), amounts.end(), [](const Money& amount) { return !amount.isZero(); });
    }

    BalanceChain chainOf(const std::vector<Money>& amounts, const Column& balance) const {
        std::vector<BalanceChain::Link> links;
        for (std::size_t i = 0; i < amounts.size(); ++i)
            links.push_back({amounts[i], *balance.values[i], 0});
        return BalanceChain::follow(links, m_newestFirst);
    }

    void trySingle(const Column& amount, const Column& balance, bool sizesOnly) {
        if (amount.index == balance.index || !amount.isFull())
            return;
        std::vector<Money> amounts;
        for (const auto& value : amount.values)
            amounts.push_back(*value);
        const BalanceChain chain = chainOf(amounts, balance);
        const bool fits = sizesOnly ? chain.steps >= kStepsOfSizes && chain.fittingSizes == chain.steps
                                    : chain.steps >= kStepsOfAmount && chain.holds();
        if (fits && moves(amounts) && !leavesOut(amounts, amount, balance))
            m_found.push_back({amount.index, -1, -1, balance.index, -1, std::move(amounts)});
    }

    /// Nothing moves here, but something does in another column: the other one of debit and credit.
    bool leavesOut(const std::vector<Money>& amounts, const Column& amount, const Column& balance) const {
        return std::any_of(m_columns.begin(), m_columns.end(), [&](const Column& other) {
            if (other.index == amount.index || other.index == balance.index)
                return false;
            for (std::size_t i = 0; i < amounts.size(); ++i) {
                if (amounts[i].isZero() && other.values[i] && !other.values[i]->isZero())
                    return true;
            }
            return false;
        });
    }

    void tryMarked(const Column& amount, const SignMarks& marks, const Column& balance) {
        if (amount.index == balance.index || !amount.isFull())
            return;
        std::vector<Money> amounts;
        for (std::size_t i = 0; i < amount.values.size(); ++i) {
            if (amount.values[i]->isNegative())
                return;
            amounts.push_back(marks.signs[i] == AmountCell::Sign::minus ? amount.values[i]->negated()
                                                                        : *amount.values[i]);
        }
        const BalanceChain chain = chainOf(amounts, balance);
        if (chain.steps >= kStepsOfAmount && chain.holds() && moves(amounts))
            m_found.push_back({amount.index, -1, -1, balance.index, marks.index, std::move(amounts)});
    }

    void tryPair(const Column& debit, const Column& credit, const Column& balance) {
        if (debit.index == credit.index || debit.index == balance.index || credit.index == balance.index)
            return;
        std::vector<Money> amounts;
        for (std::size_t i = 0; i < debit.values.size(); ++i) {
            const Money out = debit.values[i].value_or(Money{});
            const Money in = credit.values[i].value_or(Money{});
            if (!out.isZero() && !in.isZero())
                return;
            amounts.push_back(in - out.magnitude());
        }
        const BalanceChain chain = chainOf(amounts, balance);
        if (chain.steps >= kStepsOfPair && chain.holds() && moves(amounts))
            m_found.push_back({-1, debit.index, credit.index, balance.index, -1, std::move(amounts)});
    }

    const TablePlan& m_plan;
    std::vector<Column> m_columns;
    std::vector<SignMarks> m_marks;
    std::optional<bool> m_newestFirst;
    std::vector<Solution> m_found;
};

} // namespace

namespace AmountByBalance {

bool settle(const RecordTable& table, const ColumnChoice& choice, TablePlan& plan) {
    const std::vector<Solution> found = Search(table, choice, plan).solutions();
    // The same amounts in two columns, or against two balances, are one solution.
    const bool one = !found.empty() && std::all_of(found.begin(), found.end(), [&](const Solution& solution) {
        return solution.amounts == found.front().amounts;
    });
    if (!one)
        return false;
    plan.roles.amount = found.front().amount;
    plan.roles.debit = found.front().debit;
    plan.roles.credit = found.front().credit;
    plan.roles.balance = found.front().balance;
    if (found.front().sign >= 0)
        plan.roles.sign = found.front().sign;
    return true;
}

} // namespace AmountByBalance
