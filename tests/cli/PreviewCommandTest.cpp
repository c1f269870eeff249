// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/DmimportFixture.h"

namespace {

class PreviewCommandTest : public DmimportTest {
protected:
    PreviewCommandTest() {
        write("umsaetze.csv", "Buchung;Name;Betrag\n"
                              "01.02.2004;M\xFCller;-650,00\n"
                              "\n"
                              "05.02.2004;\"Firma \"\"A\"\"\";2.500,10\n");
    }
};

TEST_F(PreviewCommandTest, AssignedColumnsAreShownAsTheyWouldBeStored) {
    const Result result =
        run({"preview", "umsaetze.csv", "--columns", "0=Datum,1=Empfaenger,2=Betrag", "--header", "--json"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(result.output, R"({"file":"umsaetze.csv","format":1,"result":2,"delimiter":";","columnCount":3,)"
                             R"("header":["Buchung","Name","Betrag"],"rows":[)"
                             "\n"
                             R"(["01.02.2004","Müller","-650,00"],)"
                             "\n"
                             R"(["05.02.2004","Firma \"A\"","2.500,10"])"
                             "\n"
                             R"(],"rowCount":2,"importedCount":2,"errorText":""})"
                             "\n");
}

TEST_F(PreviewCommandTest, UnassignedColumnsAreShownAsTheyStand) {
    const Json shown = preview({"umsaetze.csv", "--unassigned"});
    EXPECT_EQ(shown, Json::parse(R"({"file":"umsaetze.csv","format":1,"result":3,"delimiter":";","columnCount":3,
        "header":["Buchung","Name","Betrag"],
        "rows":[["01.02.2004","Müller","-650,00"],["05.02.2004","Firma \"A\"","2.500,10"]],
        "rowCount":2,"importedCount":2,"errorText":""})"));
    EXPECT_EQ(preview({"umsaetze.csv", "--unassigned", "--no-header"}).at("rows").at(0),
              Json({"Buchung", "Name", "Betrag"}));
}

TEST_F(PreviewCommandTest, FileThatCannotBeUnderstoodIsShownAsItStands) {
    write("einkauf.csv", "Was,Menge\nMilch,1\nBrot,2\n");
    const Json shown = preview({"einkauf.csv"}, 1);
    EXPECT_EQ(messages(shown), "no-bookings:-");
    EXPECT_EQ(shown.at("rows"), Json::parse(R"([["Was","Menge"],["Milch","1"],["Brot","2"]])"));
}

TEST_F(PreviewCommandTest, HeaderRowIsNoRow) {
    const Json shown = preview({"umsaetze.csv", "--unassigned", "--header"});
    EXPECT_EQ(shown.at("header"), Json({"Buchung", "Name", "Betrag"}));
    EXPECT_EQ(shown.at("rowCount"), 2);
    EXPECT_EQ(shown.at("rows").at(0), Json({"01.02.2004", "Müller", "-650,00"}));
}

TEST_F(PreviewCommandTest, LimitCutsTheRowsAndNotTheCount) {
    const Json shown = preview({"umsaetze.csv", "--limit", "1"});
    EXPECT_EQ(shown.at("rows").size(), 1U);
    EXPECT_EQ(shown.at("rowCount"), 2);
    EXPECT_EQ(preview({"umsaetze.csv", "--limit", "0"}).at("rows"), Json::array());
    EXPECT_THAT(run({"preview", "umsaetze.csv", "--limit", "1"}).output, Says("die ersten 1 von 2 Zeilen"));
}

TEST_F(PreviewCommandTest, DelimiterOfTheCommandLineIsUsed) {
    write("punkt.csv", "a.b;c\nd.e;f\n");
    const Json shown = preview({"punkt.csv", "--verbatim", "--delimiter", "."});
    EXPECT_EQ(shown.at("rows").at(0), Json({"a", "b;c"}));
    EXPECT_EQ(shown.at("delimiter"), ";") << "what the front door found best";
}

TEST_F(PreviewCommandTest, TabIsADelimiterByName) {
    write("tab.csv", "a\tb\nc\td\n");
    for (const char* delimiter : {"tab", "\\t", "\t"})
        EXPECT_EQ(preview({"tab.csv", "--unassigned", "--delimiter", delimiter}).at("rows").at(1), Json({"c", "d"}))
            << delimiter;
}

TEST_F(PreviewCommandTest, TableNumbersTheColumnsAndNamesTheirFields) {
    const Result assigned = run({"preview", "umsaetze.csv", "--columns", "0=Datum,2=Betrag", "--header"});
    EXPECT_EQ(assigned.output, "0=Datum Buchung  2=Betrag Betrag\n"
                               "01.02.2004               -650,00\n"
                               "05.02.2004              2.500,10\n"
                               "2 Zeilen, Trennzeichen „;“\n");
    const Result raw = run({"preview", "umsaetze.csv", "--verbatim", "--delimiter", ";", "--quiet"});
    EXPECT_EQ(raw.output, "0           1          2\n"
                          "Buchung     Name       Betrag\n"
                          "01.02.2004  Müller     -650,00\n"
                          "05.02.2004  Firma \"A\"  2.500,10\n");
}

TEST_F(PreviewCommandTest, FileWithoutContentIsAnEmptyTable) {
    write("leer.csv", "");
    const Json shown = preview({"leer.csv"});
    EXPECT_EQ(shown.at("rowCount"), 0);
    EXPECT_EQ(shown.at("result"), 2);
    const Result table = run({"preview", "leer.csv"});
    EXPECT_EQ(table.status, 0);
    EXPECT_EQ(table.output, "0 Zeilen, Trennzeichen „;“\n");
}

TEST_F(PreviewCommandTest, ColumnThatNoLineHasIsTold) {
    const Json shown = preview({"umsaetze.csv", "--columns", "0=Datum,9=Betrag"}, 1);
    EXPECT_EQ(messages(shown), "column-outside:-");
}

TEST_F(PreviewCommandTest, MissingFileHasNoRowsAndTheLibrarysText) {
    const Json shown = preview({"fehlt.csv"}, 1);
    EXPECT_EQ(shown.at("result"), 0);
    EXPECT_EQ(shown.at("rows"), Json::array());
    EXPECT_EQ(shown.at("header"), nullptr);
    EXPECT_EQ(shown.at("errorText"), "Die Importdatei konnte nicht geöffnet werden.");
    EXPECT_EQ(messages(shown), "file-missing:-");
}

TEST_F(PreviewCommandTest, LineThatIsTooLongEndsThePreview) {
    write("lang.csv", "a;b\n" + std::string(5000, 'x') + "\n");
    const Json shown = preview({"lang.csv", "--verbatim"}, 1);
    EXPECT_EQ(shown.at("result"), 0);
    EXPECT_EQ(messages(shown), "line-too-long:2");
}

TEST_F(PreviewCommandTest, NothingIsWritten) {
    run({"preview", "umsaetze.csv", "--columns", "0=Datum,2=Betrag"});
    EXPECT_FALSE(exists("home"));
    EXPECT_EQ(leftovers(), std::vector<std::string>());
}

} // namespace
