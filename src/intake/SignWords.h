// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "intake/Money.h"

namespace SignWords {

/// What a cell beside the amount says about its sign: "S", "Soll", "debit",
/// "Ausgang" for minus; "H", "Haben", "credit", "Eingang" for plus.
std::optional<AmountCell::Sign> read(std::string_view cell);

} // namespace SignWords
