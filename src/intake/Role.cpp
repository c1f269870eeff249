// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/Role.h"

#include <array>

namespace {

// Indexed by Role.
constexpr std::array<std::string_view, kRoleCount> kNames = {
    "date",     "amount",  "debit",        "credit",   "sign",        "counterparty", "recipient",
    "payer",    "purpose", "posting-text", "category", "subcategory", "balance",      "status",
    "currency", "net",     "gross",        "fee",      "tax",         "ignore",
};

} // namespace

namespace Roles {

std::optional<Role> parse(std::string_view name) {
    for (std::size_t i = 0; i < kNames.size(); ++i) {
        if (kNames[i] == name)
            return static_cast<Role>(i);
    }
    return std::nullopt;
}

} // namespace Roles
