// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <climits>
#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include "csv/SplittingModule.h"
#include "csv/UnknownRowInfo.h"

namespace {

using namespace Import;
using Module = SplittingModule<UnknownRowInfo>;

std::string nameOrNone(const char* name) { return name != nullptr ? name : "(none)"; }

TEST(AssignColumns, WithoutACallNoColumnIsAssigned) {
    const Module module;

    EXPECT_EQ(module.m_columnAssignment.m_count, -1);
    EXPECT_EQ(module.m_dateColumn, -1);
    for (const int column : {-1, 0, 1, 6, 7, 49})
        EXPECT_EQ(nameOrNone(module.getAssignedColumnNameForIndex(column)), "(none)") << column;
}

TEST(AssignColumns, TakesACopyOfAllFifteenWords) {
    Module module;
    ColumnAssignment assignment = {{{10, eColDatum},
                                    {11, eColBetrag},
                                    {12, eColEmpfaenger},
                                    {13, eColKategorie},
                                    {14, eColUnterkategorie},
                                    {15, eColBuchungstext},
                                    {16, eColVerwendungszweck}},
                                   1};
    module.assignColumns(assignment);
    const ColumnAssignment given = assignment;
    assignment = {};

    EXPECT_EQ(sizeof given, 15 * sizeof(int));
    EXPECT_EQ(std::memcmp(&module.m_columnAssignment, &given, sizeof given), 0);
}

TEST(AssignColumns, NameEveryColumnOfTheDataModel) {
    Module module;
    module.assignColumns({{{20, eColEmpfaenger},
                           {21, eColKategorie},
                           {22, eColUnterkategorie},
                           {23, eColVerwendungszweck},
                           {24, eColBuchungstext},
                           {25, eColDatum},
                           {26, eColBetrag}},
                          7});
    const char* const names[] = {"Empfaenger",   "Kategorie", "Unterkategorie", "Verwendungszweck",
                                 "Buchungstext", "Datum",     "Betrag"};
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(nameOrNone(module.getAssignedColumnNameForIndex(20 + i)), names[i]);
    EXPECT_EQ(nameOrNone(module.getAssignedColumnNameForIndex(19)), "(none)");
    EXPECT_EQ(nameOrNone(module.getAssignedColumnNameForIndex(27)), "(none)");
}

TEST(AssignColumns, TheFirstPairOfAFileColumnWins) {
    Module module;
    module.assignColumns({{{3, eColKategorie}, {3, eColBetrag}}, 2});

    EXPECT_EQ(nameOrNone(module.getAssignedColumnNameForIndex(3)), "Kategorie");
}

TEST(AssignColumns, APairWithoutATargetLeavesItsColumnOutEvenBeforeAnother) {
    Module module;
    module.assignColumns({{{3, eColNone}, {3, eColBetrag}}, 2});

    EXPECT_EQ(nameOrNone(module.getAssignedColumnNameForIndex(3)), "(none)");
}

TEST(AssignColumns, AUnknownTargetLeavesItsColumnOut) {
    for (const int target : {-1, 8, INT_MAX, INT_MIN}) {
        Module module;
        module.assignColumns({{{3, static_cast<E_ColumnIndex>(target)}}, 1});
        EXPECT_EQ(nameOrNone(module.getAssignedColumnNameForIndex(3)), "(none)") << target;
        EXPECT_EQ(module.m_dateColumn, -1) << target;
    }
}

TEST(AssignColumns, TheFirstDatePairNamesTheDateColumn) {
    struct {
        ColumnAssignment assignment;
        int dateColumn;
        const char* why;
    } const cases[] = {
        {{{{4, eColDatum}, {9, eColDatum}}, 2}, 4, "the first of two"},
        {{{{1, eColBetrag}, {9, eColDatum}}, 2}, 9, "behind another pair"},
        {{{{1, eColBetrag}, {9, eColDatum}}, 1}, -1, "beyond the pairs in use"},
        {{{{1, eColBetrag}}, 1}, -1, "no date at all"},
        {{{{0, eColDatum}}, 1}, 0, "the first column of the file"},
        {{{{4, eColDatum}}, 0}, -1, "no pairs in use"},
        {{{{4, eColDatum}}, -1}, -1, "no assignment"},
        {{{{-3, eColDatum}}, 1}, -3, "as given, though no file has it"},
    };
    for (const auto& c : cases) {
        Module module;
        module.assignColumns(c.assignment);
        EXPECT_EQ(module.m_dateColumn, c.dateColumn) << c.why;
    }
}

TEST(AssignColumns, ALaterAssignmentForgetsTheDateColumnOfTheOneBefore) {
    Module module;
    module.assignColumns({{{4, eColDatum}}, 1});
    module.assignColumns({{{4, eColBetrag}}, 1});

    EXPECT_EQ(module.m_dateColumn, -1);
    EXPECT_EQ(nameOrNone(module.getAssignedColumnNameForIndex(4)), "Betrag");
}

// A caller's count beyond the seven pairs must not lead beyond them.
TEST(AssignColumns, ReadsAtMostSevenPairsAndNoneForACountBelowOne) {
    struct {
        int count;
        bool first;
        bool seventh;
    } const cases[] = {{INT_MIN, false, false}, {-7, false, false},   {-1, false, false}, {0, false, false},
                       {1, true, false},        {6, true, false},     {7, true, true},    {8, true, true},
                       {1000, true, true},      {INT_MAX, true, true}};
    for (const auto& c : cases) {
        Module module;
        module.assignColumns({{{0, eColEmpfaenger},
                               {1, eColKategorie},
                               {2, eColUnterkategorie},
                               {3, eColVerwendungszweck},
                               {4, eColBuchungstext},
                               {5, eColBetrag},
                               {6, eColDatum}},
                              c.count});
        EXPECT_EQ(nameOrNone(module.getAssignedColumnNameForIndex(0)), c.first ? "Empfaenger" : "(none)") << c.count;
        EXPECT_EQ(nameOrNone(module.getAssignedColumnNameForIndex(6)), c.seventh ? "Datum" : "(none)") << c.count;
        EXPECT_EQ(nameOrNone(module.getAssignedColumnNameForIndex(7)), "(none)") << c.count;
        EXPECT_EQ(module.m_dateColumn, c.seventh ? 6 : -1) << c.count;
    }
}

// It stands where the file column of an eighth pair would.
TEST(AssignColumns, TheCountIsNotTakenForAPair) {
    for (const int count : {8, 9, 1000, INT_MAX}) {
        Module module;
        module.assignColumns({{}, count});
        EXPECT_EQ(nameOrNone(module.getAssignedColumnNameForIndex(count)), "(none)") << count;
    }
}

} // namespace
