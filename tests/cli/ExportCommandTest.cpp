// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "cli/DmimportFixture.h"
#include "store/Store.h"
#include "support/GeneratedBook.h"

namespace {

class ExportCommandTest : public DmimportTest {
protected:
    /// A store of these records, all of one session.
    void makeStore(const std::vector<BookRow>& rows) const {
        Store store = Store::open(path(kStore), Store::Access::readWrite);
        RecordBook::addSession(store.model(), 1, "a.csv");
        for (const BookRow& row : rows)
            RecordBook::add(store.model(), row);
        store.commit();
    }

    Result exporting(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"export", "--store", kStore});
        return run(arguments);
    }

    std::vector<BookRow> rowsOf(const std::string& name) const {
        Store store = Store::open(path(name), Store::Access::readOnly);
        TableNode& records = RecordBook::table(store.model(), "DataSets");
        std::vector<BookRow> rows;
        for (unsigned number = 1; number <= records.getNodeCount(); ++number)
            rows.push_back(RecordBook::read(*records.row(number)));
        store.throwIfUnreadable();
        return rows;
    }

    /// Writes the store out and imports that into an empty one.
    void expectNothingLost() const {
        const Result written = exporting({"--to", "csv"});
        ASSERT_EQ(written.status, 0);
        EXPECT_EQ(written.messages, "");
        write("again.csv", written.output);
        const Result imported = run({"import", "again.csv", "--store", "again.db"});
        ASSERT_EQ(imported.status, 0) << imported.output << imported.messages;
        EXPECT_EQ(imported.messages, "");
        const std::vector<BookRow> before = rowsOf(kStore);
        const std::vector<BookRow> after = rowsOf("again.db");
        ASSERT_EQ(before.size(), after.size());
        for (std::size_t i = 0; i < before.size(); ++i) {
            EXPECT_EQ(before[i].day, after[i].day) << i;
            EXPECT_EQ(before[i].hasAmount, after[i].hasAmount) << i;
            EXPECT_EQ(before[i].amount, after[i].amount) << i;
            EXPECT_EQ(before[i].texts, after[i].texts) << i;
        }
    }
};

TEST_F(ExportCommandTest, CsvComesBackAsItWas) {
    write("a.csv",
          "Datum;Betrag;Empfaenger;Verwendungszweck\n01.02.2024;-1.650,00;M\xFCller;\"Miete; \"\"kalt\"\"\"\n");
    import({"a.csv"}, 0);
    EXPECT_EQ(exporting({"--to", "csv"}).output,
              "\xEF\xBB\xBF"
              "Datum;Betrag;Empfaenger;Verwendungszweck;Buchungstext;Kategorie;Unterkategorie;ImportID;UniqueID;Zeile\n"
              "01.02.2024;-1650,00;Müller;\"Miete; \"\"kalt\"\"\";;;;1;1;2\n");
    expectNothingLost();
}

TEST_F(ExportCommandTest, GeneratedBooksComeBackAsTheyWere) {
    makeStore(GeneratedBook(20240314).rows(1500));
    expectNothingLost();
}

TEST_F(ExportCommandTest, CategoriesAndBudgetsStayUndated) {
    write("a.qif", "!Type:Cat\nNAuto\nDBenzin\nB10\nB20,50\n^\n!Type:Bank\nD01.02.2024\nT-5,00\nPTankstelle\n^\n");
    import({"a.qif"}, 0);
    ASSERT_EQ(rowsOf(kStore).size(), 2U);
    EXPECT_TRUE(rowsOf(kStore).front().day.isZero());
    expectNothingLost();
}

TEST_F(ExportCommandTest, TextsLongerThanALineComeBack) {
    const std::string payee(4000, 'p');
    const std::string memo(4000, 'm');
    write("a.qif", "!Type:Bank\nD01.02.2024\nT-5,00\nP" + payee + "\nM" + memo + "\n^\n");
    import({"a.qif"}, 0);
    ASSERT_EQ(rowsOf(kStore).at(0).texts.at(1), memo);
    expectNothingLost();
}

TEST_F(ExportCommandTest, AProfileWithTheSameNamesIsLeftAlone) {
    write("a.csv", "Datum;Betrag;Empfaenger;Verwendungszweck;Kategorie\n01.02.2024;-1,00;a;b;c\n");
    ASSERT_EQ(run({"inspect", "a.csv", "--save-profile", "bank"}).status, 0);
    import({"a.csv"}, 0);
    expectNothingLost();
}

TEST_F(ExportCommandTest, JsonHoldsWhatShowHolds) {
    makeStore(GeneratedBook(7).rows(300));
    const Result result = exporting({"--to", "json"});
    EXPECT_EQ(result.status, 0);
    const Json document = Json::parse(result.output);
    EXPECT_EQ(document.at("dataSets"), show());
    EXPECT_EQ(document.at("sessions"), show("sessions"));
    EXPECT_EQ(exporting({"--json"}).output, result.output);
}

