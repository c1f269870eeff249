// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/stripQuotes.h"

#include <string_view>

#include "framework/AssertTypeSizes.h"

std::string stripQuotes(const char* text) {
    std::string_view view(text);
    if (view == "\"")
        return {};
    if (view.size() >= 2 && view.front() == '"' && view.back() == '"')
        view = view.substr(1, view.size() - 2);
    return std::string(view);
}
