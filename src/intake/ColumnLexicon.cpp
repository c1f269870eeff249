// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/ColumnLexicon.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "column-names.txt.h"
#include "intake/TextTools.h"

namespace {

std::string_view takeUpTo(std::string_view& text, char end) {
    const std::size_t at = std::min(text.find(end), text.size());
    const std::string_view piece = text.substr(0, at);
    text.remove_prefix(std::min(at + 1, text.size()));
    return TextTools::trim(piece);
}

std::string_view nextWord(std::string_view& line) {
    line = TextTools::trim(line);
    return takeUpTo(line, ' ');
}

constexpr std::array<std::string_view, 30> kUnits = {
    "eur", "euro", "euros", "chf", "usd", "gbp", "sek", "nok", "dkk", "isk", "pln", "czk", "huf", "ron", "bgn",
    "aud", "cad",  "nzd",   "jpy", "sgd", "hkd", "zar", "try", "inr", "brl", "mxn", "dm",  "ats", "kr",  "zl",
};

/// Written as a sign: the euro, the pound, the dollar, the yen.
constexpr std::string_view kUnitSigns = "\x80\xA3$\xA5";

bool isUnit(std::string_view word) { return std::find(kUnits.begin(), kUnits.end(), word) != kUnits.end(); }

/// A blank where "MerchantName" has a new word, or nothing where there is none.
std::string withWordsApart(std::string_view name) {
    const auto isCapital = [](char c) { return c >= 'A' && c <= 'Z'; };
    const auto isSmall = [](char c) { return c >= 'a' && c <= 'z'; };
    std::string out;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (i > 0 && isCapital(name[i]) && isSmall(name[i - 1]))
            out += ' ';
        out += name[i];
    }
    return out.size() == name.size() ? std::string() : out;
}

std::string withSignsAsUnits(std::string_view name) {
    std::string out;
    for (const char c : name)
        (kUnitSigns.find(c) == std::string_view::npos ? out += c : out += " eur ");
    return out;
}

/// "betrag in eur" and "betrag eur" are both "betrag"; but "money in gbp" is
/// "money in", for which `in` says to keep that word.
enum class In { drop, keep };
std::string withoutUnits(std::string_view folded, In in) {
    std::vector<std::string_view> words;
    while (!folded.empty())
        words.push_back(nextWord(folded));
    std::string out;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const bool inUnit =
            in == In::drop && (words[i] == "in" || words[i] == "en") && i + 1 < words.size() && isUnit(words[i + 1]);
        if (inUnit || (isUnit(words[i]) && words.size() > 1))
            continue;
        if (!out.empty())
            out += ' ';
        out += words[i];
    }
    return out;
}

std::string_view withoutNumber(std::string_view word) {
    while (!word.empty() && TextTools::isDigit(word.back()))
        word.remove_suffix(1);
    return word;
}

/// Whether `folded`, from `at` on, has the words of `name`; VWZ1 is VWZ: a
/// number may follow a word at once.
bool hasWordsAt(std::string_view folded, std::size_t at, std::string_view name) {
    const std::size_t end = at + name.size();
    return folded.substr(at, name.size()) == name &&
           (end == folded.size() || folded[end] == ' ' || TextTools::isDigit(folded[end]));
}

} // namespace

Role RoleScores::best() const {
    const auto* const at = std::max_element(scores.begin(), scores.end());
    return *at > 0 ? static_cast<Role>(at - scores.begin()) : Role::ignore;
}

const ColumnLexicon& ColumnLexicon::builtIn() {
    static const ColumnLexicon lexicon(kColumnNames);
    return lexicon;
}

ColumnLexicon::ColumnLexicon(std::string_view table) {
    for (int number = 1; !table.empty(); ++number) {
        const std::string_view line = takeUpTo(table, '\n');
        if (!line.empty() && line.front() != '#' && !addLine(line))
            m_rejected.push_back(number);
    }
}

bool ColumnLexicon::addLine(std::string_view line) {
    const auto role = Roles::parse(nextWord(line));
    const std::string_view scoreText = nextWord(line);
    int score = 0;
    std::from_chars(scoreText.data(), scoreText.data() + scoreText.size(), score);
    const std::string_view howText = nextWord(line);
    const std::optional<How> how = howText == "exact"   ? std::optional(How::exact)
                                   : howText == "words" ? std::optional(How::words)
                                   : howText == "stem"  ? std::optional(How::stem)
                                                        : std::nullopt;
    if (!role || score <= 0 || !how || line.empty())
        return false;
    while (!line.empty()) {
        std::string name = TextTools::fold(takeUpTo(line, '|'));
        if (name.empty())
            return false;
        add(*how, {*role, score, std::move(name)});
    }
    return true;
}

void ColumnLexicon::add(How how, Entry entry) {
    switch (how) {
    case How::exact:
        m_exact.emplace(entry.name, entry);
        break;
    case How::words:
        m_words.emplace(withoutNumber(std::string_view(entry.name).substr(0, entry.name.find(' '))), entry);
        break;
    case How::stem:
        m_stems.push_back(std::move(entry));
        break;
    }
}

RoleScores ColumnLexicon::scores(std::string_view columnName) const {
    const std::string name = withSignsAsUnits(columnName);
    const std::string folded = TextTools::fold(name);
    const std::string whole = withoutUnits(folded, In::drop);
    RoleScores result = scoresOf(whole);
    const auto countAlso = [&](const std::string& other) {
        if (other.empty() || other == whole)
            return;
        const RoleScores others = scoresOf(other);
        for (std::size_t i = 0; i < kRoleCount; ++i)
            result.scores[i] = std::max(result.scores[i], others.scores[i]);
    };
    countAlso(withoutUnits(folded, In::keep));
    countAlso(withoutUnits(TextTools::fold(withWordsApart(name)), In::drop));
    return result;
}

RoleScores ColumnLexicon::scoresOf(std::string_view folded) const {
    RoleScores result;
    const auto count = [&](const Entry& entry) {
        int& score = result.scores[static_cast<std::size_t>(entry.role)];
        score = std::max(score, entry.score);
    };
    for (auto [at, end] = m_exact.equal_range(folded); at != end; ++at)
        count(at->second);
    for (std::size_t at = 0; at < folded.size(); at = std::min(folded.find(' ', at), folded.size() - 1) + 1) {
        const std::string_view word = folded.substr(at, folded.find(' ', at) - at);
        for (auto [entry, end] = m_words.equal_range(withoutNumber(word)); entry != end; ++entry) {
            if (hasWordsAt(folded, at, entry->second.name))
                count(entry->second);
        }
    }
    for (const Entry& stem : m_stems) {
        if (folded.find(stem.name) != std::string::npos)
            count(stem);
    }
    return result;
}
