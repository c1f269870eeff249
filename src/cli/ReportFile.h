// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// The file that a page is written to: all of it or nothing, and for the user alone.
class ReportFile {
public:
    enum class Language { html, markdown };

    /// Finds out whether a file can be made there. Throws UsageError where not,
    /// where the name does not say what language is wanted, and where it is that of one
    /// of `others`, which it would replace. Names are the shell's bytes.
    ReportFile(const std::string& name, const std::vector<std::filesystem::path>& others);

    const std::string& name() const { return m_name; }
    Language language() const { return m_language; }

    /// Puts `text` in the place of what is there. Throws std::system_error; then nothing has changed.
    void write(std::string_view text) const;

private:
    std::string m_name;
    Language m_language;
};
