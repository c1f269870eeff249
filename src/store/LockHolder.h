// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

/// Who keeps a database file busy.
namespace LockHolder {

/// The program that holds a lock of SQLite's on `file`, as the German texts
/// name it ("dmimport (Prozess 4711)"); "einem anderen Programm" when the system does
/// not tell. Opens nothing but files of /proc: closing any descriptor of the
/// database would give up all locks that this process has on it.
std::string describe(const std::filesystem::path& file);

} // namespace LockHolder
