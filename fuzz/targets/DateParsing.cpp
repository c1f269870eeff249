// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <array>
#include <cstdio>
#include <string>
#include <vector>

#include "dmwrite/SmartDate.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"
#include "support/require.h"

// A column of dates, one a line. The first byte chooses what is known before:
// the order (4 values), the QIF syntax, the century window.
namespace {

constexpr int kOrders[] = {0, 1, 2, 7};
constexpr unsigned short kWindows[] = {30, 0, 99, 65535};

struct Reading {
    bool valid;
    unsigned day, month, year;
    int order; ///< known afterwards
    std::string text;

    bool operator==(const Reading&) const = default;
};

Reading read(SmartDate& date, const std::string& text, bool qif) {
    SmartDate::m_useQIFSyntax = qif;
    const bool valid = date.parse(text.c_str());
    const DMDate result = date.getDate();
    require(text.empty() || valid == date.isValid(), "what parse tells is what the object tells");
    return {valid, result.day(), result.month(), result.year(), SmartDate::sm_order, date.asString()};
}

/// A valid date reads as itself when written with four digits of the year.
void requireSameWhenWrittenOut(const Reading& reading) {
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%u.%u.%04u", reading.day, reading.month, reading.year);
    const int order = SmartDate::sm_order;
    SmartDate::sm_order = 1;
    SmartDate date;
    require(date.parse(text.data()), "a valid date is read when written out");
    const DMDate again = date.getDate();
    require(again.day() == reading.day && again.month() == reading.month && again.year() == reading.year,
            "a valid date reads as itself");
    SmartDate::sm_order = order;
}

std::vector<Reading> readAll(const std::vector<std::string>& lines, int order, bool qif) {
    SmartDate::sm_order = order;
    std::vector<Reading> readings;
    SmartDate reused;
    for (const std::string& line : lines) {
        const int before = SmartDate::sm_order;
        SmartDate fresh;
        const Reading reading = read(fresh, line, qif);
        require(before == SmartDate::sm_order ||
                    (before == 0 && (SmartDate::sm_order == 1 || SmartDate::sm_order == 2)),
                "an order is learned once");
        const int learned = SmartDate::sm_order;
        SmartDate::sm_order = before;
        reused.clear();
        require(read(reused, line, qif) == reading, "a cleared object reads like a fresh one");
        require(learned == SmartDate::sm_order, "and learns the same");
        if (!line.empty() && reading.valid) {
            require(before != 7, "an unknown order makes every date invalid");
            require(DMDate::DayWithinMonth(reading.month, reading.day, reading.year) != 0, "a valid day exists");
            if (reading.year <= 9999)
                requireSameWhenWrittenOut(reading);
        } else {
            require(line.empty() || (reading.day == 0 && reading.month == 0 && reading.year == 0),
                    "no date is the zero date");
        }
        readings.push_back(reading);
    }
    return readings;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzInput input(bytes, size);
    const unsigned state = input.byte();
    const std::vector<std::string> lines = input.lines();
    const bool qif = (state & 4U) != 0;
    SmartDate::sm_CenturyWindowStart = kWindows[state >> 3U & 3U];
    const auto first = readAll(lines, kOrders[state & 3U], qif);
    require(readAll(lines, kOrders[state & 3U], qif) == first, "dates read alike in every run");
    return 0;
}
