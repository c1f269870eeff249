// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "report/ChapterText.h"

#include <initializer_list>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "report/GermanText.h"
#include "report/LinePlot.h"
#include "report/OutcomeText.h"
#include "report/SumTable.h"

namespace {

using Kind = PageTable::Kind;
using Row = PageTable::Row;

struct Count {
    const char* name;
    std::size_t number;
};

Row countRow(const Count& count, Row::Kind kind = Row::Kind::plain) {
    return {{{count.name, {}}, {GermanText::grouped(count.number), {}}}, kind};
}

/// Counts that add up to the last one; those of nothing are left out.
void writeCounts(std::string caption, std::string name, std::initializer_list<Count> counts, const Count& sum,
                 PageWriter& out) {
    PageTable table;
    table.caption = std::move(caption);
    table.firstIsName = true;
    table.columns = {{std::move(name), Kind::text}, {"Anzahl", Kind::number}};
    for (const Count& count : counts) {
        if (count.number != 0)
            table.rows.push_back(countRow(count));
    }
    table.rows.push_back(countRow(sum, Row::Kind::total));
    out.table(table);
}

void writeTallies(const FileChapter& file, PageWriter& out) {
    if (file.records.found + file.lines.read == 0)
        return; // it could not even be opened
    out.heading(3, "Zählung");
    const RecordTally& records = file.records;
    if (records.found != 0 || file.taken) // else nobody has counted them
        writeCounts("Datensätze", "Was aus ihnen wurde",
                    {{"übernommen", records.imported},
                     {"abgelehnt", records.refused},
                     {"schon im Bestand", records.known},
                     {"gelesen und wieder zurückgenommen", records.takenBack},
                     {"nicht mehr gelesen", records.unread}},
                    {"in der Datei", records.found}, out);
    const LineTally& lines = file.lines;
    if (lines.read == 0)
        return;
    const bool allRead = file.taken && OutcomeText::causes(file).empty();
    writeCounts("Zeilen", "Was in ihnen steht",
                {{"Datensätze", lines.records},
                 {"Kopfzeilen", lines.header},
                 {"Vorspann", lines.preamble},
                 {"Nachspann", lines.footer},
                 {"Leerzeilen", lines.blank},
                 {allRead ? "kein Datensatz" : "nicht gelesen oder kein Datensatz", lines.ignored}},
                {"in der Datei", lines.read}, out);
}

void writeSums(const FileChapter& file, PageWriter& out) {
    const RecordDigest& digest = file.digest;
    if (digest.count() == 0)
        return;
    out.heading(3, "Summen");
    out.table(SumTable::byMonth(digest));
    if (digest.hasCategories())
        out.table(SumTable::byCategory(digest));
    if (digest.roundedAmounts() != 0)
        out.paragraph(GermanText::counted(digest.roundedAmounts(), "Betrag hat", "Beträge haben") +
                      " mehr als zwei Nachkommastellen und " + (digest.roundedAmounts() == 1 ? "ist" : "sind") +
                      " in den Summen auf den Cent gerundet.");
    std::optional<LinePlot> plot = LinePlot::of("Saldo laut Datei", file.balances);
    if (!plot)
        plot =
            LinePlot::of("Aufgelaufene Summe der übernommenen Datensätze", digest.course(), LinePlot::Scale::fromZero);
    if (plot) {
        out.heading(3, "Verlauf");
        out.plot(*plot);
    }
}

Row recordRow(const ReportedRecord& record, bool hasLines, bool hasCategories) {
    Row row;
    if (hasLines)
        row.cells.push_back({record.line == 0 ? "–" : std::to_string(record.line), {}});
    row.cells.push_back({record.day ? GermanText::date(*record.day) : "ohne", {}});
    row.cells.push_back({CentSum(record.cents).text(), {}});
    row.cells.push_back(
        {record.payee.empty() ? record.purpose : record.payee, record.payee.empty() ? std::string() : record.purpose});
    if (hasCategories)
        row.cells.push_back({record.category, {}});
    return row;
}

void writeRecords(const RecordDigest& digest, PageWriter& out) {
    if (digest.count() == 0)
        return;
    const std::size_t shown = digest.first().size() + digest.last().size();
    const bool all = shown == digest.count();
    const bool hasLines = digest.first().front().line != 0;
    const bool hasCategories = digest.hasCategories();
    PageTable table;
    table.caption = all ? "Die übernommenen Datensätze" : "Die ersten und die letzten Datensätze";
    if (hasLines)
        table.columns.push_back({"Zeile", Kind::number});
    table.columns.push_back({"Datum", Kind::number});
    table.columns.push_back({"Betrag", Kind::number});
    table.columns.push_back({"Empfänger und Zweck", Kind::text});
    if (hasCategories)
        table.columns.push_back({"Kategorie", Kind::text});
    for (const ReportedRecord& record : digest.first())
        table.rows.push_back(recordRow(record, hasLines, hasCategories));
    if (!all)
        table.rows.push_back(
            {{{GermanText::counted(digest.count() - shown, "weiterer Datensatz", "weitere Datensätze"), {}}},
             Row::Kind::gap});
    for (const ReportedRecord& record : digest.last())
        table.rows.push_back(recordRow(record, hasLines, hasCategories));
    out.heading(3, all ? "Datensätze" : "Erste und letzte Datensätze");
    out.table(table);
}

void writeReading(const FileChapter& file, PageWriter& out) {
    if (file.reading.empty() && file.reasons.empty())
        return;
    out.heading(3, "Wie die Datei gelesen wurde");
    if (!file.reading.empty())
        out.facts(file.reading);
    if (!file.reasons.empty()) {
        out.paragraph("Gründe:");
        out.list(file.reasons);
    }
}

void writeKnown(const FileChapter& file, PageWriter& out) {
    if (file.known.empty())
        return;
    out.heading(3, "Schon im Bestand");
    PageTable table;
    table.caption = "Was nicht noch einmal übernommen wurde, und welchem Datensatz es gleicht";
    table.columns = {{"Zeile", Kind::number}, {"Gleicht", Kind::text}, {"Inhalt", Kind::raw}};
    table.rows.reserve(file.known.size());
    for (const LinesLeftOut& lines : file.known)
        table.rows.push_back({{{lines.linesText(), {}}, {lines.reason, {}}, {lines.text, {}}}});
    out.table(table);
}

void writeLeftOut(const FileChapter& file, PageWriter& out) {
    if (file.leftOut.empty())
        return;
    out.heading(3, file.taken ? "Nicht importierte Zeilen" : "Zeilen mit Fehlern");
    PageTable table;
    table.caption = file.taken ? "Was kein Datensatz wurde, und warum" : "Was in einzelnen Zeilen auffiel";
    table.columns = {{"Zeile", Kind::number}, {"Grund", Kind::text}, {"Inhalt", Kind::raw}};
    table.rows.reserve(file.leftOut.size());
    for (const LinesLeftOut& lines : file.leftOut)
        table.rows.push_back({{{lines.linesText(), {}}, {lines.reason, lines.code}, {lines.text, {}}}});
    out.table(table);
    if (!file.advice.empty()) {
        out.paragraph("Was sich tun lässt:");
        out.list(file.advice);
    }
}

const char* kindText(Finding::Kind kind) {
    switch (kind) {
    case Finding::Kind::error:
        return "Fehler";
    case Finding::Kind::warning:
        return "Achtung";
    case Finding::Kind::note:
        break;
    }
    return "Hinweis";
}

/// What the result does not name already.
void writeFindings(const FileChapter& file, PageWriter& out) {
    PageTable table;
    table.caption = "Was sonst zu sagen ist";
    table.columns = {{"Zeile", Kind::number}, {"Art", Kind::text}, {"Meldung", Kind::text}};
    std::set<std::string> hinted;
    for (const Finding& finding : file.findings) {
        if (OutcomeText::isCause(finding))
            continue;
        const bool hint = !finding.hint.empty() && hinted.insert(finding.code).second;
        table.rows.push_back({{{finding.line ? std::to_string(*finding.line) : "–", {}},
                               {kindText(finding.kind), {}},
                               {finding.text + (hint ? " " + finding.hint : ""), finding.code}}});
    }
    if (table.rows.empty())
        return;
    out.heading(3, "Meldungen");
    out.table(table);
}

} // namespace

namespace ChapterText {

void write(const FileChapter& file, PageWriter& out) {
    out.heading(2, file.name);
    out.notice(OutcomeText::tone(file), OutcomeText::sentence(file), OutcomeText::causes(file));
    if (!file.origin.empty())
        out.facts(file.origin);
    writeTallies(file, out);
    writeSums(file, out);
    writeRecords(file.digest, out);
    writeReading(file, out);
    writeKnown(file, out);
    writeLeftOut(file, out);
    writeFindings(file, out);
}

} // namespace ChapterText
