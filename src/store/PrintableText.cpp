// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/PrintableText.h"

#include <algorithm>
#include <cstddef>

#include "datamodel/HostText.h"

namespace {

/// Length of the UTF-8 character that starts `text`, 0 when there is none.
/// Overlong forms and surrogates are none.
std::size_t characterLength(std::string_view text) {
    const auto at = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = at(0);
    if (lead < 0x80)
        return 1;
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length)
        return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if ((at(i) & 0xC0) != 0x80)
            return 0;
    }
    const bool overlong = (lead == 0xE0 && at(1) < 0xA0) || (lead == 0xF0 && at(1) < 0x90);
    const bool noCharacter = (lead == 0xED && at(1) > 0x9F) || (lead == 0xF4 && at(1) > 0x8F);
    return overlong || noCharacter ? 0 : length;
}

bool isControl(std::string_view character) {
    const auto lead = static_cast<unsigned char>(character[0]);
    return lead < 0x20 || lead == 0x7F || (lead == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0);
}

} // namespace

std::string PrintableText::of(std::string_view bytes) {
    std::string text;
    while (!bytes.empty()) {
        const std::size_t valid = characterLength(bytes);
        const std::size_t taken = std::max<std::size_t>(valid, 1);
        const std::string character =
            valid != 0 ? std::string(bytes.substr(0, taken)) : HostText::latin1ToUtf8(bytes.substr(0, taken));
        text += isControl(character) ? "?" : character;
        bytes.remove_prefix(taken);
    }
    return text;
}
