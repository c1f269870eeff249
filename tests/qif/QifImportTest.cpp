// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qif/ImportModuleQIF.h"
#include "support/TextImport.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kNoQif = "Keine g\xFCltige QIF-Datei";
constexpr const char* kBadDate = "Ung\xFCltiges Datumsformat";

/// Every test runs through the module and through the front door.
class QifImport : public TextImport<ImportModuleQIF> {
protected:
    TextImportResult import(std::string_view bytes) const { return TextImport::import(bytes, m_model); }
    std::vector<ImportedRecord> records() const { return importedRecords(m_model); }

    FinanceModel m_model;
};

INSTANTIATE_TEST_SUITE_P(, QifImport, testing::Values(ImportWay::module, ImportWay::frontDoor), nameOf);

// The start of a file

TEST_P(QifImport, EmptyFileImportsNothing) {
    const TextImportResult run = import("");
    EXPECT_EQ(run.result, 1);
    EXPECT_EQ(run.errorText, "");
    EXPECT_EQ(run.importedCount, 0);
    EXPECT_THAT(records(), IsEmpty());
    EXPECT_EQ(m_model.rows("Importsessions"), 0);
}

TEST_P(QifImport, EmptyFileStillShowsItsColumns) {
    const TextImportResult run = preview("");
    EXPECT_EQ(run.result, 2);
    EXPECT_THAT(run.preview.header, ElementsAre("Kategorie", "Verwendungszweck", "Datum", "Betrag", "Empfaenger",
                                                "Unterkategorie", "Buchungstext"));
    EXPECT_THAT(run.preview.rows, IsEmpty());
}

TEST_P(QifImport, FileMustBeginWithAKnownHeader) {
    const std::pair<const char*, const char*> cases[] = {
        {"D1.5.98\nT1\n^\n", "a record"},
        {"!Type:Prices\n\"X\",1,\"1.5.98\"\n^\n", "a section that is not known"},
        {"!type:bank\nT1\n^\n", "lower case"},
        {"!Type:Bank extra\nT1\n^\n", "a header with further text"},
        {"\xEF\xBB\xBF!Type:Bank\nT1\n^\n", "a byte-order mark"},
        {"Datum;Betrag\n1.5.98;1\n", "another format"},
        {"\r\n!Type:Bank\nT1\n^\n", "a line that holds a carriage return is not empty"},
        {"\t !Type:Bank\nT1\n^\n", "a blank inside a tab"},
    };
    for (const auto& [text, why] : cases) {
        const TextImportResult run = import(text);
        EXPECT_EQ(run.result, 0) << why;
        EXPECT_EQ(run.errorText, std::string("(Zeile   1):") + kNoQif) << why;
        EXPECT_EQ(run.importedCount, 0) << why;
    }
    EXPECT_THAT(records(), IsEmpty());
}

TEST_P(QifImport, FileWithCarriageReturnsFailsAtItsFirstLine) {
    const TextImportResult run = import("!Type:Bank\r\nD1.5.98\r\nT1\r\n^\r\n");
    EXPECT_EQ(run.result, 0);
    EXPECT_EQ(run.errorText, std::string("(Zeile   1):") + kNoQif);
    EXPECT_THAT(records(), IsEmpty());
}

TEST_P(QifImport, EmptyLinesAheadOfTheFirstHeaderAreHarmless) {
    EXPECT_EQ(import("\n \t \n!Type:Bank\nT1\n^\n").result, 1);
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Bankkonten", .amount = "1,00"}));
}

TEST_P(QifImport, EmptyLinesCountInMessages) {
    EXPECT_EQ(import("\n \nT1\n").errorText, std::string("(Zeile   3):") + kNoQif);
}

TEST_P(QifImport, HeaderMayStandBetweenBlanksAndTabs) {
    EXPECT_EQ(import(" \t!Type:Cash\t \nT1\n^\n").result, 1);
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Bargeldkonten", .amount = "1,00"}));
}

// Sections

