// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/Color.h"

#include <cstddef>

namespace {
constexpr const char* kStart[] = {"\033[1m", "\033[31m", "\033[33m", "\033[2m"};
constexpr const char* kEnd = "\033[0m";
} // namespace

std::string colored(std::string_view text, Color color, bool wanted) {
    if (!wanted || text.empty())
        return std::string(text);
    return kStart[static_cast<std::size_t>(color)] + std::string(text) + kEnd;
}
