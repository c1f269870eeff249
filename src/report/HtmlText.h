// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace HtmlText {

/// `text` so that it is nothing but text, inside an element as well as inside
/// the quotes of an attribute.
void appendEscaped(std::string& out, std::string_view text);
std::string escaped(std::string_view text);

} // namespace HtmlText