TEST_P(QifImport, RecordsCarryTheLabelOfTheirSection) {
    const std::pair<const char*, const char*> sections[] = {
        {"!Type:Bank", "Bankkonten"},          {"!Type:Cash", "Bargeldkonten"},
        {"!Type:CCard", "Kreditkartenkonten"}, {"!Type:Invst", "Wertpapierkonten"},
        {"!Type:Oth A", "Verm\xF6genskonten"}, {"!Type:Oth L", "Verbindlichkeitskonten"},
        {"!Type:Invoice", "Rechnungskonten"},  {"!Type:Tax", "Steuerkonten"},
        {"!Type:Bill", "Belegkonten"},
    };
    for (const auto& [header, label] : sections) {
        const FinanceModel model;
        const TextImportResult run = TextImport::import(header + std::string("\nD31.12.04\nT1\n^\n"), model);
        EXPECT_EQ(run.result, 1) << header;
        EXPECT_EQ(run.errorText, "") << header;
        EXPECT_THAT(importedRecords(model),
                    ElementsAre(ImportedRecord{.category = label, .date = "31.12.2004", .amount = "1,00"}))
            << header;
    }
}

TEST_P(QifImport, CategoryListIsReadWithMeaningsOfItsOwn) {
    EXPECT_EQ(import("!Type:Cat\nNMiete\nDWohnung\nE\nB650\nB-50\n^\n").errorText, "");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Andere Einnahmen/Ausgaben",
                                                      .purpose = "Wohnung",
                                                      .amount = "600,00",
                                                      .subcategory = "Miete",
                                                      .postingText = "Summe aus:650,00-50,00"}));
}

TEST_P(QifImport, IgnoredSectionsContributeNoRecords) {
    for (const char* header :
         {"!Type:Class", "!Type:Memorized", "!Account", "!Option:AutoSwitch", "!Clear:AutoSwitch"}) {
        const FinanceModel model;
        const TextImportResult run = TextImport::import(header + std::string("\nNname\nT1\nDno date\nZ\n^\n"), model);
        EXPECT_EQ(run.result, 1) << header;
        EXPECT_EQ(run.errorText, "") << header;
        EXPECT_EQ(run.importedCount, 0) << header;
        EXPECT_THAT(importedRecords(model), IsEmpty()) << header;
    }
}

TEST_P(QifImport, SectionsFollowEachOther) {
    EXPECT_EQ(import("!Type:Bank\nT1\n^\nT2\n^\n!Type:CCard\nT3\n^\n!Type:Cat\nNx\nB4\n^\n").errorText, "");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Bankkonten", .amount = "1,00"},
                                       ImportedRecord{.category = "Bankkonten", .amount = "2,00"},
                                       ImportedRecord{.category = "Kreditkartenkonten", .amount = "3,00"},
                                       ImportedRecord{.category = "Andere Einnahmen/Ausgaben",
                                                      .amount = "4,00",
                                                      .subcategory = "x",
                                                      .postingText = "Summe aus:4,00"}));
}

TEST_P(QifImport, OfTwoHeadersInARowTheSecondHolds) {
    EXPECT_EQ(import("!Option:AutoSwitch\n!Type:Bank\n!Type:Cash\nT1\n^\n").errorText, "");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Bargeldkonten", .amount = "1,00"}));
}

TEST_P(QifImport, UnknownHeaderBehindARecordIsAnUnknownEntryAndItsLinesAreRead) {
    const TextImportResult run = import("!Type:Bank\nT1\n^\n!Type:Prices\nT2\n^\n");
    EXPECT_EQ(run.result, 1);
    EXPECT_EQ(run.errorText, "(Zeile   4):Unbekannter Eintrag:!Type:Prices wird ignoriert\r\n");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Bankkonten", .amount = "1,00"},
                                       ImportedRecord{.category = "Bankkonten", .amount = "2,00"}));
}

TEST_P(QifImport, HeaderWithinARecordIsAnUnknownEntry) {
    const TextImportResult run = import("!Type:Bank\nT1\n!Type:CCard\nPshop\n^\n");
    EXPECT_EQ(run.errorText, "(Zeile   3):Unbekannter Eintrag:!Type:CCard wird ignoriert\r\n");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Bankkonten", .amount = "1,00", .payee = "shop"}));
}

