// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

/// A wrong command line. `what()` is the German text for the person, UTF-8; it
/// says what to write instead.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};
