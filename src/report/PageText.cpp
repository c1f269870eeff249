// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "report/PageText.h"

#include <algorithm>
#include <string>
#include <utility>

#include "report/ChapterText.h"
#include "report/GermanText.h"
#include "report/OutcomeText.h"

namespace {

using Kind = PageTable::Kind;

/// "a, b" without repetitions, in the order of the files.
template <typename TextOf>
std::string joined(const std::vector<FileChapter>& files, TextOf textOf) {
    std::vector<std::string> texts;
    for (const FileChapter& file : files) {
        std::string text = textOf(file);
        if (!text.empty() && std::find(texts.begin(), texts.end(), text) == texts.end())
            texts.push_back(std::move(text));
    }
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : ", ") + text;
    return all;
}

std::string sessionText(const FileChapter& file) { return file.session == 0 ? "" : std::to_string(file.session); }

void writeOrigin(const ImportPage& page, PageWriter& out) {
    const std::string days =
        joined(page.files, [](const FileChapter& file) { return file.day ? GermanText::date(*file.day) : ""; });
    const std::string sessions = joined(page.files, sessionText);
    std::vector<PageFact> facts = {{"Bestand", page.store}};
    facts.push_back({"Tag des Imports (UTC)", days.empty() ? "nicht vermerkt, weil nichts übernommen wurde" : days});
    facts.push_back({"Importsitzung", sessions.empty() ? "keine" : sessions});
    if (!page.options.empty())
        facts.push_back({"Optionen", page.options});
    facts.push_back({"Programm", page.program});
    out.facts(facts);
}

void writeOverview(const ImportPage& page, PageWriter& out) {
    PageTable table;
    table.caption = "Alle Dateien";
    table.firstIsName = true;
    table.columns = {{"Datei", Kind::text},        {"Ergebnis", Kind::text},    {"Sitzung", Kind::number},
                     {"Übernommen", Kind::number}, {"Abgelehnt", Kind::number}, {"Summe", Kind::number}};
    for (const FileChapter& file : page.files) {
        table.rows.push_back({{{file.name, {}},
                               {OutcomeText::word(file), {}},
                               {file.session == 0 ? "–" : sessionText(file), {}},
                               {GermanText::grouped(file.records.imported), {}},
                               {GermanText::grouped(file.records.refused), {}},
                               {file.digest.total().sum().text(), {}}}});
    }
    for (const std::string& name : page.unread)
        table.rows.push_back({{{name, {}}, {"nicht bearbeitet", {}}, {"–", {}}, {"0", {}}, {"0", {}}, {"0,00", {}}}});
    out.heading(2, "Überblick");
    out.table(table);
}

} // namespace

namespace PageText {

void write(const ImportPage& page, PageWriter& out) {
    const std::size_t count = page.files.size() + page.unread.size();
    out.begin(count == 1 && !page.files.empty() ? "Importbericht: " + page.files.front().name
                                                : "Importbericht: " + GermanText::counted(count, "Datei", "Dateien"));
    out.heading(1, "Importbericht");
    writeOrigin(page, out);
    if (count != 1)
        writeOverview(page, out);
    for (const FileChapter& file : page.files) {
        out.beginSection();
        ChapterText::write(file, out);
        out.endSection();
    }
    out.end();
}

} // namespace PageText
