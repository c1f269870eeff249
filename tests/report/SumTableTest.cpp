// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "report/SumTable.h"

#include <gmock/gmock.h>

namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;

ReportedRecord record(std::optional<std::chrono::year_month_day> day, std::int64_t cents, std::string category = {}) {
    ReportedRecord made;
    made.day = day;
    made.cents = cents;
    made.category = std::move(category);
    return made;
}

RecordDigest digestOf(std::initializer_list<ReportedRecord> records) {
    RecordDigest digest;
    for (const ReportedRecord& one : records)
        digest.add(one);
    return digest;
}

/// "Januar 2024|2|10,00|-2,00|8,00"; the sum in brackets.
std::vector<std::string> rowsOf(const PageTable& table) {
    std::vector<std::string> rows;
    for (const PageTable::Row& row : table.rows) {
        std::string text;
        for (const PageTable::Cell& cell : row.cells)
            text += (text.empty() ? "" : "|") + cell.text;
        rows.push_back(row.kind == PageTable::Row::Kind::total ? "(" + text + ")" : text);
    }
    return rows;
}

TEST(SumTable, MonthsAddUp) {
    const RecordDigest digest = digestOf({record(2024y / 2 / 1, -1050), record(2024y / 1 / 31, 250000),
                                          record(2024y / 1 / 1, -33), record(std::nullopt, -100)});
    EXPECT_THAT(rowsOf(SumTable::byMonth(digest)),
                ElementsAre("Januar 2024|2|2.500,00|-0,33|2.499,67", "Februar 2024|1|0,00|-10,50|-10,50",
                            "ohne Datum|1|0,00|-1,00|-1,00", "(Gesamt|4|2.500,00|-11,83|2.488,17)"));
    EXPECT_EQ(SumTable::byMonth(digest).caption, "Summen nach Monaten");
}

TEST(SumTable, ManyMonthsAreToldAsYears) {
    RecordDigest digest;
    for (std::chrono::year_month month = 2000y / 1; month <= 2010y / 1; month += std::chrono::months(1))
        digest.add(record(month / 15, 100));
    const PageTable table = SumTable::byMonth(digest);
    EXPECT_EQ(table.caption, "Summen nach Jahren");
    ASSERT_EQ(table.rows.size(), 12U);
    EXPECT_EQ(rowsOf(table).front(), "2000|12|12,00|0,00|12,00");
    EXPECT_EQ(rowsOf(table).back(), "(Gesamt|121|121,00|0,00|121,00)");
}

TEST(SumTable, CategoriesAddUp) {
    const RecordDigest digest = digestOf({record(2024y / 2 / 1, -5, "Wohnen: Miete"), record(2024y / 2 / 1, -7),
                                          record(2024y / 2 / 1, 9, "Lohn"), record(2024y / 2 / 1, 1, "Lohn")});
    EXPECT_TRUE(digest.hasCategories());
    EXPECT_THAT(rowsOf(SumTable::byCategory(digest)),
                ElementsAre("ohne Kategorie|1|0,00|-0,07|-0,07", "Lohn|2|0,10|0,00|0,10",
                            "Wohnen: Miete|1|0,00|-0,05|-0,05", "(Gesamt|4|0,10|-0,12|-0,02)"));
    EXPECT_FALSE(digestOf({record(2024y / 2 / 1, 1)}).hasCategories());
}

TEST(SumTable, SmallestOfManyCategoriesShareARow) {
    RecordDigest digest;
    for (std::size_t i = 0; i < SumTable::kMostCategories + 2; ++i)
        digest.add(record(2024y / 2 / 1, i == 5 || i == 6 ? -1 : 1000, std::to_string(1000 + i)));
    const std::vector<std::string> rows = rowsOf(SumTable::byCategory(digest));
    ASSERT_EQ(rows.size(), SumTable::kMostCategories + 2);
    EXPECT_EQ(rows[5], "1007|1|10,00|0,00|10,00");
    EXPECT_EQ(rows[SumTable::kMostCategories], "2 weitere Kategorien|2|0,00|-0,02|-0,02");
    EXPECT_EQ(rows.back(), "(Gesamt|202|2.000,00|-0,02|1.999,98)");
}

TEST(RecordDigest, KeepsBothEndsAndNoRecordTwice) {
    struct Case {
        std::size_t count;
        std::size_t first;
        std::size_t last;
    };
    for (const Case& c : {Case{0, 0, 0}, {3, 3, 0}, {5, 5, 0}, {6, 5, 1}, {10, 5, 5}, {1000, 5, 5}}) {
        RecordDigest digest;
        for (std::size_t i = 0; i < c.count; ++i)
            digest.add(record(2024y / 2 / 1, static_cast<std::int64_t>(i)));
        EXPECT_EQ(digest.count(), c.count);
        EXPECT_EQ(digest.first().size(), c.first);
        ASSERT_EQ(digest.last().size(), c.last) << c.count;
        if (c.last != 0) {
            EXPECT_EQ(digest.last().back().cents, static_cast<std::int64_t>(c.count - 1));
        }
    }
}

TEST(RecordDigest, CourseIsTheSumUpToEachDay) {
    const RecordDigest digest = digestOf(
        {record(2024y / 2 / 2, 5), record(2024y / 2 / 1, 10), record(2024y / 2 / 2, -7), record(std::nullopt, 1000)});
    const std::vector<DayValue> course = digest.course();
    ASSERT_EQ(course.size(), 2U);
    EXPECT_EQ(course[0].cents, 10);
    EXPECT_EQ(course[1].cents, 8) << "what has no day is on none";
}

TEST(RecordDigest, WhatCannotBeDrawnHasNoCourse) {
    RecordDigest digest;
    for (int i = 0; i < 65535; ++i)
        digest.add(record(std::chrono::sys_days(2024y / 1 / 1) + std::chrono::days(i), 999999999999999));
    EXPECT_TRUE(digest.course().empty());
}

} // namespace
