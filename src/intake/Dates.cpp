// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/Dates.h"

#include <array>
#include <cstdio>

#include "intake/TextTools.h"

namespace {

struct MonthName {
    std::string_view start; ///< folded; longer words that begin so count as well
    int month;
};
// German, English, French, Italian; those that begin like others come first.
constexpr std::array<MonthName, 31> kMonths = {{
    {"juin", 6}, {"juil", 7}, {"jan", 1},  {"jaen", 1}, {"gen", 1},  {"feb", 2},  {"fev", 2},  {"mae", 3},
    {"mrz", 3},  {"mar", 3},  {"apr", 4},  {"avr", 4},  {"mai", 5},  {"may", 5},  {"mag", 5},  {"jun", 6},
    {"giu", 6},  {"jul", 7},  {"lug", 7},  {"aug", 8},  {"aou", 8},  {"ago", 8},  {"sep", 9},  {"set", 9},
    {"okt", 10}, {"oct", 10}, {"ott", 10}, {"nov", 11}, {"dez", 12}, {"dec", 12}, {"dic", 12},
}};

constexpr std::array<std::string_view, 26> kWeekdays = {
    "mo",      "di",      "mi",      "do",  "fr",  "sa",     "so",       "mon",      "tue",
    "wed",     "thu",     "fri",     "sat", "sun", "montag", "dienstag", "mittwoch", "donnerstag",
    "freitag", "samstag", "sonntag", "lun", "mar", "mer",    "jeu",      "ven",
};

int monthOf(std::string_view word) {
    const std::string folded = TextTools::fold(word);
    for (const MonthName& row : kMonths) {
        if (folded.starts_with(row.start))
            return row.month;
    }
    return 0;
}

bool isWeekday(std::string_view word) {
    const std::string folded = TextTools::fold(word);
    for (const std::string_view name : kWeekdays) {
        if (folded == name)
            return true;
    }
    return false;
}

bool isLetter(char c) { return TextTools::isAsciiLetter(c) || static_cast<unsigned char>(c) >= 0xC0; }

bool isSeparator(char c) { return c == '.' || c == '/' || c == '-' || c == '\'' || c == '\x96'; }

/// Walks over a cell piece by piece.
class Scanner {
public:
    explicit Scanner(std::string_view text) : m_text(text) {}

