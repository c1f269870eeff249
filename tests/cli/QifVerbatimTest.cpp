// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <string>
#include <vector>

#include "cli/DmimportFixture.h"
#include "support/FormatDocument.h"

// QIF files as they are, through the whole program. What the library's tests
// hold of them in detail, a person and a script see here.
namespace {

using namespace std::string_literals;
using Cells = std::vector<std::string>;

constexpr const char* kFields[] = {"Kategorie",  "Verwendungszweck", "Datum",       "Betrag",
                                   "Empfaenger", "Unterkategorie",   "Buchungstext"};

std::string unknownEntry(const std::string& line, const std::string& entry) {
    return "(Zeile " + line + "):Unbekannter Eintrag:" + entry + " wird ignoriert\r\n";
}

class QifVerbatimTest : public DmimportTest {
protected:
    /// The preview of a file with these bytes, Latin-1.
    Json preview(std::string_view bytes, int status = 0) const {
        write("a.qif", bytes);
        return DmimportTest::preview({"a.qif", "--verbatim"}, status);
    }
    /// Its rows; it must yield no message.
    Json rows(std::string_view bytes) const {
        const Json shown = preview(bytes);
        EXPECT_EQ(shown.at("result"), 2);
        EXPECT_EQ(shown.at("errorText"), "");
        return shown.at("rows");
    }
    /// Refused with that text, and nothing of it is shown or kept.
    void expectRefused(std::string_view bytes, const std::string& errorText) const {
        const Json shown = preview(bytes, 1);
        EXPECT_EQ(shown.at("result"), 0);
        EXPECT_EQ(shown.at("errorText"), errorText);
        EXPECT_EQ(shown.at("rows"), Json::array());
        const Json file = import({"a.qif", "--verbatim"}, 1);
        EXPECT_EQ(file.at("result"), 0);
        EXPECT_EQ(file.at("errorText"), errorText);
        EXPECT_EQ(file.at("importedCount"), 0);
        EXPECT_EQ(file.at("committed"), false);
        EXPECT_EQ(messages(file), "import-failed:-");
    }
};

// Files of the kinds that programs write

/// The files of the library's own test, each beside what must come of it.
std::vector<std::string> workedFiles() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(QIF_TEST_DATA)) {
        if (entry.path().extension() == ".qif")
            names.push_back(entry.path().stem().string());
    }
    return names;
}

std::string contentOf(const std::string& fileName) { return fileContent(QIF_TEST_DATA "/" + fileName); }

/// In the form of the expectations.
std::string outcome(const Json& run, int result, const Json& rows) {
    std::string error;
    for (const char c : run.at("errorText").get<std::string>())
        error += c == '\r' ? "\\r" : c == '\n' ? "\\n" : std::string(1, c);
    std::string text = "result " + std::to_string(result) + "\nerror \"" + error + "\"\n";
    for (const Json& row : rows)
        text += quotedLine(row.get<Cells>());
    return text;
}

/// A stored value as the preview displays it.
std::string displayed(const Json& value, const std::string& field) {
    if (value.is_null())
        return "";
    if (field == "Datum") {
        const auto iso = value.get<std::string>();
        return iso.substr(8, 2) + "." + iso.substr(5, 2) + "." + iso.substr(0, 4);
    }
    if (field != "Betrag")
        return value.get<std::string>();
    std::string text = Json(value.get<double>() < 0 ? -value.get<double>() : value.get<double>()).dump();
    const std::size_t point = text.find('.');
    std::string cents = text.substr(point + 1);
    cents.resize(2, '0');
    text.erase(point);
    for (std::size_t at = text.size(); at > 3; at -= 3)
        text.insert(at - 3, ".");
    return (value.get<double>() < 0 ? "-" : "") + text + "," + cents;
}

TEST_F(QifVerbatimTest, WorkedFilesArePreviewed) {
    ASSERT_GE(workedFiles().size(), 12U);
    for (const std::string& name : workedFiles()) {
        const std::string expected = contentOf(name + ".expected");
        const bool fails = expected.starts_with("result 0");
        const Json shown = preview(contentOf(name + ".qif"), fails ? 1 : 0);
        EXPECT_EQ(shown.at("result"), fails ? 0 : 2) << name;
        EXPECT_EQ(outcome(shown, fails ? 0 : 1, shown.at("rows")), expected) << name;
        EXPECT_EQ(shown.at("importedCount"), shown.at("rows").size()) << name;
    }
}

