// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <sys/resource.h>
#include <sys/stat.h>

#include "cli/FileChecksum.h"
#include "cli/HomeBankingFixture.h"

namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* kStatement = "Buchung;Empfänger;Zweck;Kategorie;Betrag;Saldo\n"
                                   "01.02.2004;Grün;Miete;Wohnen;-650,00;350,00\n"
                                   "\n"
                                   "05.02.2004;Lohn;;Gehalt;2.500,10;2.850,10\n";

class ReportTest : public HomeBankingCommandTest {
protected:
    /// `COMMAND FILES --report REPORT --store bestand.db`; the page.
    std::string page(std::vector<std::string> arguments, int status, const std::string& report = "r.html") const {
        arguments.insert(arguments.end(), {"--report", report, "--store", kStore});
        const Result result = run(arguments);
        EXPECT_EQ(result.status, status) << result.output << result.messages;
        return read(report);
    }

    /// Names of everything in the folder, hidden or not.
    std::vector<std::string> names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path(".")))
            names.push_back(entry.path().filename().string());
        return names;
    }

    static std::string row(const std::string& line, const std::string& reason, const std::string& text) {
        return "<tr><td class=n>" + line + "</td><td>" + reason + "</td><td class=r>" + text + "</td></tr>";
    }
};

TEST_F(ReportTest, TellsWhatTheFileIsAndWhatBecameOfIt) {
    write("a.csv", kStatement);
    const std::string html = page({"import", "a.csv"}, 0);
    EXPECT_THAT(html, HasSubstr("2 Datensätze wurden übernommen. Die Salden in der Datei bestätigen"));
    EXPECT_THAT(html, HasSubstr("<dt>Bestand</dt><dd>bestand.db</dd>"));
    EXPECT_THAT(html, HasSubstr("<dt>Importsitzung</dt><dd>1</dd>"));
    EXPECT_THAT(html,
                HasSubstr("<dt>Prüfsumme (SHA-256)</dt><dd class=r>" + FileChecksum::of(path("a.csv")) + "</dd>"));
    EXPECT_THAT(html, HasSubstr("<dt>Größe</dt><dd>" + std::to_string(std::string(kStatement).size()) + " Bytes</dd>"));
    const std::string day = show("sessions").at(0).at("ImportDatum");
    EXPECT_THAT(html, HasSubstr("<dd>" + day.substr(8) + "." + day.substr(5, 2) + "." + day.substr(0, 4) + "</dd>"));
    EXPECT_THAT(html, HasSubstr("Der laufende Saldo bestätigt")) << "the reasons that inspect shows";
    EXPECT_THAT(html, HasSubstr("Februar 2004</th><td class=n>2</td><td class=n>2.500,10</td><td class=n>-650,00</td>"
                                "<td class=n>1.850,10</td>"));
    EXPECT_THAT(html, HasSubstr("Gehalt</th><td class=n>1</td>"));
    EXPECT_THAT(html, HasSubstr("Saldo laut Datei"));
    EXPECT_THAT(html, HasSubstr("Von 350,00 am 01.02.2004 bis 2.850,10 am 05.02.2004"));
    EXPECT_THAT(html, HasSubstr("<td class=n>4</td><td class=n>05.02.2004</td><td class=n>2.500,10</td><td>Lohn</td>"));
}

TEST_F(ReportTest, EveryLineThatBecameNoRecordIsNamed) {
    write("a.csv", "Konto;4711\n"
                   "Buchung;Name;Betrag\n"
                   "01.02.2004;\"A\n"
                   "B\";-1,00\n"
                   "\n"
                   "31.02.2004;<C>;-2,00\n"
                   "03.02.2004;D;keiner\n"
                   "04.02.2004;E;-4,00\n"
                   "Summe;;-5,00\n");
    const std::string html = page({"import", "a.csv"}, 1);
    EXPECT_THAT(html, HasSubstr("2 Datensätze wurden übernommen, 2 abgelehnt."));
    EXPECT_THAT(html, HasSubstr(row("1", "Vorspann", "Konto;4711")));
    EXPECT_THAT(html, HasSubstr(row("2", "Kopfzeile", "Buchung;Name;Betrag")));
    EXPECT_THAT(html, HasSubstr(row("4", "Fortsetzung des Datensatzes darüber", "B&quot;;-1,00")));
    EXPECT_THAT(html, HasSubstr(row("5", "leer", "")));
    EXPECT_THAT(html, HasSubstr("<small>bad-date</small></td><td class=r>31.02.2004;&lt;C&gt;;-2,00</td>"));
    EXPECT_THAT(html, HasSubstr("<small>bad-amount</small></td><td class=r>03.02.2004;D;keiner</td>"));
    EXPECT_THAT(html, HasSubstr(row("9", "Nachspann", "Summe;;-5,00")));
    EXPECT_THAT(html, Not(HasSubstr(row("8", "", "")))) << "a line that became a record";
}

