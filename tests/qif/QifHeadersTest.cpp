// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qif/ExposedQif.h"
#include "support/SmartDateFixture.h"

namespace {

using Qif = ImportModuleQIF;
using testing::StrEq;

struct Header {
    const char* line;
    const char* label;
    Qif::E_AccountType type;
};

constexpr Header kHeaders[] = {
    {"!Type:Bank", "Bankkonten", Qif::Bank},
    {"!Type:Cash", "Bargeldkonten", Qif::Cash},
    {"!Type:CCard", "Kreditkartenkonten", Qif::CreditCard},
    {"!Type:Invst", "Wertpapierkonten", Qif::Investment},
    {"!Type:Oth A", "Verm\xF6genskonten", Qif::OtherAsset},
    {"!Type:Oth L", "Verbindlichkeitskonten", Qif::OtherLiability},
    {"!Type:Invoice", "Rechnungskonten", Qif::Invoice},
    {"!Type:Tax", "Steuerkonten", Qif::Tax},
    {"!Type:Bill", "Belegkonten", Qif::Bill},
    {"!Type:Cat", "Andere Einnahmen/Ausgaben", Qif::Category},
    {"!Type:Class", "Klasse", Qif::Ignored},
    {"!Type:Memorized", "Memo", Qif::Ignored},
    {"!Account", "Account", Qif::Ignored},
    {"!Option:AutoSwitch", "Option:AutoSwitch", Qif::Ignored},
    {"!Clear:AutoSwitch", "Clear:AutoSwitch", Qif::Ignored},
};

class QifHeaders : public SmartDateFixture {};

TEST_F(QifHeaders, AccountTypesHaveTheNumbersThatHostsKnow) {
    const std::pair<int, int> numbers[] = {
        {Qif::Bank, 0},       {Qif::Cash, 1},           {Qif::CreditCard, 2}, {Qif::Investment, 3},
        {Qif::OtherAsset, 4}, {Qif::OtherLiability, 5}, {Qif::Invoice, 6},    {Qif::Tax, 7},
        {Qif::Bill, 8},       {Qif::Category, 9},       {Qif::Ignored, 12},   {Qif::NoSection, 13},
    };
    for (const auto& [found, expected] : numbers)
        EXPECT_EQ(found, expected);
}

TEST_F(QifHeaders, EveryKnownHeaderOpensItsSection) {
    for (const Header& header : kHeaders) {
        ExposedQif module;
        EXPECT_TRUE(module.parseHeader(header.line)) << header.line;
        EXPECT_EQ(module.m_accountType, header.type) << header.line;
        EXPECT_EQ(module.m_currentDataSet.m_sectionLabel, header.label) << header.line;
        EXPECT_TRUE(module.m_atRecordStart) << header.line;
    }
}

TEST_F(QifHeaders, TableHoldsTheKnownHeadersAndNoOther) {
    const ExposedQif module;
    EXPECT_EQ(module.m_headerMap.size(), std::size(kHeaders));
    for (const Header& header : kHeaders) {
        const auto found = module.m_headerMap.find(header.line);
        ASSERT_NE(found, module.m_headerMap.end()) << header.line;
        EXPECT_THAT(found->second.name, StrEq(header.label)) << header.line;
        EXPECT_EQ(found->second.type, header.type) << header.line;
    }
}

TEST_F(QifHeaders, LaterRowForAHeaderReplacesTheFirst) {
    ExposedQif module;
    module.addHeaderInfo("!Type:Bank", "Girokonten", Qif::Ignored);
    EXPECT_EQ(module.m_headerMap.size(), std::size(kHeaders));
    EXPECT_TRUE(module.parseHeader("!Type:Bank"));
    EXPECT_EQ(module.m_accountType, Qif::Ignored);
    EXPECT_EQ(module.m_currentDataSet.m_sectionLabel, "Girokonten");
}

TEST_F(QifHeaders, NewRowIsKnownAtOnce) {
    ExposedQif module;
    EXPECT_FALSE(module.parseHeader("!Type:Prices"));
    module.addHeaderInfo("!Type:Prices", "Kurse", Qif::Ignored);
    EXPECT_TRUE(module.parseHeader("!Type:Prices"));
    EXPECT_EQ(module.m_currentDataSet.m_sectionLabel, "Kurse");
}

TEST_F(QifHeaders, BlanksThenTabsAreStrippedOnceEach) {
    const struct {
        const char* line;
        bool known;
        const char* why;
    } cases[] = {
        {"  !Type:Bank", true, "blanks ahead"},
        {"!Type:Bank   ", true, "blanks behind"},
        {"\t!Type:Bank\t\t", true, "tabs around"},
        {" \t!Type:Bank\t ", true, "blanks outside, tabs inside"},
        {"\t !Type:Bank", false, "the blank inside the tab stays"},
        {"!Type:Bank \t", false, "so it does at the end"},
        {" \t !Type:Bank", false, "one round only"},
    };
    for (const auto& c : cases) {
        ExposedQif module;
        EXPECT_EQ(module.parseHeader(c.line), c.known) << c.why;
    }
}

TEST_F(QifHeaders, LineMustBeTheHeaderExactly) {
    const std::pair<const char*, const char*> lines[] = {
        {"!type:bank", "lower case"},
        {"!TYPE:BANK", "upper case"},
        {"!Type:Bank 2004", "further text"},
        {"!Type:Bankx", "further letters"},
        {"!Type:Ban", "cut short"},
        {"!Type: Bank", "a blank within"},
        {"!Type:Oth  A", "two blanks within"},
        {"Type:Bank", "no exclamation mark"},
        {"!Type:Bank\r", "the carriage return is part of the line"},
        {"!Type:Prices", "prices are not known"},
        {"!Type:Security", "securities are not known"},
        {"!", "the mark alone"},
        {"", "nothing"},
    };
    for (const auto& [line, why] : lines) {
        ExposedQif module(Qif::Cash);
        EXPECT_FALSE(module.parseHeader(line)) << why;
        EXPECT_EQ(module.m_accountType, Qif::Cash) << why;
        EXPECT_EQ(module.m_currentDataSet.m_sectionLabel, "Label") << why;
        EXPECT_FALSE(module.m_atRecordStart) << why;
        EXPECT_STREQ(module.getErrorMsg(), "") << why;
    }
}

TEST_F(QifHeaders, HeaderChangesNothingOfTheRecordButItsLabel) {
    ExposedQif module(Qif::Bank);
    ASSERT_TRUE(module.read({"D1/5'98", "T12", "Ppayee", "Mmemo", "N7", "Lcategory", "Q1", "I2", "O3", "Ysecurity"}));
    ASSERT_TRUE(module.parseHeader("!Type:Cash"));
    const QifRecord& record = module.m_currentDataSet;
    EXPECT_EQ(record.m_sectionLabel, "Bargeldkonten");
    EXPECT_EQ(record.m_date.asString(), "01.05.2098");
    EXPECT_EQ(record.m_amount, "12");
    EXPECT_EQ(record.m_payee, "payee");
    EXPECT_EQ(record.m_memo, "memo");
    EXPECT_EQ(record.m_number, "7");
    EXPECT_EQ(record.m_category, "category");
    EXPECT_EQ(record.m_quantity, "1");
    EXPECT_EQ(record.m_price, "2");
    EXPECT_EQ(record.m_commission, "3");
    EXPECT_EQ(record.m_security, "security");
}

} // namespace
