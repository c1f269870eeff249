// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

/// Where the user's own things lie, after the conventions of the desktop
/// (XDG_DATA_HOME, XDG_CONFIG_HOME, else below HOME). Empty where nothing says so.
namespace UserFolder {

std::filesystem::path data();
std::filesystem::path config();

/// Makes the folder and those above it, for the user alone. What goes wrong
/// here, whoever writes into the folder will see.
void make(const std::filesystem::path& path);

} // namespace UserFolder
