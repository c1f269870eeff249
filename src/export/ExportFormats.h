// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "export/ExportSessions.h"
#include "export/ExportWriter.h"

/// Which records a document is of.
enum class ExportContent { records, bookings };

/// What a writer may ask beside the records.
struct ExportContext {
    ExportContent content = ExportContent::records;
    ExportSessions sessions;
    const RecordNode* account = nullptr; ///< whose bookings they are
};

/// A format that records can be written in.
struct ExportFormat {
    const char* name; ///< on the command line
    /// The context must outlive the writer.
    std::unique_ptr<ExportWriter> (*writer)(const ExportContext& context);
};

namespace ExportFormats {

std::span<const ExportFormat> all();
/// Null for an unknown name.
const ExportFormat* byName(std::string_view name);

} // namespace ExportFormats
