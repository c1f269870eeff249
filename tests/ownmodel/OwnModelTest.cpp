// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "ownmodel/OwnModel.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "framework/ImportExternData.h"
#include "ownmodel/LoadedLibraries.h"
#include "support/TemporaryFile.h"

// The library beside a data model that is not ours: whatever it needs of a host
// stands in the contract.
namespace {

using ::testing::Contains;
using ::testing::Not;
using ::testing::StartsWith;

constexpr ColumnAssignment kDateNameAmount = {
    {{0, Import::eColDatum}, {1, Import::eColEmpfaenger}, {2, Import::eColBetrag}}, 3};

DataType integer(int number) { return DataType::makeInteger(number); }

class OwnModelTest : public ::testing::Test {
protected:
    OwnModelTest() {
        g_ownModelLog = {};
        root->getNode(NDX("NextImportID"))->setValue(integer(5), NDX(), 0);
        root->getNode(NDX("NextUniqueID"))->setValue(integer(17), NDX(), 0);
    }

    /// Runs one import of a file with these bytes through the front door.
    int runImport(const std::string& bytes, const ColumnAssignment& columns, bool simulate = false) {
        const TemporaryFile file(bytes, "konto.CSV");
        const std::string path = std::string("host:") + file.path();
        ImportInputParams params;
        params.m_fileName = path.c_str();
        params.m_targetNode = root;
        params.m_importInfo = "Giro";
        params.m_simulate = simulate ? 1 : 0;
        ColumnAssignment copy = columns;
        return frontDoor.importFile(params, ';', &copy);
    }

    int rows(const char* table) const { return root->getNode(NDX(table))->getNodeCount(); }

    DataType field(const char* table, unsigned short row, const char* name) const {
        return root->getNode(NDX(table))->getNodeNum(row)->getNode(NDX(name))->getValue();
    }

    std::string shown(const char* table, unsigned short row, const char* name) const {
        return field(table, row, name).asString(true, 2);
    }

