// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <random>

#include "cli/DmimportFixture.h"
#include "cli/HomeBankingTexts.h"
#include "store/Sql.h"

namespace {

using HomeBankingTexts::account;
using HomeBankingTexts::accountList;
using HomeBankingTexts::booking;
using HomeBankingTexts::bookingList;
using ::testing::ElementsAre;

constexpr const char* kHeader = "Buchungstag;Empfaenger;Verwendungszweck;Betrag\n";

/// What a store has already: marks of the preview, and imports that leave it out.
class KnownRecordsTest : public DmimportTest {
protected:
    KnownRecordsTest() {
        write("mai.csv", std::string(kHeader) + "13.05.2004;Sperl;Kaffee;-3,50\n"
                                                "13.05.2004;Sperl;Kaffee;-3,50\n"
                                                "15.05.2004;Vermieter;Miete Mai;-530,00\n");
        write("mehr.csv", std::string(kHeader) + "13.05.2004;Sperl;Kaffee;-3,50\n"
                                                 "13.05.2004;Sperl;Kaffee;-3,50\n"
                                                 "13.05.2004;SPERL;Kaf fee;-3,50\n"
                                                 "16.05.2004;Vermieter;Miete Mai;-530,00\n"
                                                 "17.05.2004;Bahn;Fahrkarte;-29,00\n");
    }

    Json importFile(std::vector<std::string> arguments, int status = 0) const {
        arguments.insert(arguments.begin(), "import");
        arguments.insert(arguments.end(), {"--store", kStore, "--json"});
        const Result result = run(arguments);
        EXPECT_EQ(result.status, status) << result.output << result.messages;
        return Json::parse(result.output).at("files").at(0);
    }

    /// "known new refused …", in the order of the records.
    static std::string marks(const Json& document) {
        std::string text;
        for (const Json& mark : document.at("marks"))
            text += (text.empty() ? "" : " ") + mark.at("mark").get<std::string>();
        return text;
    }

