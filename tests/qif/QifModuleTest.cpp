// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "architecture/VirtualSlot.h"
#include "framework/ImportExternData.h"
#include "qif/ExposedQif.h"
#include "support/SmartDateFixture.h"
#include "support/TextImport.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class QifModule : public SmartDateFixture {
protected:
    FinanceModel m_model;
};

TEST_F(QifModule, NamesItsExtensionAndProposesNoTable) {
    const ImportModuleQIF module;
    EXPECT_STREQ(ImportModuleQIF::m_MyFileExtension, "qif");
    EXPECT_STREQ(module.getFileExtension(), "qif");
    EXPECT_STREQ(module.getDefaultTargetNodeName(), "Noch nicht festgelegt !!");
}

TEST_F(QifModule, VirtualOperationsKeepTheirSlots) {
    EXPECT_EQ(VirtualSlot::of(&ImportModuleQIF::getFileExtension), 3);
    EXPECT_EQ(VirtualSlot::of(&ImportModuleQIF::importFile), 4);
    EXPECT_EQ(VirtualSlot::of(&ImportModuleQIF::processLine), 8);
    EXPECT_EQ(VirtualSlot::of(&ImportModuleQIF::getInputFileColNo), 10);
    EXPECT_EQ(VirtualSlot::of(&ImportModuleQIF::getDefaultTargetNodeName), 11);
    EXPECT_EQ(VirtualSlot::of(&ImportModuleQIF::onImportAllDataSets), 12);
    EXPECT_EQ(VirtualSlot::count<ImportModuleQIF>(), 13);
}

TEST_F(QifModule, PreviewColumnsHaveAnOrderOfTheirOwn) {
    const struct {
        int column;
        int position;
    } columns[] = {
        {Import::eColEmpfaenger, 4},
        {Import::eColKategorie, 0},
        {Import::eColUnterkategorie, 5},
        {Import::eColVerwendungszweck, 1},
        {Import::eColBuchungstext, 6},
        {Import::eColDatum, 2},
        {Import::eColBetrag, 3},
        {Import::eColNone, 0},
        {-1, 0},
        {99, 0},
    };
    ImportModuleQIF module;
    for (const auto& column : columns)
        EXPECT_EQ(module.getInputFileColNo(static_cast<Import::E_ColumnIndex>(column.column)), column.position)
            << column.column;
}

TEST_F(QifModule, StartsOutsideOfEverySection) {
    const ExposedQif module;
    EXPECT_EQ(module.m_accountType, ImportModuleQIF::NoSection);
    EXPECT_FALSE(module.m_atRecordStart);
    EXPECT_TRUE(module.m_dataSets.empty());
}

TEST_F(QifModule, LinesAreDispatchedByTheSection) {
    ExposedQif module;
    char header[] = "!Account";
    char name[] = "NGiro";
    char blank[] = " ";
    char end[] = "^";
    EXPECT_TRUE(module.processLine(header, nullptr));
    EXPECT_TRUE(module.processLine(name, nullptr));
    EXPECT_FALSE(module.m_atRecordStart);
    EXPECT_TRUE(module.processLine(blank, nullptr)) << "nothing is left of it, and nothing ends";
    EXPECT_FALSE(module.m_atRecordStart);
    EXPECT_TRUE(module.processLine(end, nullptr));
    EXPECT_TRUE(module.m_atRecordStart);
    EXPECT_TRUE(module.m_dataSets.empty());
    EXPECT_STREQ(module.getErrorMsg(), "");
}

TEST_F(QifModule, WritingAnswersWhetherEveryValueWasTaken) {
    ExposedQif module;
    EXPECT_EQ(runModule(module, "!Type:Bank\nT1\n^\n", m_model.root()).result, 1);
    ImportInputParams params;
    params.m_targetNode = m_model.root();
    EXPECT_TRUE(module.onImportAllDataSets(params));
    EXPECT_EQ(module.m_dataSets.size(), 1U) << "the list stays as it is";
    EXPECT_EQ(m_model.rows("DataSets"), 2);
    module.m_dataSets.front().m_amount = "99999999999999";
    EXPECT_FALSE(module.onImportAllDataSets(params));
}

TEST_F(QifModule, TableThatIsFullEndsTheWritingWithoutAMessage) {
    std::string text = "!Type:Bank\n";
    for (int record = 0; record < 65537; ++record)
        text += "^\n";
    ImportModuleQIF module;
    const TextImportResult run = runModule(module, text, m_model.root());
    EXPECT_EQ(run.result, 1);
    EXPECT_EQ(run.importedCount, 65535);
    EXPECT_EQ(run.errorText, "");
    EXPECT_EQ(m_model.rows("DataSets"), 65535);
}

// A second run on the same object

TEST_F(QifModule, SecondRunStartsWithAnEmptyListAndTheSameHeaders) {
    ImportModuleQIF module;
    runModule(module, "!Type:Bank\nT1\n^\n", m_model.root());
    const TextImportResult second = runModule(module, "!Type:Cash\nT2\n^\n", m_model.root());
    EXPECT_EQ(second.result, 1);
    EXPECT_EQ(second.importedCount, 1);
    EXPECT_THAT(importedRecords(m_model), ElementsAre(ImportedRecord{.category = "Bankkonten", .amount = "1,00"},
                                                      ImportedRecord{.category = "Bargeldkonten", .amount = "2,00"}));
}

