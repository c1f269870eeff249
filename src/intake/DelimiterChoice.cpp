// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/DelimiterChoice.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <string>

#include "intake/ColumnChooser.h"
#include "intake/Dates.h"
#include "intake/Money.h"
#include "intake/RecordTable.h"
#include "intake/TableFinder.h"

namespace {

constexpr std::array<char, 5> kDelimiters = {';', ',', '\t', '|', ':'};
constexpr std::size_t kSample = 400; // lines

// Bookings count first, then known names, then many columns.
constexpr double kForBooking = 100.0;
constexpr double kForKnownNames = 150.0;
constexpr double kForAmountByName = 50.0;
constexpr int kMostColumns = 12;

/// Where the user says what the columns are, only those count.
double understandingOfColumns(const RecordTable& table, const std::map<std::string, int>& columns) {
    const auto date = columns.find("Datum");
    const auto amount = columns.find("Betrag");
    if (date == columns.end() || amount == columns.end())
        return 0;
    double bookings = 0;
    for (std::size_t i = 0; i < table.size(); ++i) {
        const std::string_view cell = table.cell(i, amount->second);
        const bool isBooking = DateCells::read(table.cell(i, date->second)) &&
                               (AmountCells::read(cell, ',') || AmountCells::read(cell, '.'));
        bookings += isBooking ? kForBooking : 0.0;
    }
    return bookings;
}

double understanding(const RecordTable& table, const ColumnLexicon& lexicon, const InspectionOptions& options) {
    if (options.columns)
        return understandingOfColumns(table, *options.columns);
    double best = 0;
    for (const TableRegion& region : TableFinder::find(table, lexicon, options.header)) {
        const ColumnChoice choice = ColumnChooser::choose(table, region, lexicon);
        if (!choice.roles.complete())
            continue;
        int bookings = 0;
        for (std::size_t i = region.begin; i < region.end; ++i)
            bookings += TableFinder::looksLikeBooking(table, i) ? 1 : 0;
        best = std::max(best, kForBooking * bookings + (region.namesKnown ? kForKnownNames : 0.0) +
                                  (choice.amountByName ? kForAmountByName : 0.0) +
                                  std::min(choice.roles.width, kMostColumns));
    }
    return best;
}

/// How many lines have as many of the characters as most that have any.
std::size_t evenness(std::span<const std::string_view> lines, char delimiter) {
    std::map<std::ptrdiff_t, std::size_t> linesOfCount;
    for (const std::string_view line : lines)
        ++linesOfCount[std::count(line.begin(), line.end(), delimiter)];
    linesOfCount.erase(0);
    std::size_t most = 0;
    for (const auto& [count, number] : linesOfCount)
        most = std::max(most, number);
    return most;
}

} // namespace

namespace DelimiterChoice {

char choose(std::span<const std::string_view> lines, const InspectionOptions& options, const ColumnLexicon& lexicon) {
    const auto sample = lines.subspan(0, std::min(lines.size(), kSample));
    char best = kDelimiters.front();
    double bestScore = 0;
    for (const char delimiter : kDelimiters) {
        const auto occurs = [&](std::string_view line) { return line.find(delimiter) != std::string_view::npos; };
        if (std::none_of(sample.begin(), sample.end(), occurs))
            continue;
        const RecordTable table = RecordTable::read(sample, delimiter, sample.size());
        const double score = understanding(table, lexicon, options);
        if (score > bestScore) {
            best = delimiter;
            bestScore = score;
        }
    }
    if (bestScore > 0)
        return best;
    return *std::max_element(kDelimiters.begin(), kDelimiters.end(),
                             [&](char a, char b) { return evenness(sample, a) < evenness(sample, b); });
}

} // namespace DelimiterChoice
