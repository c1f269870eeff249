// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "intake/FileReading.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::string_view kText = "!Type:Bank\n"
                                   "D13.02.2024\nT-500,00\nPMüller\nMMiete\n^\n"
                                   "D14.02.2024\nT1500,00\nPFirma\nMLohn\n^\n";
const auto kBookings = ElementsAre("13.02.2024 -500,00 Müller | Miete", "14.02.2024 1.500,00 Firma | Lohn");

std::string replaced(std::string_view text, std::string_view what, std::string_view with) {
    std::string out(text);
    for (std::size_t at = 0; (at = out.find(what, at)) != std::string::npos; at += with.size())
        out.replace(at, what.size(), with);
    return out;
}

TEST(QifFiles, OfAnySystemAndEncodingAreRead) {
    for (const std::string& text : {std::string(kText), replaced(kText, "\n", "\r\n"), replaced(kText, "\n", "\r"),
                                    "\xEF\xBB\xBF" + std::string(kText), replaced(kText, "ü", "\xFC"),
                                    replaced(kText, "!Type:Bank", "!type:bank ")}) {
        const FileReading file = qif(text);
        EXPECT_THAT(file.bookings(), kBookings);
        EXPECT_EQ(file.lines(), "HRRRRRRRRRR");
        EXPECT_THAT(file.messages(), IsEmpty());
        EXPECT_EQ(file.intake().recordsFound, 2);
    }
}

/// The letter of a line is the one that the library sees behind them, too.
TEST(QifFiles, ZeroBytesInFrontOfALetterAreBlanks) {
    const FileReading file = qif(replaced(kText, "\nD13", std::string("\n\0\0D13", 6)));
    EXPECT_THAT(file.bookings(), kBookings);
    EXPECT_THAT(file.messages(), ElementsAre("zero-bytes"));
}

/// The library strips blanks and tabs, once each: what else stands before a letter would be the letter.
TEST(QifFiles, WhatOnlyWeTakeForBlankIsNotHandedOn) {
    for (const char* blanks : {"\r", "\xA0", "\t ", " \r\t"}) {
        for (const char* line : {"D14.02", "T1500", "PFirma", "!Type", "^\nD14"}) {
            SCOPED_TRACE(line);
            const FileReading file = qif(replaced(replaced(kText, "ü", "\xFC"), line, blanks + std::string(line)));
            EXPECT_THAT(file.bookings(), kBookings);
            EXPECT_THAT(file.messages(), IsEmpty());
        }
    }
}

TEST(QifFiles, CategoryWithoutABudgetIsNoRecord) {
    const FileReading file = qif("!Type:Cat\nNMiete\nE\n^\nNStrom\nB-50,00\n^\n" + std::string(kText));
    EXPECT_EQ(file.lines(), "HIIIRRRHRRRRRRRRRR");
    EXPECT_EQ(file.intake().recordsFound, 3);
    EXPECT_THAT(file.messages(), IsEmpty());
}

TEST(QifFiles, WhatTheLibraryReadsRightGoesThroughUntouched) {
    const std::string text = replaced(kText, "ü", "ue");
    EXPECT_TRUE(qif(text).untouched());
    EXPECT_FALSE(qif(replaced(text, "\n", "\r\n")).untouched());
}

TEST(QifFiles, FormsOfADate) {
    constexpr std::string_view kForms[][2] = {
        {"2024-02-05", "2024-02-29"}, {"05.02.24", "29.02.24"},     {"5/2/2024", "29/2/2024"},
        {"2/5/2024", "2/29/2024"},    {"2/ 5'24", "2/29'24"},       {"05-02-2024", "29-02-2024"},
        {"20240205", "20240229"},     {"02/05/2024", "02/29/2024"}, {"5 Feb 2024", "29 Feb 2024"},
    };
    for (const auto& form : kForms) {
        const FileReading file = qif("!Type:Bank\nD" + std::string(form[0]) + "\nT-1.50\nPa\n^\nD" +
                                     std::string(form[1]) + "\nT-2.50\nPb\n^\n");
        EXPECT_THAT(file.datesAndAmounts(), ElementsAre("05.02.2024 -1,50", "29.02.2024 -2,50")) << form[0];
    }
}

TEST(QifFiles, UndecidableOrderIsNotGuessed) {
    const FileReading file = qif("!Type:Bank\nD03/04/2024\nT-1.50\n^\n");
    EXPECT_EQ(file.undecided(), "date-order-ambiguous");
    EXPECT_THAT(file.records(), IsEmpty());
}

