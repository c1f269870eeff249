// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qif/ExposedQif.h"
#include "support/SmartDateFixture.h"

namespace {

using Qif = ImportModuleQIF;

class QifBudget : public SmartDateFixture {};

TEST_F(QifBudget, LinesAddUpToAnAmountAndAListOfTerms) {
    const struct {
        std::vector<const char*> lines;
        const char* amount;
        const char* terms;
        const char* why;
    } cases[] = {
        {{"B100", "B50", "B-20"}, "130.00", "Summe aus:100,00 + 50,00-20,00", "a negative term brings its own sign"},
        {{"B100"}, "100.00", "Summe aus:100,00", "no blank after the colon"},
        {{"B-20", "B30"}, "10.00", "Summe aus:-20,00 + 30,00", "a negative first term"},
        {{"B"}, "0.00", "Summe aus:0,00", "an empty line is a zero"},
        {{"B0", "B0"}, "0.00", "Summe aus:0,00 + 0,00", "a zero counts as positive"},
        {{"B1.234,56", "B1,234.56"}, "2469.12", "Summe aus:1.234,56 + 1.234,56", "German and English notation"},
        {{"B12,50-"}, "12.50", "Summe aus:12,50", "a trailing minus is lost, as in every amount"},
        {{"B0.004", "B0.004"}, "0.01", "Summe aus:0,00 + 0,00", "the sum is rounded, not what is added"},
        {{"B1000000"}, "1000000.00", "Summe aus:1.000.000,00", "the amount has no thousands marks"},
        {{"B-0.001"}, "-0.00", "Summe aus:0,00", "a negative sum that rounds to zero keeps its sign"},
        {{"B100", "B-100"}, "0.00", "Summe aus:100,00-100,00", "a sum of zero is a budget all the same"},
    };
    for (const auto& c : cases) {
        ExposedQif module(Qif::Category);
        ASSERT_TRUE(module.read(c.lines)) << c.why;
        EXPECT_EQ(module.m_currentDataSet.m_amount, c.amount) << c.why;
        EXPECT_EQ(module.m_currentDataSet.m_number, c.terms) << c.why;
        EXPECT_STREQ(module.getErrorMsg(), "") << c.why;
    }
}

TEST_F(QifBudget, CategoryWithoutABudgetIsDropped) {
    ExposedQif module(Qif::Category);
    ASSERT_TRUE(module.read({"NMiete", "DWohnung", "E", "T", "R42", "I", "^"}));
    EXPECT_TRUE(module.m_dataSets.empty());
    EXPECT_EQ(module.m_currentDataSet.m_category, "") << "emptied like any other";
    EXPECT_TRUE(module.m_atRecordStart);
    EXPECT_STREQ(module.getErrorMsg(), "");
}

TEST_F(QifBudget, CategoryWithABudgetIsCollected) {
    ExposedQif module(Qif::Category);
    ASSERT_TRUE(module.read({"NMiete", "DWohnung", "B650", "B650", "^"}));
    ASSERT_EQ(module.m_dataSets.size(), 1U);
    const QifRecord& record = module.m_dataSets.front();
    EXPECT_EQ(record.m_category, "Miete");
    EXPECT_EQ(record.m_memo, "Wohnung");
    EXPECT_EQ(record.m_amount, "1300.00");
    EXPECT_EQ(record.m_number, "Summe aus:650,00 + 650,00");
    EXPECT_EQ(record.m_date.asString(), "00.00.0000");
}

TEST_F(QifBudget, SumDoesNotRunOverIntoTheNextCategory) {
    ExposedQif module(Qif::Category);
    ASSERT_TRUE(module.read({"B100", "^", "B5", "^"}));
    ASSERT_EQ(module.m_dataSets.size(), 2U);
    EXPECT_EQ(module.m_dataSets.back().m_amount, "5.00");
    EXPECT_EQ(module.m_dataSets.back().m_number, "Summe aus:5,00");
}

TEST_F(QifBudget, SumOfADroppedCategoryIsResetToo) {
    ExposedQif module(Qif::Category);
    ASSERT_TRUE(module.parseAcountItem("B100"));
    module.m_currentDataSet.m_amount.clear();
    ASSERT_TRUE(module.read({"^", "B5", "^"}));
    ASSERT_EQ(module.m_dataSets.size(), 1U);
    EXPECT_EQ(module.m_dataSets.front().m_amount, "5.00");
}

TEST_F(QifBudget, NumberLeftByAnIgnoredSectionStandsAheadOfTheTerms) {
    ExposedQif module(Qif::Category);
    module.m_currentDataSet.m_number = "Giro";
    ASSERT_TRUE(module.read({"B100", "B-20"}));
    EXPECT_EQ(module.m_currentDataSet.m_number, "Giro + 100,00-20,00");
}

TEST_F(QifBudget, AmountLeftByAnIgnoredSectionMakesABudget) {
    ExposedQif module(Qif::Category);
    module.m_currentDataSet.m_amount = "7";
    ASSERT_TRUE(module.read({"NMiete", "^"}));
    ASSERT_EQ(module.m_dataSets.size(), 1U);
    EXPECT_EQ(module.m_dataSets.front().m_amount, "7");
}

TEST_F(QifBudget, SumOfThreeHundredDigitsIsWrittenWhole) {
    ExposedQif module(Qif::Category);
    const std::string line = "B1" + std::string(299, '0');
    ASSERT_TRUE(module.parseAcountItem(line.c_str()));
    const std::string& amount = module.m_currentDataSet.m_amount;
    EXPECT_EQ(amount.size(), 303U);
    EXPECT_EQ(amount.substr(0, 5), "10000");
    EXPECT_EQ(amount.substr(300), ".00");
}

TEST_F(QifBudget, GreatestSumsAreWrittenWhole) {
    for (const double greatest : {std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest()}) {
        QifRecord record;
        record.addBudget(greatest);
        EXPECT_EQ(record.m_amount.size(), greatest > 0 ? 312U : 313U);
        EXPECT_EQ(record.m_amount.substr(record.m_amount.size() - 3), ".00");
    }
}

TEST_F(QifBudget, SumBeyondEveryNumberIsNoNumber) {
    ExposedQif module(Qif::Category);
    const std::string digits(400, '9');
    ASSERT_TRUE(module.parseAcountItem(("B" + digits).c_str()));
    EXPECT_EQ(module.m_currentDataSet.m_amount, "inf");
    ASSERT_TRUE(module.parseAcountItem(("B-" + digits).c_str()));
    EXPECT_NE(module.m_currentDataSet.m_amount.find("nan"), std::string::npos);
    EXPECT_TRUE(module.parseAcountItem("^"));
}

} // namespace
