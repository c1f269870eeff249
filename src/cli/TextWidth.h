// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// How many columns of a terminal a text takes. Does not ask the locale.
namespace TextWidth {

/// Of printable UTF-8 (see SafeText).
std::size_t of(std::string_view text);

/// `text` cut to at most `width` columns; a cut is shown by an ellipsis.
std::string fitted(std::string_view text, std::size_t width);

} // namespace TextWidth
