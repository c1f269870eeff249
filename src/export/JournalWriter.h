// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "export/ExportFormats.h"
#include "export/ExportWriter.h"

/// A journal of plain-text accounting, which hledger and ledger read alike: one
/// balanced transaction of two postings a record, in euros.
class JournalWriter final : public ExportWriter {
public:
    explicit JournalWriter(const ExportContext& context) : m_context(context) {}

    void begin(std::string& out) override;
    void add(const ExportRecord& record, std::string& out) override;
    void end(std::string& out) override;

private:
    void appendHead(const ExportRecord& record, std::string& out);
    void appendNotes(const ExportRecord& record, std::string& out);
    void appendPostings(const ExportRecord& record, std::string& out);

    bool appendText(std::string& out, std::string_view text);
    void appendNote(std::string& out, std::string_view tag, std::string_view text);
    void appendAccountPart(std::string& out, std::string_view text);
    void cut(std::string& out, std::size_t first, std::size_t longest);
    std::string_view fileOf(const ExportRecord& record) const;

    const ExportContext& m_context;
    bool m_textChanged = false; ///< of the record at hand
    bool m_textCut = false;
};
