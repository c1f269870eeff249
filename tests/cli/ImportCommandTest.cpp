// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "cli/DmimportFixture.h"

namespace {

const char* const kColumns = "0=Datum,1=Empfaenger,2=Betrag";

using ImportCommandTest = DmimportTest;

TEST_F(ImportCommandTest, RecordsReachTheStore) {
    write("umsaetze.csv", "Buchung;Name;Betrag\n"
                          "01.02.2004;M\xFCller;-650,00\n"
                          "\n"
                          "05.02.2004;Lohn \x80;2.500,10\n");
    const Json file = import({"umsaetze.csv", "--columns", kColumns, "--header", "--info", "Girokonto März"}, 0);
    EXPECT_EQ(file, Json::parse(R"({"file":"umsaetze.csv","format":1,"result":1,"importedCount":2,"refusedCount":0,
        "undatedCount":0,"sessionId":1,"errorText":"","committed":true,
        "lines":{"read":4,"records":2,"header":1,"preamble":0,"footer":0,"blank":1,"ignored":0},"messages":[]})"));

    EXPECT_EQ(show(), Json::parse(R"([
        {"Datum":"2004-02-01","Betrag":-650.0,"Empfaenger":"Müller","Verwendungszweck":"","Buchungstext":"",
         "Kategorie":"","Unterkategorie":"","ImportID":1,"UniqueID":1,"Zeile":2,"Geaendert":null},
        {"Datum":"2004-02-05","Betrag":2500.1,"Empfaenger":"Lohn €","Verwendungszweck":"","Buchungstext":"",
         "Kategorie":"","Unterkategorie":"","ImportID":1,"UniqueID":2,"Zeile":4,"Geaendert":null}])"));
    const Json session = show("sessions").at(0);
    EXPECT_EQ(session.at("ImportID"), 1);
    EXPECT_EQ(session.at("ImportTyp"), 1);
    EXPECT_EQ(session.at("ImportFileName"), "umsaetze.csv");
    EXPECT_EQ(session.at("ImportInfo"), "Girokonto März");
    EXPECT_EQ(session.at("ImportDatum").get<std::string>().size(), std::string("2004-12-31").size());
    const Json counters = show("counters").at(0);
    EXPECT_EQ(counters.at("NextImportID"), 2);
    EXPECT_EQ(counters.at("NextUniqueID"), 3);
    EXPECT_EQ(counters.at("NeueDatenVorhanden"), true);
    EXPECT_EQ(counters.at("LetztesImportDatum"), session.at("ImportDatum"));
}

TEST_F(ImportCommandTest, SecondImportContinuesTheFirst) {
    write("a.csv", "01.02.2004;A;1\n");
    import({"a.csv", "--columns", kColumns, "--delimiter", ";"}, 0);
    const Json file = import({"a.csv", "--columns", kColumns, "--delimiter", ";"}, 0);
    EXPECT_EQ(file.at("sessionId"), 2);
    EXPECT_EQ(show().size(), 2U);
    EXPECT_EQ(show().at(1).at("UniqueID"), 2);
}

TEST_F(ImportCommandTest, SummaryIsForPeopleAndCanBeLeftOut) {
    write("a.csv", "01.02.2004;A;1\n31.02.2004;B;2\n");
    const std::vector<std::string> arguments = {"import",    "a.csv",  "--store",     kStore,
                                                "--columns", kColumns, "--delimiter", ";"};
    Result result = run(arguments);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "a.csv: 1 Datensatz importiert, 1 abgelehnt (Sitzung 1).\n");
    std::vector<std::string> quiet = arguments;
    quiet.emplace_back("--quiet");
    result = run(quiet);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.messages, Says("[bad-date]")) << "messages are no summary";
}

TEST_F(ImportCommandTest, FileWithoutBookingsIsRefusedAndNamesTheOption) {
    write("a.csv", "Einkauf;Menge\nMilch;1\n");
    const Result result = run({"import", "a.csv", "--store", kStore});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.messages, Says("[no-bookings]"));
    EXPECT_THAT(result.messages, Says("--columns \"0=Datum,3=Betrag\""));
    EXPECT_FALSE(exists(kStore));
}