TEST_F(QifVerbatimTest, WorkedFilesAreImportedAndShown) {
    for (const std::string& name : workedFiles()) {
        const std::string expected = contentOf(name + ".expected");
        const bool fails = expected.starts_with("result 0");
        std::filesystem::remove(path(kStore));
        write("a.qif", contentOf(name + ".qif"));
        const Json file = import({"a.qif", "--verbatim"}, fails ? 1 : 0);
        Json rows = Json::array();
        if (!fails) {
            for (const Json& record : show()) {
                Cells cells;
                for (const char* field : kFields)
                    cells.push_back(displayed(record.at(field), field));
                rows.push_back(cells);
            }
        }
        EXPECT_EQ(outcome(file, file.at("result").get<int>(), rows), expected) << name;
        EXPECT_EQ(file.at("committed"), !fails) << name;
        EXPECT_EQ(file.at("records").at("found"), rows.size()) << name;
    }
}

// Sections

TEST_F(QifVerbatimTest, EveryKnownHeaderLabelsItsRecords) {
    const struct {
        const char* header;
        const char* label;
    } sections[] = {{"!Type:Bank", "Bankkonten"},          {"!Type:Cash", "Bargeldkonten"},
                    {"!Type:CCard", "Kreditkartenkonten"}, {"!Type:Invst", "Wertpapierkonten"},
                    {"!Type:Oth A", "Vermögenskonten"},    {"!Type:Oth L", "Verbindlichkeitskonten"},
                    {"!Type:Invoice", "Rechnungskonten"},  {"!Type:Tax", "Steuerkonten"},
                    {"!Type:Bill", "Belegkonten"}};
    std::string bytes;
    Json expected = Json::array();
    for (const auto& section : sections) {
        bytes += section.header + "\nT1\n^\n"s;
        expected.push_back(Cells{section.label, "", "", "1,00", "", "", ""});
    }
    bytes += "!Type:Cat\nNMiete\nB1\n^\n";
    expected.push_back(Cells{"Andere Einnahmen/Ausgaben", "", "", "1,00", "", "Miete", "Summe aus:1,00"});
    EXPECT_EQ(rows(bytes), expected);
}

TEST_F(QifVerbatimTest, IgnoredSectionsYieldNoRows) {
    for (const char* header :
         {"!Type:Class", "!Type:Memorized", "!Account", "!Option:AutoSwitch", "!Clear:AutoSwitch"}) {
        EXPECT_EQ(rows(header + "\nNGiro\nT5\n^\n"s), Json::array()) << header;
        EXPECT_EQ(rows(header + "\nNGiro\nT5\n^\n!Type:Bank\nT1\n^\n"s),
                  Json::array({Cells{"Bankkonten", "", "", "1,00", "", "", "Giro"}}))
            << "the first line reaches the next record: " << header;
    }
}

TEST_F(QifVerbatimTest, EmptyFileShowsItsColumns) {
    const Json shown = preview("");
    EXPECT_EQ(shown.at("result"), 2);
    EXPECT_EQ(shown.at("header"), Json(kFields));
    EXPECT_EQ(shown.at("rows"), Json::array());
}

TEST_F(QifVerbatimTest, FileMustBeginWithAKnownHeader) {
    const std::string none = "(Zeile   1):Keine gültige QIF-Datei";
    for (const char* bytes :
         {"D1.5.98\nT1\n^\n", "!type:bank\nT1\n^\n", "!Type:Bank 2004\nT1\n^\n", "!Type:Prices\nT1\n^\n",
          "\xEF\xBB\xBF!Type:Bank\nT1\n^\n", "!Type:Bank\r\nT1\r\n^\r\n", "\t !Type:Bank\nT1\n^\n"})
        expectRefused(bytes, none);
    expectRefused("\n \t\nD1.5.98\n^\n", "(Zeile   3):Keine gültige QIF-Datei");
}

