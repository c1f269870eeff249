// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "framework/datamodel_api/DMStringFunctions.h"

/// A line without the blanks at its ends, then without the tabs at what are its
/// ends then. Once each: a blank inside a tab stays.
class StrippedLine {
public:
    /// `line` must outlive the object: it is copied only where something is to be stripped, which few lines need.
    explicit StrippedLine(const char* line) : m_text(line) {
        if (m_text.empty() || (!isBlank(m_text.front()) && !isBlank(m_text.back())))
            return;
        strip(' ');
        strip('\t');
    }
    StrippedLine(const StrippedLine&) = delete;
    StrippedLine& operator=(const StrippedLine&) = delete;

    /// A zero byte follows.
    std::string_view text() const { return m_text; }
    /// The first character; the zero byte of an empty text.
    char letter() const { return m_text.empty() ? '\0' : m_text.front(); }

private:
    static bool isBlank(char c) { return c == ' ' || c == '\t'; }

    void strip(char blank) {
        if (m_text.empty() || (m_text.front() != blank && m_text.back() != blank))
            return;
        m_copy = DMStringFunctions::strip(std::string(m_text), DMStringFunctions::eStripBoth, blank);
        m_text = m_copy;
    }

    std::string_view m_text;
    std::string m_copy;
};
