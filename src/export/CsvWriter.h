// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/ExportFormats.h"
#include "export/ExportWriter.h"

/// A delimited list (CsvLayout) that an import reads back without loss.
class CsvWriter final : public ExportWriter {
public:
    explicit CsvWriter(const ExportContext& context) : m_content(context.content) {}

    void begin(std::string& out) override;
    void add(const ExportRecord& record, std::string& out) override;
    void end(std::string& out) override;

private:
    ExportContent m_content;
};
