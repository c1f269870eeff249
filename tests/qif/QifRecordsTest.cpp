// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "qif/ExposedQif.h"
#include "support/SmartDateFixture.h"

namespace {

using Qif = ImportModuleQIF;

constexpr Qif::E_AccountType kTransactionSections[] = {
    Qif::Bank,    Qif::Cash, Qif::CreditCard, Qif::Investment, Qif::OtherAsset, Qif::OtherLiability,
    Qif::Invoice, Qif::Tax,  Qif::Bill,       Qif::Ignored}; // the lines of one that are read at all

constexpr const char* kBadDateOfRecord = "(Zeile   0):Ung\xFCltiges Datumsformat";
constexpr const char* kBadRecord = "(Zeile   0):Ung\xFCltiger Datensatz";

std::string unknownEntry(const std::string& line) {
    return "(Zeile   0):Unbekannter Eintrag:" + line + " wird ignoriert\r\n";
}

/// Every text of the record is empty but the one given, and the label.
void expectOnly(const QifRecord& record, std::string QifRecord::*text, const std::string& value,
                const std::string& why) {
    for (const QifText& candidate : kQifTexts) {
        const bool isLabel = candidate.text == &QifRecord::m_sectionLabel;
        EXPECT_EQ(record.*candidate.text, candidate.text == text ? value
                                          : isLabel              ? "Label"
                                                                 : "")
            << why << ": " << candidate.name;
    }
}

void expectNothing(const QifRecord& record, const std::string& why) { expectOnly(record, nullptr, "", why); }

class QifRecords : public SmartDateFixture {};

TEST_F(QifRecords, FreshRecordIsEmptyAndSwitchesTheQifSyntaxOn) {
    const QifRecord record;
    for (const QifText& text : kQifTexts)
        EXPECT_EQ(record.*text.text, "") << text.name;
    EXPECT_EQ(record.m_budgetSum, 0.0);
    EXPECT_EQ(record.m_date.asString(), "00.00.0000");
    EXPECT_TRUE(SmartDate::m_useQIFSyntax);
}

TEST_F(QifRecords, ModuleThatIsMadeSwitchesTheQifSyntaxOn) {
    const ImportModuleQIF module;
    EXPECT_TRUE(SmartDate::m_useQIFSyntax);
}

TEST_F(QifRecords, CopyingARecordLeavesTheQifSyntaxAsItIs) {
    const QifRecord record;
    SmartDate::m_useQIFSyntax = true;
    const QifRecord copy(record);
    EXPECT_TRUE(SmartDate::m_useQIFSyntax) << "a date made by copying is not constructed anew";
    SmartDate::m_useQIFSyntax = false;
    const QifRecord other(copy);
    EXPECT_FALSE(SmartDate::m_useQIFSyntax);
}

TEST_F(QifRecords, CopyHasEveryField) {
    ExposedQif module(Qif::Bank);
    ASSERT_TRUE(module.read({"D31.12.04", "T1", "P2", "M3", "N4", "L5", "Y6", "Q7", "I8", "O9"}));
    module.m_currentDataSet.m_budgetSum = 10.5;
    const QifRecord copy(module.m_currentDataSet);
    for (const QifText& text : kQifTexts) {
        EXPECT_NE(copy.*text.text, "") << text.name;
        EXPECT_EQ(copy.*text.text, module.m_currentDataSet.*text.text) << text.name;
    }
    EXPECT_EQ(copy.m_date.asString(), "31.12.2004");
    EXPECT_EQ(copy.m_budgetSum, 10.5);
}

TEST_F(QifRecords, LettersOfATransactionFillTheirTexts) {
    const struct {
        char letter;
        std::string QifRecord::*text;
    } fields[] = {
        {'T', &QifRecord::m_amount},     {'U', &QifRecord::m_amount},   {'P', &QifRecord::m_payee},
        {'M', &QifRecord::m_memo},       {'N', &QifRecord::m_number},   {'L', &QifRecord::m_category},
        {'Y', &QifRecord::m_security},   {'Q', &QifRecord::m_quantity}, {'I', &QifRecord::m_price},
        {'O', &QifRecord::m_commission},
    };
    for (const Qif::E_AccountType section : kTransactionSections) {
        for (const auto& field : fields) {
            ExposedQif module(section);
            const std::string line = std::string(1, field.letter) + "-1,234.56 value";
            EXPECT_TRUE(module.parseAcountItem(line.c_str())) << line;
            expectOnly(module.m_currentDataSet, field.text, "-1,234.56 value", line);
            EXPECT_STREQ(module.getErrorMsg(), "") << line;
            EXPECT_FALSE(module.m_atRecordStart) << line;
        }
    }
}

TEST_F(QifRecords, LettersOfACategoryFillTheirTexts) {
    const struct {
        const char* line;
        std::string QifRecord::*text;
    } fields[] = {{"NMiete", &QifRecord::m_category}, {"DMiete", &QifRecord::m_memo}};
    for (const auto& field : fields) {
        ExposedQif module(Qif::Category);
        EXPECT_TRUE(module.parseAcountItem(field.line));
        expectOnly(module.m_currentDataSet, field.text, "Miete", field.line);
        EXPECT_STREQ(module.getErrorMsg(), "") << field.line;
        EXPECT_EQ(module.m_currentDataSet.m_date.asString(), "00.00.0000") << "a category has no date";
    }
}

TEST_F(QifRecords, LettersWithoutUseAreIgnoredWithoutAMessage) {
    const struct {
        Qif::E_AccountType section;
        std::string_view letters;
    } cases[] = {{Qif::Bank, "$%ACEFS"}, {Qif::Investment, "$%ACEFS"}, {Qif::Category, "EIRT"}};
    for (const auto& c : cases) {
        for (const char letter : c.letters) {
            ExposedQif module(c.section);
            const std::string line = std::string(1, letter) + "value";
            EXPECT_TRUE(module.parseAcountItem(line.c_str())) << line;
            expectNothing(module.m_currentDataSet, line);
            EXPECT_STREQ(module.getErrorMsg(), "") << line;
        }
    }
}

TEST_F(QifRecords, EveryOtherByteIsAnUnknownEntryAndGoesOn) {
    const struct {
        Qif::E_AccountType section;
        std::string_view known;
    } cases[] = {{Qif::Bank, "DTUPMNLYQIO^$%ACEFS"}, {Qif::Category, "NDB^EIRT"}};
    for (const auto& c : cases) {
        int unknown = 0;
        for (int code = 1; code < 256; ++code) {
            const char letter = static_cast<char>(code);
            if (c.known.find(letter) != std::string_view::npos || letter == ' ' || letter == '\t')
                continue;
            ExposedQif module(c.section);
            const std::string line = std::string(1, letter) + "value";
            EXPECT_TRUE(module.parseAcountItem(line.c_str())) << code;
            EXPECT_EQ(module.getErrorMsg(), unknownEntry(line)) << code;
            expectNothing(module.m_currentDataSet, line);
            EXPECT_FALSE(module.m_atRecordStart) << code;
            ++unknown;
        }
        EXPECT_EQ(unknown, 255 - 2 - static_cast<int>(c.known.size()));
    }
}

TEST_F(QifRecords, LowerCaseLettersAreUnknown) {
    ExposedQif module(Qif::Bank);
    EXPECT_TRUE(module.parseAcountItem("ppayee"));
    EXPECT_EQ(module.getErrorMsg(), unknownEntry("ppayee"));
}

TEST_F(QifRecords, UnknownEntryNamesTheCurrentLineAndShowsItUnstripped) {
    ExposedQif module(Qif::Bank);
    module.m_lineNo = 12;
    EXPECT_TRUE(module.parseAcountItem("  Zett \t "));
    module.m_lineNo = 1234;
    EXPECT_TRUE(module.parseAcountItem("X"));
    EXPECT_STREQ(module.getErrorMsg(), "(Zeile  12):Unbekannter Eintrag:  Zett \t  wird ignoriert\r\n"
                                       "(Zeile 1234):Unbekannter Eintrag:X wird ignoriert\r\n");
}

TEST_F(QifRecords, UnknownEntryOfAnyLengthIsShownWhole) {
    ExposedQif module(Qif::Bank);
    const std::string line = "Z" + std::string(4093, 'x');
    EXPECT_TRUE(module.parseAcountItem(line.c_str()));
    EXPECT_EQ(module.getErrorMsg(), unknownEntry(line));
}

TEST_F(QifRecords, LineThatIsEmptyAfterStrippingIsAnUnknownEntry) {
    for (const char* line : {"", " ", "\t", " \t "}) {
        for (const Qif::E_AccountType section : {Qif::Bank, Qif::Category}) {
            ExposedQif module(section);
            EXPECT_TRUE(module.parseAcountItem(line));
            EXPECT_EQ(module.getErrorMsg(), unknownEntry(line));
        }
    }
}

TEST_F(QifRecords, BlanksThenTabsAreStrippedOnceEach) {
    const struct {
        const char* line;
        const char* payee;
        const char* why;
    } cases[] = {
        {"  Pshop  ", "shop", "blanks around"},
        {"\tPshop\t", "shop", "tabs around"},
        {" \tPshop\t ", "shop", "blanks outside, tabs inside"},
        {"P  the  shop", "  the  shop", "behind the letter nothing is trimmed"},
        {"Pshop \t", "shop ", "the blank inside the tab stays"},
        {"P\t", "", "tabs alone are no value"},
    };
    for (const auto& c : cases) {
        ExposedQif module(Qif::Bank);
        EXPECT_TRUE(module.parseAcountItem(c.line)) << c.why;
        EXPECT_EQ(module.m_currentDataSet.m_payee, c.payee) << c.why;
        EXPECT_STREQ(module.getErrorMsg(), "") << c.why;
    }
}

TEST_F(QifRecords, BlankInsideATabHidesTheLetter) {
    ExposedQif module(Qif::Bank);
    EXPECT_TRUE(module.parseAcountItem("\t Pshop"));
    EXPECT_EQ(module.getErrorMsg(), unknownEntry("\t Pshop"));
    expectNothing(module.m_currentDataSet, "the line is unknown");
}

TEST_F(QifRecords, LetterAloneIsAnEmptyValue) {
    ExposedQif module(Qif::Bank);
    ASSERT_TRUE(module.read({"Pshop", "P"}));
    EXPECT_EQ(module.m_currentDataSet.m_payee, "");
}

TEST_F(QifRecords, LaterLineOfAFieldWins) {
    ExposedQif module(Qif::Bank);
    ASSERT_TRUE(module.read({"T1", "T2", "Pone", "Ptwo", "D1.2.04", "D3.4.05"}));
    EXPECT_EQ(module.m_currentDataSet.m_amount, "2");
    EXPECT_EQ(module.m_currentDataSet.m_payee, "two");
    EXPECT_EQ(module.m_currentDataSet.m_date.asString(), "03.04.2005");
    EXPECT_STREQ(module.getErrorMsg(), "");
}

TEST_F(QifRecords, BothAmountLettersFillOneFieldAndTheLaterWins) {
    ExposedQif first(Qif::Bank);
    ASSERT_TRUE(first.read({"T1", "U2"}));
    EXPECT_EQ(first.m_currentDataSet.m_amount, "2");
    ExposedQif second(Qif::Bank);
    ASSERT_TRUE(second.read({"U2", "T1"}));
    EXPECT_EQ(second.m_currentDataSet.m_amount, "1");
}

TEST_F(QifRecords, DateIsReadInQifSyntax) {
    const struct {
        const char* line;
        const char* date;
    } cases[] = {
        {"D1/5'98", "01.05.2098"},   {"D1/5'05", "01.05.2005"},     {"D1/5' 5", "01.05.2005"},
        {"D 1/ 5/98", "01.05.1998"}, {"D31.12.2004", "31.12.2004"}, {"D31-12-30", "31.12.2030"},
        {"D31/12/31", "31.12.1931"}, {"D1.2.0098", "01.02.0098"},   {"D01.02.", "01.02.2000"},
        {"D1'5'98", "01.05.2098"},   {"D1'5/98", "01.05.1998"},
    };
    for (const auto& c : cases) {
        SmartDate::sm_order = 0;
        ExposedQif module(Qif::Bank);
        EXPECT_TRUE(module.parseAcountItem(c.line)) << c.line;
        EXPECT_EQ(module.m_currentDataSet.m_date.asString(), c.date) << c.line;
    }
}

TEST_F(QifRecords, ApostropheOfAnEarlierDateLineOfTheRecordStillCounts) {
    // The later line is read into the same date without clearing it first.
    ExposedQif module(Qif::Bank);
    ASSERT_TRUE(module.read({"D1/5'98", "D1/5/97"}));
    EXPECT_EQ(module.m_currentDataSet.m_date.asString(), "01.05.2097");
    ASSERT_TRUE(module.read({"^", "D1/5/97"}));
    EXPECT_EQ(module.m_currentDataSet.m_date.asString(), "01.05.1997") << "the end of the record clears it";
}

TEST_F(QifRecords, BadDateIsReportedAndRejectsTheLine) {
    for (const char* line : {"D", "D ", "Dtomorrow", "D30.02.2004", "D01.02", "D20040101", "D45.01.04", "D0.1.04"}) {
        SmartDate::sm_order = 0;
        ExposedQif module(Qif::Bank);
        ASSERT_TRUE(module.read({"Pshop", "T1"}));
        EXPECT_FALSE(module.parseAcountItem(line)) << line;
        EXPECT_STREQ(module.getErrorMsg(), kBadDateOfRecord) << line;
        EXPECT_FALSE(module.m_atRecordStart) << line;
        EXPECT_EQ(module.m_currentDataSet.m_payee, "shop") << "the record is left as it was";
        EXPECT_EQ(module.m_currentDataSet.m_amount, "1") << "the record is left as it was";
        EXPECT_TRUE(module.m_dataSets.empty()) << line;
    }
}

TEST_F(QifRecords, DateThatContradictsTheOrderLearnedIsBad) {
    ExposedQif module(Qif::Bank);
    ASSERT_TRUE(module.read({"D12/31/04", "^"}));
    EXPECT_FALSE(module.parseAcountItem("D31/12/04"));
    EXPECT_STREQ(module.getErrorMsg(), kBadDateOfRecord);
}

TEST_F(QifRecords, OnlyTheEndOfARecordIsARecordBoundary) {
    for (const Qif::E_AccountType section : {Qif::Bank, Qif::Category}) {
        ExposedQif module(section);
        for (const char* line : {"Nname", "Zunknown", "E", "D1.2.04"}) {
            module.m_atRecordStart = true;
            EXPECT_TRUE(module.parseAcountItem(line)) << line;
            EXPECT_FALSE(module.m_atRecordStart) << line;
        }
        EXPECT_TRUE(module.parseAcountItem("^"));
        EXPECT_TRUE(module.m_atRecordStart);
    }
    ExposedQif module(Qif::Bank);
    module.m_atRecordStart = true;
    EXPECT_FALSE(module.parseAcountItem("Dbad"));
    EXPECT_FALSE(module.m_atRecordStart) << "a bad date ends it, too";
}

TEST_F(QifRecords, EndOfARecordCollectsItAndKeepsTheLabelAlone) {
    ExposedQif module(Qif::Bank);
    ASSERT_TRUE(module.read({"D1/5'98", "T1", "P2", "M3", "N4", "L5", "Y6", "Q7", "I8", "O9"}));
    module.m_currentDataSet.m_budgetSum = 10.5;
    ASSERT_TRUE(module.parseAcountItem("^"));
    ASSERT_EQ(module.m_dataSets.size(), 1U);
    EXPECT_EQ(module.m_dataSets.front().m_payee, "2");
    EXPECT_EQ(module.m_dataSets.front().m_date.asString(), "01.05.2098");
    expectNothing(module.m_currentDataSet, "after the end");
    EXPECT_EQ(module.m_currentDataSet.m_date.asString(), "00.00.0000");
    EXPECT_EQ(module.m_currentDataSet.m_budgetSum, 0.0);
    EXPECT_TRUE(SmartDate::m_useQIFSyntax) << "the date is cleared, not made anew";
}

TEST_F(QifRecords, TextBehindTheEndOfARecordIsNotRead) {
    ExposedQif module(Qif::Bank);
    EXPECT_TRUE(module.parseAcountItem(" ^ end "));
    EXPECT_EQ(module.m_dataSets.size(), 1U);
    EXPECT_TRUE(module.m_atRecordStart);
    EXPECT_STREQ(module.getErrorMsg(), "");
}

TEST_F(QifRecords, EndWithoutFieldsCollectsARecordOfItsLabel) {
    ExposedQif module(Qif::Bank);
    ASSERT_TRUE(module.parseAcountItem("^"));
    ASSERT_EQ(module.m_dataSets.size(), 1U);
    expectNothing(module.m_dataSets.front(), "no fields");
}

TEST_F(QifRecords, RecordKeepsItsTextsAsTheyStand) {
    ExposedQif module;
    ASSERT_TRUE(module.parseHeader("!Type:Bank"));
    ASSERT_TRUE(module.read({"D31.12.04", "T-1,234.56", "PShop", "LFood:Groceries", "^"}));
    ASSERT_EQ(module.m_dataSets.size(), 1U);
    const QifRecord& record = module.m_dataSets.front();
    EXPECT_EQ(record.m_sectionLabel, "Bankkonten");
    EXPECT_EQ(record.m_amount, "-1,234.56") << "commas included";
    EXPECT_EQ(record.m_payee, "Shop");
    EXPECT_EQ(record.m_category, "Food:Groceries");
}

TEST_F(QifRecords, SplitLinesLeaveTotalAndCategory) {
    ExposedQif module(Qif::Bank);
    ASSERT_TRUE(module.read({"T-100", "LTotal", "SFood", "Ebread", "$-60", "%60", "SFun", "$-40", "%40", "^"}));
    ASSERT_EQ(module.m_dataSets.size(), 1U);
    EXPECT_EQ(module.m_dataSets.front().m_amount, "-100");
    EXPECT_EQ(module.m_dataSets.front().m_category, "Total");
    EXPECT_EQ(module.m_dataSets.front().m_memo, "");
    EXPECT_STREQ(module.getErrorMsg(), "");
}

TEST_F(QifRecords, RecordWithoutALabelIsNoValidRecord) {
    ExposedQif module;
    module.m_accountType = Qif::Bank;
    ASSERT_TRUE(module.parseAcountItem("Pshop"));
    EXPECT_FALSE(module.parseAcountItem("^"));
    EXPECT_STREQ(module.getErrorMsg(), kBadRecord);
    EXPECT_TRUE(module.m_dataSets.empty());
    EXPECT_EQ(module.m_currentDataSet.m_payee, "") << "emptied like any other";
    EXPECT_TRUE(module.m_atRecordStart);
}

TEST_F(QifRecords, RecordsAreCollectedInTheOrderOfTheirEnds) {
    ExposedQif module(Qif::Bank);
    ASSERT_TRUE(module.read({"Pone", "^", "Ptwo", "^", "Pthree", "^"}));
    std::vector<std::string> payees;
    for (const QifRecord& record : module.m_dataSets)
        payees.push_back(record.m_payee);
    EXPECT_EQ(payees, (std::vector<std::string>{"one", "two", "three"}));
}

} // namespace
