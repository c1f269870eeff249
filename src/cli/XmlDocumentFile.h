// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "cli/InputFile.h"
#include "cli/Message.h"

/// A document as the person named it, read into memory: what the program counts
/// and what the library imports are then the same bytes, and any name will do.
/// (The library would take a name in Latin-1, but opens it in the encoding of
/// the process's locale.)
class XmlDocumentFile {
public:
    /// `argument` is the shell's bytes; "-" is standard input.
    explicit XmlDocumentFile(const std::string& argument);

    const std::string& argument() const { return m_input.argument(); }
    const std::string& bytes() const { return m_bytes; }

    /// Why it is not to be imported.
    const std::optional<Message>& problem() const { return m_problem; }
    /// The name, Latin-1, by which the library can be asked for its own words on
    /// a file that was not read; nothing where that could do harm.
    std::optional<std::string> nameForTheLibrary();
    /// Whether it is more than can be read; the library has a text for that.
    bool isTooLarge() const { return m_isTooLarge; }

private:
    void read();

    InputFile m_input;
    std::string m_bytes;
    std::optional<Message> m_problem;
    bool m_isTooLarge = false;
};
