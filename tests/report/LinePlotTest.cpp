// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "report/LinePlot.h"

#include <gmock/gmock.h>

#include "report/HtmlPlot.h"
#include "report/TextPlot.h"

namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr auto kFirst = 2024y / 1 / 1;
constexpr auto kLast = 2024y / 1 / 31;

struct Case {
    std::int64_t from;
    std::int64_t to;
    std::vector<std::int64_t> ticks;
    const char* highest;
};

const Case kCases[] = {
    {0, 100000, {0, 20000, 40000, 60000, 80000, 100000}, "1.000"},
    {-30000, 50000, {-40000, -20000, 0, 20000, 40000, 60000}, "600"},
    {10000000, 10040000, {10000000, 10010000, 10020000, 10030000, 10040000}, "100.400"},
    {100, 250, {0, 50, 100, 150, 200, 250}, "2,50"},
    {-250, -100, {-250, -200, -150, -100, -50, 0}, "0,00"},
    {500, 500, {500, 501}, "5,01"},
    {0, 0, {0, 1}, "0,01"},
    {3, 4, {3, 4}, "0,04"},
};

TEST(LinePlot, ScaleIsRoundAndHoldsTheLine) {
    for (const Case& c : kCases) {
        const std::optional<LinePlot> plot = LinePlot::of("t", {{kFirst, c.from}, {kLast, c.to}});
        ASSERT_TRUE(plot);
        EXPECT_THAT(plot->ticks, ElementsAreArray(c.ticks)) << c.from << " " << c.to;
        EXPECT_EQ(plot->label(plot->ticks.back()), c.highest);
    }
}

TEST(LinePlot, SumBeginsAtNothing) {
    const std::vector<DayValue> values = {{kFirst, 38130}, {kLast, 33251}};
    EXPECT_EQ(LinePlot::of("t", values)->ticks.front(), 33000);
    EXPECT_EQ(LinePlot::of("t", values, LinePlot::Scale::fromZero)->ticks.front(), 0);
    const std::vector<DayValue> debts = {{kFirst, -38130}, {kLast, -33251}};
    EXPECT_EQ(LinePlot::of("t", debts, LinePlot::Scale::fromZero)->ticks.back(), 0);
}

TEST(LinePlot, LargestAmountsHaveAScale) {
    constexpr std::int64_t kMost = 900'000'000'000'000'000;
    const std::optional<LinePlot> plot = LinePlot::of("t", {{kFirst, -kMost}, {kLast, kMost}});
    ASSERT_TRUE(plot);
    EXPECT_LE(plot->ticks.front(), -kMost);
    EXPECT_GE(plot->ticks.back(), kMost);
    EXPECT_EQ(plot->up(plot->ticks.back(), 300), 300);
}

TEST(LinePlot, OneDayIsNoCourse) {
    EXPECT_FALSE(LinePlot::of("t", {}));
    EXPECT_FALSE(LinePlot::of("t", {{kFirst, 1}}));
}

TEST(LinePlot, DaysAreWhereTheCalendarHasThem) {
    const std::optional<LinePlot> plot =
        LinePlot::of("t", {{2024y / 2 / 28, 0}, {2024y / 2 / 29, 1}, {2024y / 3 / 1, 2}, {2024y / 3 / 9, 3}});
    ASSERT_TRUE(plot);
    EXPECT_EQ(plot->days(), 10);
    EXPECT_EQ(plot->across(plot->values[1], 600), 60);
    EXPECT_EQ(plot->across(plot->values[2], 600), 120) << "a leap year";
    EXPECT_EQ(plot->across(plot->values[3], 600), 600);
}

TEST(LinePlot, SaysTheSameInWords) {
    const std::optional<LinePlot> plot = LinePlot::of("t", {{kFirst, 1000}, {2024y / 1 / 15, -2550}, {kLast, 123456}});
    EXPECT_EQ(plot->description, "Von 10,00 am 01.01.2024 bis 1.234,56 am 31.01.2024; am niedrigsten -25,50 am "
                                 "15.01.2024, am höchsten 1.234,56 am 31.01.2024.");
}

TEST(HtmlPlot, EveryDayHoldsItsValueUntilTheNext) {
    const std::optional<LinePlot> plot = LinePlot::of("t", {{kFirst, 0}, {2024y / 1 / 16, 50000}, {kLast, 100000}});
    std::string html;
    HtmlPlot::append(html, *plot, 1);
    EXPECT_THAT(html, HasSubstr("d=\"M0 300V300H300V150H600V0\""));
}

TEST(HtmlPlot, ManyDaysMakeASmallPictureThatShowsEveryPeak) {
    std::vector<DayValue> values;
    for (std::chrono::sys_days day = kFirst; values.size() < 60000; day += std::chrono::days(1))
        values.push_back({day, values.size() == 777 ? 100000 : 0});
    std::string html;
    HtmlPlot::append(html, *LinePlot::of("t", values), 1);
    EXPECT_LT(html.size(), 12000U);
    EXPECT_THAT(html, HasSubstr("H8V300V0V300H9")) << "the day between two columns of the picture";
}

TEST(HtmlPlot, TitleIsNothingButText) {
    std::string html;
    HtmlPlot::append(html, *LinePlot::of("<b>&", {{kFirst, 0}, {kLast, 1}}), 1);
    EXPECT_THAT(html, HasSubstr("&lt;b&gt;&amp;"));
    EXPECT_THAT(html, Not(HasSubstr("<b>")));
}

TEST(TextPlot, ShowsTheLineInLetters) {
    const std::optional<LinePlot> plot = LinePlot::of("t", {{kFirst, 20000}, {2024y / 1 / 11, -10000}, {kLast, 30000}});
    EXPECT_EQ(TextPlot::of(*plot), " 300 ┤                                                               •\n"
                                   "     │\n"
                                   " 200 ┤•••••••••••••••••••••\n"
                                   "     │\n"
                                   " 100 ┤\n"
                                   "     │\n"
                                   "   0 ┤································································\n"
                                   "     │\n"
                                   "-100 ┤                     ••••••••••••••••••••••••••••••••••••••••••\n"
                                   "      01.01.2024                                            31.01.2024\n");
}

} // namespace
