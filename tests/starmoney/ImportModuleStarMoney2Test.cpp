// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/ImportModuleStarMoney2.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "architecture/VirtualSlot.h"
#include "csv/ImportModuleStarMoney.h"
#include "starmoney/StarMoneyLine.h"
#include "support/TextImport.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The front door never makes this module: a host makes its own.
class StarMoney2 : public testing::Test {
protected:
    TextImportResult import(const std::string& bytes) const { return run(bytes, m_model, false); }
    TextImportResult preview(const std::string& bytes) const { return run(bytes, m_model, true); }
    static TextImportResult run(const std::string& bytes, const FinanceModel& model, bool simulate) {
        ImportModuleStarMoney2 module;
        return runModule(module, bytes, model.root(), simulate);
    }
    std::vector<ImportedRecord> records() const { return importedRecords(m_model); }

    FinanceModel m_model;
};

/// The module with what it learned of a header within reach.
class ExposedStarMoney2 : public ImportModuleStarMoney2 {
public:
    using ImportModuleStarMoney2::getAssignedColumnNameForIndex;
    using ImportModuleStarMoney2::m_dateColumn;
    using ImportModuleStarMoney2::pairCount;

    bool learn(std::vector<std::string> names) {
        UnknownRowInfo header{};
        for (std::size_t column = 0; column < names.size(); ++column)
            header.m_columns[column] = names[column].data();
        return setupColumnMapping(header, static_cast<int>(names.size()));
    }
};

TEST_F(StarMoney2, KnownNamesAreAssignedTheirFields) {
    const struct {
        const char* name;
        const char* field;
    } cases[] = {
        {"BuchDatum", "Datum"},     {"AgName1", "Empfaenger"},      {"Betrag", "Betrag"},
        {"Kategorie", "Kategorie"}, {"Unterkat", "Unterkategorie"}, {"Buchungstext", "Buchungstext"},
        {"\"Betrag\"", "Betrag"}, // quotes around a name go
    };
    for (const auto& c : cases) {
        ExposedStarMoney2 module;
        EXPECT_TRUE(module.learn({"Saldo", c.name}));
        EXPECT_STREQ(module.getAssignedColumnNameForIndex(1), c.field) << c.name;
        EXPECT_EQ(module.getAssignedColumnNameForIndex(0), nullptr);
        EXPECT_EQ(module.pairCount(), 1);
    }
}

TEST_F(StarMoney2, OtherNamesAreNotAssigned) {
    for (const char* name : {"BtgWaehr", "Buchungstext2", "betrag", "Betrag ", "Buch", "", "AgName", "VWZ1", "vwz1"}) {
        ExposedStarMoney2 module;
        EXPECT_TRUE(module.learn({name}));
        EXPECT_EQ(module.getAssignedColumnNameForIndex(0), nullptr) << name;
        EXPECT_EQ(module.pairCount(), 0) << name;
        EXPECT_EQ(module.m_dateColumn, -1) << name;
    }
}

TEST_F(StarMoney2, DateColumnIsHandedToTheBase) {
    ExposedStarMoney2 module;
    module.learn({"Betrag", "BuchDatum"});
    EXPECT_EQ(module.m_dateColumn, 1);
}

TEST_F(StarMoney2, HeaderOfNoColumnsIsHandedOnToo) {
    ExposedStarMoney2 module;
    EXPECT_EQ(module.pairCount(), -1);
    EXPECT_TRUE(module.learn({}));
    EXPECT_EQ(module.pairCount(), 0);
}

TEST_F(StarMoney2, NewHeaderForgetsTheOldOne) {
    ExposedStarMoney2 module;
    module.learn({"Betrag", "BuchDatum"});
    module.learn({"AgName1"});
    EXPECT_EQ(module.pairCount(), 1);
    EXPECT_STREQ(module.getAssignedColumnNameForIndex(0), "Empfaenger");
    EXPECT_EQ(module.getAssignedColumnNameForIndex(1), nullptr);
}

TEST_F(StarMoney2, ColumnsAreFoundByTheNamesInTheFirstLine) {
    const TextImportResult run = import("Saldo|Betrag|BtgWaehr|VWZ1|Kategorie|BuchDatum|Unterkat|AgName1|Buchungstext\n"
                                        "99|-12,50|EUR|purpose|living|31.12.2004|food|Shop|debit\n");
    EXPECT_EQ(run.result, 1);
    EXPECT_EQ(run.errorText, "");
    EXPECT_EQ(run.importedCount, 1);
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.category = "living",
                                                      .purpose = "purpose",
                                                      .date = "31.12.2004",
                                                      .amount = "-12,50",
                                                      .payee = "Shop",
                                                      .subcategory = "food",
                                                      .postingText = "debit"}));
}

