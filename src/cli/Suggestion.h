// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

/// Guesses what a misspelt word was meant to be.
namespace Suggestion {

/// The candidate that `word` is closest to; empty when none is close.
std::string closest(std::string_view word, std::span<const std::string> candidates);

/// ` Meinten Sie „…“?`, or the empty text when nothing is close.
std::string question(std::string_view word, std::span<const std::string> candidates);

} // namespace Suggestion
