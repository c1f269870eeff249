// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/RowLimit.h"

#include <charconv>
#include <limits>

#include "cli/UsageError.h"

std::size_t rowLimit(const std::optional<std::string>& option) {
    if (!option)
        return std::numeric_limits<std::size_t>::max();
    std::size_t limit = 0;
    const char* last = option->data() + option->size();
    const auto [end, error] = std::from_chars(option->data(), last, limit);
    if (option->empty() || error != std::errc() || end != last)
        throw UsageError("--limit: „" + *option + "“ ist keine Anzahl; schreiben Sie etwa --limit 20.");
    return limit;
}
