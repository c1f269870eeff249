// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/HostText.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>

#include "framework/datamodel_api/CrossPlatformApi.h"

namespace {

// What the bytes 0x80 to 0x9F stand for in Windows-1252; the bytes that it
// leaves open stand for the control character of their number.
constexpr char16_t kHighControls[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
static_assert(std::size(kHighControls) == 0x20);

char32_t hostCharacter(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? kHighControls[byte - 0x80] : char32_t{byte};
}

std::optional<char> hostByte(char32_t character) {
    if (character >= 0xA0 && character <= 0xFF)
        return static_cast<char>(character);
    const auto* found = std::find(std::begin(kHighControls), std::end(kHighControls), character);
    if (found == std::end(kHighControls))
        return std::nullopt;
    return static_cast<char>(0x80 + (found - std::begin(kHighControls)));
}

std::optional<char> latin1Byte(char32_t character) {
    return character <= 0xFF ? std::optional(static_cast<char>(character)) : std::nullopt;
}

/// How many bytes at the start of `text` are ASCII.
std::size_t asciiRun(std::string_view text) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::size_t run = 0;
    for (std::uint64_t word = 0; run + sizeof word <= text.size(); run += sizeof word) {
        std::memcpy(&word, text.data() + run, sizeof word);
        if ((word & kHighBits) != 0)
            break;
    }
    while (run < text.size() && static_cast<unsigned char>(text[run]) < 0x80)
        ++run;
    return run;
}

void appendCharacter(std::string& out, char32_t character) {
    if (character < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (character >> 6)));
    } else {
        out.push_back(static_cast<char>(0xE0 | (character >> 12)));
        out.push_back(static_cast<char>(0x80 | ((character >> 6) & 0x3F)));
    }
    out.push_back(static_cast<char>(0x80 | (character & 0x3F)));
}

struct Decoded {
    char32_t character;
    std::size_t length; // in bytes; 0: no valid UTF-8
};

struct Lead {
    unsigned char mask;
    unsigned char bits;
    std::size_t length;
    char32_t least; // a smaller character has a shorter form, which is the only valid one
};

constexpr Lead kLeads[] = {
    {0xE0, 0xC0, 2, 0x80},
    {0xF0, 0xE0, 3, 0x800},
    {0xF8, 0xF0, 4, 0x10000},
};

/// The character that `text` starts with, which is none of ASCII.
Decoded decodeFirst(std::string_view text) {
    constexpr Decoded kInvalid{0, 0};
    const auto first = static_cast<unsigned char>(text[0]);
    const auto* lead =
        std::find_if(std::begin(kLeads), std::end(kLeads), [first](Lead l) { return (first & l.mask) == l.bits; });
    if (lead == std::end(kLeads) || text.size() < lead->length)
        return kInvalid;
    char32_t character = first & static_cast<unsigned char>(~lead->mask);
    for (std::size_t i = 1; i < lead->length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0) != 0x80)
            return kInvalid;
        character = (character << 6) | (byte & 0x3F);
    }
    // Surrogates and what lies above the last character need no test: they have
    // no byte, which refuses them as well.
    if (character < lead->least)
        return kInvalid;
    return {character, lead->length};
}

template <typename ToByte>
std::optional<std::string> decodeAll(std::string_view utf8, ToByte toByte) {
    std::string bytes;
    bytes.reserve(utf8.size());
    while (true) {
        const std::size_t run = asciiRun(utf8);
        bytes.append(utf8.substr(0, run));
        utf8.remove_prefix(run);
        if (utf8.empty())
            return bytes;
        const Decoded decoded = decodeFirst(utf8);
        if (decoded.length == 0)
            return std::nullopt;
        const std::optional<char> byte = toByte(decoded.character);
        if (!byte)
            return std::nullopt;
        bytes.push_back(*byte);
        utf8.remove_prefix(decoded.length);
    }
}

} // namespace

namespace HostText {

void appendUtf8(std::string& out, std::string_view hostText) {
    while (true) {
        const std::size_t run = asciiRun(hostText);
        out.append(hostText.substr(0, run));
        hostText.remove_prefix(run);
        if (hostText.empty())
            return;
        appendCharacter(out, hostCharacter(static_cast<unsigned char>(hostText[0])));
        hostText.remove_prefix(1);
    }
}

std::string toUtf8(std::string_view hostText) {
    std::string utf8;
    utf8.reserve(hostText.size());
    appendUtf8(utf8, hostText);
    return utf8;
}

std::optional<std::string> fromUtf8(std::string_view utf8) { return decodeAll(utf8, hostByte); }

std::string latin1ToUtf8(std::string_view latin1) { return CrossPlatformApi::fileSystemEncoding(std::string(latin1)); }

std::optional<std::string> utf8ToLatin1(std::string_view utf8) { return decodeAll(utf8, latin1Byte); }

} // namespace HostText