TEST_P(QifImport, AccountListAheadOfABankSectionIsSkipped) {
    const TextImportResult run = import("!Account\nNGiro\nTBank\nDhouse bank\n^\n!Type:Bank\nN7\nT1\n^\n");
    EXPECT_EQ(run.errorText, "");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Bankkonten", .amount = "1,00", .postingText = "7"}));
}

TEST_P(QifImport, ClassListBetweenSectionsIsSkipped) {
    EXPECT_EQ(import("!Type:Bank\nT1\n^\n!Type:Class\nNclass\nDtext\n^\n!Type:Bank\nNown\nT2\n^\n").errorText, "");
    EXPECT_THAT(records(),
                ElementsAre(ImportedRecord{.category = "Bankkonten", .amount = "1,00"},
                            ImportedRecord{.category = "Bankkonten", .amount = "2,00", .postingText = "own"}));
}

// What ignored sections leave behind: the first line behind the header or a "^"
// is read like any other, and their "^" empties nothing.

TEST_P(QifImport, FirstLineOfAnIgnoredRecordReachesTheNextRecord) {
    EXPECT_EQ(import("!Account\nNGiro\nTBank\n^\n!Type:Bank\nT1\n^\nT2\n^\n").errorText, "");
    EXPECT_THAT(records(),
                ElementsAre(ImportedRecord{.category = "Bankkonten", .amount = "1,00", .postingText = "Giro"},
                            ImportedRecord{.category = "Bankkonten", .amount = "2,00"}));
}

TEST_P(QifImport, OfSeveralIgnoredRecordsTheLastFirstLineStays) {
    EXPECT_EQ(import("!Account\nNGiro\nTBank\n^\nNDepot\nTInvst\n^\n!Type:Bank\nT1\n^\n").errorText, "");
    EXPECT_THAT(records(),
                ElementsAre(ImportedRecord{.category = "Bankkonten", .amount = "1,00", .postingText = "Depot"}));
}

TEST_P(QifImport, SecondLineOfAnIgnoredRecordIsNotRead) {
    EXPECT_EQ(import("!Type:Memorized\nT9\nPnobody\nDnever\n^\n!Type:Bank\nD31.12.04\n^\n").errorText, "");
    EXPECT_THAT(records(),
                ElementsAre(ImportedRecord{.category = "Bankkonten", .date = "31.12.2004", .amount = "9,00"}));
}

TEST_P(QifImport, FirstLineOfAnIgnoredRecordCanEndTheRun) {
    const TextImportResult run = import("!Type:Bank\nT1\n^\n!Type:Class\nDno date\nNname\n^\n");
    EXPECT_EQ(run.result, 0);
    EXPECT_EQ(run.errorText, std::string("(Zeile   5):") + kBadDate);
    EXPECT_THAT(records(), IsEmpty());
}

TEST_P(QifImport, FirstLineOfAnIgnoredRecordCanBeUnknown) {
    const TextImportResult run = import("!Type:Memorized\nKD\nT9\n^\n!Type:Bank\nT1\n^\n");
    EXPECT_EQ(run.errorText, "(Zeile   2):Unbekannter Eintrag:KD wird ignoriert\r\n");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Bankkonten", .amount = "1,00"}));
}

TEST_P(QifImport, EndOfARecordRightBehindAnIgnoredHeaderIsARecord) {
    EXPECT_EQ(import("!Account\n^\n").importedCount, 1);
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Account", .amount = "0,00"}));
}

TEST_P(QifImport, SecondEndInARowOfAnIgnoredSectionIsARecordOfWhatWasLeft) {
    EXPECT_EQ(import("!Account\nNGiro\nTBank\n^\n^\n!Type:Bank\nT1\n^\n").importedCount, 2);
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Account", .amount = "0,00", .postingText = "Giro"},
                                       ImportedRecord{.category = "Bankkonten", .amount = "1,00"}));
}

TEST_P(QifImport, EndOfAnIgnoredRecordIsFoundBetweenBlanksAndTabs) {
    EXPECT_EQ(import("!Account\nNGiro\nTBank\n \t^ \n!Type:Bank\nT1\n^\n").errorText, "");
    EXPECT_THAT(records(),
                ElementsAre(ImportedRecord{.category = "Bankkonten", .amount = "1,00", .postingText = "Giro"}));
}

