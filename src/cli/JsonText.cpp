// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/JsonText.h"

#include <algorithm>
#include <cstdio>

#include "cli/SafeText.h"
#include "cli/Utf8.h"

namespace {

/// The serializer escapes ASCII control characters and nothing else.
bool mayNeedEscape(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x7F; });
}

void appendEscaped(std::string& out, char32_t code) {
    char text[16];
    if (code >= 0x10000) {
        code -= 0x10000;
        std::snprintf(text, sizeof text, "\\u%04x\\u%04x", static_cast<unsigned>(0xD800 + (code >> 10)),
                      static_cast<unsigned>(0xDC00 + (code & 0x3FF)));
    } else {
        std::snprintf(text, sizeof text, "\\u%04x", static_cast<unsigned>(code));
    }
    out += text;
}

} // namespace

std::string JsonText::of(const Json& json) {
    std::string dumped = json.dump(-1, ' ', false, Json::error_handler_t::replace);
    if (!mayNeedEscape(dumped))
        return dumped;
    // Outside of strings JSON is ASCII, so that whatever is escaped stands in one.
    std::string out;
    out.reserve(dumped.size());
    for (std::string_view rest = dumped; !rest.empty();) {
        const Utf8::Character character = Utf8::first(rest);
        if (SafeText::isHarmless(character.code))
            out.append(rest.substr(0, character.length));
        else
            appendEscaped(out, character.code);
        rest.remove_prefix(character.length);
    }
    return out;
}
