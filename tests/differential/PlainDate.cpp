// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "differential/PlainDate.h"

#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>

namespace {

/// Numbers too large for an int are the largest int.
int numberOf(const std::string& digits) {
    const int most = std::numeric_limits<int>::max();
    int number = 0;
    for (const char digit : digits) {
        const int value = digit - '0';
        if (number > most / 10 || (number == most / 10 && value > most % 10))
            return most;
        number = number * 10 + value;
    }
    return number;
}

bool isLeapYear(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int daysIn(int month, int year) {
    switch (month) {
    case 2:
        return isLeapYear(year) ? 29 : 28;
    case 4:
    case 6:
    case 9:
    case 11:
        return 30;
    default:
        return 31;
    }
}

bool exists(int day, int month, int year) {
    return year >= 1 && year <= 9999 && month >= 1 && month <= 12 && day >= 1 && day <= daysIn(month, year);
}

std::ostringstream plainStream() {
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    return stream;
}

} // namespace

void PlainDate::clear() {
    m_numbers[0] = m_numbers[1] = m_numbers[2] = 0;
    m_apostrophe = false;
    m_valid = true;
}

bool PlainDate::parse(const std::string& text) {
    if (text.empty())
        return false;
    std::string digits;
    int separators = 0;
    for (const char c : text) {
        if (c >= '0' && c <= '9')
            digits += c;
        if (c != '-' && c != '.' && c != '/' && c != '\'')
            continue;
        if (c == '\'' && separators == 1 && m_shared.qif)
            m_apostrophe = true;
        take(separators, digits);
        ++separators;
        digits.clear();
    }
    if (separators < 2)
        m_valid = false;
    if (separators == 2)
        take(2, digits);
    return isValid();
}

void PlainDate::take(int place, const std::string& digits) {
    if (place > 2)
        return;
    int number = numberOf(digits);
    if (place == 2) {
        if (digits.size() <= 2) {
            if (m_shared.qif && m_apostrophe)
                number += 2000;
            if (number <= m_shared.window)
                number += 2000;
            else if (number <= 99)
                number += 1900;
        }
    } else if (number > 12) { // no month: now one knows, or it contradicts what one knew
        const int proven = place == 0 ? 1 : 2;
        if (m_shared.order == 0)
            m_shared.order = proven;
        else if (m_shared.order != proven)
            m_valid = false;
    }
    m_numbers[place] = number;
}

bool PlainDate::isValid() const {
    if (!m_valid || m_shared.order < 0 || m_shared.order > 2)
        return false;
    return m_shared.order == 2 ? exists(m_numbers[1], m_numbers[0], m_numbers[2])
                               : exists(m_numbers[0], m_numbers[1], m_numbers[2]);
}

std::string PlainDate::date() const {
    std::ostringstream out = plainStream();
    if (!isValid())
        out << "0 0 0";
    else if (m_shared.order == 2)
        out << m_numbers[1] << ' ' << m_numbers[0] << ' ' << m_numbers[2];
    else
        out << m_numbers[0] << ' ' << m_numbers[1] << ' ' << m_numbers[2];
    return out.str();
}

std::string PlainDate::asString() const {
    std::ostringstream out = plainStream();
    out << std::setfill('0') << std::setw(2) << m_numbers[0] << '.' << std::setw(2) << m_numbers[1] << '.'
        << std::setw(4) << m_numbers[2];
    return out.str();
}