TEST_F(ReportTest, LinesOfEveryEncodingAreShown) {
    const std::string text = "Buchung;Name;Betrag\n31.02.2004;M\xFCller \x80;-2,00\n01.02.2004;A;-1,00\n";
    write("a.csv", text);
    EXPECT_THAT(page({"import", "a.csv"}, 1), HasSubstr("31.02.2004;Müller €;-2,00"));

    std::string wide = "\xFF\xFE";
    for (const char byte : std::string("Buchung;Name;Betrag\n31.02.2004;M\xFCller;-2,00\n01.02.2004;A;-1,00\n"))
        wide += {byte, '\0'};
    write("b.csv", wide);
    EXPECT_THAT(page({"import", "b.csv"}, 1), HasSubstr("31.02.2004;Müller;-2,00"));

    write("c.csv", "Buchung;Name;Betrag\r31.02.2004;B;-2,00\r01.02.2004;A;-1,00\r");
    EXPECT_THAT(page({"import", "c.csv"}, 1), HasSubstr("<td class=r>31.02.2004;B;-2,00</td>"));

    write("d.csv", "\xEF\xBB\xBF"
                   "Buchung;Name;Betrag\n01.02.2004;A;-1,00\n");
    EXPECT_THAT(page({"import", "d.csv"}, 0), HasSubstr("<td class=r>Buchung;Name;Betrag</td>")) << "no mark";
}

TEST_F(ReportTest, WhatStandsInTheFileIsNothingButText) {
    const std::string hostile = "<script>alert('1')</script> & \"q\" a|b `c` \xE2\x80\xAEx \x1B[31m";
    write("a.csv", "Buchung;Name;Betrag\n01.02.2004;" + hostile + ";-1,00\n31.02.2004;" + hostile + ";2,00\n");
    const std::string html = page({"import", "a.csv"}, 1);
    EXPECT_THAT(html, HasSubstr("&lt;script&gt;alert(&#39;1&#39;)&lt;/script&gt; &amp; "));
    EXPECT_THAT(html, HasSubstr("\\u202ex ␛[31m;2,00</td>"));
    const std::string markdown = page({"import", "a.csv", "--again"}, 1, "r.md");
    EXPECT_THAT(markdown,
                HasSubstr("&lt;script&gt;alert('1')&lt;/script&gt; &amp; \"q\" a\\|b \\`c\\` \\\\u202ex ␛\\[31m"));
    for (const std::string& text : {html, markdown}) {
        EXPECT_THAT(text, Not(HasSubstr("<script")));
        EXPECT_THAT(text, Not(HasSubstr("\xE2\x80\xAE")));
        EXPECT_THAT(text, Not(HasSubstr("\x1B")));
    }
}

TEST_F(ReportTest, FileNameIsNothingButTextEither) {
    const std::string name = "a<b>&\x1B'\xFF.csv";
    write(name, kStatement);
    EXPECT_THAT(page({"import", name}, 0),
                AllOf(HasSubstr("<h2>a&lt;b&gt;&amp;␛&#39;\\xff.csv</h2>"), Not(HasSubstr("\x1B"))));
}

TEST_F(ReportTest, RefusedFileHasItsPageToo) {
    write("a.csv", "Einkauf;Menge\nMilch;1\n");
    const std::string html = page({"import", "a.csv"}, 1);
    EXPECT_THAT(html, HasSubstr("Aus dieser Datei wurde nichts übernommen."));
    EXPECT_THAT(html, HasSubstr("[no-bookings]"));
    EXPECT_THAT(html, HasSubstr("<dt>Importsitzung</dt><dd>keine</dd>"));
    EXPECT_FALSE(exists(kStore));

    EXPECT_THAT(page({"import", "fehlt.csv"}, 1), HasSubstr("[file-missing]"));
    write("b.csv", "Buchung;Name;Betrag\n01.02.2004;A;x\n02.02.2004;B;y\n03.02.2004;C;1,00\n");
    page({"import", "b.csv"}, 1);
    EXPECT_THAT(page({"import", "b.csv"}, 1), HasSubstr("[imported-before]"));
}

