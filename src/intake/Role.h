// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

/// What a column of a bank's file can be for.
enum class Role {
    date,
    amount,
    debit,
    credit,
    sign,
    counterparty,
    recipient,
    payer,
    purpose,
    postingText,
    category,
    subcategory,
    balance,
    status,
    currency,
    net,
    gross,
    fee,
    tax,
    ignore
};

constexpr std::size_t kRoleCount = static_cast<std::size_t>(Role::ignore) + 1;

namespace Roles {

/// The role's name in the table of column names.
std::optional<Role> parse(std::string_view name);

} // namespace Roles
