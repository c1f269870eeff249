// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/DmimportFixture.h"

/// Files as banks hand them out, imported without a single option.
namespace {

using namespace std::string_literals;

class AutomaticImportTest : public DmimportTest {
protected:
    /// Date, amount, payee and purpose of each record in the store.
    std::vector<std::string> records() const {
        std::vector<std::string> texts;
        for (const Json& row : show())
            texts.push_back(row.at("Datum").dump() + " " + row.at("Betrag").dump() + " " +
                            row.at("Empfaenger").get<std::string>() + "|" +
                            row.at("Verwendungszweck").get<std::string>());
        return texts;
    }
};

TEST_F(AutomaticImportTest, ExportOfABank) {
    write("umsaetze.csv", "\xEF\xBB\xBF\"Konto\";\"DE02120300000000202051\"\r\n"
                          "\r\n"
                          "\"Buchungstag\";\"Empf\xC3\xA4nger\";\"Verwendungszweck\";\"Betrag (\xE2\x82\xAC)\"\r\n"
                          "\"2004-02-01\";\"M\xC3\xBCller\";\"Miete\r\nM\xC3\xA4rz\";\"-1.650,00\"\r\n"
                          "\"2004-02-13\";\"\xE2\x82\xACuro; GmbH\";\"Lohn\";\"1.000\"\r\n"
                          "\"Endsaldo\";\"\";\"\";\"350,00\"\r\n");
    const Json file = import({"umsaetze.csv"}, 0);
    EXPECT_EQ(file.at("importedCount"), 2);
    EXPECT_EQ(file.at("lines"),
              Json::parse(R"({"read":7,"records":2,"header":1,"preamble":1,"footer":1,"blank":1,"ignored":1})"));
    EXPECT_EQ(records(), (std::vector<std::string>{"\"2004-02-01\" -1650.0 Müller|Miete März",
                                                   "\"2004-02-13\" 1000.0 €uro; GmbH|Lohn"}));
    EXPECT_EQ(show("sessions").at(0).at("ImportFileName"), "umsaetze.csv") << "not the prepared copy's name";
    EXPECT_EQ(leftovers(), std::vector<std::string>());
}

TEST_F(AutomaticImportTest, RefusedLineIsShownAndTheOthersImported) {
    write("a.csv", "Buchungstag;Empf\xE4nger;Betrag\n"
                   "13.02.2004;M\xFCller;-650,00\n"
                   "31.02.2004;Bj\xF6rn;1,00\n"
                   "14.02.2004;C;12,x\n");
    const Json file = import({"a.csv"}, 1);
    EXPECT_EQ(file.at("importedCount"), 1);
    EXPECT_EQ(file.at("refusedCount"), 2);
    EXPECT_EQ(file.at("committed"), true);
    EXPECT_EQ(messages(file), "bad-date:3 bad-amount:4");
    EXPECT_EQ(file.at("lines"),
              Json::parse(R"({"read":4,"records":3,"header":1,"preamble":0,"footer":0,"blank":0,"ignored":0})"));
    const Result result = run({"import", "a.csv", "--store", kStore});
    EXPECT_THAT(result.messages, Says("a.csv:3: Fehler: Das Datum „31.02.2004“ ist nicht lesbar."));
    EXPECT_THAT(result.messages, Says("    31.02.2004;Björn;1,00\n")) << "the line itself, readable";
}

TEST_F(AutomaticImportTest, RefusedRecordsBehindEachOtherAreCountedOnce) {
    write("a.csv", "Buchungstag;Name;Betrag\n32.01.2004;A;1,00\n13.02.2004;B;99999999999999,00\n13.02.2004;C;3,00\n");
    const Json file = import({"a.csv"}, 1);
    EXPECT_EQ(file.at("importedCount"), 1);
    EXPECT_EQ(file.at("refusedCount"), 2) << "one by the intake, one by the data model";
    EXPECT_EQ(file.at("lines").at("records"), 3);
    EXPECT_EQ(messages(file), "bad-date:2 bad-amount:3");
}

TEST_F(AutomaticImportTest, UndecidedFileIsRefusedAndNamesTheOption) {
    write("a.csv", "Datum;Text;Betrag\n01/02/2004;A;-1.50\n03/04/2004;B;2.50\n");
    const Json file = import({"a.csv"}, 1);
    EXPECT_EQ(file.at("committed"), false);
    EXPECT_EQ(messages(file), "date-order-ambiguous:2");
    EXPECT_FALSE(exists(kStore));
    EXPECT_THAT(run({"import", "a.csv", "--store", kStore}).messages, Says("--date-order dmy, mdy oder ymd"));

    EXPECT_EQ(import({"a.csv", "--date-order", "mdy"}, 0).at("importedCount"), 2);
    EXPECT_EQ(show().at(0).at("Datum"), "2004-01-02");
    EXPECT_EQ(import({"a.csv", "--date-order", "dmy"}, 0).at("importedCount"), 2);
    EXPECT_EQ(show().at(2).at("Datum"), "2004-02-01");
}

TEST_F(AutomaticImportTest, DecimalMarkIsDecidedByTheOption) {
    write("a.csv", "Buchungstag;Text;Betrag\n13.02.2004;A;-1.500\n14.02.2004;B;2.500\n");
    const Json file = import({"a.csv", "--decimal", "."}, 0);
    EXPECT_EQ(show().at(0).at("Betrag"), -1.5);
    import({"a.csv", "--decimal", ","}, 0);
    EXPECT_EQ(show().at(2).at("Betrag"), -1500.0);
}

TEST_F(AutomaticImportTest, EncodingIsDecidedByTheOption) {
    write("a.csv", "Buchungstag;Empf\xC3\xA4nger;Betrag\n13.02.2004;A;-1,50\n14.02.2004;B;2,50\n");
    import({"a.csv", "--encoding", "utf-8"}, 0);
    EXPECT_EQ(preview({"a.csv", "--encoding", "utf-8"}).at("header").at(1), "Empfänger");
    EXPECT_EQ(preview({"a.csv", "--encoding", "latin1", "--unassigned"}).at("header").at(1), "EmpfÃ¤nger");
}

TEST_F(AutomaticImportTest, Utf16IsRead) {
    const std::string text = "Buchungstag;Name;Betrag\n13.02.2004;A;-1,50\n14.02.2004;B;2,50\n";
    std::string bytes = "\xFF\xFE";
    for (const char c : text)
        bytes += std::string(1, c) + '\0';
    write("a.csv", bytes);
    const Json file = import({"a.csv"}, 0);
    EXPECT_EQ(file.at("importedCount"), 2);
    EXPECT_EQ(file.at("lines").at("read"), 3);
    EXPECT_EQ(show().at(0).at("Betrag"), -1.5);
}

TEST_F(AutomaticImportTest, LongLineCostsItsColumnsThatAreNotRead) {
    write("a.csv",
          "Buchungstag;Name;Betrag;BIC\n13.02.2004;A;-1,50;" + std::string(5000, 'x') + "\n14.02.2004;B;2,50;\n");
    const Json file = import({"a.csv"}, 0);
    EXPECT_EQ(file.at("importedCount"), 2);
    write("b.csv", "Buchungstag;Name;Betrag\n13.02.2004;" + std::string(5000, 'x') + ";-1,50\n14.02.2004;B;2,50\n");
    const Json refused = import({"b.csv"}, 1);
    EXPECT_EQ(refused.at("importedCount"), 1);
    EXPECT_EQ(messages(refused), "line-too-long:2");
}

TEST_F(AutomaticImportTest, UndatedRecordsAreTakenOnWish) {
    write("a.csv", "Buchungstag;Name;Betrag\n13.02.2004;A;-1,50\n;B;2,50\n14.02.2004;C;3,50\n");
    EXPECT_EQ(messages(import({"a.csv"}, 1)), "date-missing:3");
    const Json file = import({"a.csv", "--allow-undated"}, 0);
    EXPECT_EQ(file.at("undatedCount"), 1);
    EXPECT_EQ(messages(file), "no-date:3");
    EXPECT_EQ(show().back().at("Empfaenger"), "C");
    EXPECT_EQ(show().at(3).at("Datum"), nullptr);
}

TEST_F(AutomaticImportTest, PendingBookingsAreToldAndWait) {
    write("a.csv", "Buchungstag;Name;Betrag;Status\n13.02.2004;A;-1,50;gebucht\n14.02.2004;B;2,50;vorgemerkt\n");
    const Json file = import({"a.csv"}, 0);
    EXPECT_EQ(file.at("importedCount"), 1);
    EXPECT_EQ(messages(file), "pending:3");
    EXPECT_EQ(file.at("lines").at("ignored"), 1);
}

TEST_F(AutomaticImportTest, BalanceThatDoesNotFitIsToldWithItsLine) {
    write("a.csv", "Buchungstag;Name;Betrag;Saldo\n"
                   "13.02.2004;A;-10,00;90,00\n14.02.2004;B;20,00;110,00\n15.02.2004;C;-5,00;105,00\n"
                   "16.02.2004;D;-5,00;80,00\n17.02.2004;E;-5,00;75,00\n18.02.2004;F;-5,00;70,00\n");
    const Json file = import({"a.csv"}, 0);
    EXPECT_EQ(messages(file), "balance-break:5");
}

TEST_F(AutomaticImportTest, QifAsItComes) {
    write("a.qif", "\xEF\xBB\xBF!Type:Bank\r\nD2004-02-13\r\nT-1,000.00\r\nPM\xC3\xBCller\r\n^\r\n"
                   "D13.2.2004\r\nT12x\r\n^\r\nD2004-02-14\r\nT5.00\r\nPB\r\n");
    const Json file = import({"a.qif"}, 1);
    EXPECT_EQ(file.at("records"), Json::parse(R"({"found":3,"imported":2,"refused":1})"));
    EXPECT_EQ(file.at("committed"), true);
    EXPECT_EQ(records(), (std::vector<std::string>{"\"2004-02-13\" -1000.0 Müller|", "\"2004-02-14\" 5.0 B|"}));
}

TEST_F(AutomaticImportTest, StarMoneyExportOfAnotherLayout) {
    write("a.ssx", "Kontonummer;BLZ;Buchungstag;Betrag;Empf\xE4nger;Verwendungszweck\n"
                   "1234;12030000;13.02.2004;-650,00;Vermieter;Miete\n");
    const Json file = import({"a.ssx"}, 0);
    EXPECT_EQ(file.at("importedCount"), 1);
    EXPECT_EQ(records(), (std::vector<std::string>{"\"2004-02-13\" -650.0 Vermieter|Miete"}));
}

/// Every line is in one bucket, and every record imported or refused.
TEST_F(AutomaticImportTest, AccountOfLinesAndRecordsAddsUp) {
    const std::pair<const char*, std::string> files[] = {
        {"leer.csv", ""},
        {"zeile.csv", "\n"},
        {"ohne.csv", "Einkauf;Menge\nMilch;1\n"},
        {"zweifel.csv", "Datum;Text;Betrag\n01/02/2004;A;-1.50\n03/04/2004;B;2.50\n"},
        {"rand.csv", "Konto;1\n\nBuchungstag;Name;Betrag\n13.02.2004;A;-1,50\nx;B;1\n;;\n\nSumme;;1,00\nEnde\n"},
        {"bruch.csv", "Buchungstag;Name;Betrag\n13.02.2004;\"A\nB\nC\";-1,50\n14.02.2004;D;12,x\n"},
        {"zwei.csv", "Buchungstag;Name;Betrag\n13.02.2004;A;-1,50\n\nBuchungstag;Betrag\n14.02.2004;2,50\n"},
        {"ende.csv", "Buchungstag;Name;Betrag\r\n13.02.2004;A;-1,50"},
        {"nur.qif", "!Type:Bank\n^\n"},
        {"a.qif", "Vorspann\n!Account\nNGiro\n^\n!Type:Bank\nD13.2.2004\nT1.00\n\n^\nD1.2.2004\nTx\n^\n"},
        {"a.sdi", "Miete;-650,00;01.03.2004;V;W;M;D\nx;y;z\n"},
    };
    for (const auto& [name, bytes] : files) {
        SCOPED_TRACE(name);
        write(name, bytes);
        const Result result = run({"import", name, "--store", kStore, "--json"});
        const Json file = Json::parse(result.output).at("files").at(0);
        const Json& lines = file.at("lines");
        std::size_t sum = 0;
        for (const char* bucket : {"records", "header", "preamble", "footer", "blank", "ignored"})
            sum += lines.at(bucket).get<std::size_t>();
        EXPECT_EQ(lines.at("read"), sum) << lines;
        EXPECT_LT(sum, std::size_t{1000}) << "nothing was counted below zero";
        const std::size_t handled =
            file.at("importedCount").get<std::size_t>() + file.at("refusedCount").get<std::size_t>();
        if (file.contains("records")) {
            const Json& records = file.at("records");
            EXPECT_EQ(records.at("found"),
                      records.at("imported").get<std::size_t>() + records.at("refused").get<std::size_t>());
            EXPECT_EQ(records.at("found"), handled);
        } else {
            EXPECT_EQ(lines.at("records"), handled);
        }
        EXPECT_EQ(result.status == 1, file.at("refusedCount") > 0 || !file.at("committed")) << result.messages;
    }
}

} // namespace
