// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/DmimportFixture.h"

namespace {

struct UsageCase {
    std::vector<std::string> arguments;
    const char* says; ///< what to write instead, or what is wrong
};

const UsageCase kWrong[] = {
    {{}, "Es fehlt der Befehl. Befehle: formats, "},
    {{"imprt", "a.csv"}, "„imprt“ ist kein Befehl. Meinten Sie „import“?"},
    {{"xyzzy"}, "Befehle: formats, "},
    {{"a.csv", "import"}, "„a.csv“ ist kein Befehl."},
    {{"--store", "x", "import", "a.csv"}, "„--store“ steht hinter dem Befehl."},
    {{"--verbos"}, "Die Option „--verbos“ gibt es nicht."},
    {{"formats", "a.csv"}, "„a.csv“ ist zu viel."},
    {{"formats", "--limit", "3"}, "„dmimport formats“ kennt die Option „--limit“ nicht."},
    {{"preview"}, "Es fehlt: DATEI."},
    {{"preview", "a.csv", "b.csv"}, "„b.csv“ ist zu viel."},
    {{"preview", "a.csv", "--colums", "0=Datum"}, "Meinten Sie „--columns“?"},
    {{"preview", "a.csv", "--colums=0=Datum"}, "Die Option „--colums“ gibt es nicht. Meinten Sie „--columns“?"},
    {{"preview", "a.csv", "-x"}, "Die Option „-x“ gibt es nicht."},
    {{"preview", "a.csv", "--columns"}, "--columns braucht einen Wert, etwa: --columns \"0=Datum,3=Betrag\""},
    {{"preview", "a.csv", "--columns="}, "--columns braucht einen Wert"},
    {{"preview", "a.csv", "--columns", "--json"}, "--columns braucht einen Wert"},
    {{"preview", "a.csv", "--columns", ""}, "fehlt das „=“"},
    {{"preview", "a.csv", "--columns", "0=datum"}, "Meinten Sie „Datum“?"},
    {{"preview", "a.csv", "--columns", "x=Datum"}, "„x“ ist keine Spaltennummer."},
    {{"preview", "a.csv", "--columns", "0=Datum,0=Betrag"}, "Die Spalte 0 ist zweimal genannt"},
    {{"preview", "a.csv", "--columns", "0=Datum", "--unassigned"}, "schließen einander aus"},
    {{"preview", "a.csv", "--header", "--no-header"}, "schließen einander aus"},
    {{"preview", "a.csv", "--delimiter", ";;"}, "schreiben Sie etwa --delimiter \";\""},
    {{"preview", "a.csv", "--delimiter", "\""}, "trennen keine Spalten"},
    {{"preview", "a.csv", "--delimiter", "中"}, "ist nicht genau ein Zeichen"},
    {{"preview", "a.csv", "--encoding", "cp1253"}, "Meinten Sie „cp1252“?"},
    {{"preview", "a.csv", "--encoding", "latin1", "--verbatim"}, "--encoding und --verbatim schließen einander aus"},
    {{"preview", "a.csv", "--date-order", "dym"}, "schreiben Sie dmy (31.12.2004), mdy (12/31/2004) oder ymd"},
    {{"preview", "a.csv", "--date-order", "dmy", "--verbatim"}, "--date-order und --verbatim schließen einander aus"},
    {{"preview", "a.csv", "--decimal", ";"}, "schreiben Sie --decimal , oder --decimal ."},
    {{"preview", "a.csv", "--decimal", ",", "--verbatim"}, "--decimal und --verbatim schließen einander aus"},
    {{"preview", "a.csv", "--format", "cvs"}, "Meinten Sie „csv“?"},
    {{"preview", "a.csv", "--format", "doc"}, "Formate: star-money, csv, qif, tax, zasterhof"},
    {{"preview", "a.csv", "--limit", "viele"}, "schreiben Sie etwa --limit 20"},
    {{"preview", "a.csv", "--limit", "-1"}, "ist keine Anzahl"},
    {{"preview", "a.csv", "--limit", "1.5"}, "ist keine Anzahl"},
    {{"preview", "a.csv", "--limit", "99999999999999999999999"}, "ist keine Anzahl"},
    {{"preview", "a.csv", "--json=ja"}, "--json nimmt keinen Wert; schreiben Sie nur --json."},
    {{"preview", "a.csv", "--color", "bunt"}, "schreiben Sie auto, always oder never"},
    {{"inspect", "a.csv", "--store", "x"}, "kennt die Option „--store“ nicht"},
    {{"import", "--store", "x"}, "Es fehlt: DATEI."},
    {{"import", "a.csv", "--store", ""}, "--store: Der Name fehlt"},
    {{"import", "a.csv", "--columns", "0=Datum,1=Empfaenger"}, "Die Spalte für „Betrag“ fehlt"},
    {{"import", "a.csv", "--columns", "1=Betrag"}, "Die Spalte für „Datum“ fehlt"},
    {{"show", "a.csv"}, "„a.csv“ lässt sich nicht zeigen."},
    {{"show", "booking"}, "Meinten Sie „bookings“?"},
    {{"show", "data-sets", "sessions"}, "„sessions“ ist zu viel."},
    {{"show", "\033[31m"}, "„␛[31m“ lässt sich nicht zeigen."},
};

using UsageTest = DmimportTest;

TEST_F(UsageTest, WrongCommandLinesSayWhatToWrite) {
    write("a.csv", "01.02.2004;A;1\n");
    for (const UsageCase& wrong : kWrong) {
        std::string line = "dmimport";
        for (const std::string& argument : wrong.arguments)
            line += " '" + argument + "'";
        SCOPED_TRACE(line);
        const Result result = run(wrong.arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_THAT(result.messages, Says(wrong.says));
        EXPECT_THAT(result.messages, ::testing::StartsWith("dmimport: "));
        for (const char* english : {"required", "expected", "argument", "Run with", "The following", "not"})
            EXPECT_EQ(result.messages.find(english), std::string::npos) << english << "\n" << result.messages;
    }
    EXPECT_FALSE(exists("x"));
}

TEST_F(UsageTest, HelpIsGerman) {
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"--help"}, {"-h"}, {"import", "--help"}, {"preview", "-h"}, {"show", "--help"}}) {
        const Result result = run(arguments);
        EXPECT_EQ(result.status, 0);
        EXPECT_THAT(result.output, Says("Aufruf: dmimport"));
        EXPECT_THAT(result.output, Says("Optionen:"));
        EXPECT_THAT(result.output, ::testing::EndsWith("\n"));
        EXPECT_EQ(result.messages, "");
        for (const char* english : {"Usage", "Options", "Subcommand", "Positionals", "TEXT:"})
            EXPECT_EQ(result.output.find(english), std::string::npos) << english;
    }
    EXPECT_THAT(run({"import", "--help"}).output, Says("Aufruf: dmimport import [OPTIONEN] DATEI...\n"));
    EXPECT_THAT(run({"show", "--help"}).output, Says("Aufruf: dmimport show [OPTIONEN] [TABELLE]\n"));
}

TEST_F(UsageTest, VersionIsTheProjects) {
    const Result result = run({"--version"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, ::testing::MatchesRegex("dmimport [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST_F(UsageTest, LastOfTwoEqualOptionsCounts) {
    write("a.csv", "1;2\n3;4\n");
    EXPECT_EQ(preview({"a.csv", "--unassigned", "--limit", "2", "--limit", "1"}).at("rows").size(), 1U);
}

TEST_F(UsageTest, ValueMayStandBehindAnEqualsSign) {
    write("a.csv", "1;2\n3;4\n");
    EXPECT_EQ(preview({"a.csv", "--unassigned", "--limit=1", "--delimiter=;"}).at("rows").size(), 1U);
}

} // namespace
