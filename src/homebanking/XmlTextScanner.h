// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// Runs over the decoded text of an XML document, piece by piece, and bounds
/// from above what a tree builder would meet in it, up to where it would stop
/// at an error. Comments, CDATA sections, processing instructions and attribute
/// values are seen through. What entities stand for is not known here: that a
/// document may declare some is told by `hasInternalSubset`.
///
/// Cheap by design: building the tree takes some thirty times as long.
class XmlTextScanner {
public:
    void read(const char16_t* begin, const char16_t* end);

    std::size_t length() const { return m_length; } ///< UTF-16 units read
    int deepestLevel() const { return m_deepestLevel; }
    int mostAttributes() const { return m_mostAttributes; } ///< of one element
    /// Declarations "xmlns:…" in all elements together.
    std::size_t prefixes() const { return m_prefixes; }
    bool hasInternalSubset() const { return m_hasInternalSubset; }
    /// Opening parentheses in the declarations of the internal subset.
    std::size_t groups() const { return m_groups; }
    /// Whether the internal subset declares attributes, or declares or uses parameter entities.
    bool addsToTheDocument() const { return m_addsToTheDocument; }
    /// "&" in a document with an internal subset, predefined ones among them.
    std::size_t references() const { return m_references; }

private:
    enum class State {
        text,
        markup, ///< behind "<"
        startTag,
        attributeValue,
        endTag,
        instruction,
        bang,     ///< behind "<!"
        bangDash, ///< behind "<!-"
        comment,
        cdata,
        declaration,
        declaredValue, ///< a quoted part of a declaration
        subset
    };

    using Place = const char16_t*;

    Place step(Place at, Place end);
    Place readStartTag(Place at, Place end);
    Place readDeclaration(Place at, Place end);
    Place readSubset(Place at, Place end);
    Place readQuoted(Place at, Place end, State next);
    Place readUntil(Place at, Place end, char16_t mark, int marks);
    void openMarkup(char16_t first);
    void openBang(char16_t first);
    void leaveElement();
    State outside() const { return m_inSubset ? State::subset : State::text; }

    State m_state = State::text;
    bool m_inSubset = false;
    char16_t m_last = 0;  ///< last character read of a start tag
    char16_t m_quote = 0; ///< what ends the value
    int m_marks = 0;      ///< how often the mark that ends a comment or the like stood last in a row

    std::size_t m_length = 0;
    int m_level = 0;
    int m_deepestLevel = 0;
    int m_attributes = 0;
    int m_mostAttributes = 0;
    std::size_t m_prefixes = 0;
    bool m_hasInternalSubset = false;
    std::size_t m_groups = 0;
    bool m_addsToTheDocument = false;
    std::size_t m_references = 0;
};
