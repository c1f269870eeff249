// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <climits>
#include <string>

#include "framework/ModuleFixture.h"

namespace {

using Import::E_ColumnIndex;

/// Rows of a simulated import.
class PreviewRowTest : public ModuleFixture {
protected:
    PreviewRowTest() { startImport(true); }

    const ImportRecordSet& preview() const { return m_module.getLastSimulatedImport(); }
};

TEST_F(PreviewRowTest, StartRowAddsARowOfThatWidth) {
    EXPECT_EQ(m_module.startRow(3, false).previewRow(), 0);
    EXPECT_EQ(m_module.startRow(5, false).previewRow(), 1);
    EXPECT_EQ(m_module.m_currentRow.previewRow(), 1);
    EXPECT_EQ(m_module.m_currentRow.record(), nullptr);
    EXPECT_EQ(preview().getRowCount(), 2);
    EXPECT_EQ(preview().getColumnCount(), 5);
    expectNothingWritten();
}

TEST_F(PreviewRowTest, HeaderRowIsARowOfThePreview) {
    EXPECT_EQ(m_module.startRow(3, true).previewRow(), 0);
    EXPECT_EQ(preview().getRowCount(), 1) << "a header once a header cell is stored";
}

TEST_F(PreviewRowTest, NamedColumnsAreShownInTheirOwnColumnInDisplayForm) {
    const auto row = m_module.startRow(7, false);
    EXPECT_TRUE(m_module.setColumnVal(row, "Empfaenger",
                                      " B\xE4"
                                      "cker ",
                                      false));
    EXPECT_TRUE(m_module.setColumnVal(row, "Datum", "1/2/4", false));
    EXPECT_TRUE(m_module.setColumnVal(row, "Betrag", "-1234.5", false));
    EXPECT_EQ(preview().getString(0, 0), " B\xE4"
                                         "cker ");
    EXPECT_EQ(preview().getString(0, 1), "");
    EXPECT_EQ(preview().getString(0, 5), "01.02.2004");
    EXPECT_EQ(preview().getString(0, 6), "-1.234,50");
    EXPECT_FALSE(m_module.m_skipRow);
    expectNothingWritten();
}

TEST_F(PreviewRowTest, ModuleChoosesThePreviewColumn) {
    m_module.showAllColumnsIn(2);
    const auto row = m_module.startRow(3, false);
    EXPECT_TRUE(m_module.setColumnVal(row, "Betrag", "12,5", false));
    EXPECT_EQ(preview().getString(0, 2), "12,50");
}

TEST_F(PreviewRowTest, BaseShowsEveryColumnUnderItsOwnNumber) {
    ScriptedModule module;
    for (const int column : {0, 3, 6, 7, -1, 99})
        EXPECT_EQ(module.getInputFileColNo(static_cast<E_ColumnIndex>(column)), column);
}

TEST_F(PreviewRowTest, NameOutsideTheCatalogueIsFalse) {
    const auto row = m_module.startRow(7, false);
    for (const char* name : {"Notiz", "betrag", "", "UniqueID"})
        EXPECT_FALSE(m_module.setColumnVal(row, name, "x", false)) << name;
    EXPECT_FALSE(m_module.setColumnVal(row, "Notiz", "x", true)) << "a header is no exception";
    EXPECT_FALSE(m_module.m_skipRow);
    EXPECT_STREQ(m_module.getErrorMsg(), "");
    for (int column = 0; column < 7; ++column)
        EXPECT_EQ(preview().getString(0, column), "");
}

TEST_F(PreviewRowTest, ColumnThatThePreviewHasNoRoomForStopsNoImport) {
    const auto row = m_module.startRow(3, false);
    EXPECT_TRUE(m_module.setColumnVal(row, "Betrag", "1", false)) << "column 6 of 3";
    m_module.showAllColumnsIn(-1);
    EXPECT_TRUE(m_module.setColumnVal(row, "Betrag", "1", false)) << "a negative column";
    EXPECT_EQ(preview().getColumnCount(), 3);
    for (int column = -1; column < 8; ++column)
        EXPECT_EQ(preview().getString(0, column), "") << column;
}

TEST_F(PreviewRowTest, HeaderIsShownAsItStandsAndMarksTheRow) {
    const auto row = m_module.startRow(7, true);
    EXPECT_TRUE(m_module.setColumnVal(row, "Betrag", "1.5", true));
    EXPECT_TRUE(m_module.m_skipRow);
    EXPECT_TRUE(preview().hasHeader());
    EXPECT_EQ(preview().getColumnHeader(6), "1.5") << "not as an amount";
    EXPECT_EQ(preview().getRowCount(), 0);
}

// ---- cells by number

TEST_F(PreviewRowTest, CellsAreShownInDisplayFormOfTheirColumn) {
    struct Case {
        int index;
        const char* text;
        const char* want;
        const char* why;
    };
    const Case cases[] = {
        {Import::eColEmpfaenger, "  1.5 ", "  1.5 ", "a text as it is"},
        {Import::eColBuchungstext,
         "\xDC"
         "berweisung",
         "\xDC"
         "berweisung",
         "a text as it is"},
        {Import::eColDatum, "1.2.4", "01.02.2004", "a date"},
        {Import::eColDatum, "kein Datum", "", "no date"},
        {Import::eColBetrag, "1.5", "1,50", "an amount"},
        {Import::eColBetrag, "1234567,891 EUR", "1.234.567,89", "an amount"},
        {Import::eColBetrag, "", "0,00", "no digits are an amount of 0"},
        {Import::eColBetrag, "99999999999999,99", "", "an amount beyond the bounds"},
        {Import::eColNone, " 1.5 ", " 1.5 ", "no column: as it is"},
        {8, "1.5", "", "a number that is no column"},
        {-1, "1.5", "", "a number that is no column"},
    };
    for (const Case& c : cases) {
        const int row = m_module.startRow(2, false).previewRow();
        EXPECT_TRUE(m_module.setColumnVal(row, 1, c.text, false, static_cast<E_ColumnIndex>(c.index))) << c.why;
        EXPECT_EQ(preview().getString(row, 1), c.want) << c.why;
    }
    EXPECT_FALSE(m_module.m_skipRow);
    EXPECT_FALSE(preview().hasHeader());
}

TEST_F(PreviewRowTest, HeaderCellsAreShownAsTheyStandWhateverTheColumn) {
    m_module.startRow(3, true);
    EXPECT_TRUE(m_module.setColumnVal(0, 0, "1.5", true, Import::eColBetrag));
    EXPECT_TRUE(m_module.setColumnVal(0, 1, "Datum", true, Import::eColDatum));
    EXPECT_TRUE(m_module.setColumnVal(0, 2, "x", true, Import::eColNone));
    EXPECT_TRUE(m_module.m_skipRow);
    EXPECT_EQ(preview().getColumnHeader(0), "1.5");
    EXPECT_EQ(preview().getColumnHeader(1), "Datum");
    EXPECT_EQ(preview().getColumnHeader(2), "x");
}

TEST_F(PreviewRowTest, HeaderCellOutsideTheFirstRowIsRefusedAndMarksTheRowAllTheSame) {
    m_module.startRow(3, false);
    m_module.startRow(3, true);
    EXPECT_FALSE(m_module.setColumnVal(1, 0, "Titel", true, Import::eColNone));
    EXPECT_TRUE(m_module.m_skipRow);
    EXPECT_FALSE(preview().hasHeader());
    EXPECT_EQ(preview().getString(1, 0), "");
}

TEST_F(PreviewRowTest, CellsOutsideTheirRowAreRefused) {
    m_module.startRow(2, false);
    m_module.startRow(4, false);
    struct Case {
        int row;
        int column;
        const char* why;
    };
    const Case cases[] = {
        {0, 2, "beyond the row's own width"},
        {0, 3, "beyond the row's own width"},
        {1, 4, "beyond the table"},
        {0, -1, "negative column"},
        {-1, 0, "negative row"},
        {2, 0, "no such row"},
        {INT_MAX, 0, "no such row"},
        {0, INT_MAX, "no such column"},
        {INT_MIN, INT_MIN, "negative"},
    };
    for (const Case& c : cases) {
        EXPECT_FALSE(m_module.setColumnVal(c.row, c.column, "x", false, Import::eColNone)) << c.why;
        EXPECT_FALSE(m_module.setColumnVal(c.row, c.column, "x", false, Import::eColEmpfaenger)) << c.why;
        EXPECT_FALSE(m_module.setColumnVal(c.row, c.column, "x", true, Import::eColNone)) << c.why;
    }
    EXPECT_FALSE(preview().hasHeader());
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 4; ++column)
            EXPECT_EQ(preview().getString(row, column), "");
    }
}

TEST_F(PreviewRowTest, PreviewStaysWithTheModuleAndGrowsOverItsImports) {
    // A module serves one import; the table is not cleared in between.
    m_module.startRow(2, false);
    startImport(true);
    EXPECT_EQ(preview().getRowCount(), 1);
    EXPECT_EQ(m_module.startRow(2, false).previewRow(), 1);
}

} // namespace