    bool atEnd() const { return m_at == m_text.size(); }
    char peek() const { return atEnd() ? '\0' : m_text[m_at]; }
    std::string_view rest() const { return m_text.substr(m_at); }
    void skip(std::size_t count) { m_at += count; }
    bool skipBlanks() {
        const std::size_t before = m_at;
        while (!atEnd() && TextTools::isBlank(peek()))
            ++m_at;
        return m_at != before;
    }
    /// At most nine digits; their count is left in `digits`.
    std::optional<int> number(int& digits) {
        int value = 0;
        digits = 0;
        while (!atEnd() && TextTools::isDigit(peek())) {
            if (++digits > 9)
                return std::nullopt;
            value = value * 10 + (peek() - '0');
            ++m_at;
        }
        return digits > 0 ? std::optional(value) : std::nullopt;
    }
    std::string_view word() {
        const std::size_t from = m_at;
        while (!atEnd() && isLetter(peek()))
            ++m_at;
        return m_text.substr(from, m_at - from);
    }

private:
    std::string_view m_text;
    std::size_t m_at = 0;
};

/// Behind a date may stand a time of day, a time zone, or nothing.
bool isTimeOrNothing(std::string_view rest) {
    rest = TextTools::trim(rest);
    if (rest.empty())
        return true;
    if (rest.front() == ',' || rest.front() == 'T' || rest.front() == '-' || rest.front() == '_')
        rest = TextTools::trim(rest.substr(1));
    if (rest.starts_with("um "))
        rest = TextTools::trim(rest.substr(3));
    int digits = 0;
    std::size_t at = 0;
    while (at < rest.size() && TextTools::isDigit(rest[at]))
        ++at, ++digits;
    if (digits == 0 || digits > 2 || at == rest.size() || (rest[at] != ':' && rest[at] != '.' && rest[at] != 'h'))
        return false;
    for (; at < rest.size(); ++at) {
        const char c = rest[at];
        const bool allowed = TextTools::isDigit(c) || TextTools::isAsciiLetter(c) || TextTools::isBlank(c) ||
                             c == ':' || c == '.' || c == '+' || c == '-' || c == ',';
        if (!allowed)
            return false;
    }
    return true;
}

/// Eight digits, a time of day in six more, and a bracket with the time zone.
std::optional<DateCell> readCompact(std::string_view text) {
    std::size_t count = 0;
    while (count < text.size() && TextTools::isDigit(text[count]))
        ++count;
    if (count != 8 && count != 12 && count != 14)
        return std::nullopt;
    std::string_view rest = text.substr(count);
    if (!rest.empty() && rest.front() == '.') // fractions of a second
        while (rest.size() > 1 && (rest.remove_prefix(1), TextTools::isDigit(rest.front()))) {
        }
    if (!rest.empty() && rest.front() != '[' && rest.front() != 'T' && rest.front() != ' ' && rest != ".")
        return std::nullopt;
    DateCell cell;
    cell.form = DateCell::Form::compact;
    for (int i = 0; i < 8; ++i)
        cell.numbers[0] = cell.numbers[0] * 10 + (text[static_cast<std::size_t>(i)] - '0');
    cell.digits[0] = 8;
    cell.time = count > 8 || !rest.empty();
    cell.plain = !cell.time;
    return cell;
}

std::optional<DateCell> readNamed(Scanner scan) {
    DateCell cell;
    cell.form = DateCell::Form::named;
    const auto skipPunctuation = [&] {
        while (!scan.atEnd() && (TextTools::isBlank(scan.peek()) || scan.peek() == '.' || scan.peek() == '-' ||
                                 scan.peek() == ',' || scan.peek() == '/'))
            scan.skip(1);
    };
    int digits = 0;
    if (TextTools::isDigit(scan.peek())) {
        const auto day = scan.number(digits);
        if (!day || digits > 2)
            return std::nullopt;
        cell.numbers[0] = *day;
        skipPunctuation();
        cell.numbers[1] = monthOf(scan.word());
    } else {
        cell.numbers[1] = monthOf(scan.word());
        skipPunctuation();
        const auto day = scan.number(digits);
        if (!day || digits > 2)
            return std::nullopt;
        cell.numbers[0] = *day;
    }
    if (cell.numbers[1] == 0)
        return std::nullopt;
    skipPunctuation();
    const auto year = scan.number(cell.digits[2]);
    if (!year || (cell.digits[2] != 2 && cell.digits[2] != 4) || !isTimeOrNothing(scan.rest()))
        return std::nullopt;
    cell.numbers[2] = *year;
    cell.time = !scan.atEnd();
    return cell;
}

/// Two or three numbers with separators between them; a word for the month is
/// left to `readNamed`.
std::optional<DateCell> readNumbers(Scanner scan) {
    const Scanner start = scan;
    DateCell cell;
    cell.plain = true;
    for (int count = 0;;) {
        const auto number = scan.number(cell.digits[count]);
        if (!number || (cell.digits[count] != 4 && cell.digits[count] > 2))
            return std::nullopt;
        cell.numbers[count++] = *number;
        if (count == 3)
            break;
        const bool blanksBefore = scan.skipBlanks();
        const char separator = scan.peek();
        if (isLetter(separator))
            return readNamed(start);
        if (isSeparator(separator))
            scan.skip(1);
        else if (count == 1)
            return std::nullopt; // a number by itself
        if (count == 1)
            cell.separator = separator;
        else
            cell.apostropheYear = separator == '\'';
        const bool blanksBehind = scan.skipBlanks();
        cell.plain = cell.plain && !blanksBefore && !blanksBehind && separator != '\x96';
        if (isLetter(scan.peek()))
            return readNamed(start);
        if (count == 2 && scan.atEnd()) { // 09.03 or 09.03.
            cell.form = DateCell::Form::dayMonth;
            return cell.separator == '.' || cell.separator == '/' ? std::optional(cell) : std::nullopt;
        }
        if (count == 2 && !isSeparator(separator))
            return std::nullopt;
    }
    if (!isTimeOrNothing(scan.rest()))
        return std::nullopt;
    cell.time = !scan.atEnd();
    cell.plain = cell.plain && !cell.time;
    return cell;
}

int widen(int year, int digits, int centuryWindow) {
    if (digits > 2)
        return year;
    return year + (year <= centuryWindow ? 2000 : 1900);
}

std::optional<Day> existing(int year, int month, int day) {
    const Day result{year, month, day};
    return result.exists() ? std::optional(result) : std::nullopt;
}

} // namespace