TEST_F(ExportCommandTest, SessionsAndDaysNarrow) {
    write("a.csv", "Datum;Betrag;Text\n01.02.2024;1,00;eins\n02.02.2024;2,00;zwei\n03.02.2024;3,00;drei\n");
    write("b.csv", "Datum;Betrag;Text\n02.02.2024;4,00;vier\n");
    import({"a.csv"}, 0);
    import({"b.csv"}, 0);
    const auto amounts = [&](std::vector<std::string> options) {
        options.insert(options.begin(), {"--to", "json"});
        std::string list;
        const Json document = Json::parse(exporting(options).output);
        for (const Json& record : document.at("dataSets"))
            list += record.at("Betrag").dump() + " ";
        return list;
    };
    EXPECT_EQ(amounts({}), "1.0 2.0 3.0 4.0 ");
    EXPECT_EQ(amounts({"--session", "2"}), "4.0 ");
    EXPECT_EQ(amounts({"--since", "2024-02-02"}), "2.0 3.0 4.0 ");
    EXPECT_EQ(amounts({"--until", "02.02.2024"}), "1.0 2.0 4.0 ");
    EXPECT_EQ(amounts({"--since", "2024-02-02", "--until", "2024-02-02", "--session", "1"}), "2.0 ");
    EXPECT_EQ(Json::parse(exporting({"--to", "json", "--session", "2"}).output).at("sessions").size(), 1U);
}

TEST_F(ExportCommandTest, UndatedRecordsAreInNoPeriod) {
    BookRow undated;
    makeStore({undated});
    const Result result = exporting({"--to", "json", "--since", "0001-01-01"});
    EXPECT_EQ(Json::parse(result.output).at("dataSets").size(), 0U);
    EXPECT_THAT(result.messages, Says("[nothing-to-export]"));
}

TEST_F(ExportCommandTest, NothingIsAValidDocumentAndANote) {
    makeStore({});
    const Result json = exporting({"--to", "json"});
    EXPECT_EQ(json.status, 0);
    EXPECT_EQ(json.output, "{\"dataSets\":[],\"sessions\":[]}\n");
    EXPECT_THAT(json.messages, Says("Hinweis"));
    EXPECT_THAT(json.messages, Says("[nothing-to-export]"));
    const Result csv = exporting({"--to", "csv"});
    EXPECT_EQ(std::count(csv.output.begin(), csv.output.end(), '\n'), 1);
}

TEST_F(ExportCommandTest, QifIsReadAgainByTheImport) {
    makeStore({{{1, 2, 2024}, -1234.5, {"M\xFCller", "Miete  kalt; warm", "Karte", "Wohnen", "Miete"}},
               {{11, 12, 2024}, 0.125, {"Bank", "", "", "Bankkonten", "Zinsen"}},
               {{2, 2, 2024}, 1.0, {"", "x", "", "Kreditkartenkonten", ""}}});
    const Result written = exporting({"--to", "qif"});
    EXPECT_EQ(written.status, 0);
    EXPECT_EQ(written.messages, "");
    write("again.qif", written.output);
    const Result imported = run({"import", "again.qif", "--store", "again.db"});
    ASSERT_EQ(imported.status, 0) << imported.messages;
    EXPECT_EQ(imported.messages, "");
    const std::vector<BookRow> before = rowsOf(kStore);
    const std::vector<BookRow> after = rowsOf("again.db");
    ASSERT_EQ(after.size(), 3U);
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_EQ(before[i].day, after[i].day) << i;
        EXPECT_EQ(before[i].amount, after[i].amount) << i;
        for (const std::size_t text : {0, 1, 2})
            EXPECT_EQ(before[i].texts[text], after[i].texts[text]) << i;
    }
    EXPECT_EQ(after[0].texts[4], "Wohnen:Miete");
    EXPECT_EQ(after[1].texts, before[1].texts) << "what came from such a file goes there again";
    EXPECT_EQ(after[2].texts, before[2].texts);
}

TEST_F(ExportCommandTest, OneQifRecordWithAnyDayIsReadAgain) {
    makeStore({{{3, 2, 2001}, 1.0, {}}});
    write("again.qif", exporting({"--to", "qif"}).output);
    ASSERT_EQ(run({"import", "again.qif", "--store", "again.db"}).status, 0);
    EXPECT_EQ(rowsOf("again.db").at(0).day, DMDate(3, 2, 2001));
}

