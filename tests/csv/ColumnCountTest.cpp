// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "csv/ImportDataSetStartMoney.h"
#include "csv/SplittingModule.h"
#include "csv/UnknownRowInfo.h"
#include "framework/ImportInputParams.h"
#include "support/FinanceModel.h"

namespace {

using FixedModule = SplittingModule<ImportDataSetStartMoney>;
using AnyWidthModule = SplittingModule<UnknownRowInfo>;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsNull;

/// A line of that many fields, each "x".
std::string wide(int fields) {
    std::string line = "x";
    for (int i = 1; i < fields; ++i)
        line += ",x";
    return line;
}

std::string message(int line, int expected, int found) {
    return "Fehler beim Analysieren der Daten aus der XML-Datei.\n"
           "Zeile " +
           std::to_string(line) + ": Erwartete Werte:" + std::to_string(expected) + "    Vorhandene Werte " +
           std::to_string(found);
}

template <typename Module>
int importText(Module& module, const std::string& text, const FinanceModel& model) {
    ImportInputParams params;
    params.setInputFileBuffer(text.data(), text.size());
    params.m_targetNode = model.root();
    params.m_simulate = 1;
    return module.importFile(params);
}

TEST(ColumnCount, OfARecordOfFixedWidthIsExact) {
    FixedModule module;

    EXPECT_EQ(module.split(wide(21)).size(), 21U);
    EXPECT_EQ(module.m_errorMsg, "");
}

TEST(ColumnCount, OfALineTooNarrowOrTooWideIsReported) {
    struct {
        int fields;
        int found;
        const char* why;
    } const cases[] = {
        {1, 1, "one field"},
        {20, 20, "one too few"},
        {22, 22, "one too many"},
        {30, 22, "how many more there are is not counted"},
        {1000, 22, "nor of a very wide line"},
    };
    for (const auto& c : cases) {
        FixedModule module;
        module.m_lineNo = 7;
        EXPECT_EQ(module.split(wide(c.fields)).size(), 0U) << c.why;
        EXPECT_EQ(module.m_errorMsg, message(7, 21, c.found)) << c.why;
    }
}

TEST(ColumnCount, ADelimiterAtTheEndIsOneFieldMore) {
    FixedModule module;
    module.m_lineNo = 1;
    module.split(wide(21) + ",");

    EXPECT_EQ(module.m_errorMsg, message(1, 21, 22));
}

TEST(ColumnCount, ADelimiterInsideQuotesCountsForNone) {
    FixedModule module;

    EXPECT_EQ(module.split(wide(20) + ",\"x,x,x\"").back(), "x,x,x");
}

TEST(ColumnCount, ItsMessageReplacesTheErrorText) {
    FixedModule module;
    module.m_lineNo = 2;
    module.m_errorMsg = "vorher";
    module.split(wide(2));

    EXPECT_EQ(module.m_errorMsg, message(2, 21, 2));
}

TEST(ColumnCount, AWrongOneEndsTheImportAndNamesThePhysicalLine) {
    const FinanceModel model;
    FixedModule module;

    EXPECT_EQ(importText(module, wide(21) + "\n\n \t\n" + wide(20) + "\n" + wide(21) + "\n", model), 0);

    EXPECT_STREQ(module.getErrorMsg(), message(4, 21, 20).c_str());
    EXPECT_EQ(module.rows.size(), 1U);
}

TEST(ColumnCount, TheRowRecordIsEmptyBeforeTheFirstLine) {
    const FixedModule fixed;
    const AnyWidthModule any;

    EXPECT_THAT(fixed.m_row.m_columns, Each(IsNull()));
    EXPECT_THAT(any.m_row.m_columns, Each(IsNull()));
}

TEST(ColumnCount, IsFreeForLinesOfUnknownLayoutAlone) {
    EXPECT_TRUE(AnyWidthModule().m_variableColumns);
    EXPECT_FALSE(FixedModule().m_variableColumns);
}

TEST(ColumnCount, OfUnknownLayoutIsFiftyOnceItIsFixed) {
    struct {
        int fields;
        std::string error;
    } const cases[] = {{49, message(0, 50, 49)}, {50, ""}, {51, message(0, 50, 51)}, {60, message(0, 50, 51)}};
    for (const auto& c : cases) {
        AnyWidthModule module;
        module.m_variableColumns = false;
        EXPECT_EQ(module.split(wide(c.fields)).size(), c.error.empty() ? 50U : 0U) << c.fields;
        EXPECT_EQ(module.m_errorMsg, c.error) << c.fields;
    }
}

TEST(ColumnCount, ARecordOfFixedWidthThatTakesAnyIsNotOverrun) {
    FixedModule module;
    module.m_variableColumns = true;

    EXPECT_EQ(module.split(wide(3)).size(), 3U);
    EXPECT_EQ(module.split(wide(60)).size(), 21U);
    EXPECT_EQ(module.m_errorMsg, "");
}

TEST(ProcessLine, HandsOnTheRowAndTheNumberOfRowsCompletedBefore) {
    const FinanceModel model;
    AnyWidthModule module;

    EXPECT_EQ(importText(module, "a,b\n\nc\n", model), 2);

    ASSERT_EQ(module.rows.size(), 2U);
    EXPECT_THAT(module.rows[0].fields, ElementsAre("a", "b"));
    EXPECT_EQ(module.rows[0].rowIndex, 0);
    EXPECT_THAT(module.rows[1].fields, ElementsAre("c"));
    EXPECT_EQ(module.rows[1].rowIndex, 1);
    EXPECT_THAT(module.skipFlags, ElementsAre(false, false));
}

TEST(ProcessLine, EndsTheImportWhereARowIsRefused) {
    const FinanceModel model;
    AnyWidthModule module;
    module.acceptRows = false;

    EXPECT_EQ(importText(module, "a\nb\n", model), 0);

    EXPECT_EQ(module.rows.size(), 1U);
    EXPECT_TRUE(module.skipFlags.empty());
    EXPECT_STREQ(module.getErrorMsg(), "");
}

TEST(ProcessLine, EndsTheImportWhereARowCannotBeCompleted) {
    const FinanceModel model;
    AnyWidthModule module;
    module.completeRows = false;

    EXPECT_EQ(importText(module, "a\nb\n", model), 0);

    EXPECT_EQ(module.rows.size(), 1U);
}

TEST(ProcessLine, CompletesARowWithThePipelinesOwnSkipFlag) {
    AnyWidthModule module;
    module.m_skipRow = true;
    std::string line = "a";

    EXPECT_TRUE(module.processLine(line.data(), nullptr));

    EXPECT_THAT(module.skipFlags, ElementsAre(true));
}

} // namespace
