// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreErrorCode.h"

/// The one list of all errors: stable code, what happened and what to do, in
/// German, UTF-8. "{path}" and "{detail}" stand for what the occasion adds.
struct StoreErrorTexts {
    StoreErrorCode code;
    const char* codeText;
    const char* message;
    const char* hint;

    static const StoreErrorTexts& of(StoreErrorCode code);
};