TEST_F(ExportCommandTest, GeneratedBooksComeBackFromQifButForWhatWasTold) {
    std::vector<BookRow> rows;
    for (BookRow row : GeneratedBook(5).rows(400)) {
        if (row.day.year() < 1900 || row.day.year() > 2199)
            row.day = DMDate(1 + static_cast<unsigned>(rows.size() % 28), 2, 2024);
        row.hasAmount = true;
        row.amount = static_cast<double>(static_cast<long>(rows.size()) * 7 - 900) / 100.0;
        rows.push_back(row);
    }
    makeStore(rows);
    write("again.qif", exporting({"--to", "qif"}).output);
    const Result imported = run({"import", "again.qif", "--store", "again.db"});
    ASSERT_EQ(imported.status, 0) << imported.messages;
    const std::vector<BookRow> after = rowsOf("again.db");
    ASSERT_EQ(after.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].day, after[i].day) << i;
        EXPECT_EQ(rows[i].amount, after[i].amount) << i;
    }
}

TEST_F(ExportCommandTest, WhatAFormatCannotHoldIsTold) {
    BookRow noAmount({1, 2, 2024}, 0.0, {});
    noAmount.hasAmount = false;
    makeStore({{{}, 1.0, {}}, {{}, 1.0, {}}, {{1, 2, 2024}, 1.0, {"a;b\nc", "", "", "", ""}}, noAmount, {{}, 1.0, {}}});
    const Result journal = exporting({"--to", "hledger"});
    EXPECT_EQ(journal.status, 1) << "records are missing";
    EXPECT_THAT(journal.output, Says("2024-02-01 * (3) a,b c\n"));
    EXPECT_THAT(journal.messages, Says("Fehler: Ohne Datum, und darum nicht in der Ausgabe: 3 Datensätze "
                                       "(UniqueID 1-2, 5). [export-undated]"));
    EXPECT_THAT(journal.messages, Says("1 Datensatz (UniqueID 3). [export-text-changed]"));
    EXPECT_THAT(journal.messages, Says("1 Datensatz (UniqueID 4). [export-no-amount]"));
    const Result qif = exporting({"--to", "qif", "--since", "2024-01-01"});
    EXPECT_EQ(qif.status, 0) << "those without a date were not asked for";
    EXPECT_THAT(qif.messages, Says("[export-text-changed]"));
}

TEST_F(ExportCommandTest, SessionMustExistAndNotBeUndone) {
    write("a.csv", "Datum;Betrag;Text\n01.02.2024;1,00;a\n");
    import({"a.csv"}, 0);
    const Result unknown = exporting({"--to", "csv", "--session", "9"});
    EXPECT_EQ(unknown.status, 1);
    EXPECT_EQ(unknown.output, "");
    EXPECT_THAT(unknown.messages, Says("[session-unknown]"));
    ASSERT_EQ(run({"undo", "1", "--store", kStore}).status, 0);
    const Result undone = exporting({"--to", "csv", "--session", "1"});
    EXPECT_EQ(undone.status, 1);
    EXPECT_THAT(undone.messages, Says("[session-undone]"));
}

TEST_F(ExportCommandTest, WrongCommandLinesSayWhatToWrite) {
    const auto refused = [&](std::vector<std::string> arguments, const char* words) {
        const Result result = exporting(std::move(arguments));
        EXPECT_EQ(result.status, 2) << words;
        EXPECT_EQ(result.output, "");
        EXPECT_THAT(result.messages, Says(words));
    };
    refused({}, "--to csv");
    refused({"--to", "cvs"}, "Meinten Sie „csv“?");
    refused({"--to", "xml"}, "Möglich sind csv, json");
    refused({"--to", "csv", "--json"}, "widersprechen");
    refused({"--to", "csv", "--session", "x"}, "keine Nummer");
    refused({"--to", "csv", "--since", "2024-02-30"}, "kein Tag");
    refused({"--to", "csv", "--until", "1.2.2024"}, "kein Tag");
    refused({"--to", "csv", "--since", "2024-02-02", "--until", "2024-02-01"}, "dazwischen");
    refused({"--to", "csv", "--account", "4711"}, "10020030/4711");
    refused({"--to", "csv", "--account", "1/2", "--session", "1"}, "widersprechen");
    refused({"--to", "csv", "a.csv"}, "zu viel");
}

TEST_F(ExportCommandTest, StoreMustBeThereAndIsNotTouched) {
    const Result missing = exporting({"--to", "csv"});
    EXPECT_EQ(missing.status, 3);
    EXPECT_EQ(missing.output, "");
    EXPECT_THAT(missing.messages, Says("[store-missing]"));
    makeStore(GeneratedBook(3).rows(5));
    const std::string bytes = read(kStore);
    exporting({"--to", "csv"});
    EXPECT_EQ(read(kStore), bytes);
}

