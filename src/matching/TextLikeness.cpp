// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "matching/TextLikeness.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

// Texts of bookings are at most a few hundred bytes; what lies behind tells no more.
constexpr std::size_t kEnough = 400;
constexpr double kMuch = 0.6;
constexpr std::size_t kTelling = 4; // a shorter text lies in any other by chance

std::vector<std::uint16_t> pairsOf(std::string_view text) {
    text = text.substr(0, kEnough);
    std::vector<std::uint16_t> pairs;
    pairs.reserve(text.size());
    for (std::size_t i = 1; i < text.size(); ++i)
        pairs.push_back(static_cast<std::uint16_t>((static_cast<unsigned char>(text[i - 1]) << 8U) |
                                                   static_cast<unsigned char>(text[i])));
    std::sort(pairs.begin(), pairs.end());
    return pairs;
}

bool contains(std::string_view whole, std::string_view part) {
    return part.size() >= kTelling && whole.find(part) != std::string_view::npos;
}

} // namespace

namespace TextLikeness {

double of(std::string_view a, std::string_view b) {
    if (a == b)
        return 1.0;
    const std::vector<std::uint16_t> left = pairsOf(a);
    const std::vector<std::uint16_t> right = pairsOf(b);
    if (left.empty() || right.empty())
        return 0.0;
    std::size_t common = 0;
    for (auto l = left.begin(), r = right.begin(); l != left.end() && r != right.end();) {
        if (*l == *r) {
            ++common;
            ++l;
            ++r;
        } else if (*l < *r) {
            ++l;
        } else {
            ++r;
        }
    }
    return 2.0 * static_cast<double>(common) / static_cast<double>(left.size() + right.size());
}

bool isLikely(std::string_view a, std::string_view b) {
    return a.empty() || b.empty() || contains(a, b) || contains(b, a) || of(a, b) >= kMuch;
}

} // namespace TextLikeness