TEST_P(QifImport, HeaderWithinAnIgnoredRecordIsSkippedToo) {
    EXPECT_EQ(import("!Account\nNGiro\n!Type:Bank\nT1\n^\n").errorText, "");
    EXPECT_THAT(records(), IsEmpty());
}

TEST_P(QifImport, NumberLeftByAnAccountListStandsAheadOfABudget) {
    EXPECT_EQ(import("!Account\nNGiro\n^\n!Type:Cat\nNMiete\nB5\n^\n").errorText, "");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Andere Einnahmen/Ausgaben",
                                                      .amount = "5,00",
                                                      .subcategory = "Miete",
                                                      .postingText = "Giro + 5,00"}));
}

TEST_P(QifImport, DateLeftByAnIgnoredSectionReachesACategory) {
    EXPECT_EQ(import("!Type:Memorized\nD31.12.04\n^\n!Type:Cat\nNMiete\nB5\n^\n").errorText, "");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Andere Einnahmen/Ausgaben",
                                                      .date = "31.12.2004",
                                                      .amount = "5,00",
                                                      .subcategory = "Miete",
                                                      .postingText = "Summe aus:5,00"}));
}

// Records

TEST_P(QifImport, FieldsLandInTheirColumns) {
    EXPECT_EQ(import("!Type:Bank\nD31.12.04\nT-1,234.56\nN42\nPShop\nMmemo\nLFood:Groceries\nCX\nAroad\n^\n").errorText,
              "");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Bankkonten",
                                                      .purpose = "memo",
                                                      .date = "31.12.2004",
                                                      .amount = "-1.234,56",
                                                      .payee = "Shop",
                                                      .subcategory = "Food:Groceries",
                                                      .postingText = "42"}));
}

TEST_P(QifImport, EndWithoutFieldsIsARecord) {
    EXPECT_EQ(import("!Type:Bank\n^\n^\n").importedCount, 2);
    const ImportedRecord empty{.category = "Bankkonten", .amount = "0,00"};
    EXPECT_THAT(records(), ElementsAre(empty, empty));
}

TEST_P(QifImport, SplitsLeaveTheTotal) {
    EXPECT_EQ(import("!Type:Bank\nT-100\nLTotal\nSFood\nEbread\n$-60\n%60\nSFun\n$-40\n^\n").errorText, "");
    EXPECT_THAT(records(),
                ElementsAre(ImportedRecord{.category = "Bankkonten", .amount = "-100,00", .subcategory = "Total"}));
}

TEST_P(QifImport, InvestmentWithoutAMemoIsDescribed) {
    EXPECT_EQ(import("!Type:Invst\nNKauf\nYMuster AG\nQ10\nI12.50\nO4.90\nT129.90\n^\n").errorText, "");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Wertpapierkonten",
                                                      .purpose = "Muster AG   10 St\xFC"
                                                                 "ck  a 12.50  Nebenkosten: 4.90",
                                                      .amount = "129,90",
                                                      .postingText = "Kauf"}));
}

TEST_P(QifImport, CategoryWithoutABudgetIsDroppedSilently) {
    const TextImportResult run = import("!Type:Cat\nNMiete\nDWohnung\nE\n^\nNKino\nB5\n^\n");
    EXPECT_EQ(run.errorText, "");
    EXPECT_EQ(run.importedCount, 1);
}

TEST_P(QifImport, UnknownEntryDoesNotStopTheRun) {
    const TextImportResult run = import("!Type:Bank\nXtra \nT1\n^\nT2\nzz\n^\n");
    EXPECT_EQ(run.result, 1);
    EXPECT_EQ(run.importedCount, 2);
    EXPECT_EQ(run.errorText, "(Zeile   2):Unbekannter Eintrag:Xtra  wird ignoriert\r\n"
                             "(Zeile   6):Unbekannter Eintrag:zz wird ignoriert\r\n");
}

