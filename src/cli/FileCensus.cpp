// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FileCensus.h"

#include "cli/FileLines.h"

namespace {
constexpr std::size_t kLongestLine = 4094;
}

/// What a block holds at all: few have quotes or NUL bytes, and the lines of the others need not be searched for them.
struct FileCensus::Block {
    explicit Block(std::string_view bytes)
        : hasQuotes(bytes.find('"') != std::string_view::npos), hasNul(bytes.find('\0') != std::string_view::npos) {}

    /// Whether a whole line is one of which nothing is to be told: nearly every one.
    bool isPlain(std::string_view line) const {
        return !hasQuotes && !hasNul && !line.empty() && line.front() != ' ' && line.front() != '\t' &&
               line.size() <= kLongestLine;
    }

    bool hasQuotes;
    bool hasNul;
};

/// What is known of a line so far.
struct FileCensus::Line {
    std::size_t bytes = 0;
    bool oddQuotes = false;
    bool hasNul = false;
    bool isBlank = true;          // nothing but blanks and tabs
    bool isBlankBeforeNul = true; // nothing else before the first NUL byte
    char first = '\0';            // of the content

    void add(std::string_view piece, const Block& block) {
        bytes += piece.size();
        if (block.hasQuotes)
            countQuotes(piece);
        if (isBlank || isBlankBeforeNul)
            lookForContent(piece);
        if (block.hasNul)
            hasNul = hasNul || piece.find('\0') != std::string_view::npos;
    }

    void countQuotes(std::string_view piece) {
        for (std::size_t quote = piece.find('"'); quote != std::string_view::npos; quote = piece.find('"', quote + 1))
            oddQuotes = !oddQuotes;
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
    bool unfinished = false;
    FileLines::readBlocks(path, [&](std::string_view bytes) {
        const Block block(bytes);
        while (!bytes.empty()) {
            const std::size_t end = bytes.find('\n');
            const std::string_view piece = bytes.substr(0, end);
            if (!unfinished && end != std::string_view::npos && block.isPlain(piece)) {
                census.m_lastContent = {++census.m_lines, piece.front()};
            } else {
                line.add(piece, block);
                unfinished = end == std::string_view::npos;
                if (unfinished)
                    return;
                census.add(line);
                line = Line();
            }
            bytes.remove_prefix(end + 1);
        }
    });
    if (unfinished)
        census.add(line);
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
