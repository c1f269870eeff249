// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// The number of an import session as it stands on the command line. Throws UsageError.
int sessionNumber(const std::string& text);
