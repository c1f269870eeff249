// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "cli/Profile.h"

/// The profiles of the user: files `NAME.profil` in a folder of the
/// configuration directory.
namespace ProfileFolder {

/// Empty where the user has no configuration directory.
std::filesystem::path path();
std::filesystem::path pathOf(const std::string& name);

/// Names of all profiles, sorted.
std::vector<std::string> names();
/// Throws UsageError where there is none of that name, or it cannot be read.
Profile load(const std::string& name);
/// Replaces one of the same name, all or nothing. Throws UsageError.
void save(const Profile& profile);

/// Throws UsageError for what cannot be the name of a file.
void checkName(const std::string& option, const std::string& name);

} // namespace ProfileFolder