TEST_F(ImportCommandTest, UndatedRecordsAreRefusedUnlessAllowed) {
    write("a.csv", "01.02.2004;A;1\n;B;2\n32.01.2004;C;3\n");
    const std::vector<std::string> arguments = {"a.csv", "--columns", kColumns, "--delimiter", ";"};
    const Json refused = import(arguments, 1);
    EXPECT_EQ(refused.at("importedCount"), 1);
    EXPECT_EQ(refused.at("refusedCount"), 2);
    EXPECT_EQ(refused.at("undatedCount"), 0);
    EXPECT_EQ(messages(refused), "date-missing:2 bad-date:3");

    std::vector<std::string> allowing = arguments;
    allowing.emplace_back("--allow-undated");
    const Json allowed = import(allowing, 0);
    EXPECT_EQ(allowed.at("importedCount"), 3);
    EXPECT_EQ(allowed.at("undatedCount"), 2);
    EXPECT_EQ(messages(allowed), "no-date:2 no-date:3") << "nothing is undated silently";
    EXPECT_EQ(show().at(2).at("Datum"), nullptr);

    EXPECT_EQ(messages(import(arguments, 1)), "date-missing:2 bad-date:3") << "the permission is for one call";
}

TEST_F(ImportCommandTest, LineTooShortForItsDateIsTold) {
    write("a.csv", "A;01.02.2004;1\n31.02.2004;31.02.2004\nB\n\nC;03.02.2004;2\n");
    const Json file =
        import({"a.csv", "--verbatim", "--columns", "0=Empfaenger,1=Datum,2=Betrag", "--delimiter", ";"}, 1);
    EXPECT_EQ(file.at("importedCount"), 3);
    EXPECT_EQ(file.at("undatedCount"), 1);
    EXPECT_EQ(messages(file), "bad-date:2 no-date:3") << "the line without a column is the third, refused ones counted";
}

TEST_F(ImportCommandTest, DelimiterIsFound) {
    for (const char* delimiter : {";", ",", "|", "\t"}) {
        const std::string d = delimiter;
        write("a.csv", "01.02.2004" + d + "A" + d + "1\n05.02.2004" + d + "B" + d + "2\n");
        EXPECT_EQ(import({"a.csv", "--columns", kColumns}, 0).at("importedCount"), 2) << delimiter;
    }
}

TEST_F(ImportCommandTest, DelimiterInsideATextIsNone) {
    write("a.csv", "Buchung;Name;Betrag\n01.02.2004;\"A; B\";1,5\n");
    EXPECT_EQ(import({"a.csv"}, 0).at("importedCount"), 1);
    EXPECT_EQ(show().at(0).at("Empfaenger"), "A; B");
}

TEST_F(ImportCommandTest, ColumnThatNoLineHasFailsTheFile) {
    write("a.csv", "01.02.2004;A;1\n05.02.2004;B;2\n");
    const Json file = import({"a.csv", "--columns", "0=Datum,1=Empfaenger,7=Betrag", "--delimiter", ";"}, 1);
    EXPECT_EQ(messages(file), "column-outside:-");
    EXPECT_EQ(file.at("committed"), false);
    EXPECT_EQ(file.at("sessionId"), 0);
    EXPECT_FALSE(exists(kStore));
}

TEST_F(ImportCommandTest, FileWithoutContentIsImportedWithoutASession) {
    write("leer.csv", "\n \t\n");
    const Json file = import({"leer.csv", "--columns", kColumns}, 0);
    EXPECT_EQ(file.at("result"), 1);
    EXPECT_EQ(file.at("sessionId"), 0);
    EXPECT_EQ(file.at("lines"),
              Json::parse(R"({"read":2,"records":0,"header":0,"preamble":0,"footer":0,"blank":2,"ignored":0})"));
}

