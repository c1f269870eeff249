// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "export/WrittenText.h"

namespace {

std::string qif(const BookRow& row) {
    DataManager model;
    RecordBook::add(model, row);
    return WrittenText("qif", model).text;
}

TEST(QifWriter, ARecordHasALineAField) {
    EXPECT_EQ(qif({{14, 3, 2024}, -12.5, {"B\xE4\x63ker", "Brot", "Karte", "Essen", "Brot"}}),
              "!Type:Bank\nD14.03.2024\nT-12.50\nPB\xC3\xA4\x63ker\nMBrot\nLEssen:Brot\nNKarte\n^\n");
    EXPECT_EQ(qif({{14, 3, 2024}, 0.0, {}}), "!Type:Bank\nD14.03.2024\nT0.00\n^\n");
    EXPECT_EQ(qif({{14, 3, 2024}, 0.0, {"", "", "", "", "Brot"}}), "!Type:Bank\nD14.03.2024\nT0.00\nLBrot\n^\n");
}

TEST(QifWriter, SectionsAreThoseThatRecordsCameFrom) {
    DataManager model;
    for (const char* category : {"Bankkonten", "Bargeldkonten", "Bargeldkonten", "Verm\xF6genskonten", "Essen"})
        RecordBook::add(model, {{1, 2, 2024}, 1.0, {"", "", "", category, "x"}});
    const std::string record = "D01.02.2024\nT1.00\nLx\n^\n";
    EXPECT_EQ(WrittenText("qif", model).text, "!Type:Bank\n" + record + "!Type:Cash\n" + record + record +
                                                  "!Type:Oth A\n" + record +
                                                  "!Type:Bank\nD01.02.2024\nT1.00\nLEssen:x\n^\n");
}

TEST(QifWriter, ThreeDecimalsAreNoThousand) {
    EXPECT_THAT(qif({{1, 2, 2024}, 1.234, {}}), testing::HasSubstr("T1.2340\n"));
    EXPECT_THAT(qif({{1, 2, 2024}, 1.2345, {}}), testing::HasSubstr("T1.2345\n"));
    EXPECT_THAT(qif({{1, 2, 2024}, 0.1 + 0.2, {}}), testing::HasSubstr("T0.30\n"));
}

TEST(QifWriter, WhatItCannotHoldIsTold) {
    DataManager model;
    BookRow noAmount({2, 2, 2024}, 0.0, {});
    noAmount.hasAmount = false;
    RecordBook::add(model, {{}, 1.0, {}});
    RecordBook::add(model, {{31, 12, 1899}, 1.0, {}});
    RecordBook::add(model, noAmount);
    RecordBook::add(model, {{2, 2, 2024}, 0.1 + 0.2, {}});
    RecordBook::add(model, {{2, 2, 2024}, 1.0, {"a\nb", " c", "", "", ""}});
    RecordBook::add(model, {{2, 2, 2024}, 1.0, {std::string(5000, 'x'), "", "", "", ""}});
    const WrittenText written("qif", model);
    EXPECT_EQ(written.losses.of(Loss::undated), Losses::Ids{1});
    EXPECT_EQ(written.losses.of(Loss::dayOutside), Losses::Ids{2});
    EXPECT_EQ(written.losses.of(Loss::noAmount), Losses::Ids{3});
    EXPECT_EQ(written.losses.of(Loss::amountRounded), Losses::Ids{4});
    EXPECT_EQ(written.losses.of(Loss::textChanged), Losses::Ids{5});
    EXPECT_EQ(written.losses.of(Loss::textCut), Losses::Ids{6});
    EXPECT_THAT(written.text, testing::HasSubstr("\nP" + std::string(4093, 'x') + "\n^\n"));
    EXPECT_THAT(written.text, testing::HasSubstr("\nPa b\nMc\n"));
}

} // namespace
