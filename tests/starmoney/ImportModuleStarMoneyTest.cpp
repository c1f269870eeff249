// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/ImportModuleStarMoney.h"

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "architecture/VirtualSlot.h"
#include "starmoney/StarMoneyLine.h"
#include "support/TextImport.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Every test runs through the module and through the front door.
class StarMoney : public TextImport<ImportModuleStarMoney> {
protected:
    TextImportResult import(const std::string& bytes) const { return TextImport::import(bytes, m_model); }
    std::vector<ImportedRecord> records() const { return importedRecords(m_model); }

    FinanceModel m_model;
};

INSTANTIATE_TEST_SUITE_P(, StarMoney, testing::Values(ImportWay::module, ImportWay::frontDoor), nameOf);

TEST_P(StarMoney, ColumnsLandInTheirFields) {
    const TextImportResult run = import(starMoneyHeader() + StarMoneyLine{.date = "24.12.2004",
                                                                          .payee = "Shop",
                                                                          .amount = "-1.234,56",
                                                                          .purpose = {"purpose"},
                                                                          .postingText = "debit",
                                                                          .category = "living",
                                                                          .subcategory = "food"}
                                                                .text());
    EXPECT_EQ(run.result, 1);
    EXPECT_EQ(run.errorText, "");
    EXPECT_EQ(run.importedCount, 1);
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "living",
                                                      .purpose = "purpose",
                                                      .date = "24.12.2004",
                                                      .amount = "-1.234,56",
                                                      .payee = "Shop",
                                                      .subcategory = "food",
                                                      .postingText = "debit"}));
}

TEST_P(StarMoney, EachColumnFeedsOneFieldAndTheCurrencyNone) {
    std::vector<std::string> fields;
    for (int column = 0; column < 21; ++column)
        fields.push_back("c" + std::to_string(column));
    fields[0] = "1.2.2004";
    fields[2] = "7";
    EXPECT_EQ(import(starMoneyHeader() + joined(fields)).errorText, "");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "c19",
                                                      .purpose = "c4c5c6c7c8c9c10c11c12c13c14c15c16c17",
                                                      .date = "01.02.2004",
                                                      .amount = "7,00",
                                                      .payee = "c1",
                                                      .subcategory = "c20",
                                                      .postingText = "c18"}));
}

TEST_P(StarMoney, PurposeColumnsAreJoinedWithNothingBetween) {
    import(starMoneyHeader() + StarMoneyLine{.purpose = { "a", "b" }}.text());
    EXPECT_EQ(m_model.text("DataSets/1/Verwendungszweck"), "ab");
}

TEST_P(StarMoney, EmptyPurposeColumnsBetweenLeaveNothing) {
    import(starMoneyHeader() + StarMoneyLine{.purpose = { "", "a ", "", "b" }}.text());
    EXPECT_EQ(m_model.text("DataSets/1/Verwendungszweck"), "a b");
}

TEST_P(StarMoney, QuotedFieldsAreUnquoted) {
    import(starMoneyHeader() + StarMoneyLine{.date = "\"31.12.2004\"",
                                             .payee = "\"a|b\"",
                                             .amount = "\"-12,50\"",
                                             .purpose = {"\"x\"", "\"y \"\"z\"\"\""},
                                             .postingText = "\"debit\"",
                                             .category = "\"c\"",
                                             .subcategory = "\"s\""}
                                   .text());
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "c",
                                                      .purpose = "xy \"z\"",
                                                      .date = "31.12.2004",
                                                      .amount = "-12,50",
                                                      .payee = "a|b",
                                                      .subcategory = "s",
                                                      .postingText = "debit"}));
}

