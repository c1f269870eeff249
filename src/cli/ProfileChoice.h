// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/Message.h"
#include "cli/Profile.h"

/// The profile that goes with a file.
struct ProfileChoice {
    std::optional<Profile> profile;
    std::optional<Message> message; ///< that it fits no longer, or was found

    /// The one that `name` names, or else the one of the user's whose column
    /// names are those of the file. Throws UsageError where a named one is not there.
    static ProfileChoice of(const std::optional<std::string>& name, const std::vector<std::string>& header);
};
