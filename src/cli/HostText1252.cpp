// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/HostText1252.h"

#include <optional>

#include "cli/Utf8.h"
#include "datamodel/HostText.h"

namespace {

/// The letters from U+0100 to U+017F without their marks; a dot where one
/// letter does not do.
constexpr std::string_view kPlainLetters =
    "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIi..JjKkkLlLlLlLlLlNnNnNn.NnOoOoOo"
    "..RrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs";
constexpr char32_t kFirstLetter = 0x0100;
static_assert(kPlainLetters.size() == 0x80);

char plainLetter(char32_t code) {
    if (code < kFirstLetter || code >= kFirstLetter + kPlainLetters.size())
        return '?';
    const char letter = kPlainLetters[code - kFirstLetter];
    return letter == '.' ? '?' : letter;
}

constexpr bool isCombiningMark(char32_t code) { return code >= 0x0300 && code <= 0x036F; }

/// Some systems write "ä" as a letter and a mark. The mark joins its letter
/// where the code page has both in one, and is dropped elsewhere.
void joinMark(std::string& host, char32_t mark) {
    constexpr char32_t kDiaeresis = 0x0308;
    constexpr std::string_view kLetters = "aouAOU";
    constexpr std::string_view kUmlauts = "\xE4\xF6\xFC\xC4\xD6\xDC";
    const std::size_t letter = host.empty() ? std::string_view::npos : kLetters.find(host.back());
    if (mark == kDiaeresis && letter != std::string_view::npos)
        host.back() = kUmlauts[letter];
}

} // namespace

std::string HostText1252::transliterated(std::string_view text) {
    std::string host;
    while (!text.empty()) {
        const Utf8::Character character = Utf8::first(text);
        if (!character.valid)
            host += '?';
        else if (const std::optional<std::string> byte = HostText::fromUtf8(text.substr(0, character.length)))
            host += *byte;
        else if (isCombiningMark(character.code))
            joinMark(host, character.code);
        else
            host += plainLetter(character.code);
        text.remove_prefix(character.length);
    }
    return host;
}