TEST_F(ReportTest, ImportThatIsTakenBackHasNoSums) {
    write("a.qif", "!Type:Bank\nD01.02.2004\nT-7,00\n^\nD02.02.2004\nT99999999999999\n^\nD03.02.2004\nT1,00\n^\n");
    const std::string html = page({"import", "a.qif", "--verbatim"}, 1);
    EXPECT_THAT(html, HasSubstr("Aus dieser Datei wurde nichts übernommen."));
    EXPECT_THAT(html, HasSubstr("[record-refused]"));
    EXPECT_THAT(html, HasSubstr("gelesen und wieder zurückgenommen</th><td class=n>1</td>"));
    EXPECT_THAT(html, HasSubstr("nicht mehr gelesen</th><td class=n>1</td>"));
    EXPECT_THAT(html, Not(HasSubstr("Summen nach")));
    EXPECT_THAT(html, HasSubstr("Byte für Byte"));

    const std::string partial = page({"import", "a.qif", "--verbatim", "--keep-partial"}, 1);
    EXPECT_THAT(partial, HasSubstr("1 Datensatz wurde übernommen, 1 abgelehnt. Der Import endete, bevor"));
    EXPECT_THAT(partial, HasSubstr("Februar 2004</th><td class=n>1</td>"));
}

TEST_F(ReportTest, LineThatTheLibraryCannotReadIsTheReason) {
    write("a.csv", "Buchung;Name;Betrag\n01.02.2004;A;-1,00\n02.02.2004;" + std::string(5000, 'x') + ";-2,00\n");
    const std::string html = page(
        {"import", "a.csv", "--verbatim", "--header", "--delimiter", ";", "--columns", "0=Datum,1=Empfaenger,2=Betrag"},
        1);
    EXPECT_THAT(html, HasSubstr("<li>Zeile 3: Die Zeile ist 5017 Byte lang"));
    EXPECT_THAT(html,
                HasSubstr("--columns &quot;0=Datum,1=Empfaenger,2=Betrag&quot; --delimiter &quot;;&quot; --header "
                          "--verbatim"));
    EXPECT_THAT(html, HasSubstr("Datum aus Spalte 0, Empfaenger aus Spalte 1"));
}

TEST_F(ReportTest, KnownRecordsAreNamedWithTheOnesThatTheyAre) {
    write("a.csv", kStatement);
    write("b.csv", "Buchung;Empfänger;Zweck;Kategorie;Betrag\n05.02.2004;Lohn;;Gehalt;2.500,10\n"
                   "06.02.2004;Bahn;;;-20,00\n");
    page({"import", "a.csv"}, 0);
    const std::string html = page({"import", "b.csv", "--new-only"}, 0);
    EXPECT_THAT(html, HasSubstr("1 Datensatz wurde übernommen, 1 nicht noch einmal übernommen."));
    EXPECT_THAT(html, HasSubstr("schon im Bestand</th><td class=n>1</td>"));
    EXPECT_THAT(html, HasSubstr("in der Datei</th><td class=n>2</td>"));
    EXPECT_THAT(html, HasSubstr("Nr. 2 (Sitzung 1, Zeile 4)"));
    EXPECT_THAT(html, HasSubstr("<td class=r>05.02.2004;Lohn;;Gehalt;2.500,10</td>"));
    EXPECT_THAT(html, HasSubstr("Gesamt</th><td class=n>1</td><td class=n>0,00</td><td class=n>-20,00</td>"));

    const std::string nothing = page({"import", "b.csv", "--new-only"}, 0);
    EXPECT_THAT(nothing, HasSubstr("<div class=\"notice good\">"));
    EXPECT_THAT(nothing, HasSubstr("Nichts wurde übernommen, weil nichts neu ist: 2 Datensätze"));
    EXPECT_THAT(nothing, HasSubstr("<td class=r>06.02.2004;Bahn;;;-20,00</td>"));
}

