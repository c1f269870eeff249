// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/HostTextReader.h"

#include <algorithm>
#include <cstring>

#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include "intake/Transliteration.h"
#include "intake/Windows1252.h"

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LittleMark = "\xFF\xFE";
constexpr std::string_view kUtf16BigMark = "\xFE\xFF";

/// Collects characters as host bytes and keeps count of lines and of what had no place.
class HostTextWriter {
public:
    explicit HostTextWriter(HostFileText& out) : m_out(out) {}

    void ascii(std::string_view run) { m_out.text += run; }

    void character(char32_t c) {
        if (const auto byte = Windows1252::byteOf(c)) {
            m_out.text += *byte;
            return;
        }
        auto [at, isNew] = m_out.substitutions.try_emplace(c);
        if (isNew) {
            at->second.replacement = Transliteration::toHostBytes(c);
            at->second.firstLine = line();
        }
        ++at->second.count;
        m_out.text += at->second.replacement;
    }

    void broken() {
        if (m_out.brokenLine == 0)
            m_out.brokenLine = line();
        m_out.text += '?';
    }

private:
    /// Only what is reported needs a line number.
    int line() {
        const auto from = m_out.text.begin() + static_cast<std::ptrdiff_t>(m_counted);
        m_line += static_cast<int>(std::count(from, m_out.text.end(), '\n'));
        m_counted = m_out.text.size();
        return m_line;
    }

    HostFileText& m_out;
    int m_line = 1;
    std::size_t m_counted = 0; ///< bytes of the text that `m_line` accounts for
};

std::size_t asciiRun(std::string_view bytes, std::size_t from) {
    std::size_t at = from;
    for (; at + 8 <= bytes.size(); at += 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes.data() + at, sizeof word);
        if ((word & 0x8080808080808080U) != 0)
            break;
    }
    while (at < bytes.size() && static_cast<unsigned char>(bytes[at]) < 0x80)
        ++at;
    return at - from;
}

bool isValidUtf8(std::string_view bytes) {
    const auto* text = reinterpret_cast<const std::uint8_t*>(bytes.data());
    const auto size = static_cast<std::int64_t>(bytes.size());
    std::int64_t at = 0;
    while (at < size) {
        at += static_cast<std::int64_t>(asciiRun(bytes, static_cast<std::size_t>(at)));
        if (at == size)
            break;
        UChar32 c = 0;
        U8_NEXT(text, at, size, c);
        if (c < 0)
            return false;
    }
    return true;
}

// NOLINTNEXTLINE(readability-function-cognitive-complexity): the branches are those of the macro
void readUtf8(std::string_view bytes, HostTextWriter& out) {
    const auto* text = reinterpret_cast<const std::uint8_t*>(bytes.data());
    const auto size = static_cast<std::int64_t>(bytes.size());
    std::int64_t at = 0;
    while (at < size) {
        const std::size_t run = asciiRun(bytes, static_cast<std::size_t>(at));
        if (run > 0) {
            out.ascii(bytes.substr(static_cast<std::size_t>(at), run));
            at += static_cast<std::int64_t>(run);
            continue;
        }
        UChar32 c = 0;
        U8_NEXT(text, at, size, c);
        if (c < 0)
            out.broken();
        else
            out.character(static_cast<char32_t>(c));
    }
}

void readUtf16(std::string_view bytes, bool bigEndian, HostTextWriter& out) {
    const auto unit = [&](std::size_t index) {
        const auto first = static_cast<unsigned char>(bytes[2 * index]);
        const auto second = static_cast<unsigned char>(bytes[2 * index + 1]);
        return static_cast<char16_t>(bigEndian ? first << 8U | second : second << 8U | first);
    };
    const std::size_t units = bytes.size() / 2;
    for (std::size_t i = 0; i < units; ++i) {
        const char16_t lead = unit(i);
        if (!U16_IS_SURROGATE(lead)) {
            out.character(lead);
        } else if (U16_IS_SURROGATE_LEAD(lead) && i + 1 < units && U16_IS_TRAIL(unit(i + 1))) {
            out.character(static_cast<char32_t>(U16_GET_SUPPLEMENTARY(lead, unit(i + 1))));
            ++i;
        } else {
            out.broken();
        }
    }
    if (bytes.size() % 2 != 0)
        out.broken();
}