    DataManager manager;
    Node* root = manager.root();
    ImportExternData frontDoor;
};

// What the library told this model while it was loaded.
const OwnModelLog g_logAtStart = g_ownModelLog;

TEST(OwnModelAtLoad, EverySourceOfTheLibraryChecksBothTypeSizesOnce) {
    EXPECT_EQ(g_logAtStart.nodeSizeChecks, IMPORT_MODULE_SOURCE_COUNT);
    EXPECT_EQ(g_logAtStart.managerSizeChecks, IMPORT_MODULE_SOURCE_COUNT);
    EXPECT_EQ(g_logAtStart.wrongSizes, 0);
}

TEST(OwnModelAtLoad, LibrariesOfOurModelAreNotThere) {
    EXPECT_THAT(loadedLibraries(), Contains(StartsWith("libImportModule.so")));
    EXPECT_THAT(loadedLibraries(), Not(Contains(StartsWith("libDm"))));
}

TEST_F(OwnModelTest, TakesAnImport) {
    EXPECT_EQ(runImport("24.12.2025;Laden;-12,50\n1.1.26;Kiosk;3\n", kDateNameAmount), 1);

    ASSERT_EQ(rows("DataSets"), 2);
    EXPECT_EQ(shown("DataSets", 1, "Datum"), "2025/12/24");
    EXPECT_EQ(shown("DataSets", 1, "Empfaenger"), "Laden");
    EXPECT_EQ(field("DataSets", 1, "Betrag").getCurrency(), -12.5);
    EXPECT_EQ(field("DataSets", 1, "Buchungstext").kind(), DataType::eEmpty);
    EXPECT_EQ(shown("DataSets", 2, "Datum"), "2026/1/1");
    EXPECT_EQ(shown("DataSets", 2, "Empfaenger"), "Kiosk");
    EXPECT_EQ(frontDoor.getLastImportedDataSetsCount(), 2);
    EXPECT_STREQ(frontDoor.getErrorMsg(), "");
}

TEST_F(OwnModelTest, RecordsTheSessionAndMovesTheCountersOn) {
    runImport("24.12.2025;Laden;1\n25.12.2025;Kiosk;2\n", kDateNameAmount);

    ASSERT_EQ(rows("Importsessions"), 1);
    EXPECT_EQ(field("Importsessions", 1, "ImportID").getInt(), 5);
    EXPECT_EQ(field("Importsessions", 1, "ImportTyp").getInt(), Import::eFormatCSV);
    EXPECT_EQ(shown("Importsessions", 1, "ImportInfo"), "Giro");
    EXPECT_THAT(shown("Importsessions", 1, "ImportFileName"), StartsWith("host:"));
    EXPECT_FALSE(field("Importsessions", 1, "ImportDatum").getDate().isZero());
    EXPECT_EQ(frontDoor.getLastImportedSessionID(), 5);
    EXPECT_EQ(root->getNode(NDX("NextImportID"))->getValue().getInt(), 6);

    EXPECT_EQ(field("DataSets", 1, "ImportID").getInt(), 5);
    EXPECT_EQ(field("DataSets", 2, "ImportID").getInt(), 5);
    EXPECT_EQ(field("DataSets", 1, "UniqueID").getInt(), 17);
    EXPECT_EQ(field("DataSets", 2, "UniqueID").getInt(), 18);
    EXPECT_EQ(root->getNode(NDX("NextUniqueID"))->getValue().getInt(), 19);

    EXPECT_TRUE(root->getNode(NDX("NeueDatenVorhanden"))->getValue().getBoolean());
    EXPECT_EQ(root->getNode(NDX("LetztesImportDatum"))->getValue().getDate(),
              field("Importsessions", 1, "ImportDatum").getDate());
}

TEST_F(OwnModelTest, PreparesAnUpdateBeforeEveryRow) {
    runImport("24.12.2025;Laden;1\n25.12.2025;Kiosk;2\n", kDateNameAmount);

    EXPECT_EQ(g_ownModelLog.updatesPrepared, 3); // two records, one session
    EXPECT_EQ(g_ownModelLog.breaches, 0) << "a row was made first";
}

TEST_F(OwnModelTest, MayMakeATableWhenItIsPrepared) {
    OwnRecord late({{"NextImportID", DataType::eInteger}, {"NextUniqueID", DataType::eInteger}});
    late.getNode(NDX("NextImportID"))->setValue(integer(5), NDX(), 0);
    late.getNode(NDX("NextUniqueID"))->setValue(integer(17), NDX(), 0);
    late.onPrepare([&late] {
        if (late.child("DataSets") == nullptr)
            late.addTable("DataSets", {{"ImportID", DataType::eInteger}, {"UniqueID", DataType::eInteger}});
    });
    root = &late;

    EXPECT_EQ(runImport("egal\n", ColumnAssignment{}), 1);

    ASSERT_EQ(rows("DataSets"), 1);
    EXPECT_EQ(field("DataSets", 1, "UniqueID").getInt(), 17);
}

TEST_F(OwnModelTest, IsCalledAsTheContractSays) {
    runImport("24.12.2025;Laden;1\n25.12.2025;Kiosk;1000,01\n", kDateNameAmount);
    runImport("24.12.2025;Laden;1\n", kDateNameAmount, true);

    EXPECT_EQ(g_ownModelLog.breaches, 0);
}

TEST_F(OwnModelTest, NamesItsOwnBoundsOfAmounts) {
    EXPECT_EQ(runImport("1.1.26;a;1000\n1.1.26;b;1000,01\n1.1.26;c;-100\n1.1.26;d;-100,01\n", kDateNameAmount), 1);

    ASSERT_EQ(rows("DataSets"), 2);
    EXPECT_EQ(shown("DataSets", 1, "Empfaenger"), "a");
    EXPECT_EQ(shown("DataSets", 2, "Empfaenger"), "c");
    EXPECT_EQ(g_ownModelLog.rowsDestroyed, 2);
    EXPECT_EQ(frontDoor.getLastImportedDataSetsCount(), 2);
    EXPECT_STREQ(frontDoor.getErrorMsg(), "Fehler beim Analysieren der Daten aus der XML-Datei.<br>"
                                          "Zeile 2: 1000,01<br>Zeile 3: -100,01<br>");
}

TEST_F(OwnModelTest, LeavesARecordAsItIsWhereAFieldIsNotInItsSchema) {
    const ColumnAssignment toAField = {{{0, Import::eColEmpfaenger}, {1, Import::eColKategorie}}, 2};

    EXPECT_EQ(runImport("Laden;Haushalt\n", toAField), 1);

    ASSERT_EQ(rows("DataSets"), 1);
    EXPECT_EQ(shown("DataSets", 1, "Empfaenger"), "Laden");
    EXPECT_EQ(field("DataSets", 1, "UniqueID").kind(), DataType::eEmpty);
    EXPECT_EQ(frontDoor.getLastImportedDataSetsCount(), 0);
    EXPECT_STREQ(frontDoor.getErrorMsg(), "");
    EXPECT_EQ(rows("Importsessions"), 0);
}

TEST_F(OwnModelTest, NamesItsOwnCenturyWindow) {
    runImport("31.12.79;a;1\n31.12.80;b;1\n", kDateNameAmount);

    EXPECT_EQ(shown("DataSets", 1, "Datum"), "2079/12/31");
    EXPECT_EQ(shown("DataSets", 2, "Datum"), "1980/12/31");
}

TEST_F(OwnModelTest, ShowsASimulatedImportInItsOwnDisplayForm) {
    EXPECT_EQ(runImport("24.12.2025;Laden;-12,50\n", kDateNameAmount, true), 2);

    const ImportRecordSet& preview = frontDoor.getLastSimulatedImport();
    ASSERT_EQ(preview.getRowCount(), 1);
    EXPECT_EQ(preview.getString(0, 0), "2025/12/24");
    EXPECT_EQ(preview.getString(0, 1), "Laden");
    EXPECT_EQ(preview.getString(0, 2), "-1250 cent");
}

TEST_F(OwnModelTest, StaysAsItIsInASimulatedImport) {
    runImport("24.12.2025;Laden;-12,50\n", kDateNameAmount, true);

    EXPECT_EQ(rows("DataSets"), 0);
    EXPECT_EQ(rows("Importsessions"), 0);
    EXPECT_EQ(root->getNode(NDX("NextImportID"))->getValue().getInt(), 5);
    EXPECT_EQ(root->getNode(NDX("NextUniqueID"))->getValue().getInt(), 17);
    EXPECT_EQ(root->getNode(NDX("LetztesImportDatum"))->getValue().kind(), DataType::eEmpty);
    EXPECT_EQ(root->getNode(NDX("NeueDatenVorhanden"))->getValue().kind(), DataType::eEmpty);
    EXPECT_EQ(g_ownModelLog.updatesPrepared, 0);
}

TEST_F(OwnModelTest, NamesThePathInItsFileSystem) {
    const TemporaryFile file("1.1.26;a;1\n");
    ImportInputParams params;
    params.m_fileName = file.path(); // without this host's mark it lies nowhere
    params.m_targetNode = root;
    ColumnAssignment columns = kDateNameAmount;

    EXPECT_EQ(frontDoor.importFile(params, ';', &columns), 0);
    EXPECT_STREQ(frontDoor.getErrorMsg(), "Die Importdatei konnte nicht ge\xF6"
                                          "ffnet werden.");
}

} // namespace
