// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "report/MarkdownPage.h"

#include "report/MarkdownText.h"
#include "report/TextPlot.h"

namespace {

std::string bold(const std::string& text) { return text.empty() ? text : "**" + text + "**"; }

} // namespace

void MarkdownPage::begin(std::string_view /*title*/) {}

void MarkdownPage::end() {}

void MarkdownPage::heading(int level, std::string_view text) {
    m_text += (m_text.empty() ? "" : "\n") + std::string(static_cast<std::size_t>(level), '#') + " " +
              MarkdownText::escaped(text) + "\n";
}

void MarkdownPage::beginSection() {}

void MarkdownPage::endSection() {}

void MarkdownPage::paragraph(std::string_view text) { m_text += "\n" + MarkdownText::escaped(text) + "\n"; }

void MarkdownPage::notice(Tone /*tone*/, std::string_view text, const std::vector<std::string>& items) {
    m_text += "\n> " + bold(MarkdownText::escaped(text)) + "\n";
    if (!items.empty())
        m_text += ">\n";
    for (const std::string& item : items)
        m_text += "> - " + MarkdownText::escaped(item) + "\n";
}

void MarkdownPage::list(const std::vector<std::string>& items) {
    m_text += "\n";
    for (const std::string& item : items)
        m_text += "- " + MarkdownText::escaped(item) + "\n";
}

void MarkdownPage::facts(const std::vector<PageFact>& facts) {
    m_text += "\n";
    for (const PageFact& fact : facts)
        m_text += "- " + MarkdownText::escaped(fact.label) + ": " + MarkdownText::escaped(fact.value) + "\n";
}

void MarkdownPage::table(const PageTable& table) {
    m_text += "\n" + MarkdownText::escaped(table.caption) + ":\n\n|";
    for (const PageTable::Column& column : table.columns)
        m_text += " " + MarkdownText::escaped(column.title) + " |";
    m_text += "\n|";
    for (const PageTable::Column& column : table.columns)
        m_text += column.kind == PageTable::Kind::number ? " ---: |" : " --- |";
    m_text += "\n";
    for (const PageTable::Row& row : table.rows)
        this->row(table, row);
}

void MarkdownPage::row(const PageTable& table, const PageTable::Row& row) {
    m_text += "|";
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        // What is said of rows that are not shown stands in the last column, which holds texts.
        const bool isGap = row.kind == PageTable::Row::Kind::gap;
        const std::size_t at = isGap ? i + 1 - table.columns.size() : i;
        if (at < row.cells.size()) {
            const PageTable::Cell& cell = row.cells[at];
            const std::string text = MarkdownText::escaped(cell.text);
            m_text += " " + (row.kind == PageTable::Row::Kind::total ? bold(text) : text);
            if (!cell.detail.empty())
                m_text += " (" + MarkdownText::escaped(cell.detail) + ")";
        } else if (isGap) {
            m_text += " …";
        }
        m_text += " |";
    }
    m_text += "\n";
}

void MarkdownPage::plot(const LinePlot& plot) {
    m_text += "\n" + MarkdownText::escaped(plot.title) + ":\n\n```text\n" + TextPlot::of(plot) + "```\n";
    paragraph(plot.description);
}
