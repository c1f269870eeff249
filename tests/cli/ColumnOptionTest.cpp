// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ColumnOption.h"

#include <gmock/gmock.h>

#include "cli/UsageError.h"
#include "dmwrite/ImportIntoDMHelper.h"

namespace {

TEST(ColumnOption, PairsComeInTheirOrder) {
    const ColumnAssignment assignment = ColumnOption::parse("3=Betrag, 0 = Datum");
    ASSERT_EQ(assignment.m_count, 2);
    EXPECT_EQ(assignment.m_pairs[0].m_inputColumn, 3);
    EXPECT_EQ(assignment.m_pairs[0].m_column, Import::eColBetrag);
    EXPECT_EQ(assignment.m_pairs[1].m_inputColumn, 0);
    EXPECT_EQ(assignment.m_pairs[1].m_column, Import::eColDatum);
}

TEST(ColumnOption, AllSevenFields) {
    const ColumnAssignment assignment = ColumnOption::parse(
        "0=Empfaenger,1=Kategorie,2=Unterkategorie,3=Verwendungszweck,4=Buchungstext,5=Datum,48=Betrag");
    ASSERT_EQ(assignment.m_count, 7);
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(assignment.m_pairs[i].m_column, i);
    EXPECT_EQ(assignment.m_pairs[6].m_inputColumn, 48);
}

TEST(ColumnOption, NamesAreTheDataModels) {
    struct Catalogue : ImportIntoDMHelper {
        Catalogue() = default;
    } const catalogue;
    for (int i = 0; i < 7; ++i) {
        const auto column = static_cast<Import::E_ColumnIndex>(i);
        EXPECT_STREQ(ColumnOption::fieldName(column), catalogue.getColumnNameForIndex(column));
    }
}

struct WrongCase {
    const char* text;
    const char* says;
    const char* why;
};

constexpr WrongCase kWrong[] = {
    {"", "fehlt das „=“", "nothing"},
    {"Datum", "In „Datum“ fehlt das „=“", "no column"},
    {"0=Datum,", "In „“ fehlt", "a comma too many"},
    {"=Datum", "„“ ist keine Spaltennummer", "an empty column"},
    {"-1=Datum", "„-1“ ist keine Spaltennummer", "a negative one"},
    {"1x=Datum", "„1x“ ist keine Spaltennummer", "a number and more"},
    {"49=Datum", "„49“ ist zu groß; gelesen werden die Spalten 0 bis 48.", "a column that the library does not read"},
    {"99999999999=Datum", "ist zu groß", "a number beyond all"},
    {"0=", "Das Feld „“ gibt es nicht.", "an empty field"},
    {"0=Zweck", "Felder: Empfaenger, Kategorie", "an unknown field"},
    {"0=Verwendungszwek", "Meinten Sie „Verwendungszweck“?", "a misspelt field"},
    {"0=Datum,0=Betrag", "Die Spalte 0 ist zweimal genannt", "a column twice"},
    {"0=Datum,1=Datum", "Das Feld „Datum“ ist zweimal genannt", "a field twice"},
};

TEST(ColumnOption, WhatCannotBeMeantIsRefused) {
    for (const WrongCase& wrong : kWrong) {
        SCOPED_TRACE(wrong.why);
        try {
            ColumnOption::parse(wrong.text);
            ADD_FAILURE() << "taken";
        } catch (const UsageError& error) {
            EXPECT_THAT(error.what(), testing::HasSubstr(wrong.says));
            EXPECT_THAT(error.what(), testing::HasSubstr("--columns \"0=Datum,3=Betrag\""));
        }
    }
}

} // namespace
