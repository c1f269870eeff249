// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/DateOrderDecision.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <vector>

#include "intake/DateSequence.h"
#include "intake/TextTools.h"

namespace {

constexpr std::array<DateOrder, 3> kOrders = {DateOrder::dayMonthYear, DateOrder::monthDayYear,
                                              DateOrder::yearMonthDay};

struct Seen {
    DateCell cell;
    std::size_t record;
};

std::vector<Seen> datesOf(const RecordTable& table, const TableRegion& region, int column) {
    std::vector<Seen> dates;
    for (std::size_t i = region.begin; i < region.end; ++i) {
        if (const auto cell = DateCells::read(table.cell(i, column)))
            dates.push_back({*cell, i});
    }
    return dates;
}

std::optional<Day> dayOf(const DateCell& cell, DateOrder order, int centuryWindow) {
    constexpr int kAnyLeapYear = 2000;
    return cell.day(order, centuryWindow, kAnyLeapYear);
}

/// The orders that read most of the dates.
struct Candidates {
    std::vector<DateOrder> orders;
    bool contradicted = false; ///< there are dates that only the one, and dates that only the other reads
};

Candidates bestOrders(const std::vector<Seen>& dates, int centuryWindow) {
    std::array<std::size_t, kOrders.size()> valid{};
    std::size_t readable = 0;
    for (const Seen& date : dates) {
        bool any = false;
        for (std::size_t i = 0; i < kOrders.size(); ++i) {
            const bool reads = dayOf(date.cell, kOrders[i], centuryWindow).has_value();
            valid[i] += reads ? 1U : 0U;
            any = any || reads;
        }
        readable += any ? 1U : 0U;
    }
    const std::size_t most = *std::max_element(valid.begin(), valid.end());
    Candidates best;
    for (std::size_t i = 0; i < kOrders.size(); ++i) {
        if (valid[i] == most && most > 0)
            best.orders.push_back(kOrders[i]);
    }
    best.contradicted = most < readable;
    return best;
}

bool contains(const std::vector<DateOrder>& orders, DateOrder order) {
    return std::find(orders.begin(), orders.end(), order) != orders.end();
}

class Decider {
public:
    Decider(const RecordTable& table, const TablePlan& plan)
        : m_table(table), m_plan(plan), m_window(plan.centuryWindow),
          m_dates(datesOf(table, plan.region, plan.roles.date)) {}

    DateOrderDecision run() {
        const Candidates candidates = bestOrders(m_dates, m_window);
        const std::vector<DateOrder> orders = withoutScattered(candidates.orders);
        if (orders.empty())
            return m_decision;
        const std::size_t first = m_dates.front().record;
        if (orders.size() == 1) {
            if (candidates.orders.size() > 1)
                return decided(orders.front(), first, "In dieser Reihenfolge liegen die Buchungen eng beieinander.");
            m_decision.proven = true;
            return decided(orders.front(), provingDate(orders.front()),
                           candidates.contradicted ? "In dieser Reihenfolge sind die meisten Daten gültig."
                                                   : "Nur in dieser Reihenfolge sind alle Daten gültig.");
        }
        if (candidates.contradicted)
            return undecided();
        if (sameDays(orders)) {
            m_decision.proven = true;
            return decided(orders.front(), first, "Jede Reihenfolge ergibt dieselben Tage.");
        }
        const bool dayFirst = contains(orders, DateOrder::dayMonthYear);
        if (dayFirst && areAllWithPoints())
            return decided(DateOrder::dayMonthYear, first, "Mit Punkten geschriebene Daten nennen den Tag zuerst.");
        if (const auto other = fromOtherDates(orders))
            return *other;
        if (dayFirst && m_plan.markIsProven && m_plan.decimalMark == ',')
            return decided(DateOrder::dayMonthYear, first,
                           "Wo ein Komma die Dezimalstellen abtrennt, steht der Tag vor dem Monat.");
        if (const auto sequence = fromSequence(orders))
            return *sequence;
        return undecided();
    }

private:
    int line(std::size_t record) const { return m_table.record(record).firstLine + 1; }

    DateOrderDecision decided(DateOrder order, std::size_t record, const char* why) {
        m_decision.order = order;
        m_decision.reason = {line(record), m_plan.roles.date, why};
        return m_decision;
    }

    DateOrderDecision undecided() {
        m_decision.exampleLine = line(m_dates.front().record);
        m_decision.example = TextTools::trim(m_table.cell(m_dates.front().record, m_plan.roles.date));
        return m_decision;
    }

