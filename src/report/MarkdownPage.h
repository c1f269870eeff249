// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "report/PageWriter.h"

/// A page as Markdown with tables (GitHub's), UTF-8, that can be read as plain text as well.
class MarkdownPage : public PageWriter {
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
    void row(const PageTable& table, const PageTable::Row& row);

    std::string m_text;
};
