// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/DelimiterChoice.h"

#include <algorithm>
#include <array>

#include "intake/ColumnChooser.h"
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

double understanding(const RecordTable& table, const ColumnLexicon& lexicon, std::optional<bool> header) {
    double best = 0;
    for (const TableRegion& region : TableFinder::find(table, lexicon, header)) {
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

} // namespace

namespace DelimiterChoice {

char choose(std::span<const std::string_view> lines, std::optional<bool> header, const ColumnLexicon& lexicon) {
    const auto sample = lines.subspan(0, std::min(lines.size(), kSample));
    char best = kDelimiters.front();
    double bestScore = 0;
    for (const char delimiter : kDelimiters) {
        const auto occurs = [&](std::string_view line) { return line.find(delimiter) != std::string_view::npos; };
        if (std::none_of(sample.begin(), sample.end(), occurs))
            continue;
        const RecordTable table = RecordTable::read(sample, delimiter, sample.size());
        const double score = understanding(table, lexicon, header);
        if (score > bestScore) {
            best = delimiter;
            bestScore = score;
        }
    }
    return best;
}

} // namespace DelimiterChoice
