// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "report/HtmlPage.h"

#include <algorithm>

#include "page.css.h"
#include "report/HtmlPlot.h"
#include "report/HtmlText.h"

namespace {

std::string_view classOf(PageWriter::Tone tone) {
    switch (tone) {
    case PageWriter::Tone::good:
        return "good";
    case PageWriter::Tone::doubtful:
        return "doubtful";
    case PageWriter::Tone::bad:
        break;
    }
    return "bad";
}

/// Lines of files need all the width that there is.
bool needsWidth(const PageTable& table) {
    return std::any_of(table.columns.begin(), table.columns.end(),
                       [](const PageTable::Column& column) { return column.kind == PageTable::Kind::raw; });
}

/// The beginning of a cell, without its closing bracket.
std::string_view cellStart(PageTable::Kind kind) {
    switch (kind) {
    case PageTable::Kind::number:
        return "<td class=n";
    case PageTable::Kind::raw:
        return "<td class=r";
    case PageTable::Kind::text:
        break;
    }
    return "<td";
}

} // namespace

void HtmlPage::element(std::string_view tag, std::string_view text) {
    ((m_text += '<') += tag) += '>';
    HtmlText::appendEscaped(m_text, text);
    ((m_text += "</") += tag) += ">\n";
}

void HtmlPage::begin(std::string_view title) {
    m_text += "<!DOCTYPE html>\n<html lang=\"de\">\n<head>\n<meta charset=\"utf-8\">\n"
              "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n";
    element("title", title);
    m_text += "<style>\n";
    m_text += kPageStyle;
    m_text += "</style>\n</head>\n<body>\n<main>\n";
}

void HtmlPage::end() { m_text += "</main>\n</body>\n</html>\n"; }

void HtmlPage::heading(int level, std::string_view text) { element("h" + std::to_string(level), text); }

void HtmlPage::beginSection() { m_text += "<section>\n"; }

void HtmlPage::endSection() { m_text += "</section>\n"; }

void HtmlPage::paragraph(std::string_view text) { element("p", text); }

void HtmlPage::notice(Tone tone, std::string_view text, const std::vector<std::string>& items) {
    ((m_text += "<div class=\"notice ") += classOf(tone)) += "\">\n";
    paragraph(text);
    if (!items.empty())
        list(items);
    m_text += "</div>\n";
}

void HtmlPage::list(const std::vector<std::string>& items) {
    m_text += "<ul>\n";
    for (const std::string& item : items)
        element("li", item);
    m_text += "</ul>\n";
}

void HtmlPage::facts(const std::vector<PageFact>& facts) {
    m_text += "<dl>\n";
    for (const PageFact& fact : facts) {
        m_text += "<dt>";
        HtmlText::appendEscaped(m_text, fact.label);
        m_text += fact.isRaw ? "</dt><dd class=r>" : "</dt><dd>";
        HtmlText::appendEscaped(m_text, fact.value);
        m_text += "</dd>\n";
    }
    m_text += "</dl>\n";
}

void HtmlPage::table(const PageTable& table) {
    // A region of its own, which the keyboard can scroll where the window is narrow.
    m_text += needsWidth(table) ? "<div class=\"wide all\"" : "<div class=wide";
    m_text += " role=region tabindex=0 aria-label=\"";
    HtmlText::appendEscaped(m_text, table.caption);
    m_text += "\">\n<table>\n";
    element("caption", table.caption);
    m_text += "<thead>\n<tr>";
    for (const PageTable::Column& column : table.columns) {
        m_text += column.kind == PageTable::Kind::number ? "<th scope=col class=n>" : "<th scope=col>";
        HtmlText::appendEscaped(m_text, column.title);
        m_text += "</th>";
    }
    m_text += "</tr>\n</thead>\n<tbody>\n";
    for (const PageTable::Row& row : table.rows)
        this->row(table, row);
    m_text += "</tbody>\n</table>\n</div>\n";
}

void HtmlPage::row(const PageTable& table, const PageTable::Row& row) {
    using Kind = PageTable::Row::Kind;
    if (row.kind == Kind::gap) {
        m_text += "<tr class=gap><td colspan=" + std::to_string(table.columns.size()) + ">";
        HtmlText::appendEscaped(m_text, row.cells.front().text);
        m_text += "</td></tr>\n";
        return;
    }
    m_text += row.kind == Kind::total ? "<tr class=total>" : "<tr>";
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        const bool isName = i == 0 && table.firstIsName;
        m_text += isName ? "<th scope=row" : cellStart(table.columns[i].kind);
        m_text += '>';
        HtmlText::appendEscaped(m_text, row.cells[i].text);
        if (!row.cells[i].detail.empty()) {
            m_text += " <small>";
            HtmlText::appendEscaped(m_text, row.cells[i].detail);
            m_text += "</small>";
        }
        m_text += isName ? "</th>" : "</td>";
    }
    m_text += "</tr>\n";
}

void HtmlPage::plot(const LinePlot& plot) { HtmlPlot::append(m_text, plot, ++m_plots); }