TEST_P(QifImport, AmountsAreReadAsEveryOtherFormatReadsThem) {
    const std::pair<const char*, const char*> amounts[] = {
        {"T-1,234.56", "-1.234,56"}, {"T12,50", "12,50"},  {"T1.234", "1,23"}, {"T$5", "5,00"},
        {"Tnone", "0,00"},           {"T12.50-", "12,50"}, {"U7", "7,00"},     {"T", "0,00"},
    };
    for (const auto& [line, shown] : amounts) {
        const FinanceModel model;
        TextImport::import(std::string("!Type:Bank\n") + line + "\n^\n", model);
        EXPECT_THAT(importedRecords(model), ElementsAre(ImportedRecord{.category = "Bankkonten", .amount = shown}))
            << line;
    }
}

TEST_P(QifImport, LastRecordWithoutItsEndIsDropped) {
    const TextImportResult run = import("!Type:Bank\nT1\n^\nT2\n");
    EXPECT_EQ(run.result, 1);
    EXPECT_EQ(run.errorText, "");
    EXPECT_EQ(run.importedCount, 1);
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Bankkonten", .amount = "1,00"}));
}

TEST_P(QifImport, LastLineNeedsNoLineFeed) { EXPECT_EQ(import("!Type:Bank\nT1\n^").importedCount, 1); }

TEST_P(QifImport, EmptyLinesWithinRecordsAreSkipped) {
    EXPECT_EQ(import("!Type:Bank\n\nT1\n \t\nPshop\n\n^\n\n!Type:Cash\n\nT2\n^\n").errorText, "");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Bankkonten", .amount = "1,00", .payee = "shop"},
                                       ImportedRecord{.category = "Bargeldkonten", .amount = "2,00"}));
}

// Dates

TEST_P(QifImport, ApostropheYearsLieInTheTwoThousands) {
    EXPECT_EQ(import("!Type:Bank\nD1/5'98\n^\nD1/5/98\n^\nD1/5' 4\n^\n").errorText, "");
    EXPECT_THAT(records(),
                ElementsAre(ImportedRecord{.category = "Bankkonten", .date = "01.05.2098", .amount = "0,00"},
                            ImportedRecord{.category = "Bankkonten", .date = "01.05.1998", .amount = "0,00"},
                            ImportedRecord{.category = "Bankkonten", .date = "01.05.2004", .amount = "0,00"}));
}

TEST_P(QifImport, DateOrderLearnedLateHoldsForTheWholeFile) {
    EXPECT_EQ(import("!Type:Bank\nD1/2/04\n^\nD12/31/04\n^\n").errorText, "");
    EXPECT_THAT(records(),
                ElementsAre(ImportedRecord{.category = "Bankkonten", .date = "02.01.2004", .amount = "0,00"},
                            ImportedRecord{.category = "Bankkonten", .date = "31.12.2004", .amount = "0,00"}));
}

TEST_P(QifImport, YearOfFourDigitsIsKept) {
    EXPECT_EQ(import("!Type:Bank\nD1.2.0098\n^\n").errorText, "");
    EXPECT_THAT(records(),
                ElementsAre(ImportedRecord{.category = "Bankkonten", .date = "01.02.0098", .amount = "0,00"}));
}

TEST_P(QifImport, BadDateLeavesNothingOfTheFile) {
    const TextImportResult run = import("!Type:Bank\nD31.12.04\nT1\n^\nD30.2.04\nT2\n^\n");
    EXPECT_EQ(run.result, 0);
    EXPECT_EQ(run.errorText, std::string("(Zeile   5):") + kBadDate);
    EXPECT_EQ(run.importedCount, 0);
    EXPECT_THAT(records(), IsEmpty());
    EXPECT_EQ(m_model.rows("Importsessions"), 0);
    EXPECT_EQ(m_model.integer("NextImportID"), 1);
}

TEST_P(QifImport, BadDateShowsNothingOfTheFile) {
    const TextImportResult run = preview("!Type:Bank\nT1\n^\nDnever\n^\n");
    EXPECT_EQ(run.result, 0);
    EXPECT_THAT(run.preview.header, IsEmpty());
    EXPECT_THAT(run.preview.rows, IsEmpty());
}

TEST_P(QifImport, DateThatContradictsTheOrderLearnedEndsTheRun) {
    EXPECT_EQ(import("!Type:Bank\nD31.12.04\n^\nD12.31.04\n^\n").errorText, std::string("(Zeile   4):") + kBadDate);
}

