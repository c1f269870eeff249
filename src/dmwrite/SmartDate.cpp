// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "dmwrite/SmartDate.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <system_error>

#include "framework/AssertTypeSizes.h"

namespace {

enum Order : int { eUnknown = 0, eDayFirst = 1, eMonthFirst = 2 };

constexpr int kGreatestMonth = 12;

/// The number at the start of the text, as atoi reads it but under every locale
/// alike. One that no int holds is the nearest int.
int numberFrom(const std::string& digits) {
    const char* at = digits.c_str();
    while (*at == ' ' || (*at >= '\t' && *at <= '\r'))
        ++at;
    if (*at == '+' && at[1] != '-')
        ++at;
    int number = 0;
    const auto result = std::from_chars(at, digits.c_str() + digits.size(), number);
    if (result.ec == std::errc::result_out_of_range)
        return *at == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    return number;
}

/// The digits of one number of a date, read as they come.
class DigitRun {
public:
    void add(char digit) {
        m_number = std::min(m_number * 10 + (digit - '0'), kMost);
        ++m_count;
    }
    /// One too large for an int is the largest int.
    int number() const { return static_cast<int>(m_number); }
    std::size_t count() const { return m_count; }

private:
    static constexpr std::int64_t kMost = std::numeric_limits<int>::max();

    std::int64_t m_number = 0;
    std::size_t m_count = 0;
};

constexpr std::size_t kLongestNumber = std::numeric_limits<unsigned>::digits10 + 2; // with a sign

/// As printf's "%0nd": the zeros follow the sign, which counts as a place.
char* writePadded(char* out, int number, int places) {
    auto magnitude = static_cast<unsigned>(number);
    if (number < 0) {
        magnitude = 0U - magnitude;
        *out++ = '-';
        --places;
    }
    char digits[kLongestNumber];
    char* first = std::end(digits);
    do {
        *--first = static_cast<char>('0' + magnitude % 10);
        magnitude /= 10;
    } while (magnitude != 0 || std::end(digits) - first < places);
    return std::copy(first, std::end(digits), out);
}

} // namespace

int SmartDate::sm_order = eUnknown;
bool SmartDate::m_useQIFSyntax = false;
unsigned short SmartDate::sm_CenturyWindowStart = 30;

SmartDate::SmartDate() { m_useQIFSyntax = false; }

void SmartDate::clear() {
    m_apostropheYear = false;
    m_first = 0;
    m_second = 0;
    m_year = 0;
    m_valid = true;
}

bool SmartDate::parse(const char* text) {
    if (text == nullptr || *text == '\0')
        return false;
    DigitRun digits;
    int separators = 0;
    for (; *text != '\0'; ++text) {
        switch (*text) {
        case '0':
        case '1':
        case '2':
        case '3':
        case '4':
        case '5':
        case '6':
        case '7':
        case '8':
        case '9':
            digits.add(*text);
            break;
        case '\'':
            if (separators == 1 && m_useQIFSyntax)
                m_apostropheYear = true;
            [[fallthrough]];
        case '-':
        case '.':
        case '/':
            takeNumber(separators, digits.number(), digits.count());
            // Beyond the third separator nothing counts any more.
            separators = separators < 3 ? separators + 1 : separators;
            digits = DigitRun();
            break;
        default:
            break;
        }
    }
    if (separators < 2)
        m_valid = false;
    else if (separators == 2)
        takeNumber(2, digits.number(), digits.count());
    return isValid();
}

void SmartDate::setNumber(int index, const std::string& digits) {
    takeNumber(index, numberFrom(digits), digits.size());
}

void SmartDate::takeNumber(int index, int number, std::size_t digits) {
    switch (index) {
    case 0:
        m_first = number;
        learnOrder(m_first, eDayFirst);
        break;
    case 1:
        m_second = number;
        learnOrder(m_second, eMonthFirst);
        break;
    case 2:
        m_year = number;
        if (digits <= 2)
            m_year = widenYear(m_year);
        break;
    default:
        break;
    }
}

void SmartDate::learnOrder(int number, int orderItProves) {
    if (number <= kGreatestMonth)
        return;
    if (sm_order == eUnknown)
        sm_order = orderItProves;
    else if (sm_order != orderItProves)
        m_valid = false;
}

int SmartDate::widenYear(int year) const {
    if (m_useQIFSyntax && m_apostropheYear)
        year += 2000;
    if (year <= static_cast<int>(sm_CenturyWindowStart))
        return year + 2000;
    return year <= 99 ? year + 1900 : year;
}

bool SmartDate::isValid() const {
    if (!m_valid)
        return false;
    int day = 0;
    int month = 0;
    if (sm_order == eUnknown || sm_order == eDayFirst) {
        day = m_first;
        month = m_second;
    } else if (sm_order == eMonthFirst) {
        day = m_second;
        month = m_first;
    }
    return DMDate::DayWithinMonth(static_cast<unsigned>(month), static_cast<unsigned>(day),
                                  static_cast<unsigned>(m_year)) != 0;
}

DMDate SmartDate::getDate() const {
    if (!isValid())
        return DMDate(0, 0, 0);
    const auto first = static_cast<unsigned>(m_first);
    const auto second = static_cast<unsigned>(m_second);
    const auto year = static_cast<unsigned>(m_year);
    switch (sm_order) {
    case eUnknown:
    case eDayFirst:
        return DMDate(first, second, year);
    case eMonthFirst:
        return DMDate(second, first, year);
    default: // a host may take month and day 0 for a day
        return DMDate();
    }
}

std::string SmartDate::asString() const {
    char text[3 * kLongestNumber + 2];
    char* end = writePadded(text, m_first, 2);
    *end++ = '.';
    end = writePadded(end, m_second, 2);
    *end++ = '.';
    end = writePadded(end, m_year, 4);
    return std::string(text, end);
}

void SmartDate::setupCenturyStart(Node* node) {
    if (node == nullptr)
        return;
    if (const DMSchemaContext* context = node->getSchemaContext())
        sm_CenturyWindowStart = context->getCenturyWindowStart();
}
