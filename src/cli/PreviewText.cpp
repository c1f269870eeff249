// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/PreviewText.h"

#include <algorithm>
#include <string>
#include <vector>

#include "cli/ColumnOption.h"
#include "cli/FileReport.h"
#include "cli/JsonRows.h"
#include "cli/SafeText.h"
#include "cli/TableWriter.h"
#include "datamodel/HostText.h"

namespace {

Json headerJson(const ImportRecordSet& preview) {
    if (!preview.hasHeader())
        return nullptr;
    Json header = Json::array();
    for (int column = 0; column < preview.getColumnCount(); ++column)
        header.push_back(HostText::toUtf8(preview.getColumnHeader(column)));
    return header;
}

Json rowJson(const ImportRecordSet& preview, int row) {
    Json cells = Json::array();
    for (int column = 0; column < preview.getColumnCount(); ++column)
        cells.push_back(HostText::toUtf8(preview.getString(row, column)));
    return cells;
}

int shownRows(const ImportRecordSet& preview, std::size_t limit) {
    return static_cast<int>(std::min(limit, static_cast<std::size_t>(preview.getRowCount())));
}

/// A column of the table: its number in the file, what it feeds, what the file calls it.
struct ShownColumn {
    int number;
    TableColumn table;
};

TableColumn headingOf(int number, const ImportRecordSet& preview, const ColumnAssignment* columns) {
    TableColumn shown{std::to_string(number), TableColumn::Kind::text};
    for (int i = 0; columns != nullptr && i < columns->m_count; ++i) {
        if (columns->m_pairs[i].m_inputColumn != number)
            continue;
        const Import::E_ColumnIndex field = columns->m_pairs[i].m_column;
        shown.heading += std::string("=") + ColumnOption::fieldName(field);
        if (field == Import::eColBetrag)
            shown.kind = TableColumn::Kind::amount;
        else if (field == Import::eColDatum)
            shown.kind = TableColumn::Kind::fixed;
    }
    const std::string header = SafeText::printable(HostText::toUtf8(preview.getColumnHeader(number)));
    if (!header.empty())
        shown.heading += " " + header;
    return shown;
}

bool isAssigned(int number, const ColumnAssignment& columns) {
    return std::any_of(columns.m_pairs, columns.m_pairs + columns.m_count,
                       [number](const ColumnAssignment::Pair& pair) { return pair.m_inputColumn == number; });
}

/// With an assignment of the person's the other columns are empty, and left out.
std::vector<ShownColumn> shownColumns(const FileReading& reading, const ImportRecordSet& preview) {
    const ColumnAssignment* columns = reading.traits().takesColumns() ? reading.columns() : nullptr;
    std::vector<ShownColumn> shown;
    for (int number = 0; number < preview.getColumnCount(); ++number) {
        if (columns == nullptr || isAssigned(number, *columns))
            shown.push_back({number, headingOf(number, preview, columns)});
    }
    return shown;
}

std::vector<std::string> cellsOf(const ImportRecordSet& preview, int row, const std::vector<ShownColumn>& columns) {
    std::vector<std::string> cells;
    cells.reserve(columns.size());
    for (const ShownColumn& column : columns)
        cells.push_back(SafeText::printable(HostText::toUtf8(preview.getString(row, column.number))));
    return cells;
}

/// What stands before a row: how it stands to the store.
std::string markText(const PreviewMarks::Row& row) {
    if (!row.mark)
        return "abgelehnt";
    if (row.mark->isKnown())
        return "bekannt";
    return row.mark->isDoubtful() ? "fraglich" : "neu";
}

/// What stands behind it: the stored record that it resembles, and why.
std::string likenessText(const PreviewMarks::Row& row) {
    if (!row.mark || !(row.mark->isKnown() || row.mark->isDoubtful()))
        return {};
    return row.mark->place() + (row.mark->isDoubtful() ? ": " + row.mark->reason() : "");
}

std::string countsText(const PreviewMarks& marks) {
    std::string text = std::to_string(marks.count(Resemblance::Mark::fresh)) + " neu, " +
                       std::to_string(marks.count(Resemblance::Mark::known)) + " bekannt, " +
                       std::to_string(marks.count(Resemblance::Mark::doubtful)) + " fraglich";
    if (marks.refused() != 0)
        text += ", " + std::to_string(marks.refused()) + " abgelehnt";
    return text;
}

void addMarks(Json& object, const PreviewMarks& marks, std::size_t limit) {
    object["newCount"] = marks.count(Resemblance::Mark::fresh);
    object["knownCount"] = marks.count(Resemblance::Mark::known);
    object["doubtfulCount"] = marks.count(Resemblance::Mark::doubtful);
    object["refusedCount"] = marks.refused();
    Json list = Json::array();
    for (std::size_t i = 0; i < std::min(limit, marks.rows.size()); ++i) {
        const PreviewMarks::Row& row = marks.rows[i];
        Json mark = {{"record", i + 1}, {"line", row.line ? Json(*row.line) : Json(nullptr)}};
        if (row.mark)
            row.mark->addTo(mark);
        else
            mark["mark"] = "refused";
        list.push_back(std::move(mark));
    }
    object["marks"] = std::move(list);
}

} // namespace

