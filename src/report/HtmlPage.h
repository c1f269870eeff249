// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "report/PageWriter.h"

/// A page as one HTML document that needs nothing beside itself: no script, no
/// other file. UTF-8; for the screen, wide or narrow, and for paper.
class HtmlPage : public PageWriter {
public:
    const std::string& text() const { return m_text; }

    void begin(std::string_view title) override;
    void end() override;
    void heading(int level, std::string_view text) override;
    void beginSection() override;
    void endSection() override;
    void paragraph(std::string_view text) override;
    void notice(Tone tone, std::string_view text, const std::vector<std::string>& items) override;
    void list(const std::vector<std::string>& items) override;
    void facts(const std::vector<PageFact>& facts) override;
    void table(const PageTable& table) override;
    void plot(const LinePlot& plot) override;

private:
    /// `<tag>text</tag>`, the text escaped.
    void element(std::string_view tag, std::string_view text);
    void row(const PageTable& table, const PageTable::Row& row);

    std::string m_text;
    std::size_t m_plots = 0; // so that each has a name of its own
};
