// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "framework/ImportExternData.h"
#include "support/FinanceModel.h"
#include "support/TemporaryFile.h"

namespace {

using namespace Import;
using ::testing::StrEq;

/// Delimited text from a file through the front door into a fresh model.
class CsvFrontDoor : public ::testing::Test {
protected:
    int importText(std::string_view bytes, const std::string& name, const ColumnAssignment* assignment) {
        const TemporaryFile file(bytes, name);
        params.m_fileName = file.path();
        params.m_targetNode = model.root();
        ColumnAssignment copy = assignment != nullptr ? *assignment : ColumnAssignment{};
        const int result = door.importFile(params, delimiter, assignment != nullptr ? &copy : nullptr);
        params.m_fileName = nullptr;
        return result;
    }

    FinanceModel model;
    ImportExternData door;
    ImportInputParams params;
    char delimiter = ';';
};

constexpr ColumnAssignment kDateNameAmount = {{{0, eColDatum}, {1, eColEmpfaenger}, {2, eColBetrag}}, 3};

TEST_F(CsvFrontDoor, ImportsAFileWithAnAssignment) {
    EXPECT_EQ(importText("24.12.2025;M\xFCller;-12,50\n", "konto.csv", &kDateNameAmount), 1);

    ASSERT_EQ(model.rows("DataSets"), 1);
    EXPECT_EQ(model.text("DataSets/1/Datum"), "24.12.2025");
    EXPECT_EQ(model.text("DataSets/1/Empfaenger"), "M\xFCller");
    EXPECT_EQ(model.text("DataSets/1/Betrag"), "-12,50");
    EXPECT_EQ(model.integer("Importsessions/1/ImportTyp"), eFormatCSV);
    EXPECT_EQ(door.getLastImportedDataSetsCount(), 1);
    EXPECT_EQ(door.getLastImportedSessionID(), 1);
    EXPECT_STREQ(door.getErrorMsg(), "");
    EXPECT_STREQ(door.getFileExtension(), "csv");
}

TEST_F(CsvFrontDoor, ReadsAFileWithoutAnAssignmentAndWritesNothing) {
    EXPECT_EQ(importText("a;b\n", "konto.csv", nullptr), 3);

    EXPECT_EQ(model.rows("DataSets"), 0);
    EXPECT_EQ(model.rows("Importsessions"), 0);
    EXPECT_EQ(door.getLastImportedDataSetsCount(), 0);
}

TEST_F(CsvFrontDoor, ShowsAFileWithoutAnAssignment) {
    params.m_simulate = 1;
    delimiter = ',';

    EXPECT_EQ(importText("a;1,5\nb;2,5\n", "konto.csv", nullptr), 3);

    EXPECT_EQ(door.getLastSimulatedImport().getString(0, 0), "a;1");
    EXPECT_EQ(door.getBestDelimiter(), ','); // as frequent as the semicolon
}

TEST_F(CsvFrontDoor, FindsTheDelimiterThatTheNextImportNeeds) {
    constexpr std::string_view kBytes = "1.2.26;a;1\n3.4.26;b;2\n";
    params.m_simulate = 1;
    delimiter = ',';
    EXPECT_EQ(importText(kBytes, "konto.csv", nullptr), 3);
    delimiter = door.getBestDelimiter();
    params.m_simulate = 0;

    EXPECT_EQ(importText(kBytes, "konto.csv", &kDateNameAmount), 1);
    EXPECT_EQ(model.rows("DataSets"), 2);
}

TEST_F(CsvFrontDoor, ShowsAFileWithAnAssignment) {
    params.m_simulate = 1;
    params.m_firstLineIsHeader = 1;

    EXPECT_EQ(importText("Tag;Name;Summe\n1.2.26;a;1\n", "konto.csv", &kDateNameAmount), 2);

    EXPECT_EQ(door.getLastSimulatedImport().getColumnHeader(2), "Summe");
    EXPECT_EQ(door.getLastSimulatedImport().getString(0, 2), "1,00");
    EXPECT_EQ(model.rows("DataSets"), 0);
}

TEST_F(CsvFrontDoor, ReadsAnUnknownExtensionAsADelimitedList) {
    for (const char* name : {"konto.txt", "konto", "konto.", "KONTO.CSV", "csv"}) {
        const int before = model.rows("DataSets");
        EXPECT_EQ(importText("24.12.2025;a;1\n", name, &kDateNameAmount), 1) << name;
        EXPECT_EQ(model.rows("DataSets"), before + 1) << name;
    }
}

TEST_F(CsvFrontDoor, LearnsTheDateOrderAfreshInEveryImport) {
    importText("24.12.2025;a;1\n", "konto.csv", &kDateNameAmount);

    EXPECT_EQ(importText("12/24/2025;b;1\n", "konto.csv", &kDateNameAmount), 1);
    EXPECT_EQ(model.text("DataSets/2/Datum"), "24.12.2025");
}

TEST_F(CsvFrontDoor, GivesEveryImportItsSession) {
    importText("24.12.2025;a;1\n", "konto.csv", &kDateNameAmount);
    importText("25.12.2025;b;1\n", "konto.csv", &kDateNameAmount);

    EXPECT_EQ(model.integer("DataSets/1/ImportID"), 1);
    EXPECT_EQ(model.integer("DataSets/2/ImportID"), 2);
    EXPECT_EQ(model.integer("DataSets/2/UniqueID"), 2);
    EXPECT_EQ(model.rows("Importsessions"), 2);
    EXPECT_EQ(door.getLastImportedSessionID(), 2);
}

constexpr std::string_view kTaxLine = "Zweck;-1,50;24.12.2025;Empf;Kat;Unter;Text\n";

void expectTaxRecord(const FinanceModel& model, const std::string& row) {
    EXPECT_EQ(model.text(row + "/Verwendungszweck"), "Zweck");
    EXPECT_EQ(model.text(row + "/Betrag"), "-1,50");
    EXPECT_EQ(model.text(row + "/Datum"), "24.12.2025");
    EXPECT_EQ(model.text(row + "/Empfaenger"), "Empf");
    EXPECT_EQ(model.text(row + "/Kategorie"), "Kat");
    EXPECT_EQ(model.text(row + "/Unterkategorie"), "Unter");
    EXPECT_EQ(model.text(row + "/Buchungstext"), "Text");
}

TEST_F(CsvFrontDoor, ReadsTaxDataInItsFixedLayout) {
    EXPECT_EQ(importText(kTaxLine, "steuer.SDI", nullptr), 1);

    ASSERT_EQ(model.rows("DataSets"), 1);
    expectTaxRecord(model, "DataSets/1");
    EXPECT_EQ(model.integer("Importsessions/1/ImportTyp"), eFormatTaxData);
}

TEST_F(CsvFrontDoor, ReadsTaxDataInItsFixedLayoutWhateverTheCallerPasses) {
    delimiter = '|';

    EXPECT_EQ(importText(kTaxLine, "steuer.sdi", &kDateNameAmount), 1);

    expectTaxRecord(model, "DataSets/1");
}

TEST_F(CsvFrontDoor, SkipsAHeaderOfTaxDataOnlyWhenTold) {
    const std::string bytes = "Zweck;Betrag;Datum;E;K;U;T\n" + std::string(kTaxLine);
    importText(bytes, "steuer.sdi", nullptr);
    EXPECT_EQ(model.rows("DataSets"), 2);
    params.m_firstLineIsHeader = 1;
    importText(bytes, "steuer.sdi", nullptr);

    EXPECT_EQ(model.rows("DataSets"), 3);
    expectTaxRecord(model, "DataSets/3");
}

TEST_F(CsvFrontDoor, ReadsTheZasterhofLayoutBehindItsHeader) {
    delimiter = ',';

    EXPECT_EQ(importText("0;1;2;3;4;Datum;6;Text;Zweck;Empf;Betrag;11;Kat;Unter\n"
                         "x;x;x;x;x;24.12.2025;x;Karte;Geschenk;Laden;-1,50;x;Fest;Deko\n",
                         "export.zhof", &kDateNameAmount),
              1);

    ASSERT_EQ(model.rows("DataSets"), 1);
    EXPECT_EQ(model.text("DataSets/1/Datum"), "24.12.2025");
    EXPECT_EQ(model.text("DataSets/1/Buchungstext"), "Karte");
    EXPECT_EQ(model.text("DataSets/1/Verwendungszweck"), "Geschenk");
    EXPECT_EQ(model.text("DataSets/1/Empfaenger"), "Laden");
    EXPECT_EQ(model.text("DataSets/1/Betrag"), "-1,50");
    EXPECT_EQ(model.text("DataSets/1/Kategorie"), "Fest");
    EXPECT_EQ(model.text("DataSets/1/Unterkategorie"), "Deko");
    EXPECT_EQ(model.integer("Importsessions/1/ImportTyp"), eFormatZasterhof);
}

TEST_F(CsvFrontDoor, KeepsWhatWasFoundUntilTheNextImport) {
    importText("24.12.2025;a;99999999999999\n", "konto.csv", &kDateNameAmount);
    const std::string error = door.getErrorMsg();
    importText("24.12.2025;a;1\n", "konto.csv", &kDateNameAmount);

    EXPECT_EQ(error, "Fehler beim Analysieren der Daten aus der XML-Datei.<br>Zeile 1: 99999999999999<br>");
    EXPECT_THAT(door.getErrorMsg(), StrEq(""));
}

TEST_F(CsvFrontDoor, ForgetsAnAssignmentMadeBeforeTheImport) {
    ASSERT_TRUE(door.create(eFormatCSV));
    door.assignColumns(kDateNameAmount);

    EXPECT_EQ(importText("24.12.2025;a;1\n", "konto.csv", nullptr), 3);
}

} // namespace