TEST_F(QifVerbatimTest, HeaderMayStandBetweenBlanksAndTabs) {
    EXPECT_EQ(rows("\n \t!Type:Bank\t \nT1\n^\n").size(), 1U);
}

TEST_F(QifVerbatimTest, OfTwoHeadersInARowTheSecondHolds) {
    EXPECT_EQ(rows("!Type:Bank\n!Type:Cash\nT1\n^\n").at(0).at(0), "Bargeldkonten");
}

TEST_F(QifVerbatimTest, UnknownHeaderBehindARecordIsAnUnknownEntry) {
    const Json shown = preview("!Type:Bank\nT1\n^\n!Type:Prices\nT2\n^\n");
    EXPECT_EQ(shown.at("result"), 2);
    EXPECT_EQ(shown.at("errorText"), unknownEntry("  4", "!Type:Prices"));
    EXPECT_EQ(shown.at("rows").size(), 2U);
    const Json file = import({"a.qif", "--verbatim"}, 0);
    EXPECT_EQ(file.at("errorText"), shown.at("errorText"));
    EXPECT_EQ(file.at("importedCount"), 2);
}

// Records

TEST_F(QifVerbatimTest, LettersOfATransaction) {
    EXPECT_EQ(
        rows("!Type:Bank\nD31.12.2004\nT-1,234.56\nPShop\nMMemo\nN7\nLFood:Groceries\nA1\nC*\nF\nSx\nEx\n$5\n%5\n"
             "^\nU2\nYMuster AG\nQ10\nI12.50\nO4.90\n^\n"),
        Json::array({Cells{"Bankkonten", "Memo", "31.12.2004", "-1.234,56", "Shop", "Food:Groceries", "7"},
                     Cells{"Bankkonten", "Muster AG   10 Stück  a 12.50  Nebenkosten: 4.90", "", "2,00", "", "", ""}}));
}

TEST_F(QifVerbatimTest, LettersOfACategory) {
    EXPECT_EQ(rows("!Type:Cat\nNMiete\nDWohnung\nTx\nR1\nI\nE\nB100\nB50\nB-20\n^\nNKino\nDOhne Budget\n^\nB5\n^\n"),
              Json::array({Cells{"Andere Einnahmen/Ausgaben", "Wohnung", "", "130,00", "", "Miete",
                                 "Summe aus:100,00 + 50,00-20,00"},
                           Cells{"Andere Einnahmen/Ausgaben", "", "", "5,00", "", "", "Summe aus:5,00"}}));
}

TEST_F(QifVerbatimTest, SecurityAloneIsFollowedByThreeBlanks) {
    EXPECT_EQ(rows("!Type:Invst\nYMuster AG\n^\n").at(0).at(1), "Muster AG   ");
}

TEST_F(QifVerbatimTest, EndWithoutFieldsIsARecord) {
    EXPECT_EQ(rows("!Type:Bank\n^\n"), Json::array({Cells{"Bankkonten", "", "", "0,00", "", "", ""}}));
}

TEST_F(QifVerbatimTest, LaterLineOfAFieldWins) {
    EXPECT_EQ(rows("!Type:Bank\nT1\nU2\nPone\nPtwo\n^\n"),
              Json::array({Cells{"Bankkonten", "", "", "2,00", "two", "", ""}}));
}

TEST_F(QifVerbatimTest, UnknownEntryIsShownAsItStandsAndDoesNotStop) {
    const Json shown = preview("!Type:Bank\n  Z\xFC \nT1\n^\n");
    EXPECT_EQ(shown.at("errorText"), unknownEntry("  2", "  Zü "));
    EXPECT_EQ(shown.at("importedCount"), 1);
}

TEST_F(QifVerbatimTest, LastRecordWithoutItsEndIsDropped) {
    EXPECT_EQ(rows("!Type:Bank\nT1\n^\nT2\n").size(), 1U);
    EXPECT_EQ(rows("!Type:Bank\nT1\n^\nT2\n^").size(), 2U) << "the last line needs no line feed";
}