TEST_F(ReportTest, KnownBookingsAreNamedToo) {
    using HomeBankingTexts::booking;
    makeAccount();
    const std::string first = booking("B-1", "01.02.2004", "-650,00");
    write("a.xml", HomeBankingTexts::bookingList(first));
    write("b.xml", HomeBankingTexts::bookingList(first + booking("B-2", "02.02.2004", "-5,00")));
    page({"bookings", "a.xml"}, 0);
    const std::string html = page({"bookings", "b.xml", "--new-only"}, 0);
    EXPECT_THAT(html, HasSubstr("1 Datensatz wurde übernommen, 1 nicht noch einmal übernommen."));
    EXPECT_THAT(html, HasSubstr("Buchung „B-1“"));
    EXPECT_THAT(html, Not(HasSubstr("id B-2"))) << "it was read";
}

TEST_F(ReportTest, SeveralFilesShareAPage) {
    write("a.csv", kStatement);
    write("b.csv", "Einkauf;Menge\nMilch;1\n");
    write("c.qif", "!Type:Bank\nD01.02.2004\nT-7,00\nPTanken\n^\nD31.02.2004\nT1,00\nPx\n^\n");
    const std::string html = page({"import", "a.csv", "b.csv", "c.qif"}, 1);
    EXPECT_THAT(html, HasSubstr("<title>Importbericht: 3 Dateien</title>"));
    EXPECT_THAT(html, HasSubstr("<th scope=row>a.csv</th><td>übernommen</td><td class=n>1</td>"));
    EXPECT_THAT(html, HasSubstr("<th scope=row>b.csv</th><td>nichts übernommen</td><td class=n>–</td>"));
    EXPECT_THAT(html,
                HasSubstr("<th scope=row>c.qif</th><td>zum Teil übernommen</td><td class=n>2</td><td class=n>1</td>"
                          "<td class=n>1</td><td class=n>-7,00</td>"));
    EXPECT_THAT(html, HasSubstr("<td class=r>D31.02.2004␊T1,00␊Px␊^</td>")) << "the whole of a record of several lines";
}

TEST_F(ReportTest, UnusableStoreHasItsPageToo) {
    write(kStore, "no store at all, but long enough to look at it as one");
    write("a.csv", kStatement);
    write("b.csv", kStatement);
    const std::string html = page({"import", "a.csv", "b.csv"}, 3);
    EXPECT_THAT(html, HasSubstr("[store-"));
    EXPECT_THAT(html, HasSubstr("<th scope=row>b.csv</th><td>nicht bearbeitet</td>"));
}

TEST_F(ReportTest, BookingListsHaveAPage) {
    using HomeBankingTexts::booking;
    makeAccount();
    write("b.xml",
          HomeBankingTexts::bookingList(booking("B-1", "01.02.2004", "-650,00", "<kategorie>Wohnen</kategorie>") +
                                        booking("B-2", "31.02.2004", "1") + booking("B-3", "01.03.2004", "2")));
    const std::string refused = page({"bookings", "b.xml"}, 1);
    EXPECT_THAT(refused, HasSubstr("Aus dieser Datei wurde nichts übernommen."));
    EXPECT_THAT(refused, HasSubstr("[booking-refused]"));
    const std::string html = page({"bookings", "b.xml", "--keep-partial"}, 1);
    EXPECT_THAT(html, HasSubstr("<dt>Konto</dt><dd>Giro (0815, BLZ 100)</dd>"));
    EXPECT_THAT(html, HasSubstr("übernommen</th><td class=n>1</td></tr>"));
    EXPECT_THAT(html, HasSubstr("Wohnen</th><td class=n>1</td>"));
    EXPECT_THAT(html, HasSubstr("<td class=r>id B-3</td>")) << "what the list was not read for";
    EXPECT_EQ(run({"accounts", "b.xml", "--report", "r.html"}).status, 2) << "an account list brings no records";
}

