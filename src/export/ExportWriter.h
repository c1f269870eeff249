// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "export/ExportRecord.h"
#include "export/Losses.h"

/// Writes records in one format, as UTF-8. The text grows at the end of what
/// the caller hands in, who may take it away between two calls.
class ExportWriter {
public:
    ExportWriter() = default;
    virtual ~ExportWriter() = default;
    ExportWriter(const ExportWriter&) = delete;
    ExportWriter& operator=(const ExportWriter&) = delete;

    virtual void begin(std::string& out) = 0;
    virtual void add(const ExportRecord& record, std::string& out) = 0;
    virtual void end(std::string& out) = 0;

    const Losses& losses() const { return m_losses; }

protected:
    void lose(Loss loss, const ExportRecord& record) { m_losses.note(loss, record.uniqueId); }

private:
    Losses m_losses;
};
