// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "intake/PhysicalLines.h"

/// The lines of a prepared file, each under the number that it has in the file:
/// empty, as it was, or written anew.
class PreparedLines {
public:
    /// All lines empty. `file` must outlive this object.
    explicit PreparedLines(const PhysicalLines& file) : m_file(file), m_lines(file.lines.size()) {}

    std::string_view original(int line) const { return m_file.lines[static_cast<std::size_t>(line)]; }
    std::string_view line(int number) const { return m_lines[static_cast<std::size_t>(number)]; }
    int count() const { return static_cast<int>(m_lines.size()); }

    /// `line` counts from 0.
    void keep(int line) { m_lines[static_cast<std::size_t>(line)] = original(line); }
    void clear(int line) { m_lines[static_cast<std::size_t>(line)] = {}; }
    void write(int line, std::string text);
    /// Adds a line behind the last one.
    void append(std::string text);

    /// With line feeds; behind the last line only where the file has an end of
    /// line there, or lines were added.
    std::string text() const;

private:
    const PhysicalLines& m_file;
    std::vector<std::string_view> m_lines;
    std::deque<std::string> m_written;
    bool m_added = false;
};
