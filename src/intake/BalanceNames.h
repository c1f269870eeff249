// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "intake/RecordTable.h"

/// Which balance of the account a text names.
enum class BalanceName { opening, closing, any };

namespace BalanceNames {

/// A text that names a balance and nothing else: "Anfangssaldo", "Kontostand
/// am 31.01.2024:", "BALANCE BROUGHT FORWARD".
std::optional<BalanceName> read(std::string_view cell);

/// Whether a field of the record speaks of a balance or a total, whatever
/// stands behind the word.
bool mentionedIn(const RecordTable& table, std::size_t record);

} // namespace BalanceNames
