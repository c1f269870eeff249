// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "intake/IntakeMessage.h"

/// What became of a line of the file.
enum class LineUse {
    record, ///< of a record that was handed over or refused; in a delimited file its first line alone
    header,
    preamble,
    footer,
    blank,
    ignored ///< part of a record that began above, or no record; a message says which
};

/// A file made ready for the import library: host bytes, line feeds, and every
/// line under the number that it has in the file itself.
struct PreparedFile {
    std::string text;
    bool untouched = false; ///< `text` is the file, byte for byte
    bool header = false;    ///< its first line that is not empty is a header
    char delimiter = ';';
    struct Assignment {
        int column; ///< from 0, in `text`
        const char* field;
    };
    std::vector<Assignment> columns; ///< empty for a format with a layout of its own
    std::vector<LineUse> lines;      ///< one element a line of the file
    int refused = 0;                 ///< records that are not in `text`
    std::vector<IntakeMessage> messages;
    /// A text that no line of `text` can hold, which has a shorter one in its
    /// place. Whoever imports puts the text into the record afterwards.
    struct FullText {
        int line; ///< of the record, from 1
        const char* field;
        std::string text; ///< host bytes
    };
    std::vector<FullText> fullTexts; ///< in the order of their lines
};
