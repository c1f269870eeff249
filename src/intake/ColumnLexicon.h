// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "intake/Role.h"

/// How well a column's name fits each role, 0 to about 100.
struct RoleScores {
    std::array<int, kRoleCount> scores{};

    int of(Role role) const { return scores[static_cast<std::size_t>(role)]; }
    /// The role that fits best; `Role::ignore` with score 0 where none does.
    Role best() const;
};

/// The names that banks give their columns, from column-names.txt.
class ColumnLexicon {
public:
    /// The table that the program carries with it.
    static const ColumnLexicon& builtIn();
    /// Reads such a table; lines that it does not understand are left in
    /// `rejectedLines()`.
    explicit ColumnLexicon(std::string_view table);

    RoleScores scores(std::string_view columnName) const;
    const std::vector<int>& rejectedLines() const { return m_rejected; }

private:
    enum class How { exact, words, stem };
    struct Entry {
        Role role;
        int score;
        std::string name;
    };
    using ByText = std::multimap<std::string, Entry, std::less<>>;

    RoleScores scoresOf(std::string_view folded) const;
    bool addLine(std::string_view line);
    void add(How how, Entry entry);

    ByText m_exact; ///< by the whole name
    ByText m_words; ///< by the first of the words
    std::vector<Entry> m_stems;
    std::vector<int> m_rejected;
};
