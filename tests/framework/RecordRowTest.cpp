// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>

#include "framework/ModuleFixture.h"
#include "support/CountingNode.h"

namespace {

constexpr const char* kHeading = "Fehler beim Analysieren der Daten aus der XML-Datei.<br>";
// Beyond the bounds of an amount.
constexpr const char* kTooMuch = "99999999999999,99";

/// Rows of a real import.
class RecordRowTest : public ModuleFixture {
protected:
    RecordRowTest() { startImport(); }

    /// One record of a payee and an amount.
    bool importRecord(const char* payee, const char* amount) {
        const auto row = m_module.startRow(2, false);
        return m_module.setColumnVal(row, "Empfaenger", payee, false) &&
               m_module.setColumnVal(row, "Betrag", amount, false) && m_module.compelteRowProcessing(false);
    }
};

TEST_F(RecordRowTest, StartRowMakesARecordAndMakesItTheCurrentOne) {
    const auto row = m_module.startRow(7, false);
    EXPECT_NE(row.record(), nullptr);
    EXPECT_EQ(row.record(), m_model.node("DataSets/1"));
    EXPECT_EQ(m_module.m_currentRow.record(), row.record());
    EXPECT_EQ(m_module.getLastSimulatedImport().getRowCount(), 0) << "the preview is for simulated imports";
}

TEST_F(RecordRowTest, HeaderRowMakesNoRecord) {
    m_module.startRow(7, false);
    const auto row = m_module.startRow(7, true);
    EXPECT_EQ(row.record(), nullptr);
    EXPECT_EQ(m_module.m_currentRow.record(), nullptr);
    EXPECT_EQ(m_model.rows("DataSets"), 1);
}

TEST_F(RecordRowTest, FieldsAreWrittenWithTheirTypes) {
    const auto row = m_module.startRow(7, false);
    EXPECT_TRUE(m_module.setColumnVal(row, "Empfaenger",
                                      " B\xE4"
                                      "cker ",
                                      false));
    EXPECT_TRUE(m_module.setColumnVal(row, "Datum", "31.12.2004", false));
    EXPECT_TRUE(m_module.setColumnVal(row, "Betrag", "-1.234,50 EUR", false));
    EXPECT_EQ(m_model.text("DataSets/1/Empfaenger"), " B\xE4"
                                                     "cker ");
    EXPECT_EQ(m_model.value("DataSets/1/Datum").getDate(), DMDate(31, 12, 2004));
    EXPECT_EQ(m_model.amount("DataSets/1/Betrag"), -1234.5);
    EXPECT_EQ(m_model.kind("DataSets/1/Kategorie"), DataType::eEmpty);
    EXPECT_STREQ(m_module.getErrorMsg(), "");
}

TEST_F(RecordRowTest, FieldWrittenTwiceKeepsTheSecondValue) {
    const auto row = m_module.startRow(7, false);
    EXPECT_TRUE(m_module.setColumnVal(row, "Empfaenger", "eins", false));
    EXPECT_TRUE(m_module.setColumnVal(row, "Empfaenger", "zwei", false));
    EXPECT_EQ(m_model.text("DataSets/1/Empfaenger"), "zwei");
}

TEST_F(RecordRowTest, UnknownFieldIsFalseWithoutATextAndLeavesTheRecord) {
    const auto row = m_module.startRow(7, false);
    EXPECT_FALSE(m_module.setColumnVal(row, "Notiz", "x", false));
    EXPECT_FALSE(m_module.setColumnVal(row, "betrag", "1", false));
    EXPECT_STREQ(m_module.getErrorMsg(), "");
    EXPECT_EQ(m_model.rows("DataSets"), 1);
    EXPECT_TRUE(m_module.setColumnVal(row, "Empfaenger", "x", false));
}

TEST_F(RecordRowTest, DateTeachesItsOrderEvenWhereTheRecordHasNoField) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.table("DataSets").without("Datum");
    const FinanceModel model(schema);
    ScriptedModule module;
    ImportInputParams params = paramsFor("");
    params.m_targetNode = model.root();
    module.importFile(params);
    const auto row = module.startRow(1, false);
    EXPECT_FALSE(module.setColumnVal(row, "Datum", "12/31/2004", false));
    EXPECT_EQ(SmartDate::sm_order, kMonthFirst);
    EXPECT_EQ(model.rows("DataSets"), 1) << "the record stays";
}

TEST_F(RecordRowTest, FieldOutsideTheCatalogueGetsTheEmptyValueAndIsRefused) {
    const auto row = m_module.startRow(7, false);
    EXPECT_FALSE(m_module.setColumnVal(row, "UniqueID", "5", false));
    EXPECT_EQ(m_module.getErrorMsg(), std::string(kHeading) + "Zeile 1: 5<br>");
    EXPECT_EQ(m_model.rows("DataSets"), 0);
}

