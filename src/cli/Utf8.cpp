// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/Utf8.h"

#include <iterator>

namespace {

struct Lead {
    unsigned char mask;
    unsigned char bits;
    std::size_t length;
    char32_t least; // a smaller character has a shorter form, which is the only valid one
};

constexpr Lead kLeads[] = {
    {0x80, 0x00, 1, 0},
    {0xE0, 0xC0, 2, 0x80},
    {0xF0, 0xE0, 3, 0x800},
    {0xF8, 0xF0, 4, 0x10000},
};

} // namespace

namespace Utf8 {

Character first(std::string_view text) {
    const auto byte = static_cast<unsigned char>(text[0]);
    const Character invalid{byte, 1, false};
    for (const Lead& lead : kLeads) {
        if ((byte & lead.mask) != lead.bits)
            continue;
        if (text.size() < lead.length)
            return invalid;
        char32_t code = byte & static_cast<unsigned char>(~lead.mask);
        for (std::size_t i = 1; i < lead.length; ++i) {
            const auto next = static_cast<unsigned char>(text[i]);
            if ((next & 0xC0) != 0x80)
                return invalid;
            code = (code << 6) | (next & 0x3FU);
        }
        const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
        return code < lead.least || code > 0x10FFFF || surrogate ? invalid : Character{code, lead.length, true};
    }
    return invalid;
}

bool isValid(std::string_view text) {
    while (!text.empty()) {
        const Character character = first(text);
        if (!character.valid)
            return false;
        text.remove_prefix(character.length);
    }
    return true;
}

void append(std::string& out, char32_t code) {
    if (code < 0x80) {
        out.push_back(static_cast<char>(code));
        return;
    }
    if (code < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (code >> 6)));
    } else if (code < 0x10000) {
        out.push_back(static_cast<char>(0xE0 | (code >> 12)));
        out.push_back(static_cast<char>(0x80 | ((code >> 6) & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xF0 | (code >> 18)));
        out.push_back(static_cast<char>(0x80 | ((code >> 12) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | ((code >> 6) & 0x3F)));
    }
    out.push_back(static_cast<char>(0x80 | (code & 0x3F)));
}

std::string shortened(std::string_view text, std::size_t count) {
    std::size_t end = 0;     // of what fits whole
    std::size_t lastEnd = 0; // of what fits beside an ellipsis
    for (std::size_t characters = 0; end < text.size(); ++characters) {
        if (characters == count)
            return std::string(text.substr(0, lastEnd)) + "…";
        lastEnd = end;
        end += first(text.substr(end)).length;
    }
    return std::string(text);
}

} // namespace Utf8
