// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/FileCensus.h"
#include "cli/FormatTable.h"
#include "cli/LibraryRun.h"
#include "cli/Message.h"
#include "intake/Intake.h"

/// How one file will be read: what the library is asked, what its lines are,
/// and what is to be said of it before.
struct ReadingPlan {
    const FormatTraits* traits = nullptr; ///< not null once the plan is made
    RunRequest request;
    FileCensus census; ///< of what the library reads
    /// An error among them means that the file is not to be imported.
    std::vector<Message> messages;
    /// Whether the library may be called: it can come to no harm, and has at
    /// least words of its own.
    bool mayBeAsked = false;
    /// What was found in the file, unless it is read as it is; `prepared.text`
    /// is left out.
    std::optional<IntakeResult> intake;
    std::optional<std::string> profile; ///< the name of the one that was used
};
