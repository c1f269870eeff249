// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

/// A piece of an XML document: a tag, or what lies between two.
struct XmlToken {
    enum class Kind { startTag, emptyTag, endTag, text, cdata, comment, instruction, doctype, end };

    Kind kind;
    std::size_t begin;     ///< offset of its first byte
    std::size_t end;       ///< offset behind it
    std::string_view name; ///< of a tag, with its prefix
};

/// Cuts a document into its pieces, seeing no more in it than they need. Any
/// bytes will do: what is not finished reaches to the end.
class XmlTokens {
public:
    explicit XmlTokens(std::string_view text, std::size_t start = 0) : m_text(text), m_at(start) {}

    XmlToken next();

private:
    XmlToken upTo(XmlToken::Kind kind, std::string_view closing, std::size_t from);
    XmlToken tag();
    XmlToken doctype();
    XmlToken made(XmlToken::Kind kind, std::size_t end, std::string_view name = {});
    /// Offset behind the next ">" outside quotes.
    std::size_t endOfTag(std::size_t from) const;

    std::string_view m_text;
    std::size_t m_at;
};
