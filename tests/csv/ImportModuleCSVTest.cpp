// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/ImportModuleCSV.h"

#include <climits>
#include <string>
#include <type_traits>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "csv/CsvImport.h"

namespace {

using namespace Import;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr ColumnAssignment kNameAmount = {{{0, eColEmpfaenger}, {1, eColBetrag}}, 2};
constexpr ColumnAssignment kNameDate = {{{0, eColEmpfaenger}, {1, eColDatum}}, 2};
constexpr ColumnAssignment kDateAmount = {{{0, eColDatum}, {1, eColBetrag}}, 2};

constexpr const char* kRefused = "Fehler beim Analysieren der Daten aus der XML-Datei.<br>";

// Real, without assignment

TEST(CsvWithoutAssignment, IsReadAndNotWritten) {
    CsvImport job;

    EXPECT_EQ(job.run("a;1\nb;2\n"), 3);

    EXPECT_EQ(job.model.rows("DataSets"), 0);
    EXPECT_EQ(job.model.rows("Importsessions"), 0);
    EXPECT_EQ(job.model.integer("NextImportID"), 1);
    EXPECT_EQ(job.model.integer("NextUniqueID"), 1);
    EXPECT_EQ(job.model.kind("NeueDatenVorhanden"), DataType::eEmpty);
    EXPECT_EQ(job.module.getLastImportedDataSetsCount(), 0);
    EXPECT_STREQ(job.module.getErrorMsg(), "");
}

TEST(CsvWithoutAssignment, AndWithoutARowYieldsThePlainResult) {
    EXPECT_EQ(CsvImport().run(""), 1);
    EXPECT_EQ(CsvImport().run("\n \t\n"), 1);
    EXPECT_EQ(CsvImport().simulated().run("\n"), 2);
}

TEST(CsvWithoutAssignment, FailsAsAnyOtherWhereALineIsTooLong) {
    CsvImport job;

    EXPECT_EQ(job.run("a\n" + std::string(4095, 'x') + "\n"), 0);
    EXPECT_STREQ(job.module.getErrorMsg(), "(Zeile   2):Fehler beim Analysieren der Daten aus der XML-Datei.\n");
}

// Simulated, without assignment

TEST(CsvPreviewWithoutAssignment, ShowsEveryColumnAsItStands) {
    CsvImport job;

    EXPECT_EQ(job.simulated().run("24.12.2025;\"Laden; M\xFCnchen\";-1.234,5\n1;;x\n"), 3);

    EXPECT_EQ(job.preview().getColumnCount(), 3);
    ASSERT_EQ(job.preview().getRowCount(), 2);
    EXPECT_FALSE(job.preview().hasHeader());
    EXPECT_THAT(job.previewRow(0), ElementsAre("24.12.2025", "Laden; M\xFCnchen", "-1.234,5"));
    EXPECT_THAT(job.previewRow(1), ElementsAre("1", "", "x"));
    EXPECT_EQ(job.model.rows("DataSets"), 0);
}

TEST(CsvPreviewWithoutAssignment, ShowsRowsOfDifferentWidth) {
    CsvImport job;
    job.simulated().run("a\nb;c;d\ne;f\n");

    ASSERT_EQ(job.preview().getRowCount(), 3);
    EXPECT_THAT(job.previewRow(0), ElementsAre("a", "", ""));
    EXPECT_THAT(job.previewRow(1), ElementsAre("b", "c", "d"));
    EXPECT_THAT(job.previewRow(2), ElementsAre("e", "f", ""));
}

TEST(CsvPreviewWithoutAssignment, ShowsTheHeaderApart) {
    CsvImport job;

    EXPECT_EQ(job.simulated().withHeader().run("Datum;Betrag\n24.12.2025;-1,5\n"), 3);

    EXPECT_TRUE(job.preview().hasHeader());
    EXPECT_THAT(job.previewHeader(), ElementsAre("Datum", "Betrag"));
    ASSERT_EQ(job.preview().getRowCount(), 1);
    EXPECT_THAT(job.previewRow(0), ElementsAre("24.12.2025", "-1,5"));
    EXPECT_EQ(job.module.getLastImportedDataSetsCount(), 1);
}

TEST(CsvPreviewWithoutAssignment, ShowsFortyNineOfSixtyColumns) {
    std::string line = "0";
    for (int i = 1; i < 60; ++i)
        line += ";" + std::to_string(i);
    CsvImport job;

    EXPECT_EQ(job.simulated().run(line + "\n"), 3);

    EXPECT_EQ(job.preview().getColumnCount(), 49);
    EXPECT_EQ(job.preview().getString(0, 48), "48");
    EXPECT_STREQ(job.module.getErrorMsg(), "");
}

TEST(CsvPreviewWithoutAssignment, StopsWhereTheTableTakesNoMoreHeader) {
    CsvImport job;
    job.simulated().withHeader();
    EXPECT_EQ(job.run("Datum;Betrag\n"), 3);

    // A module serves one import: its preview still holds the first header.
    EXPECT_EQ(job.run("Name;Zweck\nx;y\n"), 0);

    EXPECT_THAT(job.previewHeader(), ElementsAre("Datum", "Betrag"));
    EXPECT_STREQ(job.module.getErrorMsg(), "");
}

// Simulated, with an assignment

TEST(CsvPreview, ShowsAssignedColumnsAsTheHostWillDisplayThem) {
    CsvImport job;
    job.assign({{{0, eColDatum}, {2, eColBetrag}, {3, eColKategorie}}, 3});

    EXPECT_EQ(job.simulated().run("1.2.26;egal;1234,5 EUR;M\xF6"
                                  "bel\n"),
              2);

    EXPECT_EQ(job.preview().getColumnCount(), 4);
    ASSERT_EQ(job.preview().getRowCount(), 1);
    EXPECT_THAT(job.previewRow(0), ElementsAre("01.02.2026", "", "1.234,50",
                                               "M\xF6"
                                               "bel"));
    EXPECT_EQ(job.module.getLastImportedDataSetsCount(), 1);
}

TEST(CsvPreview, WritesNothing) {
    CsvImport job;
    job.assign(kNameAmount).simulated().run("a;1\nb;2\n");

    EXPECT_EQ(job.model.rows("DataSets"), 0);
    EXPECT_EQ(job.model.rows("Importsessions"), 0);
    EXPECT_EQ(job.model.integer("NextImportID"), 1);
    EXPECT_EQ(job.model.integer("NextUniqueID"), 1);
    EXPECT_EQ(job.model.kind("LetztesImportDatum"), DataType::eEmpty);
    EXPECT_EQ(job.model.kind("NeueDatenVorhanden"), DataType::eEmpty);
}

TEST(CsvPreview, ShowsTheHeaderOfAssignedColumnsAsItStands) {
    CsvImport job;
    job.assign(kDateAmount);

    EXPECT_EQ(job.simulated().withHeader().run("Buchung;Summe;Rest\n1.2.26;3;x\n"), 2);

    EXPECT_THAT(job.previewHeader(), ElementsAre("Buchung", "Summe", ""));
    ASSERT_EQ(job.preview().getRowCount(), 1);
    EXPECT_THAT(job.previewRow(0), ElementsAre("01.02.2026", "3,00", ""));
}

TEST(CsvPreview, ShowsAnAmountOutOfBoundsAsNothing) {
    CsvImport job;

    EXPECT_EQ(job.assign(kNameAmount).simulated().run("a;99999999999999,99\n"), 2);

    EXPECT_THAT(job.previewRow(0), ElementsAre("a", ""));
    EXPECT_STREQ(job.module.getErrorMsg(), "");
}

TEST(CsvPreview, ShowsATargetOfTwoColumnsWhereTheFirstPairStands) {
    CsvImport job;
    job.assign({{{0, eColEmpfaenger}, {2, eColEmpfaenger}}, 2});

    EXPECT_EQ(job.simulated().run("a;b;c\n"), 2);

    EXPECT_THAT(job.previewRow(0), ElementsAre("c", "", "")); // the later column of the file is written last
}

TEST(CsvPreview, GoesOnWhereACellLiesOutsideTheRow) {
    struct {
        ColumnAssignment assignment;
        const char* why;
    } const cases[] = {
        {{{{9, eColEmpfaenger}, {0, eColEmpfaenger}}, 2}, "beyond the row"},
        {{{{-1, eColEmpfaenger}, {0, eColEmpfaenger}}, 2}, "before it"},
        {{{{INT_MAX, eColEmpfaenger}, {0, eColEmpfaenger}}, 2}, "far beyond it"},
    };
    for (const auto& c : cases) {
        CsvImport job;
        EXPECT_EQ(job.assign(c.assignment).simulated().run("a;b\nc;d\n"), 2) << c.why;
        EXPECT_EQ(job.preview().getRowCount(), 2) << c.why;
        EXPECT_THAT(job.previewRow(0), ElementsAre("", "")) << c.why;
        EXPECT_EQ(job.module.getLastImportedDataSetsCount(), 2) << c.why;
    }
}

TEST(CsvPreview, GoesOnWhereACellLiesOutsideANarrowRowOfAWideTable) {
    CsvImport job;
    job.assign({{{2, eColEmpfaenger}, {0, eColEmpfaenger}}, 2});

    EXPECT_EQ(job.simulated().run("a\nb;c;d\n"), 2);

    EXPECT_THAT(job.previewRow(0), ElementsAre("", "", ""));
    EXPECT_THAT(job.previewRow(1), ElementsAre("", "", "d"));
}

// Delimiter detection

TEST(CsvDelimiter, IsFoundByASimulatedImportWhateverIsSet) {
    CsvImport job;
    job.module.m_delimiter = ',';
    job.simulated().run("a;b;c\nd;e;f\ng;h;i\n");

    EXPECT_EQ(job.module.getBestDelimiter(), ';');
}

TEST(CsvDelimiter, IsFoundWithAnAssignment) {
    CsvImport job;
    job.module.m_delimiter = '|';
    job.assign(kNameAmount).simulated().run("a#b\nc#d\n");

    EXPECT_EQ(job.module.getBestDelimiter(), '#');
}

TEST(CsvDelimiter, IsTheOneSetWhereNoneIsFound) {
    CsvImport job;
    job.module.m_delimiter = '|';
    job.simulated().run("a;b\nc\n");

    EXPECT_EQ(job.module.getBestDelimiter(), '|');
}

TEST(CsvDelimiter, IsTheOneSetAfterARealImport) {
    CsvImport job;
    job.module.m_delimiter = '|';
    job.run("a;b\nc;d\n");

    EXPECT_EQ(job.module.getBestDelimiter(), '|');
}

TEST(CsvDelimiter, IsACommaBeforeAnything) { EXPECT_EQ(ImportModuleCSV().getBestDelimiter(), ','); }

TEST(CsvDelimiter, IsJudgedOnALoneLastLine) {
    CsvImport job;
    job.module.m_delimiter = '|';
    job.simulated().run("a;b\nc;d\ne\n");

    EXPECT_EQ(job.module.getBestDelimiter(), '|');
}

TEST(CsvDelimiter, IsJudgedOnALoneLastLineEvenWhereReadingFails) {
    CsvImport job;
    job.module.m_delimiter = '|';

    EXPECT_EQ(job.simulated().run("a;b\nc;d\ne\n" + std::string(4095, 'x')), 0);

    EXPECT_EQ(job.module.getBestDelimiter(), '|');
}

TEST(CsvDelimiter, IsNotJudgedOnALoneLastLineWhereThePreviewFails) {
    CsvImport job;
    job.module.m_delimiter = '|';
    job.simulated().withHeader().run("a\n");

    EXPECT_EQ(job.run("a;b\nc;d\ne\n"), 0); // the table has its header

    EXPECT_EQ(job.module.getBestDelimiter(), ';');
}

TEST(CsvDelimiter, IsSoughtOnLinesAsRead) {
    CsvImport job;
    job.simulated().run("\"a;b\",c\nd,e\n");

    EXPECT_EQ(job.module.getBestDelimiter(), ',');
}

TEST(CsvDelimiter, IsSoughtOnLinesThatAreNotEmpty) {
    CsvImport job;
    job.module.m_delimiter = ',';
    job.simulated().run("\na;b\n \t\nc;d\n\n");

    EXPECT_EQ(job.module.getBestDelimiter(), ';');
}

TEST(CsvDelimiter, IsSoughtAfreshInEveryImport) {
    CsvImport job;
    job.simulated().run("a#b\nc#d\n");
    job.run("a|b\nc|d\n");

    EXPECT_EQ(job.module.getBestDelimiter(), '|');
}

// Real, with an assignment

TEST(CsvImported, WritesEveryRowWithItsIdentifiers) {
    CsvImport job;
    job.assign({{{0, eColDatum},
                 {1, eColEmpfaenger},
                 {2, eColVerwendungszweck},
                 {3, eColBetrag},
                 {4, eColKategorie},
                 {5, eColUnterkategorie},
                 {6, eColBuchungstext}},
                7});

    EXPECT_EQ(job.run("24.12.2025;Laden;\"Baum; gro\xDF\";-34,90;Fest;Deko;Karte\n"
                      "\n"
                      "1.1.2026;Bank;Zins;1.234,56;Ertrag;;Gutschrift"),
              1);

    ASSERT_EQ(job.model.rows("DataSets"), 2);
    EXPECT_THAT(job.records("Datum"), ElementsAre("24.12.2025", "01.01.2026"));
    EXPECT_THAT(job.records("Empfaenger"), ElementsAre("Laden", "Bank"));
    EXPECT_THAT(job.records("Verwendungszweck"), ElementsAre("Baum; gro\xDF", "Zins"));
    EXPECT_THAT(job.records("Betrag"), ElementsAre("-34,90", "1.234,56"));
    EXPECT_THAT(job.records("Kategorie"), ElementsAre("Fest", "Ertrag"));
    EXPECT_THAT(job.records("Unterkategorie"), ElementsAre("Deko", ""));
    EXPECT_THAT(job.records("Buchungstext"), ElementsAre("Karte", "Gutschrift"));
    EXPECT_THAT(job.records("ImportID"), ElementsAre("1", "1"));
    EXPECT_THAT(job.records("UniqueID"), ElementsAre("1", "2"));
    EXPECT_EQ(job.model.integer("NextImportID"), 2);
    EXPECT_EQ(job.model.integer("NextUniqueID"), 3);
    EXPECT_EQ(job.module.getLastImportedDataSetsCount(), 2);
    EXPECT_EQ(job.module.getLastImportedSessionID(), 1);
    EXPECT_STREQ(job.module.getErrorMsg(), "");
}

TEST(CsvImported, ByAModuleOfItsOwnRecordsASessionWithoutFileAndFormat) {
    CsvImport job;
    job.assign(kNameAmount).run("a;1\n");

    ASSERT_EQ(job.model.rows("Importsessions"), 1);
    EXPECT_EQ(job.model.integer("Importsessions/1/ImportID"), 1);
    EXPECT_EQ(job.model.integer("Importsessions/1/ImportTyp"), eFormatNone);
    EXPECT_EQ(job.model.kind("Importsessions/1/ImportFileName"), DataType::eString);
    EXPECT_EQ(job.model.text("Importsessions/1/ImportFileName"), "");
}

TEST(CsvImported, LeavesUnassignedColumnsOut) {
    CsvImport job;
    job.assign({{{2, eColEmpfaenger}}, 1}).run("a;b;c;d\n");

    EXPECT_THAT(job.records("Empfaenger"), ElementsAre("c"));
    EXPECT_EQ(job.model.kind("DataSets/1/Kategorie"), DataType::eEmpty);
}

TEST(CsvImported, TakesFortyNineOfSixtyColumns) {
    std::string line = "0";
    for (int i = 1; i < 60; ++i)
        line += ";" + std::to_string(i);
    CsvImport job;

    EXPECT_EQ(job.assign({{{48, eColEmpfaenger}, {49, eColKategorie}}, 2}).run(line), 1);

    EXPECT_THAT(job.records("Empfaenger"), ElementsAre("48"));
    EXPECT_EQ(job.model.kind("DataSets/1/Kategorie"), DataType::eEmpty);
    EXPECT_STREQ(job.module.getErrorMsg(), "");
}

TEST(CsvImported, LeavesFieldsOfANarrowRowEmpty) {
    CsvImport job;

    EXPECT_EQ(job.assign({{{0, eColEmpfaenger}, {3, eColDatum}, {9, eColBetrag}}, 3}).run("a;b\n"), 1);

    EXPECT_THAT(job.records("Empfaenger"), ElementsAre("a"));
    EXPECT_EQ(job.model.kind("DataSets/1/Datum"), DataType::eEmpty);
    EXPECT_EQ(job.model.kind("DataSets/1/Betrag"), DataType::eEmpty);
    EXPECT_EQ(job.module.getLastImportedDataSetsCount(), 1);
}

TEST(CsvImported, TakesTheLastColumnOfATargetAssignedTwice) {
    CsvImport job;
    job.assign({{{2, eColEmpfaenger}, {0, eColEmpfaenger}}, 2}).run("a;b;c\n");

    EXPECT_THAT(job.records("Empfaenger"), ElementsAre("c"));
}

TEST(CsvImported, GivesAColumnAssignedTwiceToItsFirstTarget) {
    CsvImport job;
    job.assign({{{0, eColEmpfaenger}, {0, eColKategorie}}, 2}).run("a\n");

    EXPECT_THAT(job.records("Empfaenger"), ElementsAre("a"));
    EXPECT_EQ(job.model.kind("DataSets/1/Kategorie"), DataType::eEmpty);
}

TEST(CsvImported, SkipsTheHeader) {
    CsvImport job;

    EXPECT_EQ(job.assign(kNameAmount).withHeader().run("Name;Summe\na;1\n"), 1);

    EXPECT_THAT(job.records("Empfaenger"), ElementsAre("a"));
    EXPECT_EQ(job.module.getLastImportedDataSetsCount(), 1);
    EXPECT_EQ(job.module.m_processedCount, 2);
}

TEST(CsvImported, OfAHeaderAloneIsNoSession) {
    CsvImport job;

    EXPECT_EQ(job.assign(kNameAmount).withHeader().run("Name;Summe\n"), 1);

    EXPECT_EQ(job.model.rows("DataSets"), 0);
    EXPECT_EQ(job.model.rows("Importsessions"), 0);
    EXPECT_EQ(job.module.getLastImportedDataSetsCount(), 0);
}

TEST(CsvImported, WithNoPairsMakesRecordsOfIdentifiersAlone) {
    CsvImport job;

    EXPECT_EQ(job.assign({{{0, eColEmpfaenger}}, 0}).run("a\nb\n"), 1);

    EXPECT_THAT(job.records("UniqueID"), ElementsAre("1", "2"));
    EXPECT_EQ(job.model.kind("DataSets/1/Empfaenger"), DataType::eEmpty);
}

TEST(CsvImported, ReadsNothingWhereALineIsTooLong) {
    CsvImport job;

    EXPECT_EQ(job.assign(kNameAmount).run("a;1\n" + std::string(4095, 'x') + "\n"), 0);

    EXPECT_EQ(job.model.rows("DataSets"), 0); // rows are written once the whole file is read
    EXPECT_EQ(job.model.rows("Importsessions"), 0);
}

TEST(CsvImported, StartsEveryImportWithItsOwnRows) {
    CsvImport job;
    job.assign(kNameAmount).run("a;1\n");
    job.run("b;2\n");

    EXPECT_THAT(job.records("Empfaenger"), ElementsAre("a", "b"));
}

TEST(CsvImported, ForgetsTheRowsOfAnImportThatWroteNone) {
    CsvImport job;
    EXPECT_EQ(job.run("a;1\n"), 3); // without an assignment
    job.assign(kNameAmount);
    EXPECT_EQ(job.run("b;2\n" + std::string(4095, 'x') + "\n"), 0);
    EXPECT_EQ(job.run("c;3\n"), 1);

    EXPECT_THAT(job.records("Empfaenger"), ElementsAre("c"));
}

TEST(CsvImported, SplitsAtNoByteWithoutADelimiter) {
    CsvImport job;
    job.module.m_delimiter = '\0';
    job.assign(kNameAmount).run("a;1\n");

    EXPECT_THAT(job.records("Empfaenger"), ElementsAre("a;1"));
}

// Dates

TEST(CsvDates, AreReadInTheOrderThatALaterLineProves) {
    CsvImport job;
    job.assign(kNameDate).run("a;05.06.2004\nb;07.08.2004\nc;31.12.2004\n");

    EXPECT_THAT(job.records("Datum"), ElementsAre("05.06.2004", "07.08.2004", "31.12.2004"));
    EXPECT_EQ(SmartDate::sm_order, 1);
}

TEST(CsvDates, AreReadMonthFirstWhereALaterLineProvesThat) {
    CsvImport job;
    job.assign(kNameDate).run("a;05/06/2004\nb;12/31/2004\n");

    EXPECT_THAT(job.records("Datum"), ElementsAre("06.05.2004", "31.12.2004"));
}

TEST(CsvDates, AreShownInTheOrderThatALaterLineProves) {
    CsvImport job;
    job.assign(kNameDate).simulated().run("a;05/06/2004\nb;12/31/2004\n");

    EXPECT_EQ(job.preview().getString(0, 1), "06.05.2004");
}

TEST(CsvDates, OfUnassignedColumnsProveNothing) {
    CsvImport job;
    job.assign({{{0, eColDatum}}, 1}).run("05/06/2004;12/31/2004\n");

    EXPECT_THAT(job.records("Datum"), ElementsAre("05.06.2004"));
    EXPECT_EQ(SmartDate::sm_order, 0);
}

TEST(CsvDates, OfTheFirstDatePairAloneProveTheOrder) {
    CsvImport job;
    job.assign({{{0, eColDatum}, {1, eColDatum}}, 2}).run("05.06.2004;\n12/31/2004;31.12.2004\n");

    EXPECT_EQ(SmartDate::sm_order, 2);
}

TEST(CsvDates, AreAbsentWhereTheirColumnLiesOutsideTheRow) {
    for (const int column : {1, 9, 48, 49, 50, 1000, INT_MAX, -1, -2, INT_MIN}) {
        CsvImport job;
        EXPECT_EQ(job.assign({{{0, eColEmpfaenger}, {column, eColDatum}}, 2}).run("a\n"), 1) << column;
        EXPECT_EQ(job.model.kind("DataSets/1/Datum"), DataType::eEmpty) << column;
        EXPECT_EQ(SmartDate::sm_order, 0) << column;
    }
}

TEST(CsvDates, OfNarrowRowsDoNotKeepWiderOnesFromProvingTheOrder) {
    CsvImport job;
    job.assign(kNameDate).run("a\nb;12/31/2004\nc;05/06/2004\n");

    EXPECT_THAT(job.records("Datum"), ElementsAre("", "31.12.2004", "06.05.2004"));
}

// The order is learned while reading, when no line is a header yet.
TEST(CsvDates, OfTheHeaderLineProveTheOrderToo) {
    CsvImport job;
    job.assign(kNameDate).withHeader().run("Stand;12/31/2004\na;05/06/2004\n");

    EXPECT_THAT(job.records("Datum"), ElementsAre("06.05.2004"));
}

// Dropped rows

TEST(CsvDroppedRow, LetsTheNextRowFollow) {
    CsvImport job;

    EXPECT_EQ(job.assign(kNameAmount).run("a;1\nb;99999999999999,99\nc;3\n"), 1);

    EXPECT_THAT(job.records("Empfaenger"), ElementsAre("a", "c"));
    EXPECT_THAT(job.records("UniqueID"), ElementsAre("1", "2"));
    EXPECT_EQ(job.model.integer("NextUniqueID"), 3);
    EXPECT_EQ(job.module.getLastImportedDataSetsCount(), 2);
    EXPECT_EQ(job.module.getErrorMsg(), std::string(kRefused) + "Zeile 2: 99999999999999,99<br>");
}

// The number counts records that were completed, plus one: neither lines nor rows.
TEST(CsvDroppedRow, DoesNotAdvanceTheNumberOfTheNextMessage) {
    CsvImport job;
    job.assign(kNameAmount).run("a;88888888888888\nb;99999999999999\nc;3\n\nd;77777777777777\n");

    EXPECT_EQ(job.module.getErrorMsg(), std::string(kRefused) + "Zeile 1: 88888888888888<br>"
                                                                "Zeile 1: 99999999999999<br>"
                                                                "Zeile 2: 77777777777777<br>");
    EXPECT_THAT(job.records("Empfaenger"), ElementsAre("c"));
}

TEST(CsvDroppedRow, IsNumberedBehindTheHeader) {
    CsvImport job;
    job.assign(kNameAmount).withHeader().run("Name;Summe\na;99999999999999\n");

    EXPECT_EQ(job.module.getErrorMsg(), std::string(kRefused) + "Zeile 2: 99999999999999<br>");
}

TEST(CsvDroppedRow, TakesNoneOfItsLaterColumns) {
    CsvImport job;
    job.assign({{{0, eColBetrag}, {1, eColEmpfaenger}, {2, eColBetrag}}, 3}).run("99999999999999;a;88888888888888\n");

    EXPECT_EQ(job.model.rows("DataSets"), 0);
    EXPECT_EQ(job.module.getErrorMsg(), std::string(kRefused) + "Zeile 1: 99999999999999<br>");
}

TEST(CsvDroppedRow, OfAllRowsIsNoSession) {
    CsvImport job;

    EXPECT_EQ(job.assign(kNameAmount).run("a;99999999999999\n"), 1);

    EXPECT_EQ(job.model.rows("DataSets"), 0);
    EXPECT_EQ(job.model.rows("Importsessions"), 0);
    EXPECT_EQ(job.model.kind("NeueDatenVorhanden"), DataType::eEmpty);
    EXPECT_EQ(job.module.getLastImportedDataSetsCount(), 0);
}

TEST(CsvDroppedRow, IsOneWithoutADateWhereTheModelDemandsOne) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.table("DataSets").field("Datum").takesZeroDate = false;
    CsvImport job(schema);

