// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <optional>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "intake/Cells.h"
#include "intake/TableFinder.h"

namespace {

std::vector<TableRegion> find(const Cells& cells, std::optional<bool> header = std::nullopt) {
    return TableFinder::find(cells.table(), ColumnLexicon::builtIn(), header);
}

struct Case {
    std::string_view text;
    std::optional<std::size_t> header;
    bool namesKnown;
    std::size_t begin;
    std::size_t end;
    const char* why;
};

TEST(TableFinder, OneTableIsFoundWhereverItStands) {
    const Case kCases[] = {
        {"Datum;Betrag\n01.02.2024;5,00\n", 0, true, 1, 2, "header on top"},
        {"Konto 123\n\nDatum;Betrag\n01.02.2024;5,00\n", 2, true, 3, 4, "account data above"},
        {"Stand;31.01.2024;1.234,56\nDatum;Text;Betrag\n01.02.2024;a;5,00\n", 1, true, 2, 3,
         "a balance above that looks like a booking"},
        {"01.02.2024;a;5,00\n02.02.2024;b;6,00\n", std::nullopt, false, 0, 2, "no header"},
        {"Konto 123\n01.02.2024;a;5,00\n", std::nullopt, false, 1, 2, "no header, but a line above"},
        {"P\xE4iv\xE4;Saaja;Summe X\n01.02.2024;a;5,00\n", 0, false, 1, 2, "names that nobody taught"},
        {"Einzelne Zeile\n01.02.2024;a;5,00;EUR;x\n", std::nullopt, false, 1, 2, "too narrow for a header"},
        {"Die Ums\xE4tze mit Datum und Betrag finden Sie im Folgenden, nach Betrag geordnet.;Betrag\nDatum;Betrag\n"
         "01.02.2024;5,00\n",
         1, true, 2, 3, "a sentence is no header"},
    };
    for (const Case& c : kCases) {
        const Cells cells(c.text);
        const auto regions = find(cells);
        ASSERT_EQ(regions.size(), 1U) << c.why;
        EXPECT_EQ(regions[0].header, c.header) << c.why;
        EXPECT_EQ(regions[0].namesKnown, c.namesKnown) << c.why;
        EXPECT_EQ(regions[0].begin, c.begin) << c.why;
        EXPECT_EQ(regions[0].end, c.end) << c.why;
    }
}

TEST(TableFinder, SecondTableHasAHeaderOfItsOwn) {
    const Cells cells("Datum;Betrag\n01.02.2024;5,00\n\nKarte\nBuchungstag;Text;Umsatz\n03.02.2024;a;6,00\n");
    const auto regions = find(cells);
    ASSERT_EQ(regions.size(), 2U);
    EXPECT_EQ(regions[0].end, 4U);
    EXPECT_EQ(regions[1].header, 4U);
    EXPECT_EQ(regions[1].begin, 5U);
    EXPECT_EQ(regions[1].end, 6U);
}

TEST(TableFinder, SameHeaderAgainIsAPageBreak) {
    const Cells cells("Datum;Betrag\n01.02.2024;5,00\nDatum;Betrag\n02.02.2024;6,00\n");
    const auto regions = find(cells);
    ASSERT_EQ(regions.size(), 1U);
    EXPECT_EQ(regions[0].repeatedHeaders, (std::vector<std::size_t>{2}));
    EXPECT_EQ(regions[0].end, 4U);
}

TEST(TableFinder, UserSaysWhetherThereIsAHeader) {
    const Cells named("Datum;Betrag\n01.02.2024;5,00\n");
    ASSERT_EQ(find(named, false).size(), 1U);
    EXPECT_EQ(find(named, false)[0].header, std::nullopt);
    EXPECT_EQ(find(named, false)[0].begin, 1U);

    const Cells unnamed("a;b\n01.02.2024;5,00\n");
    EXPECT_EQ(find(unnamed)[0].header, std::nullopt);
    EXPECT_EQ(find(unnamed, true)[0].header, 0U);
}

TEST(TableFinder, NoTableWithoutBookings) {
    for (const char* text : {"", "Hallo\nWelt\n", "a;b;c\nd;e;f\n", "01.02.2024\n02.02.2024\n", "5,00;6,00\n"})
        EXPECT_TRUE(find(Cells(text)).empty()) << text;
}

TEST(TableFinder, BookingHasADateAndAnAmount) {
    for (const char* line : {"01.02.2024;5,00", "x;5,00;2024-02-01", "1 Feb 2024;EUR 5.00", "20240201;5"})
        EXPECT_TRUE(TableFinder::looksLikeBooking(Cells(line).table(), 0)) << line;
    for (const char* line : {"01.02.2024;x", "5,00;x", "01.02.;5,00", "Datum;Betrag", "01.02.2024"})
        EXPECT_FALSE(TableFinder::looksLikeBooking(Cells(line).table(), 0)) << line;
}

} // namespace
