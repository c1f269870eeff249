// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/LibraryReading.h"

#include <charconv>
#include <string>

#include "dmwrite/ImportIntoDMHelper.h"
#include "framework/ImportFileBase.h"

namespace {

/// The library's own conversions, without an import around them.
class Conversions : public ImportIntoDMHelper {};

double toDouble(const Money& amount) {
    std::string text = amount.text();
    if (const auto mark = text.find(','); mark != std::string::npos)
        text[mark] = '.';
    double value = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

} // namespace

namespace LibraryReading {

const int kMaxLineLength = ImportFileBase::kMaxLineLength;
const int kMaxColumns = 49;

bool readsAmount(std::string_view cell, const Money& amount) {
    static const Conversions conversions;
    return conversions.scanCurrency(std::string(cell).c_str()) == toDouble(amount);
}

bool readsDate(std::string_view cell, const Day& day, int centuryWindow) {
    const auto date = DateCells::read(cell);
    // Three numbers and nothing else; a time behind them would run into the year.
    if (!date || date->form != DateCell::Form::numbers || !date->plain || date->separator == '\'')
        return false;
    return date->day(DateOrder::dayMonthYear, centuryWindow) == day;
}

} // namespace LibraryReading