    EXPECT_EQ(job.assign(kNameDate).run("a;31.12.2004\nb;30.02.2004\nc;\n"), 1);

    EXPECT_THAT(job.records("Empfaenger"), ElementsAre("a"));
    EXPECT_EQ(job.module.getErrorMsg(), std::string(kRefused) + "Zeile 2: 30.02.2004<br>Zeile 2: <br>");
}

TEST(CsvDroppedRow, IsReportedWithAsMuchOfALongTextAsTheMessageHolds) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.table("DataSets").refusing("Empfaenger");
    CsvImport job(schema);
    const std::string longText(600, 'x');

    job.assign(kNameAmount).run(longText + ";1\n");

    EXPECT_EQ(job.module.getErrorMsg(), kRefused + ("Zeile 1: " + longText).substr(0, 497));
}

TEST(CsvDroppedRow, StaysHalfWrittenAndUnreportedWhereItsFieldDoesNotExist) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.table("DataSets").without("Betrag");
    CsvImport job(schema);

    EXPECT_EQ(job.assign(kNameAmount).run("a;1\n"), 1);

    EXPECT_THAT(job.records("Empfaenger"), ElementsAre("a"));
    EXPECT_EQ(job.model.kind("DataSets/1/UniqueID"), DataType::eEmpty);
    EXPECT_EQ(job.module.getLastImportedDataSetsCount(), 0);
    EXPECT_STREQ(job.module.getErrorMsg(), "");
}