// Writing

TEST_P(QifImport, PreviewHasAHeaderAndARowForEachRecord) {
    const TextImportResult run = preview("!Type:Bank\nD31.12.04\nT-1,234.56\nN42\nPShop\nMmemo\nLFood\n^\nT2\n^\n");
    EXPECT_EQ(run.result, 2);
    EXPECT_EQ(run.importedCount, 2);
    EXPECT_EQ(run.errorText, "");
    EXPECT_THAT(run.preview.header, ElementsAre("Kategorie", "Verwendungszweck", "Datum", "Betrag", "Empfaenger",
                                                "Unterkategorie", "Buchungstext"));
    EXPECT_THAT(run.preview.rows,
                ElementsAre(ElementsAre("Bankkonten", "memo", "31.12.2004", "-1.234,56", "Shop", "Food", "42"),
                            ElementsAre("Bankkonten", "", "", "2,00", "", "", "")));
}

TEST_P(QifImport, PreviewWritesNothing) {
    EXPECT_EQ(preview("!Type:Bank\nT1\n^\n", m_model).result, 2);
    EXPECT_THAT(records(), IsEmpty());
    EXPECT_EQ(m_model.integer("NextImportID"), 1);
    EXPECT_EQ(m_model.integer("NextUniqueID"), 1);
    EXPECT_EQ(m_model.rows("Importsessions"), 0);
    EXPECT_EQ(m_model.kind("LetztesImportDatum"), DataType::eEmpty);
    EXPECT_EQ(m_model.kind("NeueDatenVorhanden"), DataType::eEmpty);
}

TEST_P(QifImport, RecordsCarryTheSessionAndIdentifiersOfTheirOwn) {
    m_model.set("NextImportID", DataType::makeInteger(5));
    m_model.set("NextUniqueID", DataType::makeInteger(17));
    EXPECT_EQ(import("!Type:Bank\nT1\n^\nT2\n^\n").sessionId, 5);
    EXPECT_EQ(m_model.integer("DataSets/1/ImportID"), 5);
    EXPECT_EQ(m_model.integer("DataSets/2/ImportID"), 5);
    EXPECT_EQ(m_model.integer("DataSets/1/UniqueID"), 17);
    EXPECT_EQ(m_model.integer("DataSets/2/UniqueID"), 18);
    EXPECT_EQ(m_model.integer("NextUniqueID"), 19);
    EXPECT_EQ(m_model.integer("NextImportID"), 6);
    EXPECT_EQ(m_model.rows("Importsessions"), 1);
    EXPECT_EQ(m_model.text("NeueDatenVorhanden"), "Ja");
}

TEST_P(QifImport, RefusedValueEndsTheWritingAndTheResultStays) {
    const TextImportResult run = import("!Type:Bank\nT1\n^\nT99999999999999\nPrich\n^\nT3\n^\n");
    EXPECT_EQ(run.result, 1);
    EXPECT_EQ(run.importedCount, 1);
    EXPECT_EQ(run.errorText, "Fehler beim Analysieren der Daten aus der XML-Datei.<br>"
                             "Zeile 3: 99999999999999<br>")
        << "the header row and the first record count";
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Bankkonten", .amount = "1,00"}));
}

TEST_P(QifImport, RefusedValueBehindAnUnknownEntryGetsNoHeading) {
    EXPECT_EQ(import("!Type:Bank\nXx\nT99999999999999\n^\n").errorText,
              "(Zeile   2):Unbekannter Eintrag:Xx wird ignoriert\r\nZeile 2: 99999999999999<br>");
}

TEST_P(QifImport, RefusedValueDoesNotStopAPreview) {
    const TextImportResult run = preview("!Type:Bank\nT1\n^\nT99999999999999\n^\nT3\n^\n");
    EXPECT_EQ(run.result, 2);
    EXPECT_EQ(run.importedCount, 3);
    EXPECT_THAT(run.preview.rows, ElementsAre(ElementsAre("Bankkonten", "", "", "1,00", "", "", ""),
                                              ElementsAre("Bankkonten", "", "", "", "", "", ""),
                                              ElementsAre("Bankkonten", "", "", "3,00", "", "", "")));
}

