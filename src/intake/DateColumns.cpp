// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/DateColumns.h"

#include <algorithm>
#include <cstdlib>

#include "intake/Dates.h"

namespace {

/// Names of value dates and the like score no more than this.
constexpr int kSecondaryName = 50;
/// Booking and value date lie no further apart.
constexpr int kDaysApart = 10;

bool holdsDates(const ColumnProfile& profile) {
    return profile.isDateOrWord() || profile.isCompactDate() || profile.isDayMonth();
}

/// Whether two columns hold days that lie close together, record by record, in
/// whatever order their numbers stand.
bool lieClose(const ColumnSurvey& survey, int left, int right) {
    constexpr int kAnyWindow = 30;
    const auto closeIn = [&](DateOrder order) {
        return std::all_of(survey.records().begin(), survey.records().end(), [&](std::size_t record) {
            const auto a = DateCells::read(survey.cell(record, left));
            const auto b = DateCells::read(survey.cell(record, right));
            const auto dayA = a ? a->day(order, kAnyWindow) : std::nullopt;
            const auto dayB = b ? b->day(order, kAnyWindow) : std::nullopt;
            return dayA && dayB && std::abs(dayA->number() - dayB->number()) <= kDaysApart;
        });
    };
    return closeIn(DateOrder::dayMonthYear) || closeIn(DateOrder::monthDayYear) || closeIn(DateOrder::yearMonthDay);
}

/// A table that calls one column the value date has the day of booking beside
/// it, under a name that nobody taught us.
int strangerBeside(const ColumnSurvey& survey, int valueDate) {
    return survey.best(
        0, [&](int c) { return survey.isStranger(c) ? 1 : 0; },
        [&](int c) { return c != valueDate && survey.profile(c).isDate() && lieClose(survey, c, valueDate); });
}

int dateByValues(const ColumnSurvey& survey) {
    const auto any = [](int) { return 1; };
    const int column = survey.best(0, any, [&](int c) { return survey.profile(c).isDate(); });
    if (column >= 0 || survey.hasHeader())
        return column;
    return survey.best(0, any, [&](int c) { return survey.profile(c).isCompactDate(); });
}

} // namespace

namespace DateColumns {

void choose(ColumnSurvey& survey, ColumnChoice& choice) {
    const auto named = [&](int c) { return survey.score(c, Role::date); };
    int column = survey.best(0, named, [&](int c) { return holdsDates(survey.profile(c)); });
    choice.dateByName = column >= 0;
    if (column < 0) {
        column = dateByValues(survey);
    } else if (named(column) <= kSecondaryName) {
        if (const int stranger = strangerBeside(survey, column); stranger >= 0) {
            column = stranger;
            choice.dateByName = false;
        }
    }
    choice.roles.date = survey.take(column);
    // Further dates serve nothing, but they are no texts either.
    if (column >= 0 && survey.profile(column).isDayMonth() && !survey.profile(column).isDate())
        choice.roles.yearSource = survey.take(survey.best(
            0, [&](int c) { return 1 + named(c); }, [&](int c) { return survey.profile(c).isDate(); }));
}

} // namespace DateColumns
