// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/ColumnSurvey.h"

#include <algorithm>
#include <map>

#include "intake/TextTools.h"

namespace {

constexpr std::size_t kSampleSize = 800;

/// Records that tell what the columns hold: a sample from all over the region.
std::vector<std::size_t> sampleOf(const RecordTable& table, const TableRegion& region) {
    std::vector<std::size_t> bookings;
    std::vector<std::size_t> others;
    const std::size_t step = std::max<std::size_t>(1, (region.end - region.begin) / kSampleSize);
    for (std::size_t i = region.begin; i < region.end; i += step) {
        if (table.record(i).blank)
            continue;
        if (TableFinder::looksLikeBooking(table, i))
            bookings.push_back(i);
        else if (table.record(i).cellCount >= 3)
            others.push_back(i);
    }
    // Where no record is a booking, all else has to do.
    return bookings.empty() ? others : bookings;
}

/// Fields up to the last one that is not empty.
int filledWidth(const RecordTable& table, std::size_t record) {
    const auto cells = table.cells(record);
    const auto last =
        std::find_if(cells.rbegin(), cells.rend(), [](auto cell) { return !TextTools::trim(cell).empty(); });
    return static_cast<int>(cells.rend() - last);
}

int mostFrequent(const std::vector<int>& numbers) {
    std::map<int, int> counts;
    for (const int number : numbers)
        ++counts[number];
    const auto most = std::max_element(counts.begin(), counts.end(),
                                       [](const auto& a, const auto& b) { return a.second < b.second; });
    return most == counts.end() ? 0 : most->first;
}

} // namespace

ColumnSurvey::ColumnSurvey(const RecordTable& table, const TableRegion& region, const ColumnLexicon& lexicon)
    : m_table(table), m_region(region), m_records(sampleOf(table, region)) {
    const int named = region.header ? table.record(*region.header).cellCount : 0;
    int width = named;
    std::vector<int> widths;
    for (const std::size_t record : m_records) {
        width = std::max(width, table.record(record).cellCount);
        widths.push_back(filledWidth(table, record));
    }
    m_headerWidth = region.header ? named : width;
    m_usualWidth = mostFrequent(widths);
    m_profiles = ColumnProfiles::make(table, m_records, width);
    m_taken.assign(m_profiles.size(), false);
    m_names.resize(m_profiles.size());
    for (int i = 0; i < named; ++i)
        m_names[static_cast<std::size_t>(i)] = lexicon.scores(table.cell(*region.header, i));
}

bool ColumnSurvey::isStranger(int column) const {
    const RoleScores& names = m_names[static_cast<std::size_t>(column)];
    return hasHeader() && names.of(names.best()) == 0 &&
           !TextTools::trim(m_table.cell(*m_region.header, column)).empty();
}

std::optional<Money> ColumnSurvey::amount(std::size_t record, int column) const {
    const ColumnProfile& values = profile(column);
    const auto cell =
        AmountCells::read(m_table.cell(record, column), values.dotAmounts > values.commaAmounts ? '.' : ',');
    return cell ? std::optional(cell->value()) : std::nullopt;
}

int ColumnSurvey::take(int column) {
    if (column >= 0)
        m_taken[static_cast<std::size_t>(column)] = true;
    return column;
}

int ColumnSurvey::bestNamed(Role role, int least) const {
    return best(
        least, [&](int c) { return wanted(c, role); }, [](int) { return true; });
}
