// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What the lines of a file are, before anybody reads meaning into them. Lines
/// are physical ones, from 1, and end in a line feed; what follows the last one
/// is a line if it is not empty.
class FileCensus {
public:
    /// Reads the whole file. Throws std::system_error.
    static FileCensus of(const std::string& path);

    struct LongLine {
        std::size_t line;
        std::size_t bytes; ///< without the line feed
    };

    std::size_t lines() const { return m_lines; }
    /// Those that hold nothing but blanks and tabs; a carriage return is content.
    std::size_t blankLines() const { return m_blankLines; }
    /// Those that the library reads.
    std::size_t readLines() const { return m_lines - m_skipped.size(); }
    /// The number of the `count`-th line, from 1, that the library reads: one
    /// with content before its first NUL byte.
    std::size_t readLine(std::size_t count) const;

    /// The first line that the library has no room for.
    const std::optional<LongLine>& tooLong() const { return m_tooLong; }
    const std::vector<std::size_t>& withNul() const { return m_withNul; }
    /// The last line with content, and what it begins with.
    struct LastContent {
        std::size_t line = 0; ///< 0 where no line has content
        char first = '\0';
    };
    const LastContent& lastContent() const { return m_lastContent; }
    /// Lines with an odd number of quotes.
    const std::vector<std::size_t>& withOpenQuote() const { return m_withOpenQuote; }

private:
    struct Block;
    struct Line;
    void add(const Line& line);

    std::size_t m_lines = 0;
    std::size_t m_blankLines = 0;
    std::vector<std::size_t> m_skipped; // blank ones, and those that look so up to a NUL byte
    std::optional<LongLine> m_tooLong;
    LastContent m_lastContent;
    std::vector<std::size_t> m_withNul;
    std::vector<std::size_t> m_withOpenQuote;
};
