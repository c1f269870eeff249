// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// What the system says to a call that failed, in German, UTF-8: "die Rechte
/// erlauben es nicht". `number` as in errno; an unusual one is named by its number.
std::string systemText(int number);
