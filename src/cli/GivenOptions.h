// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/Options.h"

namespace GivenOptions {

/// The options that say what is imported and how, as they were written; not
/// those that say where to, or how to tell of it.
std::string text(const Options& options);

} // namespace GivenOptions