TEST_P(QifImport, BudgetOfThreeHundredDigitsIsRefusedSafely) {
    const std::string digits = "1" + std::string(299, '0');
    const TextImportResult run = import("!Type:Cat\nNMiete\nB" + digits + "\n^\n");
    EXPECT_EQ(run.result, 1);
    EXPECT_EQ(run.importedCount, 0);
    EXPECT_THAT(run.errorText, testing::StartsWith("Fehler beim Analysieren der Daten aus der XML-Datei.<br>"
                                                   "Zeile 2: 10000"));
    EXPECT_THAT(run.errorText, testing::EndsWith(".00<br>"));
    EXPECT_THAT(records(), IsEmpty());
}

TEST_P(QifImport, AmountOfFourThousandDigitsIsRefusedSafely) {
    const std::string digits(4000, '9');
    const TextImportResult run = import("!Type:Bank\nT" + digits + "\n^\n");
    EXPECT_EQ(run.result, 1);
    EXPECT_EQ(run.importedCount, 0);
    EXPECT_EQ(run.errorText.size(),
              std::string("Fehler beim Analysieren der Daten aus der XML-Datei.<br>").size() + 497)
        << "the message of a value is cut at 497 characters";
}

TEST_P(QifImport, ModelThatDemandsADateStopsAtTheFirstUndatedRecord) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.table("DataSets").field("Datum").takesZeroDate = false;
    const FinanceModel model(schema);
    const TextImportResult run = TextImport::import("!Type:Bank\nD31.12.04\n^\nT2\n^\nD31.12.04\n^\n", model);
    EXPECT_EQ(run.result, 1);
    EXPECT_EQ(run.importedCount, 1);
    EXPECT_EQ(run.errorText, "Fehler beim Analysieren der Daten aus der XML-Datei.<br>Zeile 3: 00.00.0000<br>");
    EXPECT_EQ(model.rows("DataSets"), 1);
}

TEST_P(QifImport, ModelWithoutAColumnTakesNoRecord) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.table("DataSets").without("Buchungstext");
    const FinanceModel model(schema);
    const TextImportResult run = TextImport::import("!Type:Bank\nT1\n^\nT2\n^\n", model);
    EXPECT_EQ(run.result, 1);
    EXPECT_EQ(run.importedCount, 0);
    EXPECT_EQ(run.errorText, "");
    EXPECT_EQ(model.rows("DataSets"), 1) << "the row that was begun stays, and no other is";
}

TEST_P(QifImport, RecordThatTakesNoIdentifierIsKeptAndNotCounted) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.table("DataSets").without("UniqueID");
    const FinanceModel model(schema);
    const TextImportResult run = TextImport::import("!Type:Bank\nT1\n^\nT2\n^\n", model);
    EXPECT_EQ(run.result, 1);
    EXPECT_EQ(run.importedCount, 0);
    EXPECT_EQ(model.rows("DataSets"), 2);
}

// Lines

TEST_P(QifImport, LineOf4094BytesIsRead) {
    const TextImportResult run = import("!Type:Bank\nP" + std::string(4093, 'x') + "\n^\n");
    EXPECT_EQ(run.errorText, "");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{
                               .category = "Bankkonten", .amount = "0,00", .payee = std::string(4093, 'x')}));
}

TEST_P(QifImport, LineOf4095BytesEndsTheRunAndNothingIsWritten) {
    const TextImportResult run = import("!Type:Bank\nT1\n^\nP" + std::string(4094, 'x') + "\n^\n");
    EXPECT_EQ(run.result, 0);
    EXPECT_EQ(run.errorText, "(Zeile   4):Fehler beim Analysieren der Daten aus der XML-Datei.\n");
    EXPECT_THAT(records(), IsEmpty());
}

TEST_P(QifImport, ZeroByteEndsALine) {
    EXPECT_EQ(import(std::string_view("!Type:Bank\nPsh\0op\nT1\n^\n", 24)).errorText, "");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "Bankkonten", .amount = "1,00", .payee = "sh"}));
}

} // namespace
