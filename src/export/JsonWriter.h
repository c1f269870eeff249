// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <set>
#include <vector>

#include "export/ExportFormats.h"
#include "export/ExportWriter.h"

/// One JSON document: every field of every record under the model's own name,
/// one record a line, and behind the records their import sessions, behind
/// bookings their account. What could steer a terminal is escaped.
class JsonWriter final : public ExportWriter {
public:
    explicit JsonWriter(const ExportContext& context) : m_context(context) {}

    void begin(std::string& out) override;
    void add(const ExportRecord& record, std::string& out) override;
    void end(std::string& out) override;

private:
    const ExportContext& m_context;
    std::vector<std::size_t> m_order;  ///< of the fields of a row
    std::set<std::int32_t> m_sessions; ///< that the records name
    bool m_first = true;
};