TEST_F(ImportCommandTest, CarriageReturnAloneIsARecord) {
    write("a.csv", "01.02.2004;A;1\n\r\n");
    const Json file = import({"a.csv", "--verbatim", "--columns", kColumns, "--delimiter", ";"}, 1);
    EXPECT_EQ(file.at("lines").at("blank"), 0);
    EXPECT_EQ(messages(file), "bad-date:2");
}

TEST_F(ImportCommandTest, QifFileKeepsItsUndatedRecords) {
    write("a.qif", "!Type:Bank\nD1.2.2004\nT-12.50\nPMiete\n^\nT3.00\nPOhne Datum\n^\n");
    const Json file = import({"a.qif"}, 0);
    EXPECT_EQ(file.at("format"), 2);
    EXPECT_EQ(file.at("importedCount"), 2);
    EXPECT_EQ(file.at("undatedCount"), 1);
    EXPECT_EQ(file.at("records"), Json::parse(R"({"found":2,"imported":2,"refused":0})"));
}

TEST_F(ImportCommandTest, OptionsWithoutEffectAreTold) {
    write("a.qif", "!Type:Bank\nD1.2.2004\nT-12.50\nPMiete\n^\n");
    const Json file = import({"a.qif", "--columns", kColumns, "--delimiter", ";"}, 0);
    EXPECT_EQ(messages(file), "option-ignored:- option-ignored:-");
}

TEST_F(ImportCommandTest, DefaultStoreLiesInTheDataDirectoryOfTheUserAlone) {
    write("a.csv", "01.02.2004;A;1\n");
    const std::vector<std::string> arguments = {"import", "a.csv", "--columns", kColumns, "--delimiter", ";"};
    EXPECT_EQ(run(arguments).status, 0);
    EXPECT_TRUE(exists("home/.local/share/dmimport/bestand.db"));
    EXPECT_EQ(std::filesystem::status(path("home/.local/share/dmimport")).permissions(),
              std::filesystem::perms::owner_all);

    ChildProgram other = program(arguments);
    other.environment["XDG_DATA_HOME"] = path("daten");
    EXPECT_EQ(other.run().status, 0);
    EXPECT_TRUE(exists("daten/dmimport/bestand.db"));

    ChildProgram homeless = program(arguments);
    homeless.environment["HOME"] = std::nullopt;
    const Result result = homeless.run();
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.messages, Says("--store"));
}

TEST_F(ImportCommandTest, InfoWithLettersThatCannotBeKeptIsRefused) {
    write("a.csv", "01.02.2004;A;1\n");
    const Result result = run({"import", "a.csv", "--columns", kColumns, "--store", kStore, "--info", "中"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.messages, Says("--info"));
}

TEST_F(ImportCommandTest, LocaleOfTheEnvironmentChangesNothing) {
    write("a.csv", "01.02.2004;A;1.234,50\n05.02.2004;B;-0,05\n");
    for (const char* locale : {"C", "de_DE.UTF-8", "fr_FR.UTF-8", "tr_TR.UTF-8"}) {
        ChildProgram program =
            this->program({"import", "a.csv", "--columns", kColumns, "--delimiter", ";", "--again", "--store", "l.db"});
        for (const char* name : {"LC_ALL", "LANG", "LC_NUMERIC"})
            program.environment[name] = locale;
        if (const char* locales = std::getenv("LOCPATH"))
            program.environment["LOCPATH"] = locales;
        EXPECT_EQ(program.run().status, 0) << locale;
        program.arguments = {DMIMPORT_PROGRAM, "show", "--store", "l.db", "--json"};
        const Json rows = Json::parse(program.run().output).at("dataSets");
        EXPECT_EQ(rows.at(rows.size() - 2).at("Betrag"), 1234.5) << locale;
        EXPECT_EQ(rows.back().at("Betrag"), -0.05) << locale;
        program.arguments = {DMIMPORT_PROGRAM, "show", "--store", "l.db"};
        EXPECT_THAT(program.run().output, Says("1.234,50")) << locale;
    }
}

} // namespace
