// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/Suggestion.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace {

constexpr std::size_t kLongestWord = 100;

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// How many letters to insert, drop, change or swap with their neighbour; the
/// case of letters is ignored.
std::size_t distance(std::string_view a, std::string_view b) {
    std::vector<std::vector<std::size_t>> table(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i) {
        for (std::size_t j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0) {
                table[i][j] = i + j;
                continue;
            }
            const bool same = lower(a[i - 1]) == lower(b[j - 1]);
            table[i][j] = std::min({table[i - 1][j] + 1, table[i][j - 1] + 1, table[i - 1][j - 1] + (same ? 0 : 1)});
            const bool swapped =
                i > 1 && j > 1 && lower(a[i - 1]) == lower(b[j - 2]) && lower(a[i - 2]) == lower(b[j - 1]);
            if (swapped)
                table[i][j] = std::min(table[i][j], table[i - 2][j - 2] + 1);
        }
    }
    return table[a.size()][b.size()];
}

} // namespace

namespace Suggestion {

std::string closest(std::string_view word, std::span<const std::string> candidates) {
    if (word.size() > kLongestWord)
        return {};
    std::string best;
    std::size_t bestDistance = std::max<std::size_t>(1, word.size() / 3) + 1; // what is farther is no guess any more
    for (const std::string& candidate : candidates) {
        const std::size_t found = distance(word, candidate);
        if (found < bestDistance) {
            best = candidate;
            bestDistance = found;
        }
    }
    return best;
}

std::string question(std::string_view word, std::span<const std::string> candidates) {
    const std::string found = closest(word, candidates);
    return found.empty() ? std::string() : " Meinten Sie „" + found + "“?";
}

} // namespace Suggestion
