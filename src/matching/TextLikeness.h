// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Whether two texts may be two ways to write one thing.
namespace TextLikeness {

/// The share of pairs of neighbouring bytes that the texts have in common: 0 for
/// none, 1 for texts made of the same pairs. Order of words matters little.
double of(std::string_view a, std::string_view b);

/// Whether one is empty, lies whole in the other, or is much like it.
bool isLikely(std::string_view a, std::string_view b);

} // namespace TextLikeness