TEST_F(StarMoney2, PurposeIsJoinedInFileOrderWhateverTheNumbersSay) {
    import("VWZ2|Betrag|VWZ1|VWZ12|VWZ\nsecond|1|first|twelfth|bare\n");
    EXPECT_EQ(m_model.text("DataSets/1/Verwendungszweck"), "secondfirsttwelfthbare");
}

TEST_F(StarMoney2, NamesThatBeginLikeAPurposeAreOne) {
    const struct {
        const char* name;
        const char* purpose;
        const char* why;
    } cases[] = {
        {"VWZ", "text", "no number is the number 0"},
        {"VWZ12", "text", "two digits"},
        {"VWZtext", "text", "no number is the number 0"},
        {"VWZ 3", "text", "blanks ahead of the number"},
        {"VWZ+3", "text", "a sign"},
        {"VWZ-3", "text", "a negative number is one"},
        {"VWZ+-1", "text", "two signs are no number, which is the number 0"},
        {"VWZ99999999999999999999", "text", "a number of any length"},
        {"VWZ-99999999999999999999", "text", "the same, negative"},
        {"VWZ-1", "", "the number that stands for no purpose column"},
        {"VW", "", "cut short"},
        {"xVWZ1", "", "not at the start"},
        {"vwz1", "", "lower case"},
    };
    for (const auto& c : cases) {
        const FinanceModel model;
        EXPECT_EQ(run(std::string("Betrag|") + c.name + "\n1|text\n", model, false).errorText, "") << c.why;
        EXPECT_EQ(model.text("DataSets/1/Verwendungszweck"), c.purpose) << c.why;
    }
}

TEST_F(StarMoney2, HeaderWithoutAKnownNameWritesThePurposeAlone) {
    EXPECT_EQ(import("Datum|VWZ1|Umsatz|VWZ2\n31.12.2004|a|7|b\n").errorText, "");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.purpose = "ab"}));
}

TEST_F(StarMoney2, PurposeIsWrittenEvenWhenItIsEmpty) {
    import("Betrag\n7\n");
    EXPECT_EQ(m_model.kind("DataSets/1/Verwendungszweck"), DataType::eString);
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.amount = "7,00"}));
}

TEST_F(StarMoney2, LaterColumnOfANameWins) {
    EXPECT_EQ(import("AgName1|AgName1\nfirst|second\n").errorText, "");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.payee = "second"}));
}

TEST_F(StarMoney2, NoMoreThanSevenColumnsAreAssigned) {
    ExposedStarMoney2 module;
    EXPECT_TRUE(module.learn(std::vector<std::string>(49, "AgName1")));
    EXPECT_EQ(module.pairCount(), 7);
    EXPECT_NE(module.getAssignedColumnNameForIndex(6), nullptr);
    EXPECT_EQ(module.getAssignedColumnNameForIndex(7), nullptr);
    import("AgName1|AgName1|AgName1|AgName1|AgName1|AgName1|AgName1|AgName1|Betrag|VWZ1\n1|2|3|4|5|6|7|8|9|p\n");
    EXPECT_THAT(records(), ElementsAre(ImportedRecord{.purpose = "p", .payee = "7"}));
}

TEST_F(StarMoney2, LinesMayHaveAnyWidth) {
    EXPECT_EQ(import("Betrag|AgName1|VWZ1\n1\n2|two\n3|three|a|further|fields\n").errorText, "");
    EXPECT_THAT(records(),
                ElementsAre(ImportedRecord{.amount = "1,00"}, ImportedRecord{.amount = "2,00", .payee = "two"},
                            ImportedRecord{.purpose = "a", .amount = "3,00", .payee = "three"}));
}

TEST_F(StarMoney2, ColumnsBeyondTheFortyNinthAreNotRead) {
    std::vector<std::string> names(60, "VWZ1");
    std::vector<std::string> texts(60, "x");
    texts[48] = "last";
    texts[49] = "never";
    EXPECT_EQ(import(joined(names) + joined(texts)).errorText, "");
    EXPECT_EQ(m_model.text("DataSets/1/Verwendungszweck"), std::string(48, 'x') + "last");
}

TEST_F(StarMoney2, QuotesThatAreLeftAreStrippedButNotFromDateAndAmountOfABooking) {
    const TextImportResult shown =
        preview("\"\"\"BuchDatum\"\"\"|\"\"\"Betrag\"\"\"|\"\"\"AgName1\"\"\"|\"\"\"VWZ1\"\"\"\n"
                "\"\"\"31.12.2004\"\"\"|\"\"\"7\"\"\"|\"\"\"Shop\"\"\"|\"\"\"p\"\"\"\n");
    EXPECT_THAT(shown.preview.header, ElementsAre("AgName1", "", "", "VWZ1", "", "BuchDatum", "Betrag"))
        << "the header's are stripped whatever the column";
    EXPECT_THAT(shown.preview.rows, ElementsAre(ElementsAre("Shop", "", "", "p", "", "31.12.2004", "7,00")));
    EXPECT_EQ(import("Betrag\n\"\"\"99999999999999\"\"\"\n").errorText,
              std::string(kUnreadable) + "<br>Zeile 2: \"99999999999999\"<br>");
}

