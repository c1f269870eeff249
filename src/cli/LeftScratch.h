// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

/// Temporary folders that a killed program left behind.
namespace LeftScratch {

/// How the folders are called, before what mkdtemp adds.
inline constexpr const char* kPrefix = "dmimport-";

/// Removes those of this user that nobody holds any more. Nothing is said of
/// what cannot be removed: it is somebody's, or will be met again.
void removeAll();

/// Marks a folder as in use for as long as the process lives or until the
/// returned descriptor is closed. -1 when it is gone: somebody took it for left behind.
int hold(const char* folder);

} // namespace LeftScratch
