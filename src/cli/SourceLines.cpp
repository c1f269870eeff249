// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/SourceLines.h"

#include <utility>

#include "cli/SafeText.h"
#include "cli/Utf8.h"
#include "datamodel/HostText.h"
#include "intake/HostTextReader.h"

namespace {

constexpr std::size_t kMostText = 4094; // bytes
constexpr std::string_view kBom = "\xEF\xBB\xBF";

bool isUtf16(const IntakeResult* intake) {
    return intake != nullptr && (intake->encoding == Encoding::utf16le || intake->encoding == Encoding::utf16be);
}

/// Bytes of which each line can be shown by itself.
std::string showable(std::string bytes, const IntakeResult* intake) {
    return isUtf16(intake) ? HostTextReader::read(bytes, intake->encoding).text : std::move(bytes);
}

PhysicalLines linesOf(std::string_view bytes, const IntakeResult* intake) {
    // The library knows line feeds only, so that without one a file is one line.
    if (intake == nullptr && bytes.find('\n') == std::string_view::npos)
        return {{bytes}, LineEnds::none, false};
    return LineSplitting::split(bytes);
}

/// At most so many bytes, and no torn character at the end.
std::string_view beginning(std::string_view bytes) {
    if (bytes.size() <= kMostText)
        return bytes;
    std::size_t size = kMostText;
    while (size > kMostText - 4 && (static_cast<unsigned char>(bytes[size]) & 0xC0U) == 0x80U)
        --size;
    return bytes.substr(0, size);
}

bool endsRecord(std::string_view line) { return line.starts_with('^') || line.starts_with('!'); }

} // namespace

SourceLines::SourceLines(std::string bytes, const IntakeResult* intake)
    : m_bytes(showable(std::move(bytes), intake)), m_lines(linesOf(m_bytes, intake)) {
    if (!m_lines.lines.empty() && m_lines.lines.front().starts_with(kBom))
        m_lines.lines.front().remove_prefix(kBom.size());
}

std::string SourceLines::shown(std::string_view bytes) const {
    const std::string_view part = beginning(bytes);
    const std::string text = SafeText::printable(Utf8::isValid(part) ? std::string(part) : HostText::toUtf8(part));
    return part.size() == bytes.size() ? text : text + "…";
}

std::string SourceLines::text(std::size_t number) const {
    return number == 0 || number > count() ? std::string() : shown(line(number));
}

std::string SourceLines::record(std::size_t number) const {
    if (number == 0 || number > count())
        return {};
    std::size_t first = number;
    while (first > 1 && !endsRecord(line(first - 1)))
        --first;
    std::size_t last = number;
    while (last < count() && !endsRecord(line(last)))
        ++last;
    if (last > number && line(last).starts_with('!'))
        --last; // the record was never ended
    std::string bytes;
    for (std::size_t at = first; at <= last && bytes.size() <= kMostText; ++at)
        (bytes += at == first ? "" : "\n") += line(at);
    return shown(bytes);
}