TEST_F(StarMoney2, PreviewShowsTheNamesOfTheFileInTheOrderOfTheFields) {
    const TextImportResult shown = preview("VWZ2|Betrag|VWZ1|BuchDatum|Saldo\na|-1234,5|b|31.12.2004|9\n");
    EXPECT_EQ(shown.result, 2);
    EXPECT_EQ(shown.importedCount, 1);
    EXPECT_THAT(shown.preview.header, ElementsAre("", "", "", "VWZ2VWZ1", "", "BuchDatum", "Betrag"));
    EXPECT_THAT(shown.preview.rows, ElementsAre(ElementsAre("", "", "", "ab", "", "31.12.2004", "-1.234,50")));
    EXPECT_THAT(records(), IsEmpty());
}

TEST_F(StarMoney2, HeaderAloneImportsNothing) {
    for (const char* header : {"Betrag|VWZ1\n", "Saldo\n", "\n"}) {
        const TextImportResult run = import(header);
        EXPECT_EQ(run.result, 1) << header;
        EXPECT_EQ(run.importedCount, 0) << header;
    }
    EXPECT_THAT(records(), IsEmpty());
}

TEST_F(StarMoney2, RefusedValueRemovesTheRecordOnceAndEndsTheRun) {
    // What is left of the row is not written into a record that is gone.
    const TextImportResult run = import("AgName1|Betrag|BuchDatum|VWZ1\nfirst|1|31.12.2004|a\n"
                                        "second|99999999999999|31.12.2004|b\nthird|3|31.12.2004|c\n");
    EXPECT_EQ(run.result, 0);
    EXPECT_EQ(run.errorText, std::string(kUnreadable) + "<br>Zeile 3: 99999999999999<br>");
    EXPECT_EQ(run.importedCount, 1);
    EXPECT_THAT(records(),
                ElementsAre(ImportedRecord{.purpose = "a", .date = "31.12.2004", .amount = "1,00", .payee = "first"}));
}

TEST_F(StarMoney2, RefusedPurposeEndsTheRunToo) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.table("DataSets").refusing("Verwendungszweck");
    const FinanceModel model(schema);
    const TextImportResult refused = run("Betrag|VWZ1\n1|a\n", model, false);
    EXPECT_EQ(refused.result, 0);
    EXPECT_EQ(refused.errorText, std::string(kUnreadable) + "<br>Zeile 2: a<br>");
    EXPECT_EQ(model.rows("DataSets"), 0);
}

TEST_F(StarMoney2, MissingFieldFailsTheRowButTheOthersAreWritten) {
    SchemaDraft schema = SchemaDraft::finance();
    schema.table("DataSets").without("Empfaenger");
    const FinanceModel model(schema);
    const TextImportResult failed = run("AgName1|Betrag|VWZ1\nShop|7|a\n", model, false);
    EXPECT_EQ(failed.result, 0);
    EXPECT_EQ(failed.errorText, "");
    EXPECT_EQ(failed.importedCount, 0);
    EXPECT_EQ(model.text("DataSets/1/Betrag"), "7,00");
    EXPECT_EQ(model.text("DataSets/1/Verwendungszweck"), "a");
}

TEST_F(StarMoney2, ReadsTheFixedLayoutJustAsWell) {
    const std::string text = starMoneyHeader() + StarMoneyLine{.payee = "Shop",
                                                               .amount = "-12,50",
                                                               .purpose = {"a", "b"},
                                                               .postingText = "debit",
                                                               .category = "living",
                                                               .subcategory = "food"}
                                                     .text();
    import(text);
    const FinanceModel fixed;
    ImportModuleStarMoney module;
    runModule(module, text, fixed.root());
    EXPECT_THAT(records(), testing::ElementsAreArray(importedRecords(fixed)));
    EXPECT_EQ(records().size(), 1U);
}

TEST_F(StarMoney2, HasTheExtensionOfTheFixedLayout) {
    const ImportModuleStarMoney2 module;
    EXPECT_EQ(module.getFileExtension(), ImportModuleStarMoney::m_MyFileExtension);
}

TEST_F(StarMoney2, VirtualOperationsKeepTheirSlots) {
    EXPECT_EQ(VirtualSlot::of(&ImportModuleStarMoney2::getFileExtension), 3);
    EXPECT_EQ(VirtualSlot::of(&ImportModuleStarMoney2::importRowIntoTable), 12);
    EXPECT_EQ(VirtualSlot::count<ImportModuleStarMoney2>(), 13);
}

TEST_F(StarMoney2, HasNoFormatOfTheFrontDoor) {
    import("Betrag\n7\n");
    EXPECT_EQ(m_model.integer("Importsessions/1/ImportTyp"), Import::eFormatNone);
}

} // namespace
