// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "cli/Message.h"
#include "cli/Options.h"
#include "cli/ReportFile.h"
#include "report/ImportPage.h"

/// The page about an import that --report asks for: gathered file by file, and
/// written in the end whatever became of them.
class ImportReport {
public:
    /// Does nothing, now and later, where no page is wanted. Throws UsageError
    /// where the page could not be written; `store` is the path of the store.
    ImportReport(const Options& options, const std::filesystem::path& store);

    bool isWanted() const { return m_file.has_value(); }
    /// The page's file, the shell's bytes.
    const std::string& name() const { return m_file->name(); }

    void add(FileChapter chapter) { m_page.files.push_back(std::move(chapter)); }
    /// Writes the page. What went wrong is the answer.
    std::optional<Message> write();

private:
    const Options& m_options;
    std::optional<ReportFile> m_file;
    ImportPage m_page;
};