    /// Years of two digits could be days, and days years. Read so, bookings of a
    /// few weeks scatter over decades.
    std::vector<DateOrder> withoutScattered(const std::vector<DateOrder>& orders) const {
        constexpr int kFewYears = 1500; // days
        constexpr int kTimes = 4;
        if (orders.size() < 2 || !contains(orders, DateOrder::yearMonthDay) ||
            (contains(orders, DateOrder::dayMonthYear) && areAllWithPoints()))
            return orders;
        std::vector<int> spans;
        spans.reserve(orders.size());
        for (const DateOrder order : orders)
            spans.push_back(DateSequence(order, daysIn(order)).span());
        const int least = *std::min_element(spans.begin(), spans.end());
        std::vector<DateOrder> close;
        for (std::size_t i = 0; i < orders.size(); ++i) {
            if (spans[i] < kFewYears || spans[i] <= least * kTimes)
                close.push_back(orders[i]);
        }
        return close;
    }

    bool areAllWithPoints() const {
        return std::all_of(m_dates.begin(), m_dates.end(), [](const Seen& d) { return d.cell.separator == '.'; });
    }

    std::vector<Day> daysIn(DateOrder order) const {
        std::vector<Day> days;
        for (const Seen& date : m_dates) {
            if (const auto day = dayOf(date.cell, order, m_window))
                days.push_back(*day);
        }
        return days;
    }

    /// A date that only this order can read.
    std::size_t provingDate(DateOrder order) const {
        for (const Seen& date : m_dates) {
            const bool others = std::any_of(kOrders.begin(), kOrders.end(), [&](DateOrder other) {
                return other != order && dayOf(date.cell, other, m_window);
            });
            if (!others && dayOf(date.cell, order, m_window))
                return date.record;
        }
        return m_dates.front().record;
    }

    /// Whether all of them mean the same day everywhere (05.05.2024).
    bool sameDays(const std::vector<DateOrder>& orders) const {
        return std::all_of(m_dates.begin(), m_dates.end(), [&](const Seen& date) {
            const auto day = dayOf(date.cell, orders.front(), m_window);
            return std::all_of(orders.begin(), orders.end(),
                               [&](DateOrder order) { return dayOf(date.cell, order, m_window) == day; });
        });
    }

    /// Another column of dates (value dates, as a rule), or the dates above the table.
    std::optional<DateOrderDecision> fromOtherDates(const std::vector<DateOrder>& orders) {
        for (int column = 0; column < m_plan.roles.width; ++column) {
            if (column == m_plan.roles.date)
                continue;
            const auto dates = datesOf(m_table, m_plan.region, column);
            const auto best = bestOrders(dates, m_window);
            if (dates.size() * 2 >= m_dates.size() && best.orders.size() == 1 && !best.contradicted &&
                contains(orders, best.orders.front()) && isAlike(dates.front()))
                return decided(best.orders.front(), dates.front().record,
                               "Eine andere Datumsspalte zeigt die Reihenfolge.");
        }
        const std::size_t first = m_plan.region.header.value_or(m_plan.region.begin);
        for (std::size_t i = 0; i < first; ++i) {
            for (const std::string_view cell : m_table.cells(i)) {
                const auto date = DateCells::read(cell);
                if (!date || !isAlike({*date, i}))
                    continue;
                const auto best = bestOrders({{*date, i}}, m_window).orders;
                if (best.size() == 1 && contains(orders, best.front()))
                    return decided(best.front(), i, "Ein Datum über der Tabelle zeigt die Reihenfolge.");
            }
        }
        return std::nullopt;
    }

    /// Dates written with the same mark are written in the same order.
    bool isAlike(const Seen& date) const {
        return date.cell.separator == m_dates.front().cell.separator && date.cell.form == m_dates.front().cell.form;
    }

    /// Banks list bookings in order of time, and close together.
    std::optional<DateOrderDecision> fromSequence(const std::vector<DateOrder>& orders) {
        std::vector<DateSequence> sequences;
        sequences.reserve(orders.size());
        for (const DateOrder order : orders) {
            sequences.emplace_back(order, daysIn(order));
        }
        const auto winner = DateSequence::mostLikely(sequences, isVaried());
        if (!winner)
            return std::nullopt;
        return decided(winner->order, m_dates.front().record, winner->why);
    }

    /// Whether the bookings are about different things: at least half as many as there are bookings.
    bool isVaried() const {
        std::vector<int> columns = m_plan.roles.purpose;
        columns.insert(columns.end(), {m_plan.roles.counterparty, m_plan.roles.recipient, m_plan.roles.payer});
        std::set<std::string> texts;
        for (const Seen& date : m_dates) {
            std::string text;
            for (const int column : columns)
                text += TextTools::trim(m_table.cell(date.record, column));
            texts.insert(std::move(text));
        }
        return texts.size() > 1 && texts.size() * 2 >= m_dates.size();
    }

    const RecordTable& m_table;
    const TablePlan& m_plan;
    int m_window;
    std::vector<Seen> m_dates;
    DateOrderDecision m_decision;
};

} // namespace

namespace DateOrders {

DateOrderDecision decide(const RecordTable& table, const TablePlan& plan) { return Decider(table, plan).run(); }

} // namespace DateOrders
