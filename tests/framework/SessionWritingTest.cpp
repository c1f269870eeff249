// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>

#include <gmock/gmock.h>

#include "framework/ModuleFixture.h"
#include "support/TemporaryFile.h"

namespace {

/// Counters, IDs and the session of an import. Each line becomes a record whose
/// payee it is; a line "#..." becomes a skipped row.
class SessionWritingTest : public ModuleFixture {
protected:
    SessionWritingTest() { script(m_module); }

    static void script(ScriptedModule& module) {
        module.onLine([&module](const char* line) {
            const bool skip = *line == '#';
            const auto row = module.startRow(1, skip);
            return module.setColumnVal(row, "Empfaenger", line, skip) && module.compelteRowProcessing(skip);
        });
    }

    /// Imports into a tree of another schema with a module of its own.
    int importInto(const FinanceModel& model, ScriptedModule& module, const std::string& bytes) {
        script(module);
        ImportInputParams params = paramsFor(bytes);
        params.m_targetNode = model.root();
        return module.importFile(params);
    }
};

TEST_F(SessionWritingTest, ModuleBeforeItsFirstImportHoldsNothing) {
    const ScriptedModule module;
    EXPECT_EQ(module.getLastImportedDataSetsCount(), 0);
    EXPECT_EQ(module.getLastImportedSessionID(), 0);
    EXPECT_EQ(module.m_lineNo, 0);
    EXPECT_EQ(module.m_processedCount, 0);
    EXPECT_EQ(module.m_result, 0);
    EXPECT_FALSE(module.m_newDataFlagged);
    EXPECT_FALSE(module.m_simulate);
    EXPECT_FALSE(module.m_skipRow);
    EXPECT_EQ(module.m_currentRow.record(), nullptr);
    EXPECT_EQ(module.m_currentRow.previewRow(), 0);
    EXPECT_EQ(module.m_targetNode, nullptr);
    EXPECT_EQ(module.m_format, 99);
    EXPECT_STREQ(module.getErrorMsg(), "");
    EXPECT_EQ(module.getLastSimulatedImport().getRowCount(), 0);
}

TEST_F(SessionWritingTest, RecordsGetTheSessionsIDAndUniqueIDs) {
    m_model.set("NextImportID", DataType::makeInteger(5));
    m_model.set("NextUniqueID", DataType::makeInteger(17));
    EXPECT_EQ(import("a\nb\n"), 1);
    EXPECT_EQ(m_model.integer("DataSets/1/ImportID"), 5);
    EXPECT_EQ(m_model.integer("DataSets/2/ImportID"), 5);
    EXPECT_EQ(m_model.integer("DataSets/1/UniqueID"), 17);
    EXPECT_EQ(m_model.integer("DataSets/2/UniqueID"), 18);
    EXPECT_EQ(m_model.integer("NextUniqueID"), 19);
    EXPECT_EQ(m_model.integer("NextImportID"), 6);
    EXPECT_EQ(m_module.getLastImportedSessionID(), 5);
    EXPECT_EQ(m_module.getLastImportedDataSetsCount(), 2);
}

TEST_F(SessionWritingTest, SessionTellsWhatWasImported) {
    const TemporaryFile file("a\n", "mai.txt");
    ImportInputParams params;
    params.m_targetNode = m_model.root();
    params.m_fileName = file.path();
    params.m_importInfo = "Ums\xE4tze Mai";
    m_module.m_format = Import::eFormatTaxData;
    EXPECT_EQ(m_module.importFile(params), 1);
    EXPECT_EQ(m_model.text("Importsessions/1/ImportInfo"), "Ums\xE4tze Mai");
    EXPECT_EQ(m_model.text("Importsessions/1/ImportFileName"), file.path());
    EXPECT_EQ(m_model.integer("Importsessions/1/ImportTyp"), 3) << "the module's format";
    EXPECT_EQ(m_model.integer("Importsessions/1/ImportID"), 1);
    EXPECT_EQ(m_model.value("Importsessions/1/ImportDatum").getDate(), m_model.value("LetztesImportDatum").getDate());
    EXPECT_TRUE(m_module.m_session.isValid());
}

TEST_F(SessionWritingTest, SessionOfAModuleWithoutTheFrontDoorHasType99) {
    EXPECT_EQ(import("a\n"), 1);
    EXPECT_EQ(m_model.integer("Importsessions/1/ImportTyp"), 99);
}

TEST_F(SessionWritingTest, NullDescriptionAndNullFileNameAreEmptyTexts) {
    EXPECT_EQ(import("a\n"), 1);
    EXPECT_EQ(m_model.kind("Importsessions/1/ImportInfo"), DataType::eString);
    EXPECT_EQ(m_model.text("Importsessions/1/ImportInfo"), "");
    EXPECT_EQ(m_model.kind("Importsessions/1/ImportFileName"), DataType::eString);
    EXPECT_EQ(m_model.text("Importsessions/1/ImportFileName"), "");
}

TEST_F(SessionWritingTest, SessionAndMarkerAreWrittenOnceAtTheFirstImportedRecord) {
    startImport();
    EXPECT_TRUE(m_module.compelteRowProcessing(true)) << "a skipped row";
    EXPECT_EQ(m_model.rows("Importsessions"), 0);
    EXPECT_EQ(m_model.kind("NeueDatenVorhanden"), DataType::eEmpty);
    EXPECT_FALSE(m_module.m_newDataFlagged);

    m_module.startRow(1, false);
    EXPECT_EQ(m_model.rows("Importsessions"), 0) << "not before the record is complete";
    EXPECT_TRUE(m_module.compelteRowProcessing(false));
    EXPECT_EQ(m_model.rows("Importsessions"), 1);
    EXPECT_TRUE(m_model.value("NeueDatenVorhanden").getBoolean());
    EXPECT_TRUE(m_module.m_newDataFlagged);

    m_model.set("NeueDatenVorhanden", DataType::makeBoolean(false));
    m_module.startRow(1, false);
    EXPECT_TRUE(m_module.compelteRowProcessing(false));
    EXPECT_EQ(m_model.rows("Importsessions"), 1);
    EXPECT_FALSE(m_model.value("NeueDatenVorhanden").getBoolean()) << "the marker is not written again";
    EXPECT_EQ(m_model.integer("NextImportID"), 2);
}

TEST_F(SessionWritingTest, SkippedRowsAreCountedAndNotImported) {
    EXPECT_EQ(import("#eins\na\n#zwei\nb\n"), 1);
    EXPECT_EQ(m_module.m_processedCount, 4);
    EXPECT_EQ(m_module.getLastImportedDataSetsCount(), 2);
    EXPECT_EQ(m_model.rows("DataSets"), 2);
}

TEST_F(SessionWritingTest, ImportOfSkippedRowsAloneWritesNoSession) {
    EXPECT_EQ(import("#eins\n#zwei\n"), 1);
    EXPECT_EQ(m_module.m_processedCount, 2);
    EXPECT_EQ(m_module.getLastImportedDataSetsCount(), 0);
    EXPECT_EQ(m_model.rows("Importsessions"), 0);
    EXPECT_EQ(m_model.kind("NeueDatenVorhanden"), DataType::eEmpty);
    EXPECT_EQ(m_model.integer("NextImportID"), 1);
}

TEST_F(SessionWritingTest, SkippedRowKeepsItsRecordWithoutIDs) {
    // A module that skips a row it has begun leaves the record to the host.
    startImport();
    m_module.startRow(1, false);
    EXPECT_TRUE(m_module.compelteRowProcessing(true));
    EXPECT_TRUE(m_module.m_skipRow);
    EXPECT_EQ(m_model.rows("DataSets"), 1);
    EXPECT_EQ(m_model.kind("DataSets/1/ImportID"), DataType::eEmpty);
    EXPECT_EQ(m_model.kind("DataSets/1/UniqueID"), DataType::eEmpty);
}

TEST_F(SessionWritingTest, CompletingARowTakesTheSkipMarkFromItsCaller) {
    startImport();
    m_module.m_skipRow = true;
    m_module.startRow(1, false);
    EXPECT_TRUE(m_module.compelteRowProcessing(false));
    EXPECT_FALSE(m_module.m_skipRow);
    EXPECT_EQ(m_model.kind("DataSets/1/UniqueID"), DataType::eInteger);
}

TEST_F(SessionWritingTest, MarkedRowGetsNoIDs) {
    startImport();
    m_module.startRow(1, false);
    m_module.m_skipRow = true;
    EXPECT_TRUE(m_module.completeRowImport());
    EXPECT_EQ(m_model.kind("DataSets/1/UniqueID"), DataType::eEmpty);
    m_module.m_skipRow = false;
    EXPECT_TRUE(m_module.completeRowImport());
    EXPECT_EQ(m_model.integer("DataSets/1/UniqueID"), 1);
}

TEST_F(SessionWritingTest, SimulatedImportCountsAndWritesNothing) {
    EXPECT_EQ(simulate("#Kopf\na\nb\n"), 2);
    EXPECT_EQ(m_module.m_processedCount, 3);
    EXPECT_EQ(m_module.getLastImportedDataSetsCount(), 2);
    EXPECT_TRUE(m_module.setImportSessionInfo()) << "nothing to write is no failure";
    EXPECT_TRUE(m_module.completeRowImport());
    expectNothingWritten();
}

TEST_F(SessionWritingTest, SetupImportDateOfASimulatedImportStampsTheSessionAlone) {
    EXPECT_EQ(simulate("a\n"), 2);
    EXPECT_TRUE(m_module.m_session.isValidDate());
    m_module.m_simulate = false;
    m_module.setupImportDate();
    EXPECT_EQ(m_model.kind("LetztesImportDatum"), DataType::eDate);
}

TEST_F(SessionWritingTest, RecordsWrittenBeforeAFailureStay) {
    EXPECT_EQ(import("a\nb\n" + std::string(4095, 'x') + "\nc\n"), 0);
    EXPECT_EQ(m_model.rows("DataSets"), 2);
    EXPECT_EQ(m_model.rows("Importsessions"), 1);
    EXPECT_EQ(m_module.getLastImportedDataSetsCount(), 2);
}

TEST_F(SessionWritingTest, IDsThatCannotBeWrittenFailTheRowWithoutAText) {
    for (const char* field : {"ImportID", "UniqueID"}) {
        SchemaDraft schema = SchemaDraft::finance();
        schema.table("DataSets").without(field);
        const FinanceModel model(schema);
        ScriptedModule module;
        EXPECT_EQ(importInto(model, module, "a\nb\n"), 0) << field;
        EXPECT_STREQ(module.getErrorMsg(), "") << field;
        EXPECT_EQ(module.m_processedCount, 0) << field;
        EXPECT_EQ(module.getLastImportedDataSetsCount(), 0) << field;
        EXPECT_EQ(model.rows("DataSets"), 1) << field << ": the record stays";
        EXPECT_EQ(model.rows("Importsessions"), 0) << field;
    }
}

TEST_F(SessionWritingTest, SessionThatCannotBeWrittenFailsItsRowAndNoLaterOne) {
    const FinanceModel model(SchemaDraft::finance().without("Importsessions"));
    ScriptedModule module;
    EXPECT_EQ(importInto(model, module, "a\nb\n"), 0);
    EXPECT_STREQ(module.getErrorMsg(), "");
    EXPECT_EQ(module.getLastImportedDataSetsCount(), 1) << "the record counts: it is there";
    EXPECT_TRUE(model.value("NeueDatenVorhanden").getBoolean()) << "written before the session";
    EXPECT_FALSE(module.setImportSessionInfo());

    module.startRow(1, false);
    EXPECT_TRUE(module.compelteRowProcessing(false)) << "the session is not tried again";
    EXPECT_EQ(module.getLastImportedDataSetsCount(), 2);
}

TEST_F(SessionWritingTest, SessionWithoutAnIntegerIDReportsID0) {
    const FinanceModel without(SchemaDraft::finance().without("NextImportID"));
    ScriptedModule module;
    EXPECT_EQ(importInto(without, module, ""), 1);
    EXPECT_EQ(module.getLastImportedSessionID(), 0);

    SchemaDraft schema = SchemaDraft::finance();
    schema.field("NextImportID").kind = DataType::eString;
    const FinanceModel texts(schema);
    texts.set("NextImportID", textValue("5"));
    ScriptedModule other;
    EXPECT_EQ(importInto(texts, other, ""), 1);
    EXPECT_EQ(other.getLastImportedSessionID(), 0);
}

TEST_F(SessionWritingTest, CounterThatIsNoIntegerFailsTheFirstRecord) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.field("NextImportID").kind = DataType::eString;
    const FinanceModel model(schema);
    model.set("NextImportID", textValue("5"));
    ScriptedModule module;
    EXPECT_EQ(importInto(model, module, "a\n"), 0);
    EXPECT_EQ(model.text("NextImportID"), "5") << "moves on with a written session alone";
    EXPECT_EQ(model.rows("Importsessions"), 0);
}

