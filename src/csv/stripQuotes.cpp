// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/stripQuotes.h"

#include "framework/AssertTypeSizes.h"

std::string_view withoutQuotes(std::string_view text) {
    if (text == "\"")
        return {};
    if (text.size() >= 2 && text.front() == '"' && text.back() == '"')
        text = text.substr(1, text.size() - 2);
    return text;
}

std::string stripQuotes(const char* text) { return std::string(withoutQuotes(text)); }
