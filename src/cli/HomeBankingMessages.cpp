// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/HomeBankingMessages.h"

#include <algorithm>
#include <string_view>

#include "cli/Utf8.h"
#include "cli/XmlLines.h"
#include "datamodel/HostText.h"

namespace {

constexpr std::size_t kMostId = 60; // characters of a text from the document in a message

/// Texts of the library that say all there is to know of a failure.
struct KnownText {
    std::string_view text;
    Problem problem;
};

constexpr KnownText kKnownTexts[] = {
    {"Unbekanntes Konto.", Problem::accountUnknown},
    {"Keine Konten vorhanden.", Problem::accountsMissing},
};

constexpr const char* kNumber = "ktonr";
constexpr const char* kBankCode = "blz";

const KnownText* knownText(const std::string& errorText) {
    const auto* known = std::find_if(std::begin(kKnownTexts), std::end(kKnownTexts),
                                     [&](const KnownText& entry) { return errorText == entry.text; });
    return known != std::end(kKnownTexts) ? known : nullptr;
}

bool lacksNumber(const XmlList& list) { return list.attribute(kNumber).empty() || list.attribute(kBankCode).empty(); }

/// A document's text for a person: as UTF-8 where it is that, else as Windows-1252.
std::string readable(std::string_view bytes) {
    return Utf8::isValid(bytes) ? std::string(bytes) : HostText::toUtf8(bytes);
}

std::string shortened(std::string_view text) { return Utf8::shortened(readable(text), kMostId); }

/// The library's text on one line.
std::string onOneLine(const std::string& text) {
    std::string line = text;
    for (std::size_t at = line.find("\r\n"); at != std::string::npos; at = line.find("\r\n", at))
        line.replace(at, 2, " ");
    return line;
}

/// "Buchung 2 (id „B-2“)", "Konto 3".
std::string recordName(const HomeBankingDocument& document, std::size_t number, std::string_view id) {
    const std::string name = document.record + (" " + std::to_string(number));
    return document.isAccountList ? name : name + " (id „" + shortened(id) + "“)";
}

std::string bookingName(const XmlList& list, std::size_t number, std::string_view id) {
    const std::string written = id.empty() ? list.childText(number, BookingElements::kId) : std::string();
    return recordName(HomeBankingDocument::bookingList(), number, id.empty() ? written : id);
}

std::string strangerName(const XmlList::Stranger& stranger) {
    using Kind = XmlList::Stranger::Kind;
    switch (stranger.kind) {
    case Kind::element:
        return "das Element „" + shortened(stranger.name) + "“";
    case Kind::text:
        return "ein Text";
    case Kind::comment:
        return "ein Kommentar";
    case Kind::instruction:
        break;
    }
    return "eine Verarbeitungsanweisung";
}

/// Shows the line in which the range begins, the range marked.
void addExcerpt(Message& message, const XmlText& text, const XmlList::Range& range) {
    if (!text.isAsWritten())
        return;
    const XmlList::Range line = XmlLines::around(text.view(), range.begin);
    const std::size_t end = std::clamp(range.end, range.begin, line.end);
    const std::string before = readable(text.view().substr(line.begin, range.begin - line.begin));
    const std::string marked = readable(text.view().substr(range.begin, end - range.begin));
    std::string after = readable(text.view().substr(end, line.end - end));
    if (after.ends_with('\r'))
        after.pop_back();
    const std::size_t indent = std::min(before.find_first_not_of(" \t"), before.size());
    message.excerpt = before.substr(indent) + marked + after;
    message.markFirst = before.size() - indent;
    message.markLength = marked.size();
}

} // namespace

namespace HomeBankingMessages {

bool isOfDocument(const std::string& errorText) { return !errorText.empty() && knownText(errorText) == nullptr; }

bool mayBeStranger(const XmlList& list, std::size_t imported, const std::string& errorText) {
    return errorText.empty() && list.stranger() && list.stranger()->recordsBefore == imported && !lacksNumber(list);
}

Message ofText(const std::string& errorText) {
    const std::string text = errorText.empty() ? "Die Bibliothek nennt keinen Grund." : onOneLine(errorText);
    return Message::of(Problem::documentRefused, {text});
}

Message ofFailure(const HomeBankingDocument& document, const XmlList& list, const std::string& errorText) {
    const KnownText* known = knownText(errorText);
    if (known != nullptr && !list.isOpaque())
        return Message::of(known->problem, {shortened(list.attribute(kNumber)), shortened(list.attribute(kBankCode))});
    if (errorText.empty() && !list.isOpaque() && !list.isFound())
        return Message::of(Problem::listMissing, {document.listTag});
    if (errorText.empty() && list.isFound() && !document.isAccountList && lacksNumber(list))
        return Message::of(Problem::accountNumberMissing, {});
    if (errorText.empty() && list.isFound()) // nothing is left but a failure inside, and those have no text
        return Message::of(Problem::unexpected,
                           {"Die Bibliothek brach ab; vermutlich reicht der Arbeitsspeicher nicht"});
    return ofText(errorText);
}

Message bookingRefused(const XmlList& list, const XmlText& text, std::size_t number, const std::string& id,
                       const std::string& field) {
    const std::string_view element = BookingElements::of(field);
    Message message = Message::of(Problem::bookingRefused, {bookingName(list, number, id), element});
    if (const std::optional<XmlList::Range> range = list.child(number, element)) {
        message.line = XmlLines::numberOf(text.view(), range->begin);
        addExcerpt(message, text, *range);
    }
    return message;
}

Message accountFull(const XmlList& list, const XmlText& text, std::size_t number) {
    Message message = Message::of(Problem::accountFull, {bookingName(list, number, {})});
    if (const std::optional<std::size_t> offset = list.recordOffset(number))
        message.line = XmlLines::numberOf(text.view(), *offset);
    return message;
}

Message listEnded(const HomeBankingDocument& document, const XmlList& list, const XmlText& text) {
    const XmlList::Stranger& stranger = *list.stranger();
    const std::size_t before = stranger.recordsBefore;
    const std::string place =
        before == 0 ? "Am Anfang der Liste"
                    : "Hinter " + recordName(document, before, list.childText(before, BookingElements::kId));
    return Message::of(Problem::listEnded, {place, strangerName(stranger)},
                       XmlLines::numberOf(text.view(), stranger.offset));
}

} // namespace HomeBankingMessages
