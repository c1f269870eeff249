// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/XmlTokens.h"

#include <algorithm>

namespace {

using Kind = XmlToken::Kind;

constexpr std::string_view kEndOfName = " \t\r\n/>";

struct Opening {
    std::string_view text;
    std::string_view closing;
    Kind kind;
};

constexpr Opening kOpenings[] = {
    {"<!--", "-->", Kind::comment},
    {"<![CDATA[", "]]>", Kind::cdata},
    {"<?", "?>", Kind::instruction},
    {"</", ">", Kind::endTag},
};

} // namespace

XmlToken XmlTokens::next() {
    const std::string_view rest = m_text.substr(std::min(m_at, m_text.size()));
    if (rest.empty())
        return made(Kind::end, m_text.size());
    if (rest.front() != '<')
        return made(Kind::text, std::min(m_text.find('<', m_at), m_text.size()));
    const char second = rest.size() > 1 ? rest[1] : '\0';
    if (second != '!' && second != '?' && second != '/')
        return tag();
    for (const Opening& opening : kOpenings) {
        if (rest.starts_with(opening.text))
            return upTo(opening.kind, opening.closing, m_at + opening.text.size());
    }
    return doctype();
}

XmlToken XmlTokens::upTo(Kind kind, std::string_view closing, std::size_t from) {
    const std::size_t found = m_text.find(closing, from);
    const std::size_t end = found != std::string_view::npos ? found + closing.size() : m_text.size();
    if (kind != Kind::endTag)
        return made(kind, end);
    const std::string_view name = m_text.substr(from, end - from);
    return made(kind, end, name.substr(0, name.find_first_of(kEndOfName)));
}

XmlToken XmlTokens::tag() {
    const std::size_t end = endOfTag(m_at + 1);
    const std::string_view inner = m_text.substr(m_at + 1, end - m_at - 1);
    const bool isEmpty = inner.size() > 1 && inner.ends_with("/>");
    return made(isEmpty ? Kind::emptyTag : Kind::startTag, end, inner.substr(0, inner.find_first_of(kEndOfName)));
}

std::size_t XmlTokens::endOfTag(std::size_t from) const {
    char quote = '\0';
    for (std::size_t at = from; at < m_text.size(); ++at) {
        const char c = m_text[at];
        if (quote != '\0')
            quote = c == quote ? '\0' : quote;
        else if (c == '>')
            return at + 1;
        else if (c == '"' || c == '\'')
            quote = c;
    }
    return m_text.size();
}

/// The reader's own affair as soon as it declares something; see XmlList.
XmlToken XmlTokens::doctype() { return made(Kind::doctype, endOfTag(m_at + 1)); }

XmlToken XmlTokens::made(Kind kind, std::size_t end, std::string_view name) {
    const XmlToken token = {kind, m_at, end, name};
    m_at = end;
    return token;
}
