// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/XmlList.h"

#include "cli/XmlTokens.h"

namespace {

using Kind = XmlToken::Kind;

constexpr std::string_view kBlank = " \t\r\n";

bool isBlank(std::string_view text) { return text.find_first_not_of(kBlank) == std::string_view::npos; }

bool declaresSomething(std::string_view doctype) { return doctype.find('[') != std::string_view::npos; }

} // namespace

/// One walk over the document, from its start to the end of the list.
class XmlList::Walk {
public:
    Walk(XmlList& list, std::string_view listTag, std::string_view recordTag)
        : m_list(list), m_listTag(listTag), m_recordTag(recordTag) {}

    void run() {
        XmlTokens tokens(m_list.m_text);
        for (XmlToken token = tokens.next(); token.kind != Kind::end && !m_done; token = tokens.next())
            take(token);
    }

private:
    static constexpr std::size_t kListDepth = 1;   // elements around the list
    static constexpr std::size_t kRecordDepth = 2; // and around a record

    void take(const XmlToken& token) {
        switch (token.kind) {
        case Kind::startTag:
        case Kind::emptyTag:
            begin(token);
            if (token.kind == Kind::startTag)
                ++m_depth;
            else
                finish(token);
            break;
        case Kind::endTag:
            m_depth -= m_depth > 0 ? 1 : 0;
            finish(token);
            break;
        case Kind::doctype:
            m_list.m_isOpaque = m_done = declaresSomething(textOf(token));
            break;
        default:
            takeBetweenTags(token);
        }
    }

    void begin(const XmlToken& token) {
        if (!m_inList && m_depth == kListDepth && token.name == m_listTag) {
            m_inList = true;
            m_list.m_startTag = {token.begin, token.end};
        } else if (m_inList && m_depth == kRecordDepth && token.name == m_recordTag) {
            m_list.m_records.push_back(token.begin);
            m_inRecord = true;
        } else if (m_inList && m_depth == kRecordDepth) {
            addStranger(Stranger::Kind::element, token);
        }
    }

    /// An element has ended, and `m_depth` elements are around it.
    void finish(const XmlToken& token) {
        if (!m_inList)
            return;
        if (m_depth == kRecordDepth && m_inRecord) {
            m_list.m_recordsEnd = token.end;
            m_inRecord = false;
        }
        m_done = m_depth <= kListDepth;
    }

    void takeBetweenTags(const XmlToken& token) {
        if (!m_inList || m_depth != kRecordDepth)
            return;
        if (token.kind == Kind::comment)
            addStranger(Stranger::Kind::comment, token);
        else if (token.kind == Kind::instruction)
            addStranger(Stranger::Kind::instruction, token);
        else if (token.kind == Kind::cdata || !isBlank(textOf(token)))
            addStranger(Stranger::Kind::text, token);
    }

    void addStranger(Stranger::Kind kind, const XmlToken& token) {
        if (!m_list.m_stranger)
            m_list.m_stranger = {kind, std::string(token.name), offsetOf(token), m_list.m_records.size()};
        if (kind == Stranger::Kind::element || kind == Stranger::Kind::text)
            m_list.m_strangerHasContent = true;
    }

    /// Where it can be seen.
    std::size_t offsetOf(const XmlToken& token) const {
        const std::size_t blanks = textOf(token).find_first_not_of(kBlank);
        return token.begin + (blanks != std::string_view::npos ? blanks : 0);
    }

    std::string_view textOf(const XmlToken& token) const {
        return m_list.m_text.substr(token.begin, token.end - token.begin);
    }

    XmlList& m_list;
    std::string_view m_listTag;
    std::string_view m_recordTag;
    std::size_t m_depth = 0;
    bool m_inList = false;
    bool m_inRecord = false;
    bool m_done = false;
};

XmlList::XmlList(std::string_view text, std::string_view listTag, std::string_view recordTag) : m_text(text) {
    Walk(*this, listTag, recordTag).run();
}

std::string XmlList::attribute(std::string_view name) const {
    const std::string_view tag = m_text.substr(m_startTag.begin, m_startTag.end - m_startTag.begin);
    for (std::size_t at = tag.find(name); at != std::string_view::npos; at = tag.find(name, at + 1)) {
        const std::size_t equals = tag.find_first_not_of(kBlank, at + name.size());
        const bool isWhole = at > 0 && kBlank.find(tag[at - 1]) != std::string_view::npos;
        if (!isWhole || equals == std::string_view::npos || tag[equals] != '=')
            continue;
        const std::size_t quote = tag.find_first_not_of(kBlank, equals + 1);
        if (quote == std::string_view::npos)
            continue;
        const std::size_t end = tag.find(tag[quote], quote + 1);
        if (end != std::string_view::npos)
            return std::string(tag.substr(quote + 1, end - quote - 1));
    }
    return {};
}

std::optional<XmlList::Range> XmlList::records() const {
    if (m_records.empty())
        return std::nullopt;
    return Range{m_records.front(), m_recordsEnd > m_records.back() ? m_recordsEnd : m_text.size()};
}

bool XmlList::isCutShort() const {
    return m_stranger && (m_strangerHasContent || m_records.size() > m_stranger->recordsBefore);
}

std::optional<std::size_t> XmlList::recordOffset(std::size_t number) const {
    if (number == 0 || number > m_records.size())
        return std::nullopt;
    return m_records[number - 1];
}

std::optional<XmlList::Range> XmlList::child(std::size_t record, std::string_view tag) const {
    const std::optional<std::size_t> start = recordOffset(record);
    if (!start)
        return std::nullopt;
    XmlTokens tokens(m_text, *start);
    std::size_t depth = 0;
    std::optional<std::size_t> content;
    for (XmlToken token = tokens.next(); token.kind != Kind::end; token = tokens.next()) {
        if (!content && depth == 1 && token.name == tag && token.kind == Kind::emptyTag)
            return Range{token.end, token.end};
        if (!content && depth == 1 && token.name == tag && token.kind == Kind::startTag)
            content = token.end;
        if (token.kind == Kind::startTag)
            ++depth;
        if (token.kind == Kind::emptyTag && depth == 0)
            return std::nullopt; // the record itself is empty
        if (token.kind == Kind::endTag && --depth <= 1 && content)
            return Range{*content, token.begin};
        if (token.kind == Kind::endTag && depth == 0)
            return std::nullopt;
    }
    return std::nullopt;
}

std::string XmlList::childText(std::size_t record, std::string_view tag) const {
    const std::optional<Range> range = child(record, tag);
    return range ? std::string(m_text.substr(range->begin, range->end - range->begin)) : std::string();
}