TEST_F(ExportCommandTest, NothingSteersATerminal) {
    makeStore({{{1, 2, 2024}, 1.0, {"a\x1B[31m\x90", "", "", "", ""}}});
    for (const char* format : {"csv", "json", "hledger", "qif"}) {
        ChildProgram program = this->program({"export", "--store", kStore, "--to", format});
        program.terminalColumns = 80;
        const std::string output = program.run().output;
        EXPECT_THAT(output, Says("a")) << format;
        EXPECT_EQ(output.find('\x1B'), std::string::npos) << format;
        EXPECT_EQ(output.find("\xC2\x90"), std::string::npos) << format;
    }
    EXPECT_THAT(exporting({"--to", "csv"}).output, Says("a\x1B[31m\xC2\x90")) << "a file gets what there is";
}

class ExportBookingsTest : public ExportCommandTest {
protected:
    ExportBookingsTest() {
        Store store = Store::open(path(kStore), Store::Access::readWrite);
        for (const char* number : {"0815", "4711"}) {
            RecordNode& account = *RecordBook::table(store.model(), "HomeBankingImport").append();
            RecordBook::set(account, "BLZ", RecordBook::text("100"));
            RecordBook::set(account, "KtoNummer", RecordBook::text(number));
            RecordNode& booking = *account.table(account.spec().tableIndex("DataSets").value()).append();
            RecordBook::set(booking, "BuchungsDatum", RecordBook::day({31, 12, 2004}));
            RecordBook::set(booking, "ValutaDatum", RecordBook::day({2, 1, 2005}));
            RecordBook::set(booking, "Betrag", DataType::makeCurrency(-12.5));
            RecordBook::set(booking, "Verwendungszweck", RecordBook::text("eins\nzwei"));
            RecordBook::set(booking, "GVCode", RecordBook::text("116"));
            RecordBook::set(booking, "Notiz", RecordBook::text("n"));
            RecordBook::set(booking, "BuchungsID", RecordBook::text("B-1"));
            RecordBook::set(booking, "Steuerrelevant", DataType::makeBoolean(true));
            RecordBook::set(booking, "UniqueID", DataType::makeInteger(5));
        }
        store.commit();
    }
};

TEST_F(ExportBookingsTest, AnAccountsBookingsHaveTheirOwnColumns) {
    EXPECT_EQ(exporting({"--to", "csv", "--account", "100/4711"}).output,
              "\xEF\xBB\xBF"
              "BuchungsDatum;ValutaDatum;Betrag;Empfaenger;Verwendungszweck;GVCode;Kategorie;Notiz;Steuerrelevant;"
              "BLZ;KtoNummer;BuchungsID;UniqueID\n"
              "31.12.2004;02.01.2005;-12,50;;\"eins\nzwei\";116;;n;1;100;4711;B-1;5\n");
}

TEST_F(ExportBookingsTest, BookingsAreReadAgainAsRecords) {
    write("e.csv", exporting({"--to", "csv", "--account", "100/4711"}).output);
    ASSERT_EQ(run({"import", "e.csv", "--store", "again.db"}).status, 0);
    const std::vector<BookRow> rows = rowsOf("again.db");
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].day, DMDate(31, 12, 2004));
    EXPECT_EQ(rows[0].amount, -12.5);
    EXPECT_EQ(rows[0].texts[1], "eins\nzwei");
    EXPECT_EQ(rows[0].texts[2], "116");
}

TEST_F(ExportBookingsTest, JsonHasTheAccountAsWell) {
    const Json document = Json::parse(exporting({"--to", "json", "--account", "100/0815"}).output);
    EXPECT_EQ(document.at("bookings"), Json::array({show("bookings").at(0)}));
    EXPECT_EQ(document.at("accounts"), Json::array({show("accounts").at(0)}));
}

TEST_F(ExportBookingsTest, JournalNamesAccountAndTheBanksNumber) {
    const Result result = exporting({"--to", "hledger", "--account", "100/0815"});
    EXPECT_THAT(result.output, Says("2004-12-31 * (B-1) eins zwei\n"
                                    "    ; GVCode: 116\n"
                                    "    ; Valuta: 2005-01-02\n"
                                    "    ; Notiz: n\n"
                                    "    ; Steuerrelevant: ja\n"
                                    "    Ausgaben:Unkategorisiert  12.50 EUR\n"
                                    "    Aktiva:Bank:100:0815  -12.50 EUR\n"));
    EXPECT_THAT(exporting({"--to", "qif", "--account", "100/0815"}).messages, Says("[export-field-dropped]"));
}

TEST_F(ExportBookingsTest, UnknownAccountIsToldAndNothingIsWritten) {
    const Result result = exporting({"--to", "json", "--account", "100/815"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.messages, Says("[account-unknown]"));
    EXPECT_THAT(result.messages, Says("„815“ (BLZ „100“)"));
}

TEST_F(ExportBookingsTest, WhoForgetsTheAccountIsTold) {
    const Result result = exporting({"--to", "csv"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.messages, Says("2 Konten"));
    EXPECT_THAT(result.messages, Says("--account"));
}

} // namespace
