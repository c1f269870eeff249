// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "store/StoreError.h"

/// The error that `action` throws; a failure of the test when it throws none.
template <typename Action>
std::optional<StoreError> storeErrorOf(Action&& action) {
    try {
        action();
    } catch (const StoreError& error) {
        return error;
    }
    ADD_FAILURE() << "no StoreError was thrown";
    return std::nullopt;
}

/// Its stable code, "none" without one.
template <typename Action>
std::string storeErrorCodeOf(Action&& action) {
    const auto error = storeErrorOf(std::forward<Action>(action));
    return error ? error->codeText() : "none";
}