    /// One line per record of the store, sorted.
    std::vector<std::string> records() const {
        std::vector<std::string> all;
        for (const Json& row : show())
            all.push_back(row.at("Datum").dump() + row.at("Betrag").dump() + row.at("Empfaenger").dump() +
                          row.at("Verwendungszweck").dump() + row.at("Kategorie").dump());
        std::sort(all.begin(), all.end());
        return all;
    }
};

TEST_F(KnownRecordsTest, PreviewMarksEveryRow) {
    importFile({"mai.csv"});
    const Json document = preview({"mehr.csv", "--store", kStore});
    EXPECT_EQ(marks(document), "known known new doubtful new");
    EXPECT_EQ(document.at("newCount"), 2);
    EXPECT_EQ(document.at("knownCount"), 2);
    EXPECT_EQ(document.at("doubtfulCount"), 1);
    EXPECT_EQ(document.at("refusedCount"), 0);
    EXPECT_EQ(document.at("marks").at(3), Json::parse(R"({"record":4,"line":5,"mark":"doubtful","reason":"other-day",
        "text":"Nr. 3 (Sitzung 1, Zeile 4): gleicher Betrag und Empfänger, 1 Tag später",
        "stored":{"uniqueId":3,"sessionId":1,"line":4}})"));
    EXPECT_EQ(document.at("marks").at(2), Json::parse(R"({"record":3,"line":4,"mark":"new"})"));
}

TEST_F(KnownRecordsTest, PreviewShowsTheMarksInTheTable) {
    importFile({"mai.csv"});
    const Result result = run({"preview", "mehr.csv", "--store", kStore});
    EXPECT_THAT(result.output, Says("Bestand   "));
    EXPECT_THAT(result.output, Says("\nbekannt   13.05.2004"));
    EXPECT_THAT(result.output, Says("\nneu       13.05.2004"));
    EXPECT_THAT(result.output, Says("Nr. 3 (Sitzung 1, Zeile 4): gleicher Betrag und Empfänger, 1 Tag später"));
    EXPECT_THAT(result.output, Says("; 2 neu, 2 bekannt, 1 fraglich\n"));
}

TEST_F(KnownRecordsTest, PreviewMarksWhatAnImportWouldRefuse) {
    write("b.csv", std::string(kHeader) + "13.05.2004;A;Eins;1,00\n14.05.2004;B;Zwei;99999999999999,00\n"
                                          "15.05.2004;C;Drei;3,00\n");
    EXPECT_EQ(marks(preview({"b.csv", "--store", kStore})), "new refused new");
}

TEST_F(KnownRecordsTest, PreviewLeavesTheStoreAsItIs) {
    importFile({"mai.csv"});
    const std::string before = read(kStore);
    preview({"mehr.csv", "--store", kStore});
    EXPECT_EQ(read(kStore), before);
    EXPECT_EQ(marks(preview({"mehr.csv", "--store", "neu.db"})), "new new new new new");
    EXPECT_FALSE(exists("neu.db"));
}

TEST_F(KnownRecordsTest, PreviewWithoutAStoreHasNoMarks) {
    EXPECT_FALSE(preview({"mehr.csv"}).contains("marks"));
    EXPECT_EQ(run({"import", "mai.csv"}).status, 0) << "into the user's own store";
    EXPECT_EQ(marks(preview({"mehr.csv"})), "known known new doubtful new");
}

TEST_F(KnownRecordsTest, PreviewLimitsTheMarksToo) {
    importFile({"mai.csv"});
    const Json document = preview({"mehr.csv", "--store", kStore, "--limit", "1"});
    EXPECT_EQ(marks(document), "known");
    EXPECT_EQ(document.at("newCount"), 2) << "of the whole file";
}

TEST_F(KnownRecordsTest, NewOnlyImportsWhatTheStoreLacks) {
    importFile({"mai.csv"});
    const Json file = importFile({"mehr.csv", "--new-only"});
    EXPECT_EQ(file.at("importedCount"), 3);
    EXPECT_EQ(file.at("knownCount"), 2);
    EXPECT_EQ(file.at("refusedCount"), 0);
    EXPECT_EQ(file.at("sessionId"), 2);
    EXPECT_EQ(file.at("committed"), true);
    EXPECT_EQ(file.at("lines").at("records"), 5);
    EXPECT_EQ(messages(file), "known-record:2 known-record:3 doubtful-record:5");
    EXPECT_EQ(file.at("messages").at(0).at("text"),
              "Schon im Bestand und nicht noch einmal übernommen: Nr. 1 (Sitzung 1, Zeile 2); gleicher Tag, Betrag, "
              "Empfänger und Verwendungszweck.");
    EXPECT_EQ(file.at("messages").at(2).at("text"),
              "Übernommen, gleicht aber Nr. 3 (Sitzung 1, Zeile 4): gleicher Betrag und Empfänger, 1 Tag später. "
              "Prüfen Sie, ob es dieselbe Buchung ist.");
    const Json rows = show();
    ASSERT_EQ(rows.size(), 6U);
    EXPECT_EQ(rows.at(3).at("Zeile"), 4) << "the line of the one that stays";
    EXPECT_EQ(rows.at(5).at("Zeile"), 6);
    EXPECT_EQ(rows.at(5).at("ImportID"), 2);
    const Json session = show("sessions").at(1);
    EXPECT_EQ(session.at("Datensaetze"), 3);
    EXPECT_EQ(session.at("Bekannt"), 2);
    EXPECT_EQ(session.at("Summe"), -562.5);
    EXPECT_EQ(session.at("ImportFileName"), "mehr.csv");
}

TEST_F(KnownRecordsTest, NumbersGoOnBehindThoseThatWereLeftOut) {
    importFile({"mai.csv"});
    importFile({"mehr.csv", "--new-only"});
    std::vector<int> numbers;
    for (const Json& row : show())
        numbers.push_back(row.at("UniqueID"));
    EXPECT_THAT(numbers, ElementsAre(1, 2, 3, 6, 7, 8));
    EXPECT_EQ(show("counters").at(0).at("NextUniqueID"), 9);
}

TEST_F(KnownRecordsTest, NothingNewChangesNothing) {
    importFile({"mai.csv"});
    const std::string before = read(kStore);
    const Json file = importFile({"mai.csv", "--new-only"});
    EXPECT_EQ(file.at("importedCount"), 0);
    EXPECT_EQ(file.at("knownCount"), 3);
    EXPECT_EQ(file.at("sessionId"), 0);
    EXPECT_EQ(file.at("committed"), false);
    EXPECT_EQ(read(kStore), before);
    EXPECT_EQ(run({"import", "mai.csv", "--new-only", "--store", kStore}).output,
              "mai.csv: nichts Neues: 3 Datensätze sind schon im Bestand; der Bestand ist unverändert.\n");
}

TEST_F(KnownRecordsTest, TwinsOfOneFileAllStay) {
    const Json file = importFile({"mai.csv", "--new-only"});
    EXPECT_EQ(file.at("importedCount"), 3);
    EXPECT_EQ(file.at("knownCount"), 0);
    EXPECT_EQ(messages(file), "");
    EXPECT_EQ(show().size(), 3U);
}

TEST_F(KnownRecordsTest, NewOnlyKeepsTheLinesOfRefusedRecordsApart) {
    importFile({"mai.csv"});
    write("b.csv", std::string(kHeader) + "13.05.2004;Sperl;Kaffee;-3,50\n14.05.2004;B;Zwei;99999999999999,00\n"
                                          "15.05.2004;C;Drei;3,00\n");
    const Json file = importFile({"b.csv", "--new-only"}, 1);
    EXPECT_EQ(messages(file), "known-record:2 bad-amount:3");
    EXPECT_EQ(file.at("importedCount"), 1);
    EXPECT_EQ(file.at("refusedCount"), 1);
    EXPECT_EQ(show().at(3).at("Zeile"), 4);
}

TEST_F(KnownRecordsTest, UndoneRecordsAreNewAgain) {
    importFile({"mai.csv"});
    run({"undo", "1", "--store", kStore});
    EXPECT_EQ(importFile({"mai.csv", "--new-only"}).at("importedCount"), 3);
}

TEST_F(KnownRecordsTest, UndatedRecordsAreToldByTheirCategory) {
    write("a.qif", "!Type:Cat\nNEssen\n^\nNReisen\nB10.00\n^\n!Type:Bank\nD13.5.2004\nT1.00\nPA\n^\n");
    write("b.qif", "!Type:Cat\nNReisen\nB10.00\n^\nNSport\nB5.00\n^\n!Type:Bank\nD13.5.2004\nT1.00\nPA\n^\nD13.5."
                   "2004\nT2.00\nPA\n^\n");
    importFile({"a.qif"});
    const Json file = importFile({"b.qif", "--new-only"});
    EXPECT_EQ(file.at("records"), Json::parse(R"({"found":4,"imported":2,"refused":0,"known":2})"));
    EXPECT_EQ(show().size(), 4U);
}

TEST_F(KnownRecordsTest, AFullStoreStillTellsWhatItHas) {
    std::string many = kHeader;
    for (int i = 0; i < 65535; ++i)
        many += "13.05.2004;Empf" + std::to_string(i) + ";Zweck;-1,00\n";
    write("viele.csv", many);
    EXPECT_EQ(importFile({"viele.csv", "--quiet"}).at("importedCount"), 65535);
    write("rest.csv", std::string(kHeader) + "13.05.2004;Empf7;Zweck;-1,00\n13.05.2004;Neu;Neu;-2,00\n");
    const Json file = importFile({"rest.csv", "--new-only"}, 1);
    EXPECT_EQ(messages(file), "known-record:2 table-full:3");
    EXPECT_EQ(file.at("importedCount"), 0);
    EXPECT_EQ(file.at("refusedCount"), 1);
    EXPECT_EQ(importFile({"viele.csv", "--new-only"}).at("knownCount"), 65535);
}

/// Three pieces of a file, each with a part of the next.
TEST_F(KnownRecordsTest, OverlapsInAnyOrderEndInTheFilesRecords) {
    std::mt19937 random(7);
    const auto below = [&random](unsigned limit) { return static_cast<unsigned>(random() % limit); };
    std::vector<std::string> lines;
    for (unsigned day = 1; day <= 28; ++day) {
        for (unsigned n = below(4); n > 0; --n) {
            const std::string line = (day < 10 ? "0" : "") + std::to_string(day) + ".02.2005;Shop" +
                                     std::to_string(below(3)) + ";Karte;-" + std::to_string(1 + below(3)) + ",50\n";
            lines.push_back(line);
            if (below(3) == 0)
                lines.push_back(line); // a twin
        }
    }
    const auto piece = [&lines](double from, double to) {
        std::string text = kHeader;
        const auto count = static_cast<double>(lines.size());
        for (auto i = static_cast<std::size_t>(from * count); i < static_cast<std::size_t>(to * count); ++i)
            text += lines[i];
        return text;
    };
    write("ganz.csv", piece(0, 1));
    importFile({"ganz.csv"});
    const std::vector<std::string> whole = records();
    ASSERT_EQ(whole.size(), lines.size());

    write("1.csv", piece(0, 0.5));
    write("2.csv", piece(0.25, 0.8));
    write("3.csv", piece(0.55, 1));
    std::array<const char*, 3> order = {"1.csv", "2.csv", "3.csv"};
    do {
        std::remove(path(kStore).c_str());
        for (const char* name : order)
            EXPECT_EQ(run({"import", name, "--new-only", "--store", kStore, "--quiet"}).status, 0);
        EXPECT_EQ(records(), whole) << order[0] << " " << order[1] << " " << order[2];
    } while (std::next_permutation(order.begin(), order.end(), [](const char* a, const char* b) { return *a < *b; }));
}

/// The same for the home-banking exchange.
class KnownBookingsTest : public KnownRecordsTest {
protected:
    KnownBookingsTest() {
        write("konto.xml", accountList(account("100", "0815", "Giro")));
        run({"accounts", "konto.xml", "--store", kStore});
        write("a.xml", bookingList(booking("B-1", "01.02.2004", "-3,50", "<empfaenger>Sperl</empfaenger>") +
                                   booking("B-2", "01.02.2004", "-3,50", "<empfaenger>Sperl</empfaenger>") +
                                   booking("B-3", "05.02.2004", "12,00", "<empfaenger>Bahn</empfaenger>")));
    }

