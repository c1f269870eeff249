// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace MarkdownText {

/// `text` so that it is nothing but text: in a paragraph, an item of a list and
/// a cell of a table.
std::string escaped(std::string_view text);

} // namespace MarkdownText