TEST_F(RecordRowTest, HeaderFieldWritesNothingAndMarksTheRow) {
    const auto row = m_module.startRow(7, true);
    EXPECT_TRUE(m_module.setColumnVal(row, "Betrag", "Betrag", true));
    EXPECT_TRUE(m_module.m_skipRow);
    EXPECT_TRUE(m_module.setColumnVal(row, "kein Feld", "x", true)) << "not even looked up";
    EXPECT_EQ(m_model.rows("DataSets"), 0);
    EXPECT_STREQ(m_module.getErrorMsg(), "");
}

// ---- refused values

TEST_F(RecordRowTest, RefusedValueRemovesTheRecordAndNamesIt) {
    EXPECT_FALSE(importRecord("a", kTooMuch));
    EXPECT_EQ(m_model.rows("DataSets"), 0);
    EXPECT_EQ(m_module.getErrorMsg(), std::string(kHeading) + "Zeile 1: 99999999999999,99<br>");
    EXPECT_EQ(m_module.m_currentRow.record(), nullptr);
    EXPECT_EQ(m_module.m_processedCount, 0);
    EXPECT_EQ(m_model.integer("NextUniqueID"), 1);
}

TEST_F(RecordRowTest, RefusedValuesAreNumberedByRecordsUnderOneHeading) {
    m_module.m_lineNo = 4711; // has no part in it
    EXPECT_TRUE(importRecord("a", "1"));
    EXPECT_FALSE(importRecord("b", kTooMuch));
    EXPECT_TRUE(importRecord("c", "3"));
    EXPECT_TRUE(importRecord("d", "4"));
    EXPECT_FALSE(importRecord("e", "-99999999999999,99"));
    EXPECT_EQ(m_module.getErrorMsg(),
              std::string(kHeading) + "Zeile 2: 99999999999999,99<br>Zeile 4: -99999999999999,99<br>");
    EXPECT_EQ(m_model.rows("DataSets"), 3);
    EXPECT_EQ(m_model.text("DataSets/2/Empfaenger"), "c");
    EXPECT_EQ(m_module.getLastImportedDataSetsCount(), 3);
}

TEST_F(RecordRowTest, SkippedRowsCountInTheNumberOfARefusedValue) {
    m_module.startRow(2, true);
    EXPECT_TRUE(m_module.compelteRowProcessing(true));
    EXPECT_FALSE(importRecord("a", kTooMuch));
    EXPECT_EQ(m_module.getErrorMsg(), std::string(kHeading) + "Zeile 2: 99999999999999,99<br>");
}

TEST_F(RecordRowTest, HeadingIsLeftOutBehindAnyOtherText) {
    m_module.appendErrorMsg(nullptr, "von vorher<br>");
    EXPECT_FALSE(importRecord("a", kTooMuch));
    EXPECT_STREQ(m_module.getErrorMsg(), "von vorher<br>Zeile 1: 99999999999999,99<br>");
}

TEST_F(RecordRowTest, MessageOfARefusedValueEndsAfter497Bytes) {
    constexpr std::size_t kFits = 497 - 9 - 4; // "Zeile 1: " and "<br>"
    struct Case {
        std::size_t length;
        std::string tail;
        const char* why;
    };
    const Case cases[] = {
        {kFits, "9<br>", "fits whole"},
        {kFits + 1, "9<br", "one byte too long"},
        {kFits + 4, "9", "the end mark is lost"},
        {kFits + 5, "9", "the value is cut as well"},
        {4000, "9", "any length"},
    };
    for (const Case& c : cases) {
        ScriptedModule module;
        module.importFile(paramsFor(""));
        const auto row = module.startRow(1, false);
        EXPECT_FALSE(module.setColumnVal(row, "Betrag", std::string(c.length, '9').c_str(), false));
        const std::string text = module.getErrorMsg();
        ASSERT_EQ(text.substr(0, std::string(kHeading).size()), kHeading);
        const std::string message = text.substr(std::string(kHeading).size());
        EXPECT_EQ(message.size(), 497U) << c.why;
        EXPECT_EQ(message.substr(0, 9), "Zeile 1: ") << c.why;
        EXPECT_EQ(message.substr(message.size() - c.tail.size()), c.tail) << c.why;
        EXPECT_EQ(message.find_first_not_of('9', 9), c.tail.size() > 1 ? 497 - c.tail.size() + 1 : std::string::npos)
            << c.why;
    }
}

TEST_F(RecordRowTest, PercentSignsOfARefusedValueAreJustText) {
    const auto row = m_module.startRow(1, false);
    EXPECT_FALSE(m_module.setColumnVal(row, "Betrag", "99999999999999,99 %s%n", false));
    EXPECT_EQ(m_module.getErrorMsg(), std::string(kHeading) + "Zeile 1: 99999999999999,99 %s%n<br>");
}