    Json bookings(std::vector<std::string> arguments, int status = 0) const {
        arguments.insert(arguments.begin(), "bookings");
        arguments.insert(arguments.end(), {"--store", kStore, "--json"});
        const Result result = run(arguments);
        EXPECT_EQ(result.status, status) << result.output << result.messages;
        return Json::parse(result.output).at("files").at(0);
    }

    std::string ids() const {
        std::string text;
        for (const Json& row : show("bookings"))
            text += row.at("BuchungsID").get<std::string>() + " ";
        return text;
    }
};

TEST_F(KnownBookingsTest, AListIsNotImportedTwiceByMistake) {
    bookings({"a.xml"});
    const std::string before = read(kStore);
    const Json file = bookings({"a.xml"}, 1);
    EXPECT_EQ(messages(file), "imported-before:-");
    EXPECT_THAT(file.at("messages").at(0).at("text").get<std::string>(),
                Says("Eine Buchungsliste mit genau diesem Inhalt ist schon importiert, am "));
    EXPECT_EQ(file.at("committed"), false);
    EXPECT_EQ(read(kStore), before);
    bookings({"a.xml", "--again"});
    EXPECT_EQ(ids(), "B-1 B-2 B-3 B-1 B-2 B-3 ");
    EXPECT_EQ(Sql(path(kStore))
                  .rows("SELECT ImportFileName, Datensaetze, Bekannt, length(Pruefsumme), "
                        "ImportDatum = date('now') FROM Buchungslisten"),
              (std::vector<std::string>{"a.xml|3|0|64|1", "a.xml|3|0|64|1"}));
}

TEST_F(KnownBookingsTest, AnAccountListMayComeAgain) {
    EXPECT_EQ(run({"accounts", "konto.xml", "--store", kStore}).status, 0);
    EXPECT_EQ(run({"accounts", "konto.xml", "--store", kStore}).status, 0);
}

TEST_F(KnownBookingsTest, NewOnlyGoesByTheBanksNumber) {
    bookings({"a.xml"});
    write("b.xml", bookingList(booking("B-2", "01.02.2004", "-3,50", "<empfaenger>Cafe Sperl</empfaenger>") +
                               booking("B-3", "05.02.2004", "12,00", "<empfaenger>Bahn</empfaenger>") +
                               booking("B-4", "05.02.2004", "12,00", "<empfaenger>Bahn</empfaenger>") +
                               booking("B-1", "07.02.2004", "99,00")));
    const Json file = bookings({"b.xml", "--new-only"});
    EXPECT_EQ(messages(file), "known-record:4 known-record:5 doubtful-record:7");
    EXPECT_EQ(file.at("messages").at(0).at("text"),
              "Schon im Bestand und nicht noch einmal übernommen: Nr. 2 (Buchung „B-2“); gleiche Nummer der Bank, "
              "gleicher Tag und Betrag.");
    EXPECT_EQ(file.at("importedCount"), 2);
    EXPECT_EQ(file.at("knownCount"), 2);
    EXPECT_EQ(file.at("records"), Json::parse(R"({"found":4,"imported":2,"refused":0,"known":2})"));
    EXPECT_EQ(ids(), "B-1 B-2 B-3 B-4 B-1 ");
    EXPECT_EQ(show("accounts").at(0).at("NeueBuchungen"), 2);
    EXPECT_EQ(Sql(path(kStore)).value("SELECT Bekannt FROM Buchungslisten WHERE ImportFileName = 'b.xml'"), "2");
}

TEST_F(KnownBookingsTest, NothingNewChangesNothing) {
    bookings({"a.xml"});
    const std::string before = read(kStore);
    const Json file = bookings({"a.xml", "--new-only"});
    EXPECT_EQ(file.at("knownCount"), 3);
    EXPECT_EQ(file.at("committed"), false);
    EXPECT_EQ(read(kStore), before);
    EXPECT_EQ(run({"bookings", "a.xml", "--new-only", "--store", kStore}).output,
              "a.xml: nichts Neues: 3 Datensätze sind schon im Bestand; der Bestand ist unverändert.\n");
}

TEST_F(KnownBookingsTest, AccountsAreKeptApart) {
    write("konten.xml", accountList(account("100", "0815", "Giro") + account("100", "0816", "Sparen")));
    run({"accounts", "konten.xml", "--store", kStore});
    bookings({"a.xml"});
    write("b.xml", bookingList(booking("B-1", "01.02.2004", "-3,50", "<empfaenger>Sperl</empfaenger>"),
                               "blz=\"100\" ktonr=\"0816\""));
    EXPECT_EQ(bookings({"b.xml", "--new-only"}).at("importedCount"), 1);
    EXPECT_EQ(bookings({"b.xml", "--new-only"}).at("knownCount"), 1);
}

TEST_F(KnownBookingsTest, BookingsWithoutANumberGoByTheirContent) {
    const std::string plain = booking("", "01.02.2004", "-3,50", "<empfaenger>Sperl</empfaenger>");
    write("b.xml", bookingList(plain + plain));
    write("c.xml", bookingList(plain + plain + plain));
    bookings({"b.xml"});
    EXPECT_EQ(bookings({"c.xml", "--new-only"}).at("importedCount"), 1);
}

} // namespace