TEST_F(QifModule, SecondRunNeedsAHeaderOfItsOwn) {
    ImportModuleQIF module;
    runModule(module, "!Type:Bank\nT1\n^\n", m_model.root());
    const TextImportResult second = runModule(module, "T2\n^\n", m_model.root());
    EXPECT_EQ(second.result, 0);
    EXPECT_EQ(second.errorText, "(Zeile   1):Keine g\xFCltige QIF-Datei");
}

TEST_F(QifModule, RecordLeftUnfinishedGoesOnInTheSecondRun) {
    ImportModuleQIF module;
    EXPECT_EQ(runModule(module, "!Type:Bank\nT1\nPshop\n", m_model.root()).importedCount, 0);
    runModule(module, "!Type:Cash\nT2\n^\n", m_model.root());
    EXPECT_THAT(importedRecords(m_model),
                ElementsAre(ImportedRecord{.category = "Bargeldkonten", .amount = "2,00", .payee = "shop"}));
}

TEST_F(QifModule, RecordLeftByARejectedLineGoesOnInTheSecondRun) {
    ImportModuleQIF module;
    EXPECT_EQ(runModule(module, "!Type:Bank\nPshop\nDnever\n", m_model.root()).result, 0);
    EXPECT_EQ(runModule(module, "!Type:Cash\n^\n", m_model.root()).result, 1);
    EXPECT_THAT(importedRecords(m_model),
                ElementsAre(ImportedRecord{.category = "Bargeldkonten", .amount = "0,00", .payee = "shop"}));
}

TEST_F(QifModule, SecondRunReadsDatesWithoutTheQifSyntax) {
    const char* text = "!Type:Bank\nD1/5'45\n^\n";
    ImportModuleQIF module;
    runModule(module, text, m_model.root());
    runModule(module, text, m_model.root());
    EXPECT_EQ(m_model.text("DataSets/1/Datum"), "01.05.2045");
    EXPECT_EQ(m_model.text("DataSets/2/Datum"), "01.05.1945") << "writing the first run's records switched it off";
}

TEST_F(QifModule, ErrorTextOfTheFirstRunStays) {
    ImportModuleQIF module;
    runModule(module, "!Type:Bank\nXx\n^\n", m_model.root());
    EXPECT_EQ(runModule(module, "!Type:Bank\nXy\n^\n", m_model.root()).errorText,
              "(Zeile   2):Unbekannter Eintrag:Xx wird ignoriert\r\n"
              "(Zeile   2):Unbekannter Eintrag:Xy wird ignoriert\r\n");
}

// The front door

TEST_F(QifModule, FrontDoorMakesItByFormatAndByExtension) {
    ImportExternData door;
    EXPECT_TRUE(door.create(Import::eFormatQIF));
    EXPECT_STREQ(door.getFileExtension(), "qif");
    for (const char* name : {"a.qif", "a.QIF", "a.b.Qif"}) {
        EXPECT_TRUE(door.create(std::string(name))) << name;
        EXPECT_STREQ(door.getFileExtension(), "qif") << name;
    }
    EXPECT_TRUE(door.create(std::string("a.qif.txt")));
    EXPECT_STREQ(door.getFileExtension(), "csv");
}

TEST_F(QifModule, FrontDoorListsItWithItsExtension) {
    int found = 0;
    for (const ImportExternData::FileFormatInfo& info : ImportExternData::getSupportedFileFormats()) {
        if (info.m_format != Import::eFormatQIF)
            continue;
        EXPECT_EQ(info.m_label, "Quicken Interchange Format");
        EXPECT_EQ(info.m_extension, ImportModuleQIF::m_MyFileExtension);
        ++found;
    }
    EXPECT_EQ(found, 1);
}

TEST_F(QifModule, FrontDoorHandsItNeitherDelimiterNorHeaderFlag) {
    const TextImportResult run =
        runFrontDoor("!Type:Bank\nT1,5;6\n^\n", "a.qif", m_model.root(), false, /*firstLineIsHeader=*/true);
    EXPECT_EQ(run.importedCount, 1);
    EXPECT_EQ(m_model.integer("Importsessions/1/ImportTyp"), 2);
    ImportExternData door;
    ASSERT_TRUE(door.create(Import::eFormatQIF));
    door.setDelimiterChar(';');
    EXPECT_EQ(door.getBestDelimiter(), ',');
}

TEST_F(QifModule, FrontDoorReadsEachFileInQifSyntax) {
    for (const char* row : {"1", "2"}) {
        runFrontDoor("!Type:Bank\nD1/5'45\n^\n", "a.qif", m_model.root());
        EXPECT_EQ(m_model.text(std::string("DataSets/") + row + "/Datum"), "01.05.2045");
    }
}

TEST_F(QifModule, FrontDoorTakesTheCenturyWindowFromTheModel) {
    SmartDate::sm_CenturyWindowStart = 99;
    runFrontDoor("!Type:Bank\nD1/5/45\n^\n", "a.qif", m_model.root());
    EXPECT_EQ(m_model.text("DataSets/1/Datum"), "01.05.1945");
}

} // namespace