TEST_F(SessionWritingTest, NewImportStartsItsCountersAfresh) {
    EXPECT_EQ(import("a\n#x\nb\n"), 1);
    m_module.m_skipRow = true;
    EXPECT_EQ(import("c\n"), 1);
    EXPECT_EQ(m_module.getLastImportedDataSetsCount(), 1);
    EXPECT_EQ(m_module.m_processedCount, 1);
    EXPECT_EQ(m_module.m_lineNo, 3);
    EXPECT_EQ(m_module.getLastImportedSessionID(), 2);
    EXPECT_EQ(m_model.rows("Importsessions"), 2) << "a session of its own";
    EXPECT_EQ(m_model.integer("DataSets/3/UniqueID"), 3);
    EXPECT_EQ(m_model.integer("DataSets/3/ImportID"), 2);
}

TEST_F(SessionWritingTest, NewImportWritesIntoItsOwnTarget) {
    EXPECT_EQ(import("a\n"), 1);
    const FinanceModel other;
    EXPECT_EQ(importInto(other, m_module, "b\nc\n"), 1);
    EXPECT_EQ(m_model.rows("DataSets"), 1);
    EXPECT_EQ(m_model.rows("Importsessions"), 1);
    EXPECT_EQ(other.rows("DataSets"), 2);
    EXPECT_EQ(other.rows("Importsessions"), 1);
    EXPECT_EQ(other.integer("NextImportID"), 2);
}

TEST_F(SessionWritingTest, NewImportForgetsTheRowOfTheOneBefore) {
    EXPECT_EQ(import("a\n"), 1);
    ASSERT_NE(m_module.m_currentRow.record(), nullptr);
    m_module.m_skipRow = true;
    EXPECT_EQ(import(""), 1);
    EXPECT_FALSE(m_module.m_skipRow);
    EXPECT_EQ(m_module.m_currentRow.record(), nullptr);
    EXPECT_FALSE(m_module.m_newDataFlagged);
}

} // namespace
