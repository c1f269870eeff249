// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/SessionNumber.h"

#include <charconv>

#include "cli/UsageError.h"

int sessionNumber(const std::string& text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < 1)
        throw UsageError("„" + text + "“ ist keine Nummer einer Sitzung; „dmimport show sessions“ zeigt sie.");
    return number;
}
