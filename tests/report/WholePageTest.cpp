// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <fstream>
#include <iterator>

#include <gmock/gmock.h>

#include "report/HtmlPage.h"
#include "report/MarkdownPage.h"
#include "report/PageText.h"

namespace {

using namespace std::chrono_literals;
using ::testing::HasSubstr;
using ::testing::Not;

ReportedRecord record(std::size_t line, std::chrono::year_month_day day, std::int64_t cents, std::string payee,
                      std::string purpose = {}, std::string category = {}) {
    return {line, day, cents, false, std::move(payee), std::move(purpose), std::move(category)};
}

/// What a file may hold against the page.
constexpr const char* kHostile = "<script>alert(\"x\")</script> & `a`|b *c* \\u202e␛[31m";

FileChapter goodFile() {
    FileChapter file;
    file.name = "umsaetze.csv";
    file.taken = true;
    file.balanceFits = true;
    file.session = 3;
    file.day = 2024y / 4 / 2;
    file.origin = {{"Format", "Liste"}, {"Größe", "612 Bytes"}, {"Prüfsumme (SHA-256)", "00ff00ff", true}};
    file.reading = {{"Kodierung", "utf-8"}, {"Trennzeichen", ";"}};
    file.reasons = {"Der laufende Saldo bestätigt alle 2 Schritte. (Spalte 5)"};
    file.lines = {5, 3, 1, 0, 0, 1, 0};
    file.records.found = file.records.imported = 3;
    file.digest.add(record(2, 2024y / 3 / 27, -78000, "Hausverwaltung Grün", "Miete April", "Wohnen: Miete"));
    file.digest.add(record(3, 2024y / 3 / 28, 250010, "Lohn", "", "Gehalt"));
    file.digest.add(record(5, 2024y / 4 / 1, -1250, "", kHostile));
    file.balances = {{2024y / 3 / 27, 22000}, {2024y / 3 / 28, 272010}, {2024y / 4 / 1, 270760}};
    file.leftOut = {{1, 1, "Kopfzeile", "", "Tag;Betrag"}, {4, 4, "leer", "", ""}};
    file.findings = {
        {Finding::Kind::note, std::nullopt, "profile-used", "Die Datei wird nach einem Profil gelesen.", ""}};
    return file;
}

FileChapter fileWithGaps() {
    FileChapter file;
    file.name = "a <b>.csv";
    file.taken = true;
    file.session = 4;
    file.day = 2024y / 4 / 2;
    file.lines = {15, 14, 1, 0, 0, 0, 0};
    file.records = {14, 12, 2, 0, 0, 0, 1};
    for (std::size_t i = 0; i < 11; ++i)
        file.digest.add(record(2 + i, 2024y / 1 / 15, 100, "Zinsen"));
    ReportedRecord undated;
    undated.line = 15;
    undated.cents = -33;
    undated.isRounded = true;
    undated.payee = "ohne Tag";
    file.digest.add(undated);
    file.leftOut = {{1, 1, "Kopfzeile", "", "Tag;Betrag"},
                    {13, 13, "„31.02.2024“ ist kein Datum", "bad-date", std::string("31.02.2024;") + kHostile},
                    {14, 14, "Der Betrag ist nicht lesbar.", "bad-amount", "01.03.2024;abc"}};
    file.advice = {"Berichtigen Sie die Zeile."};
    file.findings = {
        {Finding::Kind::warning, 15, "no-date", "Der Datensatz wurde ohne Datum übernommen.", "Ergänzen."}};
    return file;
}

FileChapter refusedFile() {
    FileChapter file;
    file.name = "leer.csv";
    file.origin = {{"Format", "Liste"}};
    file.lines = {2, 0, 0, 0, 0, 0, 2};
    file.findings = {{Finding::Kind::error, std::nullopt, "no-bookings", "In der Datei steht keine Buchung.",
                      "Nennen Sie die Spalten mit --columns."}};
    return file;
}

ImportPage pageOf(std::vector<FileChapter> files) {
    ImportPage page;
    page.store = "bestand.db";
    page.program = "dmimport 1.2.3";
    page.files = std::move(files);
    return page;
}

template <class Page>
std::string textOf(const ImportPage& page) {
    Page out;
    PageText::write(page, out);
    return out.text();
}

std::string read(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A page as it is kept in a file, to be looked at in a browser; where the
/// environment says REPORT_GOLDEN=write, the file is what the page is now.
void expectPage(const std::string& name, const std::string& page) {
    const std::string path = std::string(REPORT_GOLDEN) + "/" + name;
    const char* wish = std::getenv("REPORT_GOLDEN");
    if (wish != nullptr && std::string(wish) == "write")
        std::ofstream(path, std::ios::binary) << page;
    EXPECT_EQ(page, read(path)) << name;
}

TEST(WholePage, OneFile) {
    const ImportPage page = pageOf({goodFile()});
    expectPage("one-file.html", textOf<HtmlPage>(page));
    expectPage("one-file.md", textOf<MarkdownPage>(page));
}

TEST(WholePage, SeveralFilesOneOfThemRefused) {
    ImportPage page = pageOf({goodFile(), fileWithGaps(), refusedFile()});
    page.options = "--info \"Erstes Quartal\"";
    page.unread = {"nie gesehen.csv"};
    expectPage("several-files.html", textOf<HtmlPage>(page));
    expectPage("several-files.md", textOf<MarkdownPage>(page));
}

TEST(WholePage, NothingInItIsLoadedOrRun) {
    const std::string html = textOf<HtmlPage>(pageOf({goodFile(), fileWithGaps(), refusedFile()}));
    for (const char* what : {"<script", "<link", "<img", "src=", "url(", "@import", "http:", "https:", "javascript:"})
        EXPECT_THAT(html, Not(HasSubstr(what)));
    EXPECT_THAT(html, HasSubstr("&lt;script&gt;alert(&quot;x&quot;)&lt;/script&gt; &amp; `a`|b *c* \\u202e␛[31m"));
}

TEST(WholePage, RefusedFileSaysSoAndWhy) {
    const std::string html = textOf<HtmlPage>(pageOf({refusedFile()}));
    EXPECT_THAT(html, HasSubstr("<div class=\"notice bad\">"));
    EXPECT_THAT(html, HasSubstr("Aus dieser Datei wurde nichts übernommen."));
    EXPECT_THAT(html,
                HasSubstr("In der Datei steht keine Buchung. Nennen Sie die Spalten mit --columns. [no-bookings]"));
    EXPECT_THAT(html, Not(HasSubstr("Summen nach"))) << "sums of nothing";
}

TEST(WholePage, FileWhoseRecordsWereAllRefusedNamesTheFirst) {
    FileChapter file;
    file.leftOut = {{7, 7, "Kein Datum.", "bad-date", "x"}, {9, 9, "Kein Betrag.", "bad-amount", "y"}};
    EXPECT_THAT(textOf<HtmlPage>(pageOf({file})), HasSubstr("Zeile 7: Kein Datum. [bad-date] Und 1 weitere Zeile"));
}

TEST(WholePage, FullTableMakesASmallPage) {
    FileChapter file = goodFile();
    for (int i = 0; i < 65532; ++i)
        file.digest.add(record(2, std::chrono::sys_days(2004y / 1 / 1) + std::chrono::days(i % 6000), i - 30000,
                               "Empfänger", "Zweck", "Kategorie " + std::to_string(i % 5000)));
    EXPECT_LT(textOf<HtmlPage>(pageOf({file})).size(), 64000U);
    EXPECT_LT(textOf<MarkdownPage>(pageOf({file})).size(), 32000U);
}

TEST(WholePage, EveryLineLeftOutIsThere) {
    FileChapter file = refusedFile();
    for (std::size_t line = 1; line <= 65535; ++line)
        file.leftOut.push_back({line, line, "Der Betrag ist nicht lesbar.", "bad-amount", "Zeile"});
    const std::string html = textOf<HtmlPage>(pageOf({file}));
    std::size_t rows = 0;
    for (std::size_t at = html.find("<td class=n>"); at != std::string::npos; at = html.find("<td class=n>", at + 1))
        ++rows;
    EXPECT_EQ(rows, 65535U + 2U) << "and the two numbers of the count of lines";
}

} // namespace
