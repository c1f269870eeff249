// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/ColumnProfile.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "intake/Dates.h"
#include "intake/Money.h"
#include "intake/SignWords.h"
#include "intake/TextTools.h"

namespace {

constexpr std::size_t kDistinctLimit = 200;

/// An account number, an IBAN, a reference: digits and capitals in one long word.
bool looksLikeCode(std::string_view text) {
    std::size_t digits = 0;
    for (const char c : text) {
        if (TextTools::isDigit(c))
            ++digits;
        else if (!(c >= 'A' && c <= 'Z') && c != ' ' && c != '*' && c != 'x' && c != 'X')
            return false;
    }
    return text.size() >= 6 && digits * 2 >= text.size();
}

void count(ColumnProfile& profile, std::string_view raw) {
    const std::string_view text = TextTools::trim(raw);
    ++profile.rows;
    if (text.empty())
        return;
    ++profile.filled;
    profile.length += text.size();
    if (const auto date = DateCells::read(text)) {
        if (date->form == DateCell::Form::dayMonth)
            ++profile.dayMonths;
        else if (date->form == DateCell::Form::compact && !date->time)
            ++profile.digits8;
        else
            ++profile.dates;
    }
    const auto comma = AmountCells::read(text, ',');
    const auto dot = AmountCells::read(text, '.');
    profile.commaAmounts += comma ? 1 : 0;
    profile.dotAmounts += dot ? 1 : 0;
    if (const auto& amount = comma ? comma : dot) {
        const bool sure =
            amount->marked || amount->currency || amount->sign != AmountCell::Sign::none || (dot && dot->marked);
        profile.marked += sure ? 1 : 0;
        profile.negative += amount->sign == AmountCell::Sign::minus && !amount->magnitude.isZero() ? 1 : 0;
        profile.signs += amount->sign != AmountCell::Sign::none ? 1 : 0;
        profile.zeros += amount->magnitude.isZero() ? 1 : 0;
    }
    profile.wordsOnly += std::none_of(text.begin(), text.end(), TextTools::isDigit) ? 1 : 0;
    const auto mark = SignWords::read(text);
    profile.minusWords += mark == AmountCell::Sign::minus ? 1 : 0;
    profile.plusWords += mark == AmountCell::Sign::plus ? 1 : 0;
    profile.codes += looksLikeCode(text) ? 1 : 0;
}

} // namespace

namespace ColumnProfiles {

std::vector<ColumnProfile> make(const RecordTable& table, std::span<const std::size_t> records, int columns) {
    std::vector<ColumnProfile> profiles(static_cast<std::size_t>(std::max(columns, 0)));
    std::vector<std::set<std::string_view>> values(profiles.size());
    for (const std::size_t record : records) {
        for (std::size_t column = 0; column < profiles.size(); ++column) {
            const std::string_view text = TextTools::trim(table.cell(record, static_cast<int>(column)));
            count(profiles[column], text);
            if (!text.empty() && values[column].size() < kDistinctLimit)
                values[column].insert(text);
        }
    }
    for (std::size_t column = 0; column < profiles.size(); ++column)
        profiles[column].distinct = static_cast<int>(values[column].size());
    return profiles;
}

} // namespace ColumnProfiles
