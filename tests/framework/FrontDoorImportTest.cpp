// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <stdexcept>
#include <string>

#include "framework/ImportExternData.h"
#include "support/CountingNode.h"
#include "support/FinanceModel.h"
#include "support/SmartDateFixture.h"
#include "support/TemporaryFile.h"

namespace {

constexpr int kFailed = 0;
constexpr int kImported = 1;
constexpr int kSimulated = 2;
constexpr int kReadWithoutAssignment = 3;

constexpr ColumnAssignment kPayeeAndAmount = {{{0, Import::eColEmpfaenger}, {1, Import::eColBetrag}}, 2};

/// Imports of small files through the front door.
class FrontDoorImportTest : public SmartDateFixture {
protected:
    ImportInputParams paramsFor(const TemporaryFile& file, bool simulate = false) const {
        ImportInputParams params;
        params.m_fileName = file.path();
        params.m_targetNode = m_model.root();
        params.m_simulate = simulate ? 1 : 0;
        return params;
    }

    int import(const std::string& bytes, const std::string& name, char delimiter,
               const ColumnAssignment& assignment = kPayeeAndAmount, bool simulate = false) {
        const TemporaryFile file(bytes, name);
        ColumnAssignment copy = assignment;
        return m_door.importFile(paramsFor(file, simulate), delimiter, &copy);
    }