// Trees that lack something

TEST(CsvTarget, WithoutATableOfRecordsTakesNothing) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.without("DataSets");
    CsvImport job(schema);

    EXPECT_EQ(job.assign(kNameAmount).run("a;1\nb;2\n"), 1);

    EXPECT_EQ(job.module.getLastImportedDataSetsCount(), 0);
    EXPECT_EQ(job.model.rows("Importsessions"), 0);
    EXPECT_STREQ(job.module.getErrorMsg(), "");
}

TEST(CsvTarget, WithoutATableOfSessionsKeepsTheRecords) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.without("Importsessions");
    CsvImport job(schema);

    EXPECT_EQ(job.assign(kNameAmount).run("a;1\nb;2\n"), 1);

    EXPECT_THAT(job.records("Empfaenger"), ElementsAre("a", "b"));
    EXPECT_EQ(job.model.integer("NextImportID"), 1);
}

TEST(CsvTarget, ThatIsNoneTakesNothing) {
    CsvImport job;
    job.assign(kNameAmount);
    constexpr std::string_view kText = "a;1\n";
    ImportInputParams params;
    params.setInputFileBuffer(kText.data(), kText.size());

    EXPECT_EQ(job.module.importFile(params), 1);

    EXPECT_EQ(job.module.getLastImportedDataSetsCount(), 0);
    EXPECT_STREQ(job.module.getErrorMsg(), "");
}

