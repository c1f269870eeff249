// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/DmimportFixture.h"

namespace {

using namespace std::string_literals;

class InspectCommandTest : public DmimportTest {
protected:
    Json inspect(std::vector<std::string> arguments, int status = 0) const {
        arguments.insert(arguments.begin(), "inspect");
        arguments.emplace_back("--json");
        const Result result = run(arguments);
        EXPECT_EQ(result.status, status) << result.output << result.messages;
        return Json::parse(result.output);
    }

    /// A bank's export as it is handed out: mark, carriage returns, account data
    /// above the header, an opening and a closing balance.
    std::string writeExport() const {
        return write("umsaetze.csv", "\xEF\xBB\xBFKonto;DE02120300000000202051\r\n"
                                     "Zeitraum;01.02.2004 - 29.02.2004\r\n"
                                     "\r\n"
                                     "Buchungstag;Empf\xC3\xA4nger;Buchungstext;Verwendungszweck;Betrag;Saldo\r\n"
                                     "01.02.2004;M\xC3\xBCller;Lastschrift;Miete;-650,00;350,00\r\n"
                                     "13.02.2004;Firma;Gehalt;Lohn Februar;2.500,10;2.850,10\r\n");
    }
};

TEST_F(InspectCommandTest, SaysWhatWasFound) {
    const Json found = inspect({writeExport()});
    EXPECT_EQ(found.at("file"), "umsaetze.csv");
    EXPECT_EQ(found.at("format"), 1);
    EXPECT_EQ(found.at("encoding"), "utf-8");
    EXPECT_EQ(found.at("bom"), true);
    EXPECT_EQ(found.at("lineEnds"), "crlf");
    EXPECT_EQ(found.at("preambleLines"), 3);
    EXPECT_EQ(found.at("delimiter"), ";");
    EXPECT_EQ(found.at("header"), true);
    EXPECT_EQ(found.at("columns"), Json::parse(R"({"Betrag":4,"Buchungstext":2,"Datum":0,"Empfaenger":1,
        "Verwendungszweck":3})"));
    EXPECT_GE(found.at("confidence").get<double>(), 0.95);
    EXPECT_LE(found.at("confidence").get<double>(), 1.0);
    EXPECT_FALSE(found.at("reasons").empty());
    EXPECT_EQ(found.at("untouched"), false);
    EXPECT_EQ(found.at("balance"), "certified");
    EXPECT_EQ(found.at("decided"), true);
    EXPECT_EQ(found.at("messages"), Json::array());
}

TEST_F(InspectCommandTest, TellsPeopleTheSame) {
    const Result result = run({"inspect", writeExport()});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.messages, "");
    EXPECT_THAT(result.output, Says("Kodierung:      utf-8 mit Bytefolgemarke\n"));
    EXPECT_THAT(result.output, Says("Zeilenenden:    CRLF\n"));
    EXPECT_THAT(result.output, Says("Vorspann:       3 Zeilen\n"));
    EXPECT_THAT(result.output, Says("Spalten:        Betrag = 4, Buchungstext = 2, Datum = 0, Empfaenger = 1, "));
    EXPECT_THAT(result.output, Says("Saldo:          bestätigt die Lesart\n"));
    EXPECT_THAT(result.output, Says("Sicherheit:     100 %\n"));
    EXPECT_THAT(result.output, Says("Unverändert:    nein"));
    EXPECT_THAT(result.output, Says("Zeile 5"));
}

TEST_F(InspectCommandTest, SeveralColumnsOfAFieldAreAList) {
    write("soll.csv", "Buchungstag;Verwendungszweck;Soll;Haben\n13.02.2004;Miete;650,00;\n14.02.2004;Lohn;;2500,00\n");
    EXPECT_EQ(inspect({"soll.csv"}).at("columns").at("Betrag"), Json({2, 3}));
}

TEST_F(InspectCommandTest, WhatIsFixedNarrowsTheSearch) {
    write("zweifel.csv", "Datum;Text;Betrag\n01/02/2004;A;-1.50\n03/04/2004;B;2.50\n");
    const Json undecided = inspect({"zweifel.csv"}, 1);
    EXPECT_EQ(undecided.at("decided"), false);
    EXPECT_EQ(messages(undecided), "date-order-ambiguous:2");
    EXPECT_LE(undecided.at("confidence").get<double>(), 0.3);
    EXPECT_EQ(inspect({"zweifel.csv", "--date-order", "mdy"}).at("decided"), true);
}

TEST_F(InspectCommandTest, FileThatTheLibraryReadsRightIsUntouched) {
    write("gut.csv", "Buchungstag;Empf\xE4nger;Verwendungszweck;Betrag\n13.02.2004;M\xFCller;Miete;-650,00\n");
    EXPECT_EQ(inspect({"gut.csv"}).at("untouched"), true);
    EXPECT_EQ(inspect({"gut.csv"}).at("encoding"), "latin1");
}

TEST_F(InspectCommandTest, FormatIsFoundByContentWhereTheNameSaysNothing) {
    write("umsaetze.txt", "!Type:Bank\nD13.2.2004\nT-12.50\nPMiete\n^\n");
    EXPECT_EQ(inspect({"umsaetze.txt"}).at("format"), 2);
    EXPECT_EQ(inspect({"umsaetze.txt"}).at("delimiter"), nullptr);
    EXPECT_EQ(inspect({"umsaetze.txt"}).at("encoding"), "utf-8") << "of which ASCII is a part";
}

TEST_F(InspectCommandTest, NothingIsWritten) {
    inspect({writeExport()});
    EXPECT_FALSE(exists("home"));
    EXPECT_FALSE(exists(kStore));
    EXPECT_EQ(leftovers(), std::vector<std::string>());
}

TEST_F(InspectCommandTest, MissingFileIsTold) {
    const Result result = run({"inspect", "fehlt.csv"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.messages, Says("[file-missing]"));
    EXPECT_EQ(result.output, "");
}

} // namespace
