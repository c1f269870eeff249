// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// The rules for amounts as one would tell them.
double plainAmount(const std::string& text);
