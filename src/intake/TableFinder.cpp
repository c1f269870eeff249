// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/TableFinder.h"

#include <algorithm>
#include <string_view>

#include "intake/Dates.h"
#include "intake/Money.h"
#include "intake/TextTools.h"

namespace {

constexpr std::size_t kLongestName = 60; // anything longer is a sentence

bool isDate(std::string_view cell) {
    const auto date = DateCells::read(cell);
    return date && date->form != DateCell::Form::dayMonth;
}

bool isAmount(std::string_view cell) {
    return std::any_of(cell.begin(), cell.end(), TextTools::isDigit) &&
           (AmountCells::read(cell, ',').has_value() || AmountCells::read(cell, '.').has_value());
}

bool isFilled(std::string_view cell) { return !TextTools::trim(cell).empty(); }

int filledCells(const RecordTable& table, std::size_t record) {
    const auto cells = table.cells(record);
    return static_cast<int>(std::count_if(cells.begin(), cells.end(), isFilled));
}

/// Whether names of columns could stand here: words, no values.
bool holdsNoValues(const RecordTable& table, std::size_t record) {
    const auto cells = table.cells(record);
    return std::none_of(cells.begin(), cells.end(), [](auto cell) { return isDate(cell) || isAmount(cell); });
}

/// Most records are bookings, and begin with a digit somewhere: no closer look at them.
bool couldBeHeader(const RecordTable& table, std::size_t record) {
    if (table.record(record).blank || table.record(record).cellCount < 2)
        return false;
    const auto cells = table.cells(record);
    return std::none_of(cells.begin(), cells.end(), [](std::string_view cell) {
        return cell.size() > kLongestName || (!cell.empty() && TextTools::isDigit(cell.front()) && isDate(cell));
    });
}

/// A header names a date and an amount, each in a column of its own.
bool namesABooking(const RecordTable& table, std::size_t record, const ColumnLexicon& lexicon) {
    bool date = false;
    bool money = false;
    for (const std::string_view cell : table.cells(record)) {
        const RoleScores scores = lexicon.scores(cell);
        const Role best = scores.best();
        if (scores.of(best) == 0)
            continue;
        date = date || best == Role::date;
        money = money || best == Role::amount || best == Role::debit || best == Role::credit || best == Role::net ||
                best == Role::gross || (best == Role::sign && scores.of(Role::amount) > 0);
    }
    return date && money;
}

bool sameCells(const RecordTable& table, std::size_t a, std::size_t b) {
    const auto left = table.cells(a);
    const auto right = table.cells(b);
    return std::equal(left.begin(), left.end(), right.begin(), right.end());
}

/// The tables that begin with a header of known names.
std::vector<TableRegion> findByNames(const RecordTable& table, const ColumnLexicon& lexicon) {
    std::vector<TableRegion> regions;
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (!couldBeHeader(table, i) || !holdsNoValues(table, i) || !namesABooking(table, i, lexicon))
            continue;
        if (!regions.empty() && sameCells(table, *regions.back().header, i)) {
            regions.back().repeatedHeaders.push_back(i); // a page break of a printed statement
            continue;
        }
        if (!regions.empty())
            regions.back().end = i;
        TableRegion region;
        region.header = i;
        region.namesKnown = true;
        region.begin = i + 1;
        regions.push_back(region);
    }
    if (!regions.empty())
        regions.back().end = table.size();
    return regions;
}

/// Above the first booking and of its width: the header of a bank whose words nobody taught us.
std::optional<std::size_t> unknownHeader(const RecordTable& table, std::size_t firstBooking) {
    for (std::size_t i = firstBooking; i-- > 0;) {
        if (table.record(i).blank)
            continue;
        const int filled = filledCells(table, i);
        const int width = table.record(firstBooking).cellCount;
        const bool sameWidth = table.record(i).cellCount >= width - 1 && table.record(i).cellCount <= width + 1;
        return filled >= 3 && filled * 3 >= width * 2 && sameWidth && holdsNoValues(table, i) ? std::optional(i)
                                                                                              : std::nullopt;
    }
    return std::nullopt;
}

} // namespace

namespace TableFinder {

bool looksLikeBooking(const RecordTable& table, std::size_t record) {
    bool date = false;
    bool amount = false;
    for (const std::string_view cell : table.cells(record)) {
        if (!date && isDate(cell))
            date = true;
        else if (!amount && isAmount(cell))
            amount = true;
        if (date && amount)
            return true;
    }
    return false;
}

std::vector<TableRegion> find(const RecordTable& table, const ColumnLexicon& lexicon, std::optional<bool> header) {
    std::vector<TableRegion> regions;
    if (header.value_or(true))
        regions = findByNames(table, lexicon);
    if (!regions.empty())
        return regions;

    std::size_t first = 0;
    while (first < table.size() && !looksLikeBooking(table, first))
        ++first;
    if (first == table.size())
        return regions;
    TableRegion region;
    region.begin = first;
    region.end = table.size();
    if (header.value_or(true))
        region.header = unknownHeader(table, first);
    if (header == true && !region.header && first > 0)
        region.header = first - 1;
    regions.push_back(region);
    return regions;
}

} // namespace TableFinder
