// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <dlfcn.h>

/// The function that the program would call if it did not have one of that name itself. `name` is as linkers know it.
template <typename Function>
Function nextFunction(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}