/// UTF-16 without a mark: text of Latin letters has a zero byte in every
/// second place, always on the same side.
std::optional<Encoding> utf16ByZeroBytes(std::string_view bytes) {
    constexpr std::size_t kSample = 4096;
    const std::size_t size = std::min(bytes.size(), kSample) / 2 * 2;
    if (size < 4)
        return std::nullopt;
    std::size_t evenZeros = 0;
    std::size_t oddZeros = 0;
    for (std::size_t i = 0; i < size; i += 2) {
        evenZeros += bytes[i] == '\0' ? 1U : 0U;
        oddZeros += bytes[i + 1] == '\0' ? 1U : 0U;
    }
    const std::size_t units = size / 2;
    if (oddZeros * 10 >= units * 7 && evenZeros * 20 < units)
        return Encoding::utf16le;
    if (evenZeros * 10 >= units * 7 && oddZeros * 20 < units)
        return Encoding::utf16be;
    return std::nullopt;
}

bool usesWindowsCharacters(std::string_view bytes) {
    return std::any_of(bytes.begin(), bytes.end(), [](char c) {
        const auto code = static_cast<unsigned char>(c);
        return code >= 0x80 && code < 0xA0;
    });
}

} // namespace

namespace HostTextReader {

Encoding detect(std::string_view bytes) {
    if (bytes.starts_with(kUtf8Mark))
        return Encoding::utf8;
    if (bytes.starts_with(kUtf16LittleMark))
        return Encoding::utf16le;
    if (bytes.starts_with(kUtf16BigMark))
        return Encoding::utf16be;
    if (const auto wide = utf16ByZeroBytes(bytes))
        return *wide;
    if (asciiRun(bytes, 0) == bytes.size())
        return Encoding::ascii;
    if (isValidUtf8(bytes))
        return Encoding::utf8;
    return usesWindowsCharacters(bytes) ? Encoding::windows1252 : Encoding::latin1;
}

HostFileText read(std::string_view bytes, std::optional<Encoding> forced) {
    HostFileText result;
    result.encoding = forced.value_or(detect(bytes));
    const auto skipMark = [&](std::string_view mark, Encoding encoding) {
        if (!bytes.starts_with(mark))
            return;
        bytes.remove_prefix(mark.size());
        result.bom = true;
        result.encoding = encoding;
    };
    if (result.encoding == Encoding::utf8) {
        skipMark(kUtf8Mark, Encoding::utf8);
    } else if (result.encoding == Encoding::utf16le || result.encoding == Encoding::utf16be) {
        skipMark(kUtf16LittleMark, Encoding::utf16le);
        skipMark(kUtf16BigMark, Encoding::utf16be);
    }

    HostTextWriter out(result);
    switch (result.encoding) {
    case Encoding::utf16le:
    case Encoding::utf16be:
        result.text.reserve(bytes.size() / 2);
        readUtf16(bytes, result.encoding == Encoding::utf16be, out);
        break;
    case Encoding::utf8:
        result.text.reserve(bytes.size());
        readUtf8(bytes, out);
        break;
    case Encoding::ascii:
    case Encoding::latin1:
    case Encoding::windows1252:
        result.text = bytes; // the host's own encoding, or a part of it
        break;
    }
    result.zeroBytes = result.text.find('\0') != std::string::npos;
    if (result.zeroBytes)
        std::replace(result.text.begin(), result.text.end(), '\0', ' ');
    return result;
}

} // namespace HostTextReader
