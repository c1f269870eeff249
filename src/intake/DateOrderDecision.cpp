// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/DateOrderDecision.h"

#include <algorithm>
#include <array>
#include <vector>

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

std::vector<DateOrder> bestOrders(const std::vector<Seen>& dates, int centuryWindow) {
    std::array<std::size_t, kOrders.size()> valid{};
    for (const Seen& date : dates) {
        for (std::size_t i = 0; i < kOrders.size(); ++i)
            valid[i] += dayOf(date.cell, kOrders[i], centuryWindow) ? 1U : 0U;
    }
    const std::size_t most = *std::max_element(valid.begin(), valid.end());
    std::vector<DateOrder> best;
    for (std::size_t i = 0; i < kOrders.size(); ++i) {
        if (valid[i] == most && most > 0)
            best.push_back(kOrders[i]);
    }
    return best;
}

/// Whether the two orders mean the same day everywhere (05.05.2024).
bool sameDays(const std::vector<Seen>& dates, DateOrder a, DateOrder b, int centuryWindow) {
    return std::all_of(dates.begin(), dates.end(), [&](const Seen& date) {
        return dayOf(date.cell, a, centuryWindow) == dayOf(date.cell, b, centuryWindow);
    });
}

bool isSorted(const std::vector<int>& days) {
    return std::is_sorted(days.begin(), days.end()) || std::is_sorted(days.rbegin(), days.rend());
}

std::vector<int> dayNumbers(const std::vector<Seen>& dates, DateOrder order, int centuryWindow) {
    std::vector<int> numbers;
    for (const Seen& date : dates) {
        if (const auto day = dayOf(date.cell, order, centuryWindow))
            numbers.push_back(day->number());
    }
    return numbers;
}

class Decider {
public:
    Decider(const RecordTable& table, const TablePlan& plan, int centuryWindow)
        : m_table(table), m_plan(plan), m_window(centuryWindow), m_dates(datesOf(table, plan.region, plan.roles.date)) {
    }

    DateOrderDecision run() {
        std::vector<DateOrder> orders = bestOrders(m_dates, m_window);
        if (orders.empty())
            return m_decision;
        if (orders.size() == 1) {
            m_decision.proven = true;
            return decided(orders.front(), provingDate(orders.front()),
                           "Nur in dieser Reihenfolge sind alle Daten gültig.");
        }
        const bool same = std::all_of(orders.begin() + 1, orders.end(), [&](DateOrder other) {
            return sameDays(m_dates, orders.front(), other, m_window);
        });
        if (same) {
            m_decision.proven = true;
            return decided(orders.front(), m_dates.front().record, "Jede Reihenfolge ergibt dieselben Tage.");
        }
        if (std::find(orders.begin(), orders.end(), DateOrder::dayMonthYear) != orders.end() &&
            std::all_of(m_dates.begin(), m_dates.end(), [](const Seen& d) { return d.cell.separator == '.'; }))
            return decided(DateOrder::dayMonthYear, m_dates.front().record,
                           "Mit Punkten geschriebene Daten nennen den Tag zuerst.");
        if (const auto other = fromOtherDates(orders))
            return *other;
        if (const auto sorted = fromSequence(orders))
            return *sorted;
        if (m_plan.decimalMark == ',' &&
            std::find(orders.begin(), orders.end(), DateOrder::dayMonthYear) != orders.end())
            return decided(DateOrder::dayMonthYear, m_dates.front().record,
                           "Wo ein Komma die Dezimalstellen abtrennt, steht der Tag vor dem Monat.");
        m_decision.exampleLine = line(m_dates.front().record);
        m_decision.example = TextTools::trim(m_table.cell(m_dates.front().record, m_plan.roles.date));
        return m_decision;
    }

private:
    int line(std::size_t record) const { return m_table.record(record).firstLine + 1; }

    DateOrderDecision decided(DateOrder order, std::size_t record, const char* why) {
        m_decision.order = order;
        m_decision.reason = {line(record), m_plan.roles.date, why};
        return m_decision;
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

    /// Another column of dates (value dates, as a rule), or the dates above the table.
    std::optional<DateOrderDecision> fromOtherDates(const std::vector<DateOrder>& orders) {
        for (int column = 0; column < m_plan.roles.width; ++column) {
            if (column == m_plan.roles.date)
                continue;
            const auto dates = datesOf(m_table, m_plan.region, column);
            const auto best = bestOrders(dates, m_window);
            if (dates.size() * 2 >= m_dates.size() && best.size() == 1 && contains(orders, best.front()) &&
                dates.front().cell.separator == m_dates.front().cell.separator)
                return decided(best.front(), dates.front().record, "Eine andere Datumsspalte zeigt die Reihenfolge.");
        }
        const std::size_t first = m_plan.region.header.value_or(m_plan.region.begin);
        for (std::size_t i = 0; i < first; ++i) {
            for (const std::string_view cell : m_table.cells(i)) {
                const auto date = DateCells::read(cell);
                if (!date || date->separator != m_dates.front().cell.separator)
                    continue;
                const auto best = bestOrders({{*date, i}}, m_window);
                if (best.size() == 1 && contains(orders, best.front()))
                    return decided(best.front(), i, "Ein Datum über der Tabelle zeigt die Reihenfolge.");
            }
        }
        return std::nullopt;
    }

    /// Banks list bookings in order of time, and close together.
    std::optional<DateOrderDecision> fromSequence(const std::vector<DateOrder>& orders) {
        if (m_dates.size() < 2)
            return std::nullopt;
        // Two dates are close by chance more often than three.
        const int ratio = m_dates.size() == 2 ? 20 : 4;
        std::optional<DateOrder> best;
        int bestSpan = 0;
        bool close = false;
        std::size_t sortedCount = 0;
        for (const DateOrder order : orders) {
            const auto numbers = dayNumbers(m_dates, order, m_window);
            if (!isSorted(numbers))
                continue;
            ++sortedCount;
            const int span = std::abs(numbers.back() - numbers.front());
            close = best && std::min(span, bestSpan) * ratio > std::max(span, bestSpan);
            if (!best || span < bestSpan) {
                best = order;
                bestSpan = span;
            }
        }
        if (!best || close || (m_dates.size() == 2 && sortedCount == 1))
            return std::nullopt;
        return decided(*best, m_dates.front().record,
                       sortedCount == 1 ? "Nur in dieser Reihenfolge stehen die Buchungen zeitlich geordnet."
                                        : "In dieser Reihenfolge liegen die geordneten Buchungen eng beieinander.");
    }

    static bool contains(const std::vector<DateOrder>& orders, DateOrder order) {
        return std::find(orders.begin(), orders.end(), order) != orders.end();
    }

    const RecordTable& m_table;
    const TablePlan& m_plan;
    int m_window;
    std::vector<Seen> m_dates;
    DateOrderDecision m_decision;
};

} // namespace

namespace DateOrders {

DateOrderDecision decide(const RecordTable& table, const TablePlan& plan, int centuryWindow) {
    return Decider(table, plan, centuryWindow).run();
}

} // namespace DateOrders
