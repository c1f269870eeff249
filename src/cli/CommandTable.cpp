// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/CommandTable.h"

#include "cli/commands/Commands.h"

namespace {

const Command* const kCommands[] = {
    &kFormatsCommand,  &kInspectCommand, &kPreviewCommand, &kImportCommand, &kAccountsCommand,
    &kBookingsCommand, &kShowCommand,    &kUndoCommand,    &kExportCommand, &kProfilesCommand,
};

} // namespace

std::span<const Command* const> CommandTable::all() { return kCommands; }
