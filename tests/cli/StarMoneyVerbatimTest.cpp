// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <vector>

#include "cli/DmimportFixture.h"
#include "starmoney/StarMoneyLine.h"

// StarMoney exports as they are, through the whole program.
namespace {

using Cells = std::vector<std::string>;

constexpr const char* kUnreadable = "Fehler beim Analysieren der Daten aus der XML-Datei.";

class StarMoneyVerbatimTest : public DmimportTest {
protected:
    Json preview(const std::string& bytes, int status = 0) const {
        write("a.ssx", bytes);
        return DmimportTest::preview({"a.ssx", "--verbatim"}, status);
    }
    Json import(const std::string& bytes, int status, const std::vector<std::string>& options = {}) const {
        std::vector<std::string> arguments = {write("a.ssx", bytes), "--verbatim"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return DmimportTest::import(arguments, status);
    }
};

TEST_F(StarMoneyVerbatimTest, PreviewShowsTheNamesOfTheFileInTheOrderOfTheFields) {
    const Json shown = preview(starMoneyHeader() + StarMoneyLine{.payee = "\"M\xFCller\"",
                                                                 .amount = "-1234,5",
                                                                 .purpose = {"a", "\"b\""},
                                                                 .postingText = "debit",
                                                                 .category = "living",
                                                                 .subcategory = "food"}
                                                       .text());
    EXPECT_EQ(shown.at("format"), 0);
    EXPECT_EQ(shown.at("result"), 2);
    EXPECT_EQ(shown.at("errorText"), "");
    EXPECT_EQ(shown.at("header"), Json(Cells{"AgName1", "Kategorie", "Unterkat",
                                             "VWZ1VWZ2VWZ3VWZ4VWZ5VWZ6VWZ7VWZ8VWZ9VWZ10VWZ11VWZ12VWZ13VWZ14",
                                             "Buchungstext", "BuchDatum", "Betrag"}));
    EXPECT_EQ(shown.at("rows"),
              Json::array({Cells{"Müller", "living", "food", "ab", "debit", "31.12.2004", "-1.234,50"}}));
}

TEST_F(StarMoneyVerbatimTest, ColumnsLandInTheirFields) {
    const Json file = import(starMoneyHeader() + StarMoneyLine{.payee = "Shop",
                                                               .amount = "-12,50",
                                                               .purpose = {"a", "b"},
                                                               .postingText = "debit",
                                                               .category = "living",
                                                               .subcategory = "food"}
                                                     .text(),
                             0);
    EXPECT_EQ(file.at("result"), 1);
    EXPECT_EQ(file.at("importedCount"), 1);
    const Json record = show().at(0);
    EXPECT_EQ(record.at("Empfaenger"), "Shop");
    EXPECT_EQ(record.at("Kategorie"), "living");
    EXPECT_EQ(record.at("Unterkategorie"), "food");
    EXPECT_EQ(record.at("Verwendungszweck"), "ab");
    EXPECT_EQ(record.at("Buchungstext"), "debit");
    EXPECT_EQ(record.at("Datum"), "2004-12-31");
    EXPECT_EQ(record.at("Betrag"), -12.5);
}

TEST_F(StarMoneyVerbatimTest, FirstLineIsTheHeaderWhateverItSays) {
    EXPECT_EQ(import(StarMoneyLine{}.text() + StarMoneyLine{}.text(), 0).at("importedCount"), 1);
    EXPECT_EQ(import(starMoneyHeader(), 0).at("importedCount"), 0);
}

TEST_F(StarMoneyVerbatimTest, LineOfAnotherWidthEndsTheFile) {
    for (const auto& [columns, found] : {std::pair{20, "20"}, {1, "1"}, {22, "22"}, {30, "22"}}) {
        const std::string bytes = starMoneyHeader() + StarMoneyLine{}.text() + "\n" +
                                  joined(Cells(static_cast<std::size_t>(columns), "x")) + StarMoneyLine{}.text();
        const std::string errorText =
            std::string(kUnreadable) + "\nZeile 4: Erwartete Werte:21    Vorhandene Werte " + found;
        const Json shown = preview(bytes, 1);
        EXPECT_EQ(shown.at("result"), 0) << columns;
        EXPECT_EQ(shown.at("errorText"), errorText);
        const Json failed = import(bytes, 1);
        EXPECT_EQ(failed.at("errorText"), errorText);
        EXPECT_EQ(failed.at("importedCount"), 1) << "the record before it";
        EXPECT_EQ(failed.at("committed"), false);
        EXPECT_FALSE(exists(kStore)) << "and not kept";
    }
    const Json kept = import(starMoneyHeader() + StarMoneyLine{}.text() + "x|y\n", 1, {"--keep-partial"});
    EXPECT_EQ(kept.at("committed"), true);
    EXPECT_EQ(show().size(), 1U);
}

TEST_F(StarMoneyVerbatimTest, QuotedAmountReachesTheConversionWithItsQuotes) {
    const Json failed = import(starMoneyHeader() + StarMoneyLine{.amount = "\"\"\"99999999999999\"\"\""}.text(), 1);
    EXPECT_EQ(failed.at("result"), 0);
    EXPECT_EQ(failed.at("errorText"), std::string(kUnreadable) + "<br>Zeile 2: \"99999999999999\"<br>");
    EXPECT_EQ(messages(failed), "bad-amount:2");
    EXPECT_EQ(import(starMoneyHeader() + StarMoneyLine{.amount = "\"\"\"12,50\"\"\""}.text(), 0).at("importedCount"),
              1);
    EXPECT_EQ(show().at(0).at("Betrag"), 12.5);
}

} // namespace