TEST_P(StarMoney, QuotesThatAreLeftAreStrippedFromTextsButNotFromDateAndAmount) {
    // A field in three pairs of quotes keeps one when the line is split.
    const std::string thrice = "\"\"\"";
    const TextImportResult run = preview(joined({thrice + "Datum" + thrice,
                                                 thrice + "Name" + thrice,
                                                 thrice + "Betrag" + thrice,
                                                 "Waehr",
                                                 thrice + "V1" + thrice,
                                                 "",
                                                 "",
                                                 "",
                                                 "",
                                                 "",
                                                 "",
                                                 "",
                                                 "",
                                                 "",
                                                 "",
                                                 "",
                                                 "",
                                                 thrice + "V14" + thrice,
                                                 thrice + "Text" + thrice,
                                                 thrice + "Kat" + thrice,
                                                 thrice + "Unterkat" + thrice}));
    EXPECT_THAT(run.preview.header, ElementsAre("Name", "Kat", "Unterkat", "V1V14", "Text", "\"Datum\"", "\"Betrag\""));
}

TEST_P(StarMoney, QuotedAmountReachesTheConversionWithItsQuotes) {
    const TextImportResult run = import(
        starMoneyHeader() + StarMoneyLine{.date = "\"\"\"31.12.2004\"\"\"", .amount = "\"\"\"12,50\"\"\""}.text());
    EXPECT_EQ(run.errorText, "");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.date = "31.12.2004", .amount = "12,50"}))
        << "both conversions skip quotes";
    EXPECT_EQ(import(starMoneyHeader() + StarMoneyLine{.amount = "\"\"\"99999999999999\"\"\""}.text()).errorText,
              std::string(kUnreadable) + "<br>Zeile 2: \"99999999999999\"<br>");
}

TEST_P(StarMoney, FirstLineIsTheHeaderWhateverItSays) {
    const std::string booking = StarMoneyLine{.payee = "first"}.text();
    EXPECT_EQ(import(booking + StarMoneyLine{.payee = "second"}.text()).importedCount, 1);
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.date = "31.12.2004", .amount = "1,00", .payee = "second"}));
}

TEST_P(StarMoney, EmptyLinesAheadOfTheHeaderDoNotCount) {
    EXPECT_EQ(import("\n \t\n" + starMoneyHeader() + "\n" + StarMoneyLine{}.text()).importedCount, 1);
}

TEST_P(StarMoney, HeaderAloneImportsNothing) {
    const TextImportResult run = import(starMoneyHeader());
    EXPECT_EQ(run.result, 1);
    EXPECT_EQ(run.importedCount, 0);
    EXPECT_THAT(records(), IsEmpty());
    EXPECT_EQ(m_model.rows("Importsessions"), 0);
}

TEST_P(StarMoney, EmptyFileImportsNothing) {
    EXPECT_EQ(import("").result, 1);
    EXPECT_THAT(records(), IsEmpty());
    EXPECT_THAT(preview("").preview.header, IsEmpty());
}

TEST_P(StarMoney, PreviewShowsTheNamesOfTheFileInTheOrderOfTheFields) {
    const TextImportResult run =
        preview(starMoneyHeader() +
                    StarMoneyLine{.payee = "Shop", .amount = "-1234,5", .purpose = {"a", "b"}, .category = "c"}.text(),
                m_model);
    EXPECT_EQ(run.result, 2);
    EXPECT_EQ(run.importedCount, 1);
    EXPECT_THAT(run.preview.header, ElementsAre("AgName1", "Kategorie", "Unterkat",
                                                "VWZ1VWZ2VWZ3VWZ4VWZ5VWZ6VWZ7VWZ8VWZ9VWZ10VWZ11VWZ12VWZ13VWZ14",
                                                "Buchungstext", "BuchDatum", "Betrag"));
    EXPECT_THAT(run.preview.rows, ElementsAre(ElementsAre("Shop", "c", "", "ab", "", "31.12.2004", "-1.234,50")));
    EXPECT_EQ(m_model.rows("DataSets"), 0);
    EXPECT_EQ(m_model.integer("NextUniqueID"), 1);
    EXPECT_EQ(m_model.kind("LetztesImportDatum"), DataType::eEmpty);
}