TEST(CsvTarget, IsFullAtItsLastRowAndRefusesTheNextInSilence) {
    CsvImport job;
    std::string text;
    for (int i = 1; i <= 65536; ++i)
        text += std::to_string(i) + ";1\n";

    EXPECT_EQ(job.assign(kNameAmount).run(text), 1);

    EXPECT_EQ(job.model.rows("DataSets"), 65535);
    EXPECT_EQ(job.model.text("DataSets/1/Empfaenger"), "1");
    EXPECT_EQ(job.model.text("DataSets/65535/Empfaenger"), "65535");
    EXPECT_EQ(job.module.getLastImportedDataSetsCount(), 65535);
    EXPECT_EQ(job.model.integer("NextUniqueID"), 65536);
    EXPECT_STREQ(job.module.getErrorMsg(), "");
}

TEST(CsvTarget, ThatIsFullTakesNoRecordOfIdentifiersAloneEither) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.without("DataSets");
    CsvImport job(schema);

    EXPECT_EQ(job.assign({{}, 0}).run("a\nb\n"), 1);

    EXPECT_EQ(job.module.getLastImportedDataSetsCount(), 0);
    EXPECT_EQ(job.module.m_processedCount, 0);
    EXPECT_EQ(job.model.integer("NextUniqueID"), 1);
}

