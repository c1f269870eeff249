// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/DmimportFixture.h"
#include "store/Sql.h"

namespace {

/// Sessions: what they tell, that a file is not imported twice by mistake, and undoing one.
class SessionsTest : public DmimportTest {
protected:
    SessionsTest() {
        write("mai.csv", "Buchungstag;Empfaenger;Verwendungszweck;Betrag\n"
                         "\n"
                         "13.05.2004;A;Eins;-10,10\n"
                         "31.06.2004;B;Zwei;5,00\n"
                         "02.05.2004;C;Drei;30,25\n");
        write("juni.csv", "Buchungstag;Empfaenger;Verwendungszweck;Betrag\n13.06.2004;D;Vier;-1,00\n");
    }

    Json importOnce(const std::string& file, int status) const {
        const Result result = run({"import", file, "--store", kStore, "--json"});
        EXPECT_EQ(result.status, status) << result.messages;
        return Json::parse(result.output).at("files").at(0);
    }

    Json undo(const std::string& session, int status) const {
        const Result result = run({"undo", session, "--store", kStore, "--json"});
        EXPECT_EQ(result.status, status) << result.messages;
        return Json::parse(result.output);
    }

    Result edit(const std::string& sql) const {
        Sql(path(kStore)).run(sql);
        return {};
    }
};

TEST_F(SessionsTest, SessionTellsWhatItBrought) {
    importOnce("mai.csv", 1);
    const Json session = show("sessions").at(0);
    EXPECT_EQ(session.at("Datensaetze"), 2);
    EXPECT_EQ(session.at("Abgelehnt"), 1);
    EXPECT_EQ(session.at("Bekannt"), 0);
    EXPECT_EQ(session.at("Summe"), 20.15);
    EXPECT_EQ(session.at("ErsterTag"), "2004-05-02");
    EXPECT_EQ(session.at("LetzterTag"), "2004-05-13");
    EXPECT_EQ(session.at("Zurueckgenommen"), nullptr);
    EXPECT_EQ(session.at("Pruefsumme").get<std::string>().size(), 64U);
}

TEST_F(SessionsTest, SumThatIsMoreThanAnAmountCanBeStaysEmpty) {
    std::string file = "Buchungstag;Empfaenger;Betrag\n";
    for (int i = 0; i < 9300; ++i) // in hundredths more than 64 bits hold
        file += "13.05.2004;A;9999999999999,99\n";
    write("reich.csv", file);
    write("gerade.csv", "Buchungstag;Empfaenger;Betrag\n13.05.2004;A;9999999999999,98\n13.05.2004;A;0,01\n");
    importOnce("reich.csv", 0);
    importOnce("gerade.csv", 0);
    EXPECT_EQ(show("sessions").at(0).at("Summe"), nullptr);
    EXPECT_EQ(show("sessions").at(0).at("Datensaetze"), 9300);
    EXPECT_EQ(show("sessions").at(1).at("Summe"), 9999999999999.99);
}

TEST_F(SessionsTest, ChecksumIsTheSha256OfTheFileAsItLies) {
    write("bom.csv", "\xEF\xBB\xBF"
                     "Datum;Text;Betrag\r\n13.05.2004;A;1,50\r\n");
    importOnce("bom.csv", 0);
    EXPECT_EQ(show("sessions").at(0).at("Pruefsumme"),
              "ded02c18e6a60e3dfdef8e4c767d17442efa7d7e77a2187c0e1c58f00ee4ae0c")
        << "not of the copy that was prepared";
}

TEST_F(SessionsTest, RecordKnowsItsLine) {
    importOnce("mai.csv", 1);
    EXPECT_EQ(show().at(0).at("Zeile"), 3);
    EXPECT_EQ(show().at(1).at("Zeile"), 5);
    EXPECT_EQ(show().at(1).at("ImportID"), 1);
}

TEST_F(SessionsTest, RecordThatTheModelRefusedShiftsNoLine) {
    write("gross.csv",
          "Buchungstag;Name;Betrag\n13.05.2004;A;1,50\n13.05.2004;B;99999999999999,00\n13.05.2004;C;2,50\n");
    importOnce("gross.csv", 1);
    EXPECT_EQ(show().at(1).at("Empfaenger"), "C");
    EXPECT_EQ(show().at(1).at("Zeile"), 4);
}

TEST_F(SessionsTest, QifRecordKnowsItsFirstLine) {
    write("a.qif", "!Account\nNGiro\n^\n!Type:Bank\nD13.5.2004\nT1.00\n^\n\nD14.5.2004\nT2.00\n^\n"
                   "!Type:Cat\nNEssen\n^\nNReisen\nB10.00\n^\n");
    importOnce("a.qif", 0);
    EXPECT_EQ(show().at(0).at("Zeile"), 5);
    EXPECT_EQ(show().at(1).at("Zeile"), 9);
    EXPECT_EQ(show().at(2).at("Zeile"), 15) << "a category without a budget makes no record";
}

TEST_F(SessionsTest, FileOfTheSameContentIsRefused) {
    importOnce("mai.csv", 1);
    const std::string before = read(kStore);
    write("kopie.csv", read("mai.csv"));
    const Json file = importOnce("kopie.csv", 1);
    EXPECT_EQ(messages(file), "bad-date:4 imported-before:-");
    EXPECT_EQ(file.at("committed"), false);
    EXPECT_EQ(read(kStore), before);
    EXPECT_THAT(run({"import", "kopie.csv", "--store", kStore}).messages,
                Says("Eine Datei mit genau diesem Inhalt ist schon importiert: Sitzung 1 vom"));
    EXPECT_EQ(import({"kopie.csv"}, 1).at("importedCount"), 2) << "with --again";
    EXPECT_EQ(importOnce("juni.csv", 0).at("importedCount"), 1) << "another file";
}

TEST_F(SessionsTest, UndoTakesTheRecordsBackAndNothingElse) {
    importOnce("juni.csv", 0);
    const Json before = show();
    importOnce("mai.csv", 1);
    EXPECT_EQ(undo("2", 0), Json::parse(R"({"sessionId":2,"undone":true,"removedCount":2,"messages":[]})"));
    EXPECT_EQ(show(), before);
    EXPECT_EQ(show("sessions").at(1).at("Zurueckgenommen"), true);
    EXPECT_EQ(show("sessions").at(0).at("Zurueckgenommen"), nullptr);
    EXPECT_EQ(show("counters").at(0).at("NextImportID"), 3) << "counters never go back";
    EXPECT_EQ(show("counters").at(0).at("NextUniqueID"), 4);
}

TEST_F(SessionsTest, UndoneFileCanBeImportedAgain) {
    importOnce("mai.csv", 1);
    undo("1", 0);
    const Json file = importOnce("mai.csv", 1);
    EXPECT_EQ(file.at("importedCount"), 2);
    EXPECT_EQ(file.at("sessionId"), 2);
    EXPECT_EQ(show().at(0).at("UniqueID"), 3);
}

TEST_F(SessionsTest, SessionInTheMiddleIsUndone) {
    importOnce("juni.csv", 0);
    importOnce("mai.csv", 1);
    import({"juni.csv"}, 0);
    undo("2", 0);
    EXPECT_EQ(show().size(), 2U);
    EXPECT_EQ(show().at(0).at("ImportID"), 1);
    EXPECT_EQ(show().at(1).at("ImportID"), 3);
}

TEST_F(SessionsTest, UndoRefusesWhatWasEditedAndNamesIt) {
    importOnce("mai.csv", 1);
    edit("UPDATE DataSets SET Kategorie = 'Essen' WHERE id = 2");
    EXPECT_EQ(show().at(1).at("Geaendert"), true);
    const std::string before = read(kStore);
    const Json result = undo("1", 1);
    EXPECT_EQ(result.at("undone"), false);
    EXPECT_EQ(messages(result), "record-changed:-");
    EXPECT_THAT(result.at("messages").at(0).at("text").get<std::string>(),
                Says("Der Datensatz 2 (02.05.2004, 30,25, C)"));
    EXPECT_EQ(read(kStore), before);
}

TEST_F(SessionsTest, UndoRefusesWhatIsNotThere) {
    EXPECT_EQ(run({"undo", "1", "--store", kStore}).status, 3) << "no store";
    EXPECT_FALSE(exists(kStore));
    importOnce("mai.csv", 1);
    EXPECT_EQ(messages(undo("7", 1)), "session-unknown:-");
    undo("1", 0);
    EXPECT_EQ(messages(undo("1", 1)), "session-undone:-");
    for (const char* wrong : {"0", "x", "1x", "99999999999999999999"}) {
        const Result result = run({"undo", wrong, "--store", kStore});
        EXPECT_EQ(result.status, 2) << wrong;
        EXPECT_THAT(result.messages, Says("dmimport show sessions"));
    }
}

TEST_F(SessionsTest, UndoTellsPeople) {
    importOnce("mai.csv", 1);
    EXPECT_EQ(run({"undo", "1", "--store", kStore}).output, "Sitzung 1 zurückgenommen: 2 Datensätze entfernt.\n");
}

} // namespace
