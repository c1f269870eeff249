// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

/// JSON whose objects keep the order in which they were filled.
using Json = nlohmann::ordered_json;

namespace JsonText {

/// On one line, UTF-8. What could steer a terminal is escaped like any other
/// control character, and bytes that are no UTF-8 become U+FFFD.
std::string of(const Json& json);

} // namespace JsonText
