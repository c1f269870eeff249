// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "intake/Intake.h"
#include "intake/PhysicalLines.h"

/// The lines of a file as a person sees them, to be shown beside what is said of them.
class SourceLines {
public:
    /// `intake` is what was found in `bytes`; null where the file is read as it is.
    SourceLines(std::string bytes, const IntakeResult* intake);
    SourceLines(const SourceLines&) = delete;
    SourceLines& operator=(const SourceLines&) = delete;

    std::size_t count() const { return m_lines.lines.size(); }
    /// Line `number` (from 1) as printable UTF-8, a very long one cut; empty where there is none.
    std::string text(std::size_t number) const;
    /// The record of several lines, ended by a line "^", that line `number` is a part of.
    std::string record(std::size_t number) const;

private:
    std::string shown(std::string_view bytes) const;
    std::string_view line(std::size_t number) const { return m_lines.lines[number - 1]; }

    std::string m_bytes;
    PhysicalLines m_lines; // views into the bytes
};