TEST_F(RecordRowTest, RemovedRecordTakesNoMoreWrites) {
    const auto row = m_module.startRow(2, false);
    ASSERT_FALSE(m_module.setColumnVal(row, "Betrag", kTooMuch, false));
    const std::string text = m_module.getErrorMsg();
    EXPECT_FALSE(m_module.setColumnVal(row, "Empfaenger", "x", false));
    EXPECT_FALSE(m_module.setColumnVal(row, "Betrag", kTooMuch, false));
    EXPECT_EQ(m_module.getErrorMsg(), text) << "and says nothing more";
    EXPECT_EQ(m_model.rows("DataSets"), 0);
}

TEST_F(RecordRowTest, RemovedRecordIsNotCompleted) {
    const auto row = m_module.startRow(2, false);
    ASSERT_FALSE(m_module.setColumnVal(row, "Betrag", kTooMuch, false));
    EXPECT_FALSE(m_module.compelteRowProcessing(false));
    EXPECT_EQ(m_module.m_processedCount, 0);
    EXPECT_EQ(m_module.getLastImportedDataSetsCount(), 0);
    EXPECT_EQ(m_model.integer("NextUniqueID"), 1);
    EXPECT_EQ(m_model.rows("Importsessions"), 0);
}

TEST_F(RecordRowTest, OnlyTheRefusedRecordIsRemoved) {
    ASSERT_TRUE(importRecord("a", "1"));
    const auto row = m_module.startRow(2, false);
    ASSERT_FALSE(m_module.setColumnVal(row, "Betrag", kTooMuch, false));
    ASSERT_EQ(m_model.rows("DataSets"), 1);
    EXPECT_EQ(m_model.text("DataSets/1/Empfaenger"), "a");
    EXPECT_TRUE(importRecord("c", "3"));
    EXPECT_EQ(m_model.text("DataSets/2/Empfaenger"), "c");
}

TEST_F(RecordRowTest, EarlierRecordTakesNoMoreWrites) {
    const auto earlier = m_module.startRow(2, false);
    const auto current = m_module.startRow(2, false);
    EXPECT_FALSE(m_module.setColumnVal(earlier, "Empfaenger", "x", false));
    EXPECT_TRUE(m_module.setColumnVal(current, "Empfaenger", "y", false));
    EXPECT_STREQ(m_module.getErrorMsg(), "");
}

TEST_F(RecordRowTest, ZeroDateIsTakenByDefaultAndRefusedWhereADateIsDemanded) {
    const auto row = m_module.startRow(2, false);
    EXPECT_TRUE(m_module.setColumnVal(row, "Datum", "kein Datum", false));
    EXPECT_EQ(m_model.kind("DataSets/1/Datum"), DataType::eDate);

    SchemaDraft schema = SchemaDraft::finance();
    schema.table("DataSets").field("Datum").takesZeroDate = false;
    const FinanceModel strict(schema);
    ScriptedModule module;
    ImportInputParams params = paramsFor("");
    params.m_targetNode = strict.root();
    module.importFile(params);
    const auto strictRow = module.startRow(2, false);
    EXPECT_FALSE(module.setColumnVal(strictRow, "Datum", "kein Datum", false));
    EXPECT_EQ(module.getErrorMsg(), std::string(kHeading) + "Zeile 1: kein Datum<br>");
    EXPECT_EQ(strict.rows("DataSets"), 0);
}

TEST_F(RecordRowTest, RefusedValueIsReportedEvenWhereTheTableIsNoLongerFound) {
    const auto row = m_module.startRow(1, false);
    CountingNode rootWithoutTable;
    m_module.m_targetNode = &rootWithoutTable;
    EXPECT_FALSE(m_module.setColumnVal(row, "Betrag", kTooMuch, false));
    EXPECT_EQ(m_module.getErrorMsg(), std::string(kHeading) + "Zeile 1: 99999999999999,99<br>");
    EXPECT_EQ(m_model.rows("DataSets"), 1);
}

// ---- no record

TEST_F(RecordRowTest, TableThatIsMissingOrFullMakesNoRecordAndTakesNoWrites) {
    const FinanceModel without(SchemaDraft::finance().without("DataSets"));
    const FinanceModel full;
    auto* table = dynamic_cast<NodeTable*>(full.node("DataSets"));
    for (unsigned row = 1; row <= 65535; ++row)
        ASSERT_NE(table->create(static_cast<unsigned short>(row)), 0);
    for (const FinanceModel* model : {&without, &full}) {
        ScriptedModule module;
        ImportInputParams params = paramsFor("");
        params.m_targetNode = model->root();
        module.importFile(params);
        const auto row = module.startRow(2, false);
        EXPECT_EQ(row.record(), nullptr);
        EXPECT_FALSE(module.setColumnVal(row, "Empfaenger", "x", false));
        EXPECT_FALSE(module.compelteRowProcessing(false));
        EXPECT_STREQ(module.getErrorMsg(), "");
        EXPECT_EQ(module.m_processedCount, 0);
    }
    EXPECT_EQ(full.rows("DataSets"), 65535);
}

} // namespace
