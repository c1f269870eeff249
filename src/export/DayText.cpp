// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "export/DayText.h"

namespace {

void appendNumber(std::string& out, unsigned number, unsigned greatestPlace) {
    for (unsigned place = greatestPlace; place > 0; place /= 10)
        out += static_cast<char>('0' + number / place % 10);
}

void appendYear(std::string& out, const DMDate& day) { appendNumber(out, day.year(), 1000); }
void appendMonth(std::string& out, const DMDate& day) { appendNumber(out, day.month(), 10); }
void appendDay(std::string& out, const DMDate& day) { appendNumber(out, day.day(), 10); }

} // namespace

void DayText::appendIso(std::string& out, const DMDate& day) {
    if (day.isZero())
        return;
    appendYear(out, day);
    out += '-';
    appendMonth(out, day);
    out += '-';
    appendDay(out, day);
}

void DayText::appendGerman(std::string& out, const DMDate& day) {
    if (day.isZero())
        return;
    appendDay(out, day);
    out += '.';
    appendMonth(out, day);
    out += '.';
    appendYear(out, day);
}
