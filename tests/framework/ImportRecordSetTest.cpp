// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <climits>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include "framework/ImportRecordSetImpl.h"

namespace {

static_assert(std::is_abstract_v<ImportRecordSet>);
static_assert(std::has_virtual_destructor_v<ImportRecordSet>);
static_assert(!std::is_copy_constructible_v<ImportRecordSetImpl>);

TEST(ImportRecordSetTest, FreshTableIsEmpty) {
    const ImportRecordSetImpl table;
    EXPECT_EQ(table.getRowCount(), 0);
    EXPECT_EQ(table.getColumnCount(), 0);
    EXPECT_FALSE(table.hasHeader());
    EXPECT_EQ(table.getString(0, 0), "");
    EXPECT_EQ(table.getColumnHeader(0), "");
    EXPECT_FALSE(table.isValid(0, 0));
}

TEST(ImportRecordSetTest, AddRowReturnsTheRawNumber) {
    ImportRecordSetImpl table;
    for (int row = 0; row < 50; ++row) // beyond the room that is reserved
        EXPECT_EQ(table.addRow(2), row);
    EXPECT_EQ(table.getRowCount(), 50);
    EXPECT_EQ(table.getColumnCount(), 2);
}

TEST(ImportRecordSetTest, CellsKeepTheirTexts) {
    ImportRecordSetImpl table;
    for (int row = 0; row < 50; ++row) {
        table.addRow(2);
        EXPECT_TRUE(table.setString(row, 0, "a" + std::to_string(row), false));
        EXPECT_TRUE(table.setString(row, 1, "\xE4\xF6\xFC", false));
    }
    for (int row = 0; row < 50; ++row) {
        EXPECT_EQ(table.getString(row, 0), "a" + std::to_string(row));
        EXPECT_EQ(table.getString(row, 1), "\xE4\xF6\xFC");
    }
    EXPECT_TRUE(table.setString(7, 0, "neu", false));
    EXPECT_EQ(table.getString(7, 0), "neu");
}

TEST(ImportRecordSetTest, NewRowIsEmpty) {
    ImportRecordSetImpl table;
    table.addRow(3);
    for (int column = 0; column < 3; ++column)
        EXPECT_EQ(table.getString(0, column), "");
}

TEST(ImportRecordSetTest, HeaderWriteIntoTheFirstRowMakesAHeader) {
    ImportRecordSetImpl table;
    table.addRow(7);
    EXPECT_EQ(table.getRowCount(), 1);
    EXPECT_TRUE(table.setString(0, 0, "Titel", true));
    EXPECT_TRUE(table.hasHeader());
    EXPECT_EQ(table.getRowCount(), 0) << "the header is no row";
    EXPECT_EQ(table.getColumnHeader(0), "Titel");
    EXPECT_EQ(table.getColumnHeader(6), "");
    table.addRow(7);
    EXPECT_EQ(table.getRowCount(), 1);
}

TEST(ImportRecordSetTest, DataRowsCountFromBehindTheHeader) {
    ImportRecordSetImpl table;
    table.addRow(1);
    table.addRow(1);
    table.setString(0, 0, "Titel", true);
    table.setString(1, 0, "Wert", false);
    EXPECT_EQ(table.getString(0, 0), "Wert");
    EXPECT_EQ(table.getString(1, 0), "");
}

TEST(ImportRecordSetTest, HeaderWriteElsewhereChangesNothing) {
    ImportRecordSetImpl table;
    table.addRow(2);
    table.addRow(2);
    EXPECT_FALSE(table.setString(1, 0, "Titel", true)) << "though the row exists";
    EXPECT_FALSE(table.hasHeader());
    EXPECT_EQ(table.getRowCount(), 2);
    EXPECT_EQ(table.getString(1, 0), "");
    EXPECT_FALSE(table.setString(0, 2, "Titel", true)) << "outside the row";
    EXPECT_FALSE(table.hasHeader());
}

TEST(ImportRecordSetTest, OrdinaryWriteIntoTheHeaderRowKeepsItAHeader) {
    ImportRecordSetImpl table;
    table.addRow(2);
    table.setString(0, 0, "Titel", true);
    EXPECT_TRUE(table.setString(0, 1, "Wert", false));
    EXPECT_TRUE(table.hasHeader());
    EXPECT_EQ(table.getColumnHeader(1), "Wert");
}

TEST(ImportRecordSetTest, WithoutHeaderThereAreNoColumnHeaders) {
    ImportRecordSetImpl table;
    table.addRow(2);
    table.setString(0, 0, "Wert", false);
    EXPECT_EQ(table.getColumnHeader(0), "");
}

TEST(ImportRecordSetTest, TableIsAsWideAsItsWidestRow) {
    ImportRecordSetImpl table;
    table.addRow(3);
    table.addRow(5);
    EXPECT_EQ(table.getColumnCount(), 5);
    EXPECT_EQ(table.getString(0, 4), "") << "beyond the first row";
    table.addRow(2);
    EXPECT_EQ(table.getColumnCount(), 5);
    EXPECT_TRUE(table.setString(2, 4, "x", false)) << "a later row is as wide as the table was";
    EXPECT_EQ(table.getString(2, 4), "x");
}

TEST(ImportRecordSetTest, RowIsNeverWidenedAfterwards) {
    ImportRecordSetImpl table;
    table.addRow(3);
    table.addRow(5);
    EXPECT_TRUE(table.isValid(0, 4)) << "within the table";
    EXPECT_FALSE(table.setString(0, 3, "x", false));
    EXPECT_FALSE(table.setString(0, 4, "x", false));
    EXPECT_EQ(table.getString(0, 3), "");
    EXPECT_EQ(table.getString(0, 4), "");
    EXPECT_TRUE(table.setString(0, 2, "x", false));
}

TEST(ImportRecordSetTest, HeaderOfANarrowFirstRowEndsWithIt) {
    ImportRecordSetImpl table;
    table.addRow(2);
    table.setString(0, 0, "Titel", true);
    table.addRow(4);
    EXPECT_EQ(table.getColumnHeader(1), "");
    EXPECT_EQ(table.getColumnHeader(2), "") << "beyond the header row's own width";
    EXPECT_EQ(table.getColumnHeader(3), "");
    EXPECT_EQ(table.getColumnHeader(4), "");
}

TEST(ImportRecordSetTest, FirstRowWithoutColumnsLetsTheNextSetTheWidth) {
    ImportRecordSetImpl table;
    EXPECT_EQ(table.addRow(0), 0);
    EXPECT_EQ(table.getColumnCount(), 0);
    EXPECT_EQ(table.addRow(3), 1);
    EXPECT_EQ(table.getColumnCount(), 3);
    EXPECT_EQ(table.getString(0, 0), "");
    EXPECT_FALSE(table.setString(0, 0, "x", false));
    EXPECT_TRUE(table.setString(1, 2, "x", false));
}

TEST(ImportRecordSetTest, NegativeWidthIsNoCrash) {
    ImportRecordSetImpl table;
    EXPECT_EQ(table.addRow(-3), 0);
    EXPECT_EQ(table.getString(0, 0), "");
    EXPECT_FALSE(table.setString(0, 0, "x", false));
    EXPECT_EQ(table.addRow(2), 1);
    EXPECT_EQ(table.getColumnCount(), 2);
    EXPECT_TRUE(table.setString(1, 1, "x", false));
}

TEST(ImportRecordSetTest, ReadingOutsideTheTableIsTheEmptyText) {
    for (const bool header : {false, true}) {
        ImportRecordSetImpl table;
        table.addRow(2);
        table.addRow(2);
        for (int row = 0; row < 2; ++row) {
            for (int column = 0; column < 2; ++column)
                table.setString(row, column, "x", header && row == 0);
        }
        const int rows = table.getRowCount();
        EXPECT_EQ(table.getString(rows - 1, 1), "x");
        EXPECT_EQ(table.getString(-1, 0), "") << "a negative number never reaches the header";
        for (const int outside : {-1, -2, INT_MIN, INT_MAX, 100}) {
            EXPECT_EQ(table.getString(outside, 0), "") << outside;
            EXPECT_EQ(table.getString(0, outside), "") << outside;
            EXPECT_EQ(table.getString(outside, outside), "") << outside;
            EXPECT_EQ(table.getColumnHeader(outside), "") << outside;
        }
        EXPECT_EQ(table.getString(rows, 0), "");
        EXPECT_EQ(table.getString(0, 2), "");
    }
}

TEST(ImportRecordSetTest, WritingOutsideTheTableChangesNothing) {
    ImportRecordSetImpl table;
    table.addRow(2);
    for (const int outside : {-1, INT_MIN, INT_MAX, 2}) {
        for (const bool header : {false, true}) {
            EXPECT_FALSE(table.setString(outside, 0, "x", header)) << outside;
            EXPECT_FALSE(table.setString(0, outside, "x", header)) << outside;
        }
    }
    EXPECT_FALSE(table.hasHeader());
    EXPECT_EQ(table.getRowCount(), 1);
    EXPECT_EQ(table.getString(0, 0), "");
}

TEST(ImportRecordSetTest, ValidIsWhatLiesInAnExistingRowAndWithinTheTable) {
    ImportRecordSetImpl table;
    table.addRow(2);
    EXPECT_TRUE(table.isValid(0, 0));
    EXPECT_TRUE(table.isValid(0, 1));
    EXPECT_FALSE(table.isValid(0, 2));
    EXPECT_FALSE(table.isValid(1, 0));
    EXPECT_FALSE(table.isValid(-1, 0));
    EXPECT_FALSE(table.isValid(0, -1));
}

} // namespace
