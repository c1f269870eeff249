// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "intake/Dates.h"
#include "intake/MonthNames.h"
#include "intake/TextTools.h"
#include "intake/TimeOfDay.h"

namespace {

constexpr std::size_t kShortestDate = 3; // 1.2
constexpr std::size_t kLongestDate = 60;
constexpr char kDash = '\x96'; // a hyphen that a word processor made pretty

bool isLetter(char c) { return TextTools::isAsciiLetter(c) || static_cast<unsigned char>(c) >= 0xC0; }
bool isSeparator(char c) { return c == '.' || c == '/' || c == '-' || c == '\'' || c == kDash; }

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
    void skipAnyOf(std::string_view characters) {
        while (!atEnd() && (TextTools::isBlank(peek()) || characters.find(peek()) != std::string_view::npos))
            ++m_at;
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

/// Eight digits, a time of day in four or six more, and a bracket with the time zone.
std::optional<DateCell> readCompact(std::string_view text) {
    std::size_t count = 0;
    while (count < text.size() && TextTools::isDigit(text[count]))
        ++count;
    if (count != 8 && count != 12 && count != 14)
        return std::nullopt;
    std::string_view rest = text.substr(count);
    if (!rest.empty() && rest.front() == '.') { // fractions of a second
        rest.remove_prefix(1);
        while (!rest.empty() && TextTools::isDigit(rest.front()))
            rest.remove_prefix(1);
    }
    if (!rest.empty() && rest.front() != '[' && rest.front() != 'T' && rest.front() != ' ')
        return std::nullopt;
    DateCell cell;
    cell.form = DateCell::Form::compact;
    for (std::size_t i = 0; i < 8; ++i)
        cell.numbers[0] = cell.numbers[0] * 10 + (text[i] - '0');
    cell.digits[0] = 8;
    cell.time = text.size() > 8;
    cell.plain = !cell.time;
    return cell;
}

/// "5. Januar 2024", "Jan 5, 2024", "05JAN24".
std::optional<DateCell> readNamed(Scanner scan) {
    constexpr std::string_view kPunctuation = ".-,/";
    DateCell cell;
    cell.form = DateCell::Form::named;
    const bool dayFirst = TextTools::isDigit(scan.peek());
    const auto readDay = [&] {
        const auto day = scan.number(cell.digits[0]);
        cell.numbers[0] = day.value_or(0);
        return day && cell.digits[0] <= 2;
    };
    const auto readMonth = [&] {
        cell.numbers[1] = MonthNames::month(scan.word());
        return cell.numbers[1] != 0;
    };
    if (dayFirst ? !readDay() : !readMonth())
        return std::nullopt;
    scan.skipAnyOf(kPunctuation);
    if (dayFirst ? !readMonth() : !readDay())
        return std::nullopt;
    scan.skipAnyOf(kPunctuation);
    const auto year = scan.number(cell.digits[2]);
    if (!year || (cell.digits[2] != 2 && cell.digits[2] != 4) || !TimeOfDay::isTimeOrNothing(scan.rest()))
        return std::nullopt;
    cell.numbers[2] = *year;
    cell.time = !scan.atEnd();
    return cell;
}

/// Two or three numbers with separators between them; a word for the month is
/// left to `readNamed`.
// NOLINTNEXTLINE(readability-function-cognitive-complexity): one pass from left to right, a rule for each place
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
        cell.plain = cell.plain && !blanksBefore && !blanksBehind && separator != kDash;
        if (isLetter(scan.peek()))
            return readNamed(start);
        if (count == 2 && scan.atEnd()) { // 09.03 or 09.03.
            cell.form = DateCell::Form::dayMonth;
            return cell.separator == '.' || cell.separator == '/' ? std::optional(cell) : std::nullopt;
        }
        if (count == 2 && !isSeparator(separator))
            return std::nullopt;
    }
    if (scan.peek() == '.' && cell.separator == '.') { // 2024.12.31.
        scan.skip(1);
        cell.plain = false;
    }
    if (!scan.atEnd() && !TimeOfDay::isTimeOrNothing(scan.rest()))
        return std::nullopt;
    cell.time = !scan.atEnd();
    cell.plain = cell.plain && !cell.time;
    return cell;
}

/// "31.12.2024" and "2024-12-31", as most dates are written.
std::optional<DateCell> readTenCharacters(std::string_view text) {
    const auto digits = [&](std::size_t at, std::size_t count) {
        int value = 0;
        for (; count > 0; --count, ++at) {
            if (!TextTools::isDigit(text[at]))
                return -1;
            value = value * 10 + (text[at] - '0');
        }
        return value;
    };
    const bool yearFirst = text[4] == '-' && text[7] == '-';
    const char separator = yearFirst ? '-' : text[2];
    if (!yearFirst && (text[5] != separator || (separator != '.' && separator != '/' && separator != '-')))
        return std::nullopt;
    DateCell cell;
    cell.numbers[0] = yearFirst ? digits(0, 4) : digits(0, 2);
    cell.numbers[1] = yearFirst ? digits(5, 2) : digits(3, 2);
    cell.numbers[2] = yearFirst ? digits(8, 2) : digits(6, 4);
    if (cell.numbers[0] < 0 || cell.numbers[1] < 0 || cell.numbers[2] < 0)
        return std::nullopt;
    cell.digits[0] = yearFirst ? 4 : 2;
    cell.digits[1] = 2;
    cell.digits[2] = yearFirst ? 2 : 4;
    cell.separator = separator;
    cell.plain = true;
    return cell;
}

/// A cell that begins with a word: a month, or a weekday before the date.
std::optional<DateCell> readWord(Scanner scan) {
    if (auto named = readNamed(scan)) // "Mar" is a month and a Tuesday
        return named;
    if (!MonthNames::isWeekday(scan.word()))
        return std::nullopt;
    scan.skipAnyOf(".,");
    return TextTools::isDigit(scan.peek()) ? readNumbers(scan) : readNamed(scan);
}

} // namespace

namespace DateCells {

std::optional<DateCell> read(std::string_view raw) {
    const std::string_view text = TextTools::trim(raw);
    if (text.size() < kShortestDate || text.size() > kLongestDate ||
        std::none_of(text.begin(), text.end(), TextTools::isDigit))
        return std::nullopt;
    if (text.size() == 10) {
        if (auto usual = readTenCharacters(text))
            return usual;
    }
    const Scanner scan(text);
    if (TextTools::isDigit(text.front())) {
        auto compact = readCompact(text);
        return compact ? compact : readNumbers(scan);
    }
    return isLetter(text.front()) ? readWord(scan) : std::nullopt;
}

} // namespace DateCells
