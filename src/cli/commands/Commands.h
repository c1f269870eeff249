// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Command.h"

extern const Command kFormatsCommand;
extern const Command kInspectCommand;
extern const Command kPreviewCommand;
extern const Command kImportCommand;
extern const Command kAccountsCommand;
extern const Command kBookingsCommand;
extern const Command kShowCommand;
extern const Command kUndoCommand;
extern const Command kExportCommand;
extern const Command kProfilesCommand;