TEST(QifFiles, ThousandsWithoutDecimalsAreThousands) {
    const FileReading file = qif("!Type:Bank\nD13.02.2024\nT-1,000\n^\nD14.02.2024\nT2,345.67\n^\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("13.02.2024 -1.000,00", "14.02.2024 2.345,67"));
}

TEST(QifFiles, LastRecordMayLackItsEnd) {
    for (const std::string_view ending : {"", "\n"}) {
        const FileReading file =
            qif("!Type:Bank\nD13.02.2024\nT-500,00\nPa\n^\nD14.02.2024\nT1,00\nPb" + std::string(ending));
        EXPECT_THAT(file.datesAndAmounts(), ElementsAre("13.02.2024 -500,00", "14.02.2024 1,00"));
        EXPECT_THAT(file.messages(), ElementsAre("record-closed@6"));
    }
}

TEST(QifFiles, UnknownSectionIsLeftOutWithAWord) {
    const FileReading file = qif("!Type:Weather\nNRain\n^\n!Type:Bank\nD13.02.2024\nT-500,00\nPa\n^\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("13.02.2024 -500,00"));
    EXPECT_THAT(file.messages(), ElementsAre("unknown-section@1"));
}

TEST(QifFiles, UnknownSectionWithBookingsIsAnAccount) {
    const FileReading file = qif("!Type:Giro\nD13.02.2024\nT-500,00\nPa\n^\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("13.02.2024 -500,00"));
    EXPECT_THAT(file.messages(), ElementsAre("unknown-section@1"));
    EXPECT_LT(file.intake().confidence, 0.9);
}

TEST(QifFiles, ListsOfAccountsAndClassesLeaveNoTraces) {
    const FileReading file = qif("!Option:AutoSwitch\n!Account\nNGiro\nTBank\nDMein Konto\n^\n!Clear:AutoSwitch\n"
                                 "!Type:Class\nNPrivat\nDPrivates\n^\n" +
                                 std::string(kText));
    EXPECT_THAT(file.bookings(), kBookings);
}

TEST(QifFiles, RecordThatWouldBeRefusedIsTakenOutWithItsLines) {
    const FileReading file = qif("!Type:Bank\nD13.02.2024\nT-500,00\nPa\n^\n"
                                 "D31.02.2024\nT-1,00\nPb\n^\n"
                                 "D15.02.2024\nTabc\nPc\n^\n"
                                 "D16.02.2024\nT1,00\nPd\n^\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("13.02.2024 -500,00", "16.02.2024 1,00"));
    EXPECT_THAT(file.messages(), ElementsAre("bad-date@6", "bad-amount@11"));
    EXPECT_EQ(file.refused(), 2);
    EXPECT_EQ(file.intake().recordsFound, 4);
    EXPECT_EQ(file.lines(), "HRRRRRRRRRRRRRRRR");
}

TEST(QifFiles, RecordWithoutEndInTheMiddleIsNotMixedWithTheNext) {
    const FileReading file = qif("!Type:Bank\nD13.02.2024\nT-500,00\nPa\n!Type:Bank\nD14.02.2024\nT1,00\nPb\n^\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("14.02.2024 1,00"));
    EXPECT_THAT(file.messages(), ElementsAre("record-not-closed@2"));
}

TEST(QifFiles, SplitLinesAreNoBookings) {
    const FileReading file = qif("!Type:Bank\nD13.02.2024\nT-30,00\nPMarkt\nSEssen\n$-20,00\nSBücher\n$-10,00\n^\n");
    EXPECT_THAT(file.bookings(), ElementsAre("13.02.2024 -30,00 Markt | "));
}

TEST(QifFiles, FileWithoutRecordsIsNotGuessedAt) {
    for (const std::string_view text : {"", "!Type:Bank\n", "Hallo\n"})
        EXPECT_EQ(qif(text).undecided(), "no-bookings") << text;
}

TEST(QifFiles, AreToldByTheirContent) {
    EXPECT_EQ(Intake::formatByContent(kText), Import::eFormatQIF);
    EXPECT_EQ(Intake::formatByContent("\xEF\xBB\xBF\r\n!Account\r\n"), Import::eFormatQIF);
    EXPECT_EQ(Intake::formatByContent("Datum;Betrag\n"), Import::eFormatCSV);
}

} // namespace
