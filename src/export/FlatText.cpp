// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "export/FlatText.h"

#include "datamodel/HostText.h"
#include "export/HostControls.h"

namespace {

constexpr char kNoBreakSpace = '\xA0';
constexpr std::string_view kBlanks = " \t\r\n\xA0";

char replaced(char c, const FlatText::Rules& rules) {
    if (const std::size_t at = rules.from.find(c); at != std::string_view::npos)
        return rules.to[at];
    return rules.collapsesBlanks && (HostControls::isControl(c) || c == kNoBreakSpace) ? ' ' : c;
}

} // namespace

bool FlatText::append(std::string& out, std::string_view text, const Rules& rules) {
    std::string flat;
    flat.reserve(text.size());
    for (const char c : text) {
        const char written = replaced(c, rules);
        if (rules.collapsesBlanks && written == ' ' && !flat.empty() && flat.back() == ' ')
            continue;
        flat += written;
    }
    const std::size_t first = flat.find_first_not_of(kBlanks);
    flat = first == std::string::npos ? std::string() : flat.substr(first, flat.find_last_not_of(kBlanks) + 1 - first);
    HostText::appendUtf8(out, flat);
    return flat != text;
}
