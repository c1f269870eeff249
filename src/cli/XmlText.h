// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// The text of an XML document with one byte per character, so that its brackets
/// and lines can be found without decoding it. ASCII stands for itself; any other
/// character is some byte above. Refers to the document's bytes, which must
/// outlive it.
class XmlText {
public:
    explicit XmlText(std::string_view bytes);
    XmlText(const XmlText&) = delete;
    XmlText& operator=(const XmlText&) = delete;

    std::string_view view() const { return m_view; }
    /// Whether the text is the document's own bytes, and can be shown.
    bool isAsWritten() const { return m_narrowed.empty(); }

private:
    std::string m_narrowed; // of a document with two or four bytes per character
    std::string_view m_view;
};
