// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Where in a home-banking document its list stands, and what is in it: for
/// counting records and for showing the place that a message means. The library
/// alone decides what is imported.
///
/// Knows nothing of entities: a document that declares some is not looked into.
class XmlList {
public:
    struct Range {
        std::size_t begin;
        std::size_t end; ///< behind it
    };
    /// What is no record and yet stands in the list, white space aside.
    struct Stranger {
        enum class Kind { element, text, comment, instruction };
        Kind kind;
        std::string name; ///< of an element
        std::size_t offset;
        std::size_t recordsBefore;
    };

    /// `text` with one byte per ASCII character; must outlive the list. Tags are
    /// those of the list and of a record of it.
    XmlList(std::string_view text, std::string_view listTag, std::string_view recordTag);

    /// Whether the document declares something, so that nothing below is known.
    bool isOpaque() const { return m_isOpaque; }
    bool isFound() const { return m_startTag.end != 0; }
    /// An attribute of the list, as it is written.
    std::string attribute(std::string_view name) const;

    /// All of them, whatever stands between them.
    std::size_t recordCount() const { return m_records.size(); }
    /// From the first record to the last one; nothing without a record.
    std::optional<Range> records() const;
    /// The first one.
    const std::optional<Stranger>& stranger() const { return m_stranger; }
    /// Whether an element or text stands where the list was not read any more.
    bool isCutShort() const;

    /// A record by its number from 1, up to its name.
    std::optional<std::size_t> recordOffset(std::size_t number) const;
    /// What the first child of that name holds.
    std::optional<Range> child(std::size_t record, std::string_view tag) const;
    /// The same as it is written; empty where there is none.
    std::string childText(std::size_t record, std::string_view tag) const;

private:
    class Walk;

    std::string_view m_text;
    Range m_startTag{0, 0};
    std::vector<std::size_t> m_records; // offsets
    std::size_t m_recordsEnd = 0;
    std::optional<Stranger> m_stranger;
    bool m_isOpaque = false;
    bool m_strangerHasContent = false; // that one or a later one
};
