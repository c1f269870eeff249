// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>

/// The value of --limit; as many as there are where it is not given. Throws UsageError.
std::size_t rowLimit(const std::optional<std::string>& option);