// The layout with a header of its own

TEST(CsvOfTheZasterhofLayout, TakesItsFirstLineForAHeaderWhateverTheCallerSays) {
    for (const char saysHeader : {char{0}, char{1}}) {
        CsvImport job;
        job.module.m_format = eFormatZasterhof;
        job.params.m_firstLineIsHeader = saysHeader;
        EXPECT_EQ(job.assign(kNameAmount).run("Name;Summe\na;1\nb;2\n"), 1);
        EXPECT_THAT(job.records("Empfaenger"), ElementsAre("a", "b")) << static_cast<int>(saysHeader);
    }
}

TEST(CsvOfTheZasterhofLayout, ShowsItsHeaderInThePreview) {
    CsvImport job;
    job.module.m_format = eFormatZasterhof;

    EXPECT_EQ(job.assign(kNameAmount).simulated().run("Name;Summe\na;1\n"), 2);

    EXPECT_THAT(job.previewHeader(), ElementsAre("Name", "Summe"));
    EXPECT_EQ(job.preview().getRowCount(), 1);
}

// The module's own operations

TEST(CsvModule, NamesItsExtensionAndProposesNoTable) {
    const ImportModuleCSV module;

    EXPECT_STREQ(module.getFileExtension(), "csv");
    EXPECT_STREQ(ImportModuleCSV::m_MyFileExtension, "csv");
    EXPECT_STREQ(module.getDefaultTargetNodeName(), "Noch nicht festgelegt !!");
}