TEST_F(ReportTest, PlaceIsCheckedBeforeAnythingIsImported) {
    write("a.csv", kStatement);
    write("a.md", kStatement);
    std::filesystem::create_directory(path("folder.html"));
    std::filesystem::create_directory(path("closed"));
    std::filesystem::permissions(path("closed"), std::filesystem::perms::owner_read);
    struct Case {
        const char* input;
        const char* report;
        const char* store;
        const char* says;
    };
    for (const Case& c : {Case{"a.csv", "r.pdf", kStore, "--report bericht.html"},
                          {"a.csv", "r", kStore, "--report bericht.html"},
                          {"a.csv", "fehlt/r.html", kStore, "es gibt sie nicht"},
                          {"a.csv", "folder.html", kStore, "keine Datei"},
                          {"a.csv", "closed/r.html", kStore, "die Rechte erlauben es nicht"},
                          {"a.md", "a.md", kStore, "ersetzen"},
                          {"a.md", "./a.md", kStore, "ersetzen"},
                          {"a.csv", "s.html", "s.html", "ersetzen"},
                          {"a.csv", "--json", kStore, "braucht einen Wert"}}) {
        ChildProgram child = program({"import", c.input, "--report", c.report, "--store", c.store});
        child.before = obeyPermissions;
        const Result result = child.run();
        EXPECT_EQ(result.status, 2) << c.report;
        EXPECT_THAT(result.messages, HasSubstr(c.says));
        EXPECT_FALSE(exists(c.store)) << "nothing was imported";
    }
    EXPECT_EQ(read("a.md"), kStatement);
    std::filesystem::permissions(path("closed"), std::filesystem::perms::owner_all);
}

TEST_F(ReportTest, PageReplacesAnOlderOneAndIsForTheUserAlone) {
    write("a.csv", kStatement);
    write("R.HTM", "old");
    page({"import", "a.csv"}, 0, "R.HTM");
    EXPECT_THAT(read("R.HTM"), HasSubstr("<!DOCTYPE html>"));
    struct stat status {};
    ASSERT_EQ(::stat(path("R.HTM").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
    for (const std::string& name : names())
        EXPECT_THAT(name, Not(HasSubstr("R.HTM."))) << "no draft is left";
}

TEST_F(ReportTest, PageThatCannotBeWrittenDoesNotTouchTheImport) {
    std::string table = "Buchung;Name;Betrag\n";
    for (int i = 0; i < 300; ++i)
        table += "31.02.2004;" + std::string(500, 'x') + ";1,00\n";
    write("a.csv", table + "01.02.2004;A;-1,00\n");
    write("r.html", "old");
    // Files may grow to the size of a store that holds little, not to that of the page.
    ChildProgram child = program({"import", "a.csv", "--report", "r.html", "--store", kStore, "--json"});
    child.before = [] {
        const rlimit size{150000, 150000};
        ::setrlimit(RLIMIT_FSIZE, &size);
    };
    const Result result = child.run();
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.messages, HasSubstr("[report-failed]"));
    EXPECT_THAT(result.messages, HasSubstr("Der Import selbst ist davon nicht berührt"));
    const Json document = Json::parse(result.output);
    EXPECT_EQ(document.at("report"), Json::parse(R"({"file":"r.html","written":false})"));
    EXPECT_EQ(document.at("files").at(0).at("committed"), true);
    EXPECT_EQ(show().size(), 1U);
    EXPECT_EQ(read("r.html"), "old");
    for (const std::string& name : names())
        EXPECT_THAT(name, Not(HasSubstr("r.html."))) << "no draft is left";
}

TEST_F(ReportTest, JsonNamesThePage) {
    write("a.csv", kStatement);
    const Result result = run({"import", "a.csv", "--report", "r.md", "--store", kStore, "--json"});
    EXPECT_EQ(Json::parse(result.output).at("report"), Json::parse(R"({"file":"r.md","written":true})"));
    EXPECT_THAT(read("r.md"), HasSubstr("# Importbericht\n"));
    EXPECT_THAT(read("r.md"), HasSubstr("```text\n"));
    const Result without = run({"import", "a.csv", "--again", "--store", kStore, "--json"});
    EXPECT_FALSE(Json::parse(without.output).contains("report"));
}

TEST_F(ReportTest, StandardInputHasAPage) {
    ChildProgram child = program({"import", "-", "--report", "r.html", "--store", kStore});
    child.input = kStatement;
    EXPECT_EQ(child.run().status, 0);
    EXPECT_THAT(read("r.html"), HasSubstr("<h2>Standardeingabe</h2>"));
}

} // namespace
