// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "intake/Money.h"

/// What words say about the sign of an amount that has none.
namespace SignWords {

/// A mark beside the amount: "S", "Soll", "debit", "Ausgang" for minus; "H",
/// "Haben", "credit", "Eingang" for plus.
std::optional<AmountCell::Sign> read(std::string_view cell);

/// The kind of booking, where nothing else tells: "Lastschrift",
/// "Kartenzahlung" take money from the account, "Gutschrift", "Gehalt" bring
/// some. A transfer may be either and says nothing.
std::optional<AmountCell::Sign> ofKind(std::string_view cell);

} // namespace SignWords
