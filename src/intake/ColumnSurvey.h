// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "intake/ColumnLexicon.h"
#include "intake/ColumnProfile.h"
#include "intake/Money.h"
#include "intake/RecordTable.h"
#include "intake/TableFinder.h"

/// What is known of a table's columns before any has a role: their names, what
/// a sample of records holds in them, and which are taken already.
class ColumnSurvey {
public:
    ColumnSurvey(const RecordTable& table, const TableRegion& region, const ColumnLexicon& lexicon);

    int columns() const { return static_cast<int>(m_profiles.size()); }
    bool hasHeader() const { return m_region.header.has_value(); }
    /// Columns of the header; of the widest record where there is none.
    int headerWidth() const { return m_headerWidth; }
    /// Fields that a record of the sample has as a rule.
    int usualWidth() const { return m_usualWidth; }
    const ColumnProfile& profile(int column) const { return m_profiles[static_cast<std::size_t>(column)]; }
    const std::vector<ColumnProfile>& profiles() const { return m_profiles; }
    const std::vector<std::size_t>& records() const { return m_records; }
    std::string_view cell(std::size_t record, int column) const { return m_table.cell(record, column); }

    int score(int column, Role role) const { return m_names[static_cast<std::size_t>(column)].of(role); }
    /// Its name says that it is not for this.
    bool ignored(int column, Role role) const { return score(column, Role::ignore) > score(column, role); }
    int wanted(int column, Role role) const { return ignored(column, role) ? 0 : score(column, role); }
    /// Has a name that no role claims.
    bool isStranger(int column) const;
    bool isMoney(int column) const { return profile(column).isAmount() && !profile(column).isDate(); }
    /// With the decimal mark that suits the column.
    std::optional<Money> amount(std::size_t record, int column) const;

    bool free(int column) const { return !m_taken[static_cast<std::size_t>(column)]; }
    /// Returns `column`, which may be -1.
    int take(int column);

    /// The free column with the highest score above `least` that `fits`; the first of equals.
    template <typename Score, typename Fits>
    int best(int least, Score scoreOf, Fits fits) const {
        int found = -1;
        int foundScore = least;
        for (int column = 0; column < columns(); ++column) {
            const int value = free(column) ? scoreOf(column) : 0;
            if (value > foundScore && fits(column)) {
                found = column;
                foundScore = value;
            }
        }
        return found;
    }
    int bestNamed(Role role, int least = 0) const;

private:
    const RecordTable& m_table;
    const TableRegion& m_region;
    std::vector<std::size_t> m_records;
    std::vector<ColumnProfile> m_profiles;
    std::vector<RoleScores> m_names;
    std::vector<bool> m_taken;
    int m_headerWidth = 0;
    int m_usualWidth = 0;
};