    FinanceModel m_model;
    ImportExternData m_door;
};

TEST_F(FrontDoorImportTest, DelimitedListTakesTheCallersDelimiterAndAssignment) {
    EXPECT_EQ(import("a|1,50\nb|2\n", "konten.csv", '|'), kImported);
    ASSERT_EQ(m_model.rows("DataSets"), 2);
    EXPECT_EQ(m_model.text("DataSets/1/Empfaenger"), "a");
    EXPECT_EQ(m_model.amount("DataSets/1/Betrag"), 1.5);
    EXPECT_EQ(m_model.text("DataSets/2/Empfaenger"), "b");
    EXPECT_EQ(m_door.getLastImportedDataSetsCount(), 2);
    EXPECT_EQ(m_door.getLastImportedSessionID(), 1);
    EXPECT_STREQ(m_door.getErrorMsg(), "");
    EXPECT_STREQ(m_door.getFileExtension(), "csv");
    EXPECT_EQ(m_model.integer("Importsessions/1/ImportTyp"), 1);
}

TEST_F(FrontDoorImportTest, UnknownExtensionIsReadAsADelimitedList) {
    EXPECT_EQ(import("a|1,50\n", "konten.txt", '|'), kImported);
    EXPECT_EQ(m_model.text("DataSets/1/Empfaenger"), "a");
    EXPECT_EQ(m_model.integer("Importsessions/1/ImportTyp"), 1);
    EXPECT_STREQ(m_door.getErrorMsg(), "") << "no error for the extension";
}

TEST_F(FrontDoorImportTest, NoAssignmentReadsAndWritesNothing) {
    const TemporaryFile file("a,1\n");
    EXPECT_EQ(m_door.importFile(paramsFor(file), ',', nullptr), kReadWithoutAssignment);
    EXPECT_EQ(m_model.rows("DataSets"), 0);
    EXPECT_EQ(m_door.getLastImportedDataSetsCount(), 0);
}

TEST_F(FrontDoorImportTest, SimulatedImportFillsThePreviewAndWritesNothing) {
    EXPECT_EQ(import("a;1,5\nb;-2\n", "konten.csv", ';', kPayeeAndAmount, true), kSimulated);
    const ImportRecordSet& preview = m_door.getLastSimulatedImport();
    ASSERT_EQ(preview.getRowCount(), 2);
    EXPECT_EQ(preview.getString(0, 0), "a");
    EXPECT_EQ(preview.getString(0, 1), "1,50");
    EXPECT_EQ(preview.getString(1, 1), "-2,00");
    EXPECT_EQ(m_door.getBestDelimiter(), ';');
    EXPECT_EQ(m_model.rows("DataSets"), 0);
    EXPECT_EQ(m_model.rows("Importsessions"), 0);
    EXPECT_EQ(m_model.kind("LetztesImportDatum"), DataType::eEmpty);
    EXPECT_EQ(m_model.integer("NextImportID"), 1);
}

TEST_F(FrontDoorImportTest, DetectedDelimiterIsReportedWhateverTheCallersWas) {
    const TemporaryFile file("a;1,5;x\nb;-2;y\n");
    EXPECT_EQ(m_door.importFile(paramsFor(file, true), '|', nullptr), kReadWithoutAssignment);
    EXPECT_EQ(m_door.getBestDelimiter(), ';');
}

// ---- fixed layouts

/// Fourteen columns "s0" to "s13" but for the date and the amount.
std::string fixedLayoutLine(int dateColumn, int amountColumn, char delimiter, int columns) {
    std::string line;
    for (int column = 0; column < columns; ++column) {
        if (column != 0)
            line += delimiter;
        if (column == dateColumn)
            line += "31.12.2004";
        else if (column == amountColumn)
            line += "12,50";
        else
            line += "s" + std::to_string(column);
    }
    return line + "\n";
}

TEST_F(FrontDoorImportTest, TaxDataHasItsFieldsInColumns0To6) {
    EXPECT_EQ(import(fixedLayoutLine(2, 1, ';', 7), "x.SDI", ';'), kImported);
    ASSERT_EQ(m_model.rows("DataSets"), 1);
    EXPECT_EQ(m_model.text("DataSets/1/Verwendungszweck"), "s0");
    EXPECT_EQ(m_model.text("DataSets/1/Betrag"), "12,50");
    EXPECT_EQ(m_model.text("DataSets/1/Datum"), "31.12.2004");
    EXPECT_EQ(m_model.text("DataSets/1/Empfaenger"), "s3");
    EXPECT_EQ(m_model.text("DataSets/1/Kategorie"), "s4");
    EXPECT_EQ(m_model.text("DataSets/1/Unterkategorie"), "s5");
    EXPECT_EQ(m_model.text("DataSets/1/Buchungstext"), "s6");
    EXPECT_EQ(m_model.integer("Importsessions/1/ImportTyp"), 3);
}

TEST_F(FrontDoorImportTest, MoneyProgramExportHasItsFieldsInColumns5To13BelowAHeader) {
    const std::string header = fixedLayoutLine(-1, -1, ';', 14);
    EXPECT_EQ(import(header + fixedLayoutLine(5, 10, ';', 14), "x.zhof", ';'), kImported);
    ASSERT_EQ(m_model.rows("DataSets"), 1);
    EXPECT_EQ(m_model.text("DataSets/1/Datum"), "31.12.2004");
    EXPECT_EQ(m_model.text("DataSets/1/Verwendungszweck"), "s8");
    EXPECT_EQ(m_model.text("DataSets/1/Betrag"), "12,50");
    EXPECT_EQ(m_model.text("DataSets/1/Empfaenger"), "s9");
    EXPECT_EQ(m_model.text("DataSets/1/Kategorie"), "s12");
    EXPECT_EQ(m_model.text("DataSets/1/Buchungstext"), "s7");
    EXPECT_EQ(m_model.text("DataSets/1/Unterkategorie"), "s13");
    EXPECT_EQ(m_model.integer("Importsessions/1/ImportTyp"), 5);
}

TEST_F(FrontDoorImportTest, FixedLayoutsIgnoreTheCallersDelimiterAndAssignment) {
    for (const char delimiter : {',', '|', '\0', 's'}) {
        EXPECT_EQ(import(fixedLayoutLine(2, 1, ';', 7), "x.sdi", delimiter), kImported);
        const std::string header = fixedLayoutLine(-1, -1, ';', 14);
        EXPECT_EQ(import(header + fixedLayoutLine(5, 10, ';', 14), "x.zhof", delimiter), kImported);
    }
    ASSERT_EQ(m_model.rows("DataSets"), 8);
    for (int row = 1; row <= 8; ++row) {
        const std::string record = "DataSets/" + std::to_string(row);
        EXPECT_EQ(m_model.text(record + "/Empfaenger"), row % 2 == 1 ? "s3" : "s9");
        EXPECT_EQ(m_model.text(record + "/Betrag"), "12,50");
    }
}

TEST_F(FrontDoorImportTest, FixedLayoutNeedsNoAssignment) {
    const TemporaryFile file(fixedLayoutLine(2, 1, ';', 7), "x.sdi");
    EXPECT_EQ(m_door.importFile(paramsFor(file), ',', nullptr), kImported);
    EXPECT_EQ(m_model.rows("DataSets"), 1);
}

// ---- what an import leaves behind

TEST_F(FrontDoorImportTest, SettingsMadeBeforeAreLost) {
    ASSERT_TRUE(m_door.create(Import::eFormatCSV));
    m_door.setDelimiterChar('|');
    m_door.assignColumns(kPayeeAndAmount);
    const TemporaryFile file("a|1\n");
    EXPECT_EQ(m_door.importFile(paramsFor(file), ',', nullptr), kReadWithoutAssignment);
    EXPECT_EQ(m_door.getBestDelimiter(), ',');
}

TEST_F(FrontDoorImportTest, EveryImportStartsWithAModuleOfItsOwn) {
    EXPECT_EQ(import("a;1\n", "x.csv", ';', kPayeeAndAmount, true), kSimulated);
    EXPECT_EQ(m_door.getLastSimulatedImport().getRowCount(), 1);
    EXPECT_EQ(import("a;99999999999999,99\n", "x.csv", ';'), kImported);
    EXPECT_STRNE(m_door.getErrorMsg(), "");
    EXPECT_EQ(m_door.getLastSimulatedImport().getRowCount(), 0);
    EXPECT_EQ(import("b;1\n", "x.csv", ';'), kImported);
    EXPECT_STREQ(m_door.getErrorMsg(), "");
    EXPECT_EQ(m_door.getLastImportedDataSetsCount(), 1);
    EXPECT_EQ(m_door.getLastImportedSessionID(), 1);
}

TEST_F(FrontDoorImportTest, DateOrderIsLearnedAfreshByEveryImport) {
    constexpr ColumnAssignment kDate = {{{0, Import::eColDatum}}, 1};
    EXPECT_EQ(import("12/31/2004\n", "x.csv", ';', kDate), kImported);
    EXPECT_EQ(SmartDate::sm_order, kMonthFirst);
    EXPECT_EQ(import("31.12.2004\n", "x.csv", ';', kDate), kImported);
    EXPECT_EQ(m_model.text("DataSets/1/Datum"), "31.12.2004");
    EXPECT_EQ(m_model.text("DataSets/2/Datum"), "31.12.2004");
}

TEST_F(FrontDoorImportTest, CenturyWindowComesFromTheTarget) {
    const DataModel model(makeFinanceSchema(), 77);
    const TemporaryFile file("1.2.77\n");
    ImportInputParams params = paramsFor(file);
    params.m_targetNode = &model.root();
    ColumnAssignment date = {{{0, Import::eColDatum}}, 1};
    EXPECT_EQ(m_door.importFile(params, ';', &date), kImported);
    EXPECT_EQ(SmartDate::getCenturyWindowStart(), 77);
    EXPECT_EQ(model.root().getNode(NDX("DataSets"))->getNodeNum(1)->getNode(NDX("Datum"))->getValue().getDate(),
              DMDate(1, 2, 2077));
}

TEST_F(FrontDoorImportTest, FailedImportReportsTheModulesText) {
    EXPECT_EQ(import(std::string(4095, 'x'), "x.csv", ';'), kFailed);
    EXPECT_STREQ(m_door.getErrorMsg(), "(Zeile   1):Fehler beim Analysieren der Daten aus der XML-Datei.\n");

    ImportInputParams params;
    params.m_targetNode = m_model.root();
    params.m_fileName = "/gibt es/nicht.csv";
    EXPECT_EQ(m_door.importFile(params, ';', nullptr), kFailed);
    EXPECT_STREQ(m_door.getErrorMsg(), "Die Importdatei konnte nicht ge\xF6"
                                       "ffnet werden.");
}

// ---- missing parts

TEST_F(FrontDoorImportTest, NoFileNameFailsAndLeavesTheModuleOfTheImportBefore) {
    EXPECT_EQ(import("a;1\nb;2\n", "x.csv", ';'), kImported);
    SmartDate::sm_order = kDayFirst;
    ImportInputParams params;
    params.m_targetNode = m_model.root();
    params.setInputFileBuffer("c;3\n", 4);
    EXPECT_EQ(m_door.importFile(params, ';', nullptr), kFailed);
    EXPECT_STREQ(m_door.getFileExtension(), "csv");
    EXPECT_EQ(m_door.getLastImportedDataSetsCount(), 2);
    EXPECT_EQ(m_door.getLastImportedSessionID(), 1);
    EXPECT_EQ(m_model.rows("DataSets"), 2);
    EXPECT_EQ(SmartDate::sm_order, kDayFirst) << "no module was made";
}

TEST_F(FrontDoorImportTest, NoFileNameMakesNoModule) {
    ImportInputParams params;
    params.m_targetNode = m_model.root();
    EXPECT_EQ(m_door.importFile(params, ';', nullptr), kFailed);
    EXPECT_EQ(m_door.getFileExtension(), nullptr);
    EXPECT_EQ(m_door.getErrorMsg(), nullptr);
}

TEST_F(FrontDoorImportTest, NoFileNameStillSetsTheCenturyWindow) {
    const DataModel model(makeFinanceSchema(), 77);
    ImportInputParams params;
    params.m_targetNode = &model.root();
    EXPECT_EQ(m_door.importFile(params, ';', nullptr), kFailed);
    EXPECT_EQ(SmartDate::getCenturyWindowStart(), 77);
}

TEST_F(FrontDoorImportTest, NoTargetFailsBehindTheNewModule) {
    const TemporaryFile file("a;1\n", "x.qif");
    ImportInputParams params = paramsFor(file);
    params.m_targetNode = nullptr;
    SmartDate::sm_CenturyWindowStart = 44;
    EXPECT_EQ(m_door.importFile(params, ';', nullptr), kFailed);
    EXPECT_STREQ(m_door.getFileExtension(), "qif");
    EXPECT_STREQ(m_door.getErrorMsg(), "") << "no text of its own";
    EXPECT_EQ(SmartDate::getCenturyWindowStart(), 44) << "no target leaves the window";
}

TEST_F(FrontDoorImportTest, ExceptionOfTheHostIsAFailedImport) {
    const TemporaryFile file("a;1\n");
    CountingNode root;
    root.onPrepare([] { throw std::runtime_error("host"); });
    ImportInputParams params = paramsFor(file);
    params.m_targetNode = &root;
    ColumnAssignment assignment = kPayeeAndAmount;
    EXPECT_EQ(m_door.importFile(params, ';', &assignment), kFailed);
    EXPECT_EQ(root.prepared(), 1) << "it was thrown";
    EXPECT_STREQ(m_door.getFileExtension(), "csv") << "the module can still be asked";
}

TEST_F(FrontDoorImportTest, WhateverTheHostThrowsIsAFailedImport) {
    const TemporaryFile file("a;1\n");
    CountingNode root;
    root.onPrepare([] { throw 42; });
    ImportInputParams params = paramsFor(file);
    params.m_targetNode = &root;
    ColumnAssignment assignment = kPayeeAndAmount;
    EXPECT_EQ(m_door.importFile(params, ';', &assignment), kFailed);
    EXPECT_EQ(root.prepared(), 1) << "it was thrown";
}

/// A host whose schema cannot be asked.
class NodeWithBrokenSchema : public CountingNode {
public:
    DMSchemaContext* getSchemaContext() const override { throw std::runtime_error("host"); }
};

TEST_F(FrontDoorImportTest, ExceptionOfTheHostBeforeThereIsAModuleIsAFailedImport) {
    const TemporaryFile file("a;1\n");
    NodeWithBrokenSchema root;
    ImportInputParams params = paramsFor(file);
    params.m_targetNode = &root;
    EXPECT_EQ(m_door.importFile(params, ';', nullptr), kFailed);
    EXPECT_EQ(m_door.getFileExtension(), nullptr);
}

TEST_F(FrontDoorImportTest, AssignmentOfMorePairsThanThereAreIsReadAsSeven) {
    ColumnAssignment assignment = {};
    for (int pair = 0; pair < 7; ++pair)
        assignment.m_pairs[pair] = {pair, static_cast<Import::E_ColumnIndex>(pair)};
    assignment.m_count = 1000;
    EXPECT_EQ(import("e;k;u;v;b;31.12.2004;12,50;mehr\n", "x.csv", ';', assignment), kImported);
    ASSERT_EQ(m_model.rows("DataSets"), 1);
    EXPECT_EQ(m_model.text("DataSets/1/Empfaenger"), "e");
    EXPECT_EQ(m_model.text("DataSets/1/Betrag"), "12,50");
}

TEST_F(FrontDoorImportTest, CallersAssignmentIsNotChanged) {
    const TemporaryFile file("a;1\n");
    ColumnAssignment assignment = kPayeeAndAmount;
    EXPECT_EQ(m_door.importFile(paramsFor(file), ';', &assignment), kImported);
    EXPECT_EQ(assignment.m_count, 2);
    EXPECT_EQ(assignment.m_pairs[1].m_inputColumn, 1);
    EXPECT_EQ(assignment.m_pairs[1].m_column, Import::eColBetrag);
}

} // namespace