namespace PreviewText {

void writeJson(Console& console, const FileReading& reading, const LibraryRun& run, const RunOutcome& outcome,
               const std::vector<Message>& messages, const PreviewMarks* marks, std::size_t limit) {
    const ImportRecordSet& preview = run.preview();
    const Json head = {{"file", reading.argument()},
                       {"format", static_cast<int>(reading.traits().format)},
                       {"result", outcome.result},
                       {"delimiter", HostText::toUtf8(std::string(1, run.bestDelimiter()))},
                       {"columnCount", preview.getColumnCount()},
                       {"header", headerJson(preview)}};
    Json tail = {{"rowCount", preview.getRowCount()},
                 {"importedCount", outcome.importedCount},
                 {"errorText", outcome.errorText}};
    if (marks != nullptr)
        addMarks(tail, *marks, limit);
    if (!messages.empty())
        tail["messages"] = FileReportText::json(messages);

    std::string before = JsonText::of(head);
    before.back() = ',';
    JsonRows rows(console, before + "\"rows\":");
    for (int row = 0; row < shownRows(preview, limit); ++row)
        rows.add(rowJson(preview, row));
    rows.end("," + JsonText::of(tail).substr(1) + "\n");
}

void writeTable(Console& console, const FileReading& reading, const LibraryRun& run, const PreviewMarks* marks,
                std::size_t limit) {
    const ImportRecordSet& preview = run.preview();
    const std::vector<ShownColumn> columns = shownColumns(reading, preview);
    const int rowCount = shownRows(preview, limit);
    if (!columns.empty()) {
        // One record a row, in every format; only then a mark belongs to a row.
        const bool marked = marks != nullptr && marks->rows.size() == static_cast<std::size_t>(preview.getRowCount());
        const auto cells = [&](int row) {
            std::vector<std::string> all = cellsOf(preview, row, columns);
            if (marked) {
                const PreviewMarks::Row& mark = marks->rows[static_cast<std::size_t>(row)];
                all.insert(all.begin(), markText(mark));
                all.push_back(likenessText(mark));
            }
            return all;
        };
        std::vector<TableColumn> headings;
        headings.reserve(columns.size() + 2);
        if (marked)
            headings.push_back({"Bestand", TableColumn::Kind::fixed});
        for (const ShownColumn& column : columns)
            headings.push_back(column.table);
        if (marked)
            headings.push_back({"Gleicht", TableColumn::Kind::text});
        TableWriter table(console, std::move(headings));
        for (int row = 0; row < rowCount; ++row)
            table.measure(cells(row));
        table.begin();
        for (int row = 0; row < rowCount; ++row)
            table.write(cells(row));
    }
    std::string summary = std::to_string(preview.getRowCount()) + (preview.getRowCount() == 1 ? " Zeile" : " Zeilen");
    if (rowCount < preview.getRowCount())
        summary = "die ersten " + std::to_string(rowCount) + " von " + summary;
    if (reading.traits().recordPerLine)
        summary += ", Trennzeichen „" + SafeText::printable(reading.delimiterText()) + "“";
    if (marks != nullptr)
        summary += "; " + countsText(*marks);
    console.summary(summary);
}

} // namespace PreviewText