TEST_F(QifVerbatimTest, ApostropheYearsLieInTheTwoThousands) {
    const Json shown = rows("!Type:Bank\nD1/5'98\n^\nD1/5/98\n^\nD1/5' 5\n^\n");
    EXPECT_EQ(shown.at(0).at(2), "01.05.2098");
    EXPECT_EQ(shown.at(1).at(2), "01.05.1998");
    EXPECT_EQ(shown.at(2).at(2), "01.05.2005");
}

TEST_F(QifVerbatimTest, BadDateLeavesNothingOfTheFile) {
    expectRefused("!Type:Bank\nD31.12.2004\nT1\n^\nD31.02.2004\n^\n", "(Zeile   5):Ungültiges Datumsformat");
    expectRefused("!Type:Bank\nD\n^\n", "(Zeile   2):Ungültiges Datumsformat");
}

TEST_F(QifVerbatimTest, LineOf4095BytesLeavesNothingOfTheFile) {
    const std::string bytes = "!Type:Bank\nT1\n^\nP" + std::string(4094, 'x') + "\n^\n";
    write("a.qif", bytes);
    const Json file = import({"a.qif", "--verbatim"}, 1);
    EXPECT_EQ(file.at("errorText"), "(Zeile   4):Fehler beim Analysieren der Daten aus der XML-Datei.\n");
    EXPECT_EQ(file.at("committed"), false);
    EXPECT_EQ(messages(file), "line-too-long:4");
}

// Writing

TEST_F(QifVerbatimTest, RecordThatStopsTheWritingIsNamedAndFailsTheFile) {
    write("a.qif", "!Type:Bank\nT1\n^\nT99999999999999\nPreich\n^\nT3\n^\n");
    const std::string errorText = "Fehler beim Analysieren der Daten aus der XML-Datei.<br>"
                                  "Zeile 3: 99999999999999<br>";
    const Json failed = import({"a.qif", "--verbatim"}, 1);
    EXPECT_EQ(failed.at("result"), 1) << "the library's own result";
    EXPECT_EQ(failed.at("errorText"), errorText);
    EXPECT_EQ(failed.at("committed"), false);
    EXPECT_EQ(failed.at("records"), Json::parse(R"({"found":3,"imported":1,"refused":1})"));
    EXPECT_EQ(messages(failed), "record-refused:-");
    EXPECT_THAT(failed.at("messages").at(0).at("text").get<std::string>(), Says("Datensatz 2"));
    EXPECT_THAT(failed.at("messages").at(0).at("text").get<std::string>(), Says("„Betrag“"));
    EXPECT_FALSE(exists(kStore)) << "nothing is kept";

    const Json kept = import({"a.qif", "--verbatim", "--keep-partial"}, 1);
    EXPECT_EQ(kept.at("committed"), true);
    EXPECT_EQ(kept.at("importedCount"), 1);
    EXPECT_EQ(show().size(), 1U);
    EXPECT_EQ(show().at(0).at("Betrag"), 1.0);
}

TEST_F(QifVerbatimTest, BudgetOfThreeHundredDigitsIsRefusedSafely) {
    write("a.qif", "!Type:Cat\nNMiete\nB1" + std::string(299, '0') + "\n^\n");
    const Json file = import({"a.qif", "--verbatim"}, 1);
    EXPECT_EQ(file.at("result"), 1);
    EXPECT_EQ(file.at("importedCount"), 0);
    EXPECT_EQ(messages(file), "record-refused:-");
}

TEST_F(QifVerbatimTest, RecordThatNothingEndsIsTold) {
    write("offen.qif", "!Type:Bank\nD13.5.2004\nT1.00\n^\nD14.5.2004\nT2.00\n\n");
    const Json file = import({"offen.qif", "--verbatim"}, 0);
    EXPECT_EQ(file.at("importedCount"), 1) << "the library does not read it";
    EXPECT_EQ(messages(file), "record-open:6");
    write("kopf.qif", "!Type:Bank\nD13.5.2004\nT1.00\n^\n!Type:Cash\n");
    EXPECT_EQ(messages(import({"kopf.qif", "--verbatim"}, 0)), "") << "a section without records is none";
}

} // namespace
