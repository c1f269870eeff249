// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "export/ExportFormats.h"
#include "export/ExportWriter.h"

/// QIF, as our own import reads it and other programs do: sections of accounts,
/// days as dd.mm.yyyy, amounts with a decimal point.
class QifWriter final : public ExportWriter {
public:
    explicit QifWriter(const ExportContext& /*context*/) {}

    void begin(std::string& out) override;
    void add(const ExportRecord& record, std::string& out) override;
    void end(std::string& out) override;

private:
    void appendAmount(std::string& out, const ExportRecord& record);
    void appendField(std::string& out, char letter, std::string_view text);

    std::string_view m_section; ///< that was written last
    bool m_textChanged = false; ///< of the record at hand
    bool m_textCut = false;
};