bool Day::exists() const {
    constexpr std::array<int, 12> kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (year < 1 || year > 9999 || month < 1 || month > 12 || day < 1)
        return false;
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return day <= kDays[static_cast<std::size_t>(month) - 1] + (leap && month == 2 ? 1 : 0);
}

int Day::number() const {
    const int y = month < 3 ? year - 1 : year;
    const int m = month < 3 ? month + 9 : month - 3;
    return 365 * y + y / 4 - y / 100 + y / 400 + (153 * m + 2) / 5 + day - 307;
}

std::string Day::germanText() const {
    char text[40];
    std::snprintf(text, sizeof text, "%02d.%02d.%04d", day, month, year);
    return text;
}

std::optional<Day> DateCell::day(DateOrder order, int centuryWindow, std::optional<int> assumedYear) const {
    switch (form) {
    case Form::named:
        return existing(widen(numbers[2], digits[2], centuryWindow), numbers[1], numbers[0]);
    case Form::compact: {
        const int all = numbers[0];
        if (order == DateOrder::yearMonthDay)
            return existing(all / 10000, all / 100 % 100, all % 100);
        const int first = all / 1000000;
        const int second = all / 10000 % 100;
        return order == DateOrder::dayMonthYear ? existing(all % 10000, second, first)
                                                : existing(all % 10000, first, second);
    }
    case Form::dayMonth:
        if (!assumedYear)
            return std::nullopt;
        return order == DateOrder::monthDayYear ? existing(*assumedYear, numbers[0], numbers[1])
                                                : existing(*assumedYear, numbers[1], numbers[0]);
    case Form::numbers:
        break;
    }
    const bool yearFirst = order == DateOrder::yearMonthDay;
    const int yearAt = yearFirst ? 0 : 2;
    // Four digits are a year, and only a year has them.
    for (int i = 0; i < 3; ++i) {
        if (digits[i] > 2 && i != yearAt)
            return std::nullopt;
    }
    const int year = apostropheYear && digits[yearAt] <= 2 ? 2000 + numbers[yearAt]
                                                           : widen(numbers[yearAt], digits[yearAt], centuryWindow);
    if (yearFirst)
        return existing(year, numbers[1], numbers[2]);
    return order == DateOrder::dayMonthYear ? existing(year, numbers[1], numbers[0])
                                            : existing(year, numbers[0], numbers[1]);
}

namespace DateCells {

std::string_view name(DateOrder order) {
    switch (order) {
    case DateOrder::dayMonthYear:
        return "dmy";
    case DateOrder::monthDayYear:
        return "mdy";
    case DateOrder::yearMonthDay:
        return "ymd";
    }
    return "dmy";
}

std::optional<DateOrder> parseOrder(std::string_view text) {
    for (const DateOrder order : {DateOrder::dayMonthYear, DateOrder::monthDayYear, DateOrder::yearMonthDay}) {
        if (name(order) == text)
            return order;
    }
    return std::nullopt;
}

std::optional<DateCell> read(std::string_view raw) {
    const std::string_view text = TextTools::trim(raw);
    if (text.size() < 3 || text.size() > 60)
        return std::nullopt;
    Scanner scan(text);
    if (!TextTools::isDigit(scan.peek())) {
        Scanner ahead = scan;
        if (!isWeekday(ahead.word()))
            return readNamed(scan);
        while (!ahead.atEnd() && (ahead.peek() == '.' || ahead.peek() == ',' || TextTools::isBlank(ahead.peek())))
            ahead.skip(1);
        scan = ahead;
        if (!TextTools::isDigit(scan.peek()))
            return readNamed(scan);
    } else if (auto compact = readCompact(text)) {
        return compact;
    }

    return readNumbers(scan);
}

} // namespace DateCells
