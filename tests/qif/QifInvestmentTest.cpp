// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <vector>

#include <gtest/gtest.h>

#include "qif/ExposedQif.h"
#include "support/SmartDateFixture.h"

namespace {

using Qif = ImportModuleQIF;

class QifInvestment : public SmartDateFixture {};

TEST_F(QifInvestment, SecurityWithoutAMemoIsDescribed) {
    const struct {
        std::vector<const char*> lines;
        const char* memo;
        const char* why;
    } cases[] = {
        {{"YMuster AG", "Q10", "I12.50", "O4.90"},
         "Muster AG   10 St\xFC"
         "ck  a 12.50  Nebenkosten: 4.90",
         "two blanks stand between the quantity and the price"},
        {{"YMuster AG"}, "Muster AG   ", "the security alone keeps its three blanks"},
        {{"YMuster AG", "Q10"},
         "Muster AG   10 St\xFC"
         "ck ",
         "quantity alone"},
        {{"YMuster AG", "I12.50"}, "Muster AG    a 12.50", "price alone"},
        {{"YMuster AG", "O4.90"}, "Muster AG     Nebenkosten: 4.90", "commission alone"},
        {{"O4.90", "I12.50", "YMuster AG"},
         "Muster AG    a 12.50  Nebenkosten: 4.90",
         "the order of lines is no matter"},
        {{"YMuster AG", "Q10", "MKauf"}, "Kauf", "a memo is kept"},
        {{"Q10", "I12.50", "O4.90"}, "", "no security, no description"},
    };
    for (const auto& c : cases) {
        ExposedQif module(Qif::Investment);
        ASSERT_TRUE(module.read(c.lines)) << c.why;
        ASSERT_TRUE(module.parseAcountItem("^")) << c.why;
        ASSERT_EQ(module.m_dataSets.size(), 1U) << c.why;
        EXPECT_EQ(module.m_dataSets.front().m_memo, c.memo) << c.why;
    }
}

TEST_F(QifInvestment, SecurityIsDescribedInEverySection) {
    for (const Qif::E_AccountType section : {Qif::Bank, Qif::Cash, Qif::Bill, Qif::Ignored}) {
        ExposedQif module(section);
        ASSERT_TRUE(module.read({"YMuster AG", "I12.50", "^"}));
        ASSERT_EQ(module.m_dataSets.size(), 1U);
        EXPECT_EQ(module.m_dataSets.front().m_memo, "Muster AG    a 12.50");
    }
}

TEST_F(QifInvestment, DescriptionIsWrittenIntoTheRecordGivenBeforeItIsCopied) {
    ExposedQif module(Qif::Investment);
    QifRecord record;
    record.m_sectionLabel = "Label";
    record.m_security = "Muster AG";
    EXPECT_TRUE(module.processDataSet(record));
    EXPECT_EQ(record.m_memo, "Muster AG   ");
    ASSERT_EQ(module.m_dataSets.size(), 1U);
    EXPECT_EQ(module.m_dataSets.front().m_memo, "Muster AG   ");
}

TEST_F(QifInvestment, DescriptionDoesNotReachTheNextRecord) {
    ExposedQif module(Qif::Investment);
    ASSERT_TRUE(module.read({"YMuster AG", "Q10", "^", "T5", "^"}));
    ASSERT_EQ(module.m_dataSets.size(), 2U);
    EXPECT_EQ(module.m_dataSets.back().m_memo, "");
}

} // namespace