TEST_P(StarMoney, LineOfAnotherWidthEndsTheRunAndEarlierRecordsStay) {
    const struct {
        int columns;
        const char* found;
        const char* why;
    } cases[] = {
        {20, "20", "one too few"},
        {1, "1", "a line of one field"},
        {22, "22", "one too many"},
        {30, "22", "how many more there are is not counted"},
    };
    for (const auto& c : cases) {
        const FinanceModel model;
        const std::string text = starMoneyHeader() + StarMoneyLine{}.text() + "\n" +
                                 joined(std::vector<std::string>(static_cast<std::size_t>(c.columns), "x")) +
                                 StarMoneyLine{}.text();
        const TextImportResult run = TextImport::import(text, model);
        EXPECT_EQ(run.result, 0) << c.why;
        EXPECT_EQ(run.errorText,
                  std::string(kUnreadable) + "\nZeile 4: Erwartete Werte:21    Vorhandene Werte " + c.found)
            << c.why;
        EXPECT_EQ(run.importedCount, 1) << c.why;
        EXPECT_EQ(model.rows("DataSets"), 1) << c.why;
        EXPECT_EQ(model.rows("Importsessions"), 1) << c.why;
    }
}

TEST_P(StarMoney, HeaderOfAnotherWidthEndsTheRunToo) {
    const TextImportResult run = import("BuchDatum|AgName1|Betrag\n" + StarMoneyLine{}.text());
    EXPECT_EQ(run.result, 0);
    EXPECT_EQ(run.errorText, std::string(kUnreadable) + "\nZeile 1: Erwartete Werte:21    Vorhandene Werte 3");
    EXPECT_THAT(records(), IsEmpty());
}

TEST_P(StarMoney, RefusedValueEndsTheRunAndEarlierRecordsStay) {
    const TextImportResult run =
        import(starMoneyHeader() + StarMoneyLine{}.text() +
               StarMoneyLine{.payee = "rich", .amount = "99999999999999"}.text() + StarMoneyLine{}.text());
    EXPECT_EQ(run.result, 0);
    EXPECT_EQ(run.errorText, std::string(kUnreadable) + "<br>Zeile 3: 99999999999999<br>");
    EXPECT_EQ(run.importedCount, 1);
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.date = "31.12.2004", .amount = "1,00"}));
}

TEST_P(StarMoney, RowStopsAtItsFirstRefusedField) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.table("DataSets").refusing("Kategorie").refusing("Buchungstext");
    const FinanceModel model(schema);
    const TextImportResult run = TextImport::import(
        starMoneyHeader() + StarMoneyLine{.postingText = "text", .category = "category"}.text(), model);
    EXPECT_EQ(run.result, 0);
    EXPECT_EQ(run.errorText, std::string(kUnreadable) + "<br>Zeile 2: category<br>") << "the later one is not tried";
    EXPECT_EQ(model.rows("DataSets"), 0);
}

TEST_P(StarMoney, DateThatCannotBeReadIsNoDate) {
    EXPECT_EQ(import(starMoneyHeader() + StarMoneyLine{.date = "soon"}.text()).errorText, "");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.amount = "1,00"}));
}

TEST_P(StarMoney, RecordThatTakesNoIdentifierEndsTheRun) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.table("DataSets").without("UniqueID");
    const FinanceModel model(schema);
    const TextImportResult run =
        TextImport::import(starMoneyHeader() + StarMoneyLine{}.text() + StarMoneyLine{}.text(), model);
    EXPECT_EQ(run.result, 0);
    EXPECT_EQ(run.importedCount, 0);
    EXPECT_EQ(model.rows("DataSets"), 1);
}

TEST_P(StarMoney, CarriageReturnStaysInTheLastField) {
    EXPECT_EQ(import(starMoneyHeader() + "1.2.2004||1|EUR|||||||||||||||||food\r\n").errorText, "");
    EXPECT_EQ(m_model.text("DataSets/1/Unterkategorie"), "food\r");
}

