// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "intake/Encoding.h"

/// A file's text in the one encoding that the host and the library work in:
/// Windows-1252, one byte a character.
struct HostFileText {
    /// A character that Windows-1252 has no place for.
    struct Substitution {
        std::string replacement; ///< host bytes
        std::size_t count = 0;
        int firstLine = 0; ///< from 1
    };

    std::string text;
    bool zeroBytes = false; ///< there were some; the library ends a line at one, and in `text` they are blanks
    Encoding encoding = Encoding::ascii;
    bool bom = false;
    std::map<char32_t, Substitution> substitutions;
    int brokenLine = 0; ///< first line with bytes that the encoding does not allow; 0 for none
};

namespace HostTextReader {

/// Which encoding the bytes are in: a byte-order mark decides, then zero bytes
/// (UTF-16), then whether they are valid UTF-8, then whether they use the
/// characters that Windows-1252 has and Latin-1 has not.
Encoding detect(std::string_view bytes);

/// Decodes `bytes`, in `forced` or in what `detect` finds. Bytes that an
/// encoding does not allow become "?" and are reported.
HostFileText read(std::string_view bytes, std::optional<Encoding> forced = std::nullopt);

} // namespace HostTextReader
