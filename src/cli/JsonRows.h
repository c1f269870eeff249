// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "cli/Console.h"
#include "cli/JsonText.h"

/// Writes one long array of a JSON document element by element, each on a line
/// of its own, so that nobody holds the whole document.
class JsonRows {
public:
    /// `before` is the document up to the array's bracket, `after` what follows it.
    JsonRows(Console& console, std::string_view before) : m_console(console) {
        m_console.write(before);
        m_console.write("[");
    }
    void add(const Json& element) {
        m_console.write(m_first ? "\n" : ",\n");
        m_console.write(JsonText::of(element));
        m_first = false;
    }
    void end(std::string_view after) {
        m_console.write(m_first ? "]" : "\n]");
        m_console.write(after);
    }

private:
    Console& m_console;
    bool m_first = true;
};