TEST_P(StarMoney, RecordsCarryTheSessionAndIdentifiersOfTheirOwn) {
    m_model.set("NextImportID", DataType::makeInteger(5));
    m_model.set("NextUniqueID", DataType::makeInteger(17));
    const TextImportResult run = import(starMoneyHeader() + StarMoneyLine{}.text() + StarMoneyLine{}.text());
    EXPECT_EQ(run.sessionId, 5);
    EXPECT_EQ(m_model.integer("DataSets/2/ImportID"), 5);
    EXPECT_EQ(m_model.integer("DataSets/1/UniqueID"), 17);
    EXPECT_EQ(m_model.integer("DataSets/2/UniqueID"), 18);
    EXPECT_EQ(m_model.integer("NextImportID"), 6);
}

// The class and the front door

TEST(StarMoneyModule, NamesItsExtension) {
    const ImportModuleStarMoney module;
    EXPECT_STREQ(ImportModuleStarMoney::m_MyFileExtension, "ssx");
    EXPECT_STREQ(module.getFileExtension(), "ssx");
}

TEST(StarMoneyModule, VirtualOperationsKeepTheirSlots) {
    EXPECT_EQ(VirtualSlot::of(&ImportModuleStarMoney::getFileExtension), 3);
    EXPECT_EQ(VirtualSlot::of(&ImportModuleStarMoney::importRowIntoTable), 12);
    EXPECT_EQ(VirtualSlot::count<ImportModuleStarMoney>(), 13);
}

TEST(StarMoneyModule, FrontDoorMakesItByFormatAndByExtension) {
    ImportExternData door;
    EXPECT_TRUE(door.create(Import::eFormatStarMoney));
    EXPECT_STREQ(door.getFileExtension(), "ssx");
    EXPECT_TRUE(door.create(std::string("Umsaetze.SSX")));
    EXPECT_STREQ(door.getFileExtension(), "ssx");
}

TEST(StarMoneyModule, FrontDoorListsItFirstWithItsExtension) {
    const ImportExternData::FileFormatInfo& info = ImportExternData::getSupportedFileFormats().front();
    EXPECT_EQ(info.m_format, Import::eFormatStarMoney);
    EXPECT_EQ(info.m_label, "Star Money");
    EXPECT_EQ(info.m_extension, ImportModuleStarMoney::m_MyFileExtension);
}

TEST(StarMoneyModule, FrontDoorHandsItNeitherDelimiterNorHeaderFlag) {
    const std::string booking = StarMoneyLine{.payee = "a;b"}.text();
    for (const bool firstLineIsHeader : {false, true}) {
        const FinanceModel model;
        const TextImportResult run =
            runFrontDoor(booking + booking + booking, "a.ssx", model.root(), false, firstLineIsHeader);
        EXPECT_EQ(run.importedCount, 2) << "the first line is the header either way";
        EXPECT_EQ(model.text("DataSets/1/Empfaenger"), "a;b");
        EXPECT_EQ(model.integer("Importsessions/1/ImportTyp"), 0);
    }
    ImportExternData door;
    ASSERT_TRUE(door.create(Import::eFormatStarMoney));
    door.setDelimiterChar(';');
    EXPECT_EQ(door.getBestDelimiter(), ',') << "no delimiter is found for it";
}

TEST(StarMoneyModule, ColumnAssignmentDoesNotChangeItsLayout) {
    ColumnAssignment assignment{};
    assignment.m_pairs[0] = {5, Import::eColDatum};
    assignment.m_count = 1;
    ImportModuleStarMoney module;
    module.assignColumns(assignment);
    const FinanceModel model;
    runModule(module, starMoneyHeader() + StarMoneyLine{.payee = "Shop"}.text(), model.root());
    EXPECT_THAT(importedRecords(model),
                ElementsAre(ImportedRecord{.date = "31.12.2004", .amount = "1,00", .payee = "Shop"}));
}

} // namespace
