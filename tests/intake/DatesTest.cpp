// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <optional>
#include <ostream>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "intake/Dates.h"
#include "intake/MonthNames.h"
#include "intake/TimeOfDay.h"

/// Shown by failing expectations.
static void PrintTo(const Day& day, std::ostream* out) { *out << day.germanText(); }

namespace {

constexpr int kWindow = 30;
constexpr auto kDmy = DateOrder::dayMonthYear;
constexpr auto kMdy = DateOrder::monthDayYear;
constexpr auto kYmd = DateOrder::yearMonthDay;

std::optional<Day> dayOf(std::string_view text, DateOrder order) {
    const auto cell = DateCells::read(text);
    return cell ? cell->day(order, kWindow) : std::nullopt;
}

struct Case {
    std::string_view text; ///< Windows-1252
    DateOrder order;
    std::optional<Day> day;
    const char* why;
};

TEST(Dates, CellIsReadInAnOrder) {
    const Case kCases[] = {
        {"31.12.2024", kDmy, Day{2024, 12, 31}, "German"},
        {"1.2.2024", kDmy, Day{2024, 2, 1}, "without leading zeros"},
        {"31/12/2024", kDmy, Day{2024, 12, 31}, "British, French"},
        {"31-12-2024", kDmy, Day{2024, 12, 31}, "Dutch"},
        {"12/31/2024", kMdy, Day{2024, 12, 31}, "American"},
        {"2024-12-31", kYmd, Day{2024, 12, 31}, "ISO"},
        {"2024/12/31", kYmd, Day{2024, 12, 31}, "ISO with slashes"},
        {"2024.12.31", kYmd, Day{2024, 12, 31}, "ISO with points"},
        {"31. 12. 2024", kDmy, Day{2024, 12, 31}, "blanks behind the points"},
        {" 31.12.2024 ", kDmy, Day{2024, 12, 31}, "blanks around"},
        {"6/ 1/94", kMdy, Day{1994, 6, 1}, "a blank for the leading zero"},
        {"31.12.24", kDmy, Day{2024, 12, 31}, "two digits"},
        {"24-12-31", kYmd, Day{2024, 12, 31}, "two digits, year first"},
        {"31.12.30", kDmy, Day{2030, 12, 31}, "the last year of the window"},
        {"31.12.31", kDmy, Day{1931, 12, 31}, "the first year behind the window"},
        {"1/5'05", kMdy, Day{2005, 1, 5}, "the apostrophe of QIF"},
        {"1/5'45", kMdy, Day{2045, 1, 5}, "the apostrophe knows no window"},
        {"2/10'2020", kMdy, Day{2020, 2, 10}, "the apostrophe before four digits"},
        {"20241231", kYmd, Day{2024, 12, 31}, "eight digits"},
        {"31122024", kDmy, Day{2024, 12, 31}, "eight digits, day first"},
        {"12312024", kMdy, Day{2024, 12, 31}, "eight digits, month first"},
        {"20241231101112", kYmd, Day{2024, 12, 31}, "with a time in six digits"},
        {"20241231101112.123[0:GMT]", kYmd, Day{2024, 12, 31}, "with fractions and a zone"},
        {"31.12.2024 10:11", kDmy, Day{2024, 12, 31}, "time of day"},
        {"31.12.2024, 10:11:12", kDmy, Day{2024, 12, 31}, "time of day behind a comma"},
        {"31.12.2024 um 10.11 Uhr", kDmy, Day{2024, 12, 31}, "time of day in words"},
        {"2024-12-31T10:11:12Z", kYmd, Day{2024, 12, 31}, "ISO with a time"},
        {"2024-12-31 10:11:12.000+01:00", kYmd, Day{2024, 12, 31}, "ISO with a time zone"},
        {"12/31/2024 1:02 PM", kMdy, Day{2024, 12, 31}, "twelve hours"},
        {"Di, 31.12.2024", kDmy, Day{2024, 12, 31}, "a weekday ahead"},
        {"Tue 31 Dec 2024", kDmy, Day{2024, 12, 31}, "a weekday and a month"},
        {"31. Dezember 2024", kDmy, Day{2024, 12, 31}, "a German month"},
        {"31. M\xE4rz 2024", kDmy, Day{2024, 3, 31}, "a month with an umlaut"},
        {"5. J\xE4nner 2024", kDmy, Day{2024, 1, 5}, "an Austrian month"},
        {"31 Dec 2024", kMdy, Day{2024, 12, 31}, "an English month, whatever the order"},
        {"Dec 31, 2024", kDmy, Day{2024, 12, 31}, "the month ahead"},
        {"Mar 5, 2024", kDmy, Day{2024, 3, 5}, "a month that is a weekday in French"},
        {"31-Dec-24", kDmy, Day{2024, 12, 31}, "month between hyphens"},
        {"31DEC2024", kDmy, Day{2024, 12, 31}, "nothing between"},
        {"31 d\xE9"
         "c. 2024",
         kDmy, Day{2024, 12, 31}, "a French month"},
        {"31 juillet 2024", kDmy, Day{2024, 7, 31}, "not June"},
        {"30 juin 2024", kDmy, Day{2024, 6, 30}, "not July"},
        {"31 gennaio 2024", kDmy, Day{2024, 1, 31}, "an Italian month"},
        {"31 agosto 2024 10:11", kDmy, Day{2024, 8, 31}, "a month and a time"},
        {"29.02.2024", kDmy, Day{2024, 2, 29}, "a leap year"},

        {"29.02.2023", kDmy, std::nullopt, "no leap year"},
        {"31.04.2024", kDmy, std::nullopt, "April has thirty days"},
        {"00.01.2024", kDmy, std::nullopt, "no day zero"},
        {"01.00.2024", kDmy, std::nullopt, "no month zero"},
        {"31.12.2024", kMdy, std::nullopt, "no month 31"},
        {"31.12.2024", kYmd, std::nullopt, "four digits are a year"},
        {"2024-12-31", kDmy, std::nullopt, "four digits are no day"},
        {"01.01.0204", kDmy, std::nullopt, "a slip: no account is that old"},
        {"01.01.20244", kDmy, std::nullopt, "five digits are no year"},
        {"31.12.", kDmy, std::nullopt, "no year"},
        {"31.12", kDmy, std::nullopt, "no year, no point"},
        {"31", kDmy, std::nullopt, "a number"},
        {"1.234", kDmy, std::nullopt, "an amount"},
        {"1.234,56", kDmy, std::nullopt, "an amount with decimals"},
        {"01.01.2024 - 31.01.2024", kDmy, std::nullopt, "a period"},
        {"31.12.2024 25:61", kDmy, std::nullopt, "no such time"},
        {"31.12.2024abc", kDmy, std::nullopt, "letters behind"},
        {"2024", kYmd, std::nullopt, "a year"},
        {"DE12 3456", kDmy, std::nullopt, "an account number"},
        {"3 Marken 20", kDmy, std::nullopt, "a word that begins like a month"},
        {"5 jui 2024", kDmy, std::nullopt, "June or July"},
        {"Montag", kDmy, std::nullopt, "a weekday alone"},
        {"", kDmy, std::nullopt, "nothing"},
        {"--", kDmy, std::nullopt, "signs"},
        {"10:11 31.12.2024", kDmy, std::nullopt, "the time ahead"},
        {"999999999999", kYmd, std::nullopt, "too many digits"},
    };
    for (const Case& c : kCases)
        EXPECT_EQ(dayOf(c.text, c.order), c.day) << c.text << ": " << c.why;
}

TEST(Dates, DateWithoutAYearTakesTheAssumedOne) {
    for (const std::string_view text : {"09.03.", "09.03", "9/3", "09/03"}) {
        const auto cell = DateCells::read(text);
        ASSERT_TRUE(cell) << text;
        EXPECT_EQ(cell->form, DateCell::Form::dayMonth) << text;
        EXPECT_EQ(cell->day(kDmy, kWindow, 2024), (Day{2024, 3, 9})) << text;
        EXPECT_EQ(cell->day(kMdy, kWindow, 2024), (Day{2024, 9, 3})) << text;
        EXPECT_EQ(cell->day(kDmy, kWindow), std::nullopt) << text;
    }
}

TEST(Dates, PlainDateIsDigitsAndSeparators) {
    for (const std::string_view text : {"31.12.2024", "1/2/24", "2024-12-31"})
        EXPECT_TRUE(DateCells::read(text)->plain) << text;
    for (const std::string_view text : {"31. 12. 2024", "31.12.2024 10:11", "31 Dec 2024",
                                        "31\x96"
                                        "12\x96"
                                        "2024"})
        EXPECT_FALSE(DateCells::read(text)->plain) << text;
}

TEST(Dates, OrdersHaveTheNamesOfTheOption) {
    for (const DateOrder order : {kDmy, kMdy, kYmd})
        EXPECT_EQ(DateCells::parseOrder(DateCells::name(order)), order);
    EXPECT_EQ(DateCells::parseOrder("dym"), std::nullopt);
    EXPECT_EQ(DateCells::name(kDmy), "dmy");
    EXPECT_EQ(DateCells::name(kMdy), "mdy");
    EXPECT_EQ(DateCells::name(kYmd), "ymd");
}

TEST(Day, NumbersCountTheDays) {
    EXPECT_EQ((Day{2024, 3, 1}).number() - (Day{2024, 2, 28}).number(), 2);
    EXPECT_EQ((Day{2025, 1, 1}).number() - (Day{2024, 12, 31}).number(), 1);
    EXPECT_EQ((Day{2025, 1, 1}).number() - (Day{2024, 1, 1}).number(), 366);
    EXPECT_EQ((Day{1, 1, 2}).number() - (Day{1, 1, 1}).number(), 1);
}

TEST(Day, CalendarIsGregorian) {
    EXPECT_TRUE((Day{2000, 2, 29}).exists());
    EXPECT_FALSE((Day{1900, 2, 29}).exists());
    EXPECT_FALSE((Day{2024, 13, 1}).exists());
    EXPECT_FALSE((Day{2024, 1, 32}).exists());
    EXPECT_FALSE((Day{0, 1, 1}).exists());
    EXPECT_TRUE((Day{9999, 12, 31}).exists());
    EXPECT_FALSE((Day{10000, 1, 1}).exists());
}

TEST(MonthNames, EveryMonthHasItsNamesInManyLanguages) {
    struct Row {
        int month;
        std::vector<const char*> names;
    };
    const Row kRows[] = {
        {1, {"Januar", "January", "janvier", "gennaio", "enero", "januari", "janeiro", "sty"}},
        {2, {"Februar", "February", "f\xE9vrier", "febbraio", "febrero", "Feb", "februari", "fev", "lutego"}},
        {3, {"M\xE4rz", "March", "mars", "marzo", "Mrz", "maart", "mar\xE7o", "marca"}},
        {4, {"April", "April", "avril", "aprile", "abril", "Apr", "kwi"}},
        {5, {"Mai", "May", "mai", "maggio", "mayo", "mei", "maj", "maio"}},
        {6, {"Juni", "June", "juin", "giugno", "Jun", "juni", "junio", "junho", "czerwca"}},
        {7, {"Juli", "July", "juillet", "luglio", "julio", "juil", "julho", "lip"}},
        {8, {"August", "August", "ao\xFBt", "agosto", "Aug", "augustus", "augusti", "sie"}},
        {9, {"September", "Sept", "septembre", "settembre", "septiembre", "Sep", "set", "wrz"}},
        {10, {"Oktober", "October", "octobre", "ottobre", "octubre", "Okt", "out"}},
        {11, {"November", "Nov", "novembre", "noviembre", "nov", "NOVEMBER", "lis"}},
        {12,
         {"Dezember", "December",
          "d\xE9"
          "cembre",
          "dicembre", "Dez", "Dec", "diciembre", "desember", "gru"}},
    };
    for (const Row& row : kRows) {
        for (const char* name : row.names)
            EXPECT_EQ(MonthNames::month(name), row.month) << name;
    }
    for (const char* word : {"", "J", "Ja", "jui", "Marken", "Monat", "Januarius"})
        EXPECT_EQ(MonthNames::month(word), 0) << word;
}

TEST(TimeOfDay, TimeIsToldFromOtherNumbers) {
    for (const char* rest : {"", " ", " 10:11", "T10:11:12", "T10:11:12.345Z", " 10:11:12+01:00", ", 1:02 PM EST",
                             " um 10.11 Uhr", " at 10:11", " - 23:59", " 24:00", " 10h11"})
        EXPECT_TRUE(TimeOfDay::isTimeOrNothing(rest)) << rest;
    for (const char* rest : {" 10", " 1011", " 10:1", " 26:00", " 10:60", " - 01.02.2024", " abc", " 10:11;", ".7"})
        EXPECT_FALSE(TimeOfDay::isTimeOrNothing(rest)) << rest;
}

} // namespace
