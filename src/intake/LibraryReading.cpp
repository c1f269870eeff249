// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/LibraryReading.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <string>

#include "dmwrite/ImportIntoDMHelper.h"
#include "framework/ImportFileBase.h"
#include "intake/Dates.h"
#include "intake/TextTools.h"

namespace {

/// The library's own conversions, without an import around them.
class Conversions : public ImportIntoDMHelper {};

double toDouble(const Money& amount) {
    std::string text = amount.text();
    std::replace(text.begin(), text.end(), ',', '.');
    double value = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

/// "-1.234,56", "1,234.56": of two digits behind a mark the library never makes
/// anything else. Most amounts are written so, and need no dry run.
bool hasCents(std::string_view cell, const Money& amount) {
    constexpr std::size_t kCents = 3; // a mark and two digits
    if (amount.scale != 2 || cell.size() <= kCents)
        return false;
    const char mark = cell[cell.size() - kCents];
    const std::size_t sign = cell.front() == '-' ? 1 : 0;
    const auto digits = cell.substr(sign);
    return (mark == ',' || mark == '.') && amount.isNegative() == (sign > 0) &&
           std::all_of(digits.begin(), digits.end(),
                       [](char c) { return TextTools::isDigit(c) || c == ',' || c == '.'; });
}

/// "31.12.2024" for this very day.
bool isGermanText(std::string_view cell, const Day& day) {
    const auto pair = [&](std::size_t at, int value) {
        return cell[at] - '0' == value / 10 && cell[at + 1] - '0' == value % 10;
    };
    return cell.size() == 10 && cell[2] == '.' && cell[5] == '.' && pair(0, day.day) && pair(3, day.month) &&
           pair(6, day.year / 100) && pair(8, day.year % 100);
}

} // namespace

namespace LibraryReading {

const int kMaxLineLength = ImportFileBase::kMaxLineLength;
const int kMaxColumns = 49;

bool splitsLine(const RecordTable::Record& record, std::string_view line) {
    return record.plain && record.cellCount <= kMaxColumns && line.size() <= static_cast<std::size_t>(kMaxLineLength);
}

bool skipsLine(std::string_view line) { return line.find_first_not_of(" \t") == std::string_view::npos; }

std::string_view strippedLine(std::string_view line) {
    for (const char blank : {' ', '\t'}) {
        const std::size_t first = line.find_first_not_of(blank);
        if (first == std::string_view::npos)
            return {};
        line = line.substr(first, line.find_last_not_of(blank) + 1 - first);
    }
    return line;
}

bool readsAmount(std::string_view cell, const Money& amount) {
    if (hasCents(cell, amount))
        return true;
    static const Conversions conversions;
    return conversions.scanCurrency(std::string(cell).c_str()) == toDouble(amount);
}

bool readsDate(std::string_view cell, const Day& day, int centuryWindow) {
    if (isGermanText(cell, day))
        return true;
    const auto date = DateCells::read(cell);
    // Three numbers and nothing else; a time behind them would run into the year.
    if (!date || date->form != DateCell::Form::numbers || !date->plain || date->separator == '\'')
        return false;
    return date->day(DateOrder::dayMonthYear, centuryWindow) == day;
}

} // namespace LibraryReading