TEST(CsvModule, AndItsBuffersAreNotAssignedOrCopiedByAccident) {
    EXPECT_FALSE(std::is_copy_constructible_v<ImportModuleCSV>);
    EXPECT_FALSE(std::is_copy_assignable_v<ImportModuleCSV>);
    EXPECT_FALSE(std::is_copy_assignable_v<BlockStringBuf>);
}

TEST(CsvModule, CompletesNoRowWhileItReads) {
    CsvImport job;

    EXPECT_TRUE(job.module.compelteRowProcessing(false));
    EXPECT_TRUE(job.module.compelteRowProcessing(true));

    EXPECT_EQ(job.module.m_processedCount, 0);
    EXPECT_EQ(job.module.getLastImportedDataSetsCount(), 0);
}

TEST(CsvModule, FindsThePreviewColumnOfATarget) {
    struct {
        ColumnAssignment assignment;
        E_ColumnIndex target;
        int column;
        const char* why;
    } const cases[] = {
        {{{}, -1}, eColEmpfaenger, 0, "without an assignment the file is in the order of the data model"},
        {{{}, -1}, eColBetrag, 6, "also its last column"},
        {{{}, -1}, eColNone, 7, "and the number of no column"},
        {{{{4, eColBetrag}}, 0}, eColBetrag, 0, "no pairs in use"},
        {{{{4, eColBetrag}}, -2}, eColBetrag, 0, "fewer than none"},
        {{{{4, eColBetrag}}, 1}, eColBetrag, 4, "the pair of the target"},
        {{{{4, eColBetrag}}, 1}, eColDatum, 0, "no pair of the target"},
        {{{{4, eColBetrag}, {2, eColBetrag}}, 2}, eColBetrag, 4, "the first pair of the target"},
        {{{{4, eColBetrag}, {2, eColDatum}}, 1}, eColDatum, 0, "beyond the pairs in use"},
        {{{{4, eColBetrag}, {2, eColDatum}}, 2}, eColDatum, 2, "the second pair"},
        {{{{0, eColEmpfaenger},
           {1, eColEmpfaenger},
           {2, eColEmpfaenger},
           {3, eColEmpfaenger},
           {4, eColEmpfaenger},
           {5, eColEmpfaenger},
           {6, eColDatum}},
          1000},
         eColDatum,
         6,
         "the seventh of more pairs than there are"},
        {{{{0, eColEmpfaenger}}, INT_MAX}, eColBetrag, 0, "none among more pairs than there are"},
    };
    for (const auto& c : cases) {
        ImportModuleCSV module;
        module.assignColumns(c.assignment);
        EXPECT_EQ(module.getInputFileColNo(c.target), c.column) << c.why;
    }
    EXPECT_EQ(ImportModuleCSV().getInputFileColNo(eColDatum), 5) << "before any call";
}

} // namespace
