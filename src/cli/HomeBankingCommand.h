// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Console.h"
#include "cli/ExitStatus.h"
#include "cli/HomeBankingDocument.h"
#include "cli/Options.h"

/// What the commands for the two documents have in common: every file is
/// imported on its own, and reported. `--verbatim` has nothing to switch off
/// here: the library always gets a document as it is.
ExitStatus importHomeBanking(const HomeBankingDocument& document, const Options& options, Console& console);
