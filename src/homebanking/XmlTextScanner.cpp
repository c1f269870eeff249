// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "homebanking/XmlTextScanner.h"

#include <algorithm>

#include "framework/AssertTypeSizes.h"

namespace {

using Place = const char16_t*;

/// Behind the next `character`, or the end; `found` tells which.
Place skipPast(Place at, Place end, char16_t character, bool& found) {
    at = std::find(at, end, character);
    found = at != end;
    return found ? at + 1 : end;
}

} // namespace

void XmlTextScanner::read(const char16_t* begin, const char16_t* end) {
    for (Place at = begin; at != end;)
        at = step(at, end);
    m_length += static_cast<std::size_t>(end - begin);
    if (m_hasInternalSubset) // or its beginning: then some too many are counted
        m_references += static_cast<std::size_t>(std::count(begin, end, u'&'));
}

XmlTextScanner::Place XmlTextScanner::step(Place at, Place end) {
    bool found = false;
    switch (m_state) {
    case State::text:
        at = skipPast(at, end, u'<', found);
        if (found)
            m_state = State::markup;
        return at;
    case State::markup:
        openMarkup(*at);
        return at + 1;
    case State::startTag:
        return readStartTag(at, end);
    case State::attributeValue:
        return readQuoted(at, end, State::startTag);
    case State::endTag:
        at = skipPast(at, end, u'>', found);
        if (found)
            leaveElement();
        return at;
    case State::instruction:
        return readUntil(at, end, u'?', 1);
    case State::bang:
        openBang(*at);
        return at + 1;
    case State::bangDash:
        m_state = *at == u'-' ? State::comment : State::declaration;
        return at + 1;
    case State::comment:
        return readUntil(at, end, u'-', 2);
    case State::cdata:
        return readUntil(at, end, u']', 2);
    case State::declaration:
        return readDeclaration(at, end);
    case State::declaredValue:
        return readQuoted(at, end, State::declaration);
    case State::subset:
        break;
    }
    return readSubset(at, end);
}

void XmlTextScanner::openMarkup(char16_t first) {
    m_marks = 0;
    switch (first) {
    case u'/':
        m_state = State::endTag;
        return;
    case u'?':
        m_state = State::instruction;
        return;
    case u'!':
        m_state = State::bang;
        return;
    default:
        m_state = State::startTag;
        m_last = first;
        m_attributes = 0;
        m_deepestLevel = std::max(m_deepestLevel, ++m_level);
        return;
    }
}

void XmlTextScanner::openBang(char16_t first) {
    if (first == u'-')
        m_state = State::bangDash;
    else if (first == u'[' && !m_inSubset)
        m_state = State::cdata;
    else
        m_state = State::declaration;
    if (first == u'A' && m_inSubset) // an ATTLIST
        m_addsToTheDocument = true;
}

XmlTextScanner::Place XmlTextScanner::readStartTag(Place at, Place end) {
    while (at != end) {
        const char16_t c = *at++;
        if (c == u'>') {
            m_state = State::text;
            if (m_last == u'/')
                leaveElement();
            return at;
        }
        if (c == u':' && m_last == u's') // "xmlns:", and a few names more
            ++m_prefixes;
        m_last = c;
        if (c == u'"' || c == u'\'') {
            m_state = State::attributeValue;
            m_quote = c;
            m_mostAttributes = std::max(m_mostAttributes, ++m_attributes);
            return at;
        }
    }
    return at;
}

XmlTextScanner::Place XmlTextScanner::readQuoted(Place at, Place end, State next) {
    bool found = false;
    at = skipPast(at, end, m_quote, found);
    if (found)
        m_state = next;
    return at;
}

XmlTextScanner::Place XmlTextScanner::readUntil(Place at, Place end, char16_t mark, int marks) {
    while (at != end) {
        const char16_t c = *at++;
        if (c == u'>' && m_marks >= marks) {
            m_state = outside();
            return at;
        }
        m_marks = c == mark ? m_marks + 1 : 0;
    }
    return at;
}

XmlTextScanner::Place XmlTextScanner::readDeclaration(Place at, Place end) {
    while (at != end) {
        const char16_t c = *at++;
        if (c == u'"' || c == u'\'') {
            m_state = State::declaredValue;
            m_quote = c;
            return at;
        }
        if (c == u'>') {
            m_state = outside();
            return at;
        }
        if (c == u'[' && !m_inSubset) {
            m_state = State::subset;
            m_inSubset = true;
            m_hasInternalSubset = true;
            return at;
        }
        if (c == u'(')
            ++m_groups;
        if (c == u'%')
            m_addsToTheDocument = true;
    }
    return at;
}

XmlTextScanner::Place XmlTextScanner::readSubset(Place at, Place end) {
    while (at != end) {
        const char16_t c = *at++;
        if (c == u'<') {
            m_state = State::markup;
            return at;
        }
        if (c == u']') {
            m_state = State::declaration; // the rest of the DOCTYPE
            m_inSubset = false;
            return at;
        }
        if (c == u'%')
            m_addsToTheDocument = true;
    }
    return at;
}

void XmlTextScanner::leaveElement() {
    m_state = State::text;
    // A document that ends more elements than it starts is none: the tree builder stops there.
    m_level = std::max(m_level - 1, 0);
}
