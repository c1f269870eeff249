// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FileCensus.h"

#include "cli/FileLines.h"

namespace {
constexpr std::size_t kLongestLine = 4094;
}

/// What is known of a line so far.
struct FileCensus::Line {
    std::size_t bytes = 0;
    bool oddQuotes = false;
    bool hasNul = false;
    bool isBlank = true;          // nothing but blanks and tabs
    bool isBlankBeforeNul = true; // nothing else before the first NUL byte
    char first = '\0';            // of the content

    void add(std::string_view piece) {
        bytes += piece.size();
        // Most lines have no quote: a search is many times faster than counting byte by byte.
        for (std::size_t quote = piece.find('"'); quote != std::string_view::npos; quote = piece.find('"', quote + 1))
            oddQuotes = !oddQuotes;
        if (isBlank || isBlankBeforeNul)
            lookForContent(piece);
        hasNul = hasNul || piece.find('\0') != std::string_view::npos;
    }

    void lookForContent(std::string_view piece) {
        std::size_t content = 0;
        while (content < piece.size() && (piece[content] == ' ' || piece[content] == '\t'))
            ++content;
        const bool found = content < piece.size();
        if (!hasNul)
            isBlankBeforeNul = isBlankBeforeNul && (!found || piece[content] == '\0');
        if (isBlank && found) {
            isBlank = false;
            first = piece[content];
        }
    }
};

FileCensus FileCensus::of(const std::string& path) {
    FileCensus census;
    Line line;
    FileLines::scan(path, [&](std::string_view piece, bool last) {
        line.add(piece);
        if (!last)
            return;
        census.add(line);
        line = Line();
    });
    return census;
}

void FileCensus::add(const Line& line) {
    ++m_lines;
    if (line.isBlank)
        ++m_blankLines;
    else
        m_lastContent = {m_lines, line.first};
    if (line.isBlankBeforeNul)
        m_skipped.push_back(m_lines);
    if (line.bytes > kLongestLine && !m_tooLong)
        m_tooLong = LongLine{m_lines, line.bytes};
    if (line.hasNul)
        m_withNul.push_back(m_lines);
    if (line.oddQuotes)
        m_withOpenQuote.push_back(m_lines);
}

std::size_t FileCensus::readLine(std::size_t count) const {
    // Lines that are read stand before the skipped one of index i: its number, less 1, less i.
    std::size_t before = 0;
    for (std::size_t end = m_skipped.size(); before < end;) {
        const std::size_t middle = before + (end - before) / 2;
        if (m_skipped[middle] - 1 - middle >= count)
            end = middle;
        else
            before = middle + 1;
    }
    return count + before;
}
