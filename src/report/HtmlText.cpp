// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "report/HtmlText.h"

namespace {

std::string_view entityOf(char character) {
    switch (character) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\'':
        return "&#39;";
    default:
        return {};
    }
}

} // namespace

namespace HtmlText {

void appendEscaped(std::string& out, std::string_view text) {
    for (const char character : text) {
        const std::string_view entity = entityOf(character);
        if (entity.empty())
            out += character;
        else
            out += entity;
    }
}

std::string escaped(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    appendEscaped(out, text);
    return out;
}

} // namespace HtmlText
