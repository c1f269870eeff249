// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "cli/Message.h"
#include "cli/ScratchFolder.h"
#include "framework/E_SupportedImportFormats.h"

/// A file as the person named it, and the way on which the library reaches it.
///
/// The library takes names in Latin-1, picks its module by the extension, and
/// reads a file more than once. What cannot be had so by the file's own name
/// (other characters, another format, standard input, a pipe) is reached by a
/// link, or a copy, in a temporary folder.
class InputFile {
public:
    /// Looks at the file, and copies what can be read once only. `argument` is
    /// the shell's bytes; "-" is standard input.
    explicit InputFile(const std::string& argument);

    const std::string& argument() const { return m_argument; }
    /// Where the program reads it; the argument itself as a rule.
    const std::string& path() const { return m_path; }
    /// Where the person's own bytes lie, also when the library reads prepared ones.
    const std::string& originalPath() const { return m_originalPath; }
    /// Why it cannot be read; then only `argument` and `mayBeAsked` are of use.
    const std::optional<Message>& problem() const { return m_problem; }
    /// Whether the library may be called with it: it can come to no harm there.
    bool mayBeAsked() const { return m_mayBeAsked; }

    /// The name, Latin-1, under which the front door reads it in that format.
    /// Throws std::system_error when a link cannot be made.
    std::string libraryName(Import::E_SupportedImportFormats format);
    /// The name, Latin-1, under which the front door reads `bytes` in place of
    /// the file; from now on they are what lies at `path`. Once at most. Throws
    /// std::system_error.
    std::string nameOfPrepared(std::string_view bytes, Import::E_SupportedImportFormats format);

private:
    void look();
    void copy(int source);
    ScratchFolder& folder();

    std::string m_argument;
    std::string m_path;
    std::string m_originalPath;
    std::optional<Message> m_problem;
    bool m_mayBeAsked = false;
    std::unique_ptr<ScratchFolder> m_folder;
};
