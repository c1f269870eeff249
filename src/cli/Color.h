// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// The few colours of the program.
enum class Color { bold, red, yellow, faint };

/// `text` in a colour where that is wanted, and as it is otherwise.
std::string colored(std::string_view text, Color color, bool wanted);
