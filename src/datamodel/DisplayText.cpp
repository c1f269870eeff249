// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/DisplayText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <optional>
#include <string_view>

namespace {

/// The cents of an amount that is the double next to a number of whole cents, as nearly all are; else nothing. Its
/// two decimals are those of the cents then: it is off by less than half a cent.
std::optional<std::uint64_t> wholeCents(double magnitude) {
    constexpr double kMost = 1e13;
    if (!(magnitude < kMost))
        return std::nullopt;
    const auto cents = static_cast<std::uint64_t>(std::llround(magnitude * 100.0));
    return static_cast<double>(cents) / 100.0 == magnitude ? std::optional(cents) : std::nullopt;
}

/// The digits of an amount that is not negative, with a point.
class FixedPoint {
public:
    FixedPoint(double magnitude, unsigned short decimals) {
        const std::optional<std::uint64_t> cents = decimals == 2 ? wholeCents(magnitude) : std::nullopt;
        if (cents)
            write(*cents);
        else
            write(magnitude, decimals);
    }

    FixedPoint(const FixedPoint&) = delete;
    FixedPoint& operator=(const FixedPoint&) = delete;

    std::string_view text() const { return m_text; }

private:
    void write(std::uint64_t cents) {
        char* const end = std::to_chars(m_digits.data(), m_digits.data() + m_digits.size(), cents / 100).ptr;
        end[0] = '.';
        end[1] = static_cast<char>('0' + cents / 10 % 10);
        end[2] = static_cast<char>('0' + cents % 10);
        m_text = {m_digits.data(), end + 3};
    }

    void write(double magnitude, unsigned short decimals) {
        constexpr std::size_t kMostIntegerDigits = std::numeric_limits<double>::max_exponent10 + 1;
        m_long.resize(kMostIntegerDigits + 1 + decimals);
        const char* const end =
            std::to_chars(m_long.data(), m_long.data() + m_long.size(), magnitude, std::chars_format::fixed, decimals)
                .ptr;
        m_text = {m_long.data(), end};
    }

    std::array<char, 24> m_digits{};
    std::string m_long;
    std::string_view m_text; // of one of them
};

void appendInteger(std::string& out, std::string_view digits, bool grouped) {
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (grouped && i != 0 && (digits.size() - i) % 3 == 0)
            out.push_back('.');
        out.push_back(digits[i]);
    }
}

char* writePadded(char* out, unsigned number, std::ptrdiff_t width) {
    char digits[std::numeric_limits<unsigned>::digits10 + 1];
    char* first = std::end(digits);
    do {
        *--first = static_cast<char>('0' + number % 10);
        number /= 10;
    } while (number != 0 || std::end(digits) - first < width);
    return std::copy(first, std::end(digits), out);
}

} // namespace

namespace DisplayText {

std::string amount(double value, bool grouped, unsigned short decimals) {
    if (std::isnan(value))
        return "nan";
    if (std::isinf(value))
        return value < 0 ? "-inf" : "inf";

    const FixedPoint number(std::fabs(value), decimals);
    const std::string_view plain = number.text();
    const std::size_t point = plain.find('.');
    const bool isZero = plain.find_first_not_of("0.") == std::string_view::npos;

    std::string text;
    if (value < 0 && !isZero)
        text.push_back('-');
    appendInteger(text, plain.substr(0, point), grouped);
    if (point != std::string_view::npos) {
        text.push_back(',');
        text.append(plain.substr(point + 1));
    }
    return text;
}

std::string date(const DMDate& date) {
    if (date.isZero())
        return {};
    char text[3 * (std::numeric_limits<unsigned>::digits10 + 1) + 2];
    char* end = writePadded(text, date.day(), 2);
    *end++ = '.';
    end = writePadded(end, date.month(), 2);
    *end++ = '.';
    end = writePadded(end, date.year(), 4);
    return std::string(text, end);
}

} // namespace DisplayText
