// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/ColumnLexicon.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "column-names.txt.h"
#include "intake/TextTools.h"

namespace {

std::string_view nextWord(std::string_view& line) {
    line = TextTools::trim(line);
    const std::size_t end = std::min(line.find(' '), line.size());
    const std::string_view word = line.substr(0, end);
    line.remove_prefix(end);
    return word;
}

constexpr std::array<std::string_view, 16> kUnits = {"eur", "euro", "chf", "usd", "gbp", "sek", "nok", "dkk",
                                                     "pln", "czk",  "huf", "aud", "cad", "jpy", "dm",  "ats"};

bool isUnit(std::string_view word) { return std::find(kUnits.begin(), kUnits.end(), word) != kUnits.end(); }

/// "betrag in eur" and "betrag eur" are both "betrag".
std::string withoutUnits(std::string_view folded) {
    std::vector<std::string_view> words;
    while (!folded.empty())
        words.push_back(nextWord(folded));
    std::string out;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const bool inUnit = (words[i] == "in" || words[i] == "en") && i + 1 < words.size() && isUnit(words[i + 1]);
        if (inUnit || (isUnit(words[i]) && words.size() > 1))
            continue;
        if (!out.empty())
            out += ' ';
        out += words[i];
    }
    return out;
}

} // namespace

Role RoleScores::best() const {
    const auto at = std::max_element(scores.begin(), scores.end());
    return *at > 0 ? static_cast<Role>(at - scores.begin()) : Role::ignore;
}

const ColumnLexicon& ColumnLexicon::builtIn() {
    static const ColumnLexicon lexicon(kColumnNames);
    return lexicon;
}

ColumnLexicon::ColumnLexicon(std::string_view table) {
    int number = 0;
    while (!table.empty()) {
        ++number;
        const std::size_t end = std::min(table.find('\n'), table.size());
        std::string_view line = TextTools::trim(table.substr(0, end));
        table.remove_prefix(std::min(end + 1, table.size()));
        if (line.empty() || line.front() == '#')
            continue;
        const auto role = Roles::parse(nextWord(line));
        const std::string_view scoreText = nextWord(line);
        int score = 0;
        std::from_chars(scoreText.data(), scoreText.data() + scoreText.size(), score);
        const std::string_view howText = nextWord(line);
        const std::optional<How> how = howText == "exact"   ? std::optional(How::exact)
                                       : howText == "words" ? std::optional(How::words)
                                       : howText == "stem"  ? std::optional(How::stem)
                                                            : std::nullopt;
        if (!role || score <= 0 || !how || line.empty()) {
            m_rejected.push_back(number);
            continue;
        }
        while (!line.empty()) {
            const std::size_t bar = std::min(line.find('|'), line.size());
            m_entries.push_back({*role, score, *how, std::string(TextTools::trim(line.substr(0, bar)))});
            line.remove_prefix(std::min(bar + 1, line.size()));
        }
    }
}

bool ColumnLexicon::fits(const Entry& entry, std::string_view folded) {
    switch (entry.how) {
    case How::exact:
        return folded == entry.name;
    case How::stem:
        return folded.find(entry.name) != std::string_view::npos;
    case How::words:
        break;
    }
    for (std::size_t at = folded.find(entry.name); at != std::string_view::npos; at = folded.find(entry.name, at + 1)) {
        const std::size_t end = at + entry.name.size();
        // VWZ1 is VWZ: a number may follow a word at once.
        const bool ends = end == folded.size() || folded[end] == ' ' || TextTools::isDigit(folded[end]);
        if ((at == 0 || folded[at - 1] == ' ') && ends)
            return true;
    }
    return false;
}

RoleScores ColumnLexicon::scores(std::string_view columnName) const {
    RoleScores result;
    const std::string folded = withoutUnits(TextTools::fold(columnName));
    if (folded.empty())
        return result;
    for (const Entry& entry : m_entries) {
        int& score = result.scores[static_cast<std::size_t>(entry.role)];
        if (entry.score > score && fits(entry, folded))
            score = entry.score;
    }
    return result;
}
