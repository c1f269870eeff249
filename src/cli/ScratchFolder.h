// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// A folder for the user alone that lives as long as this object; what was put
/// into it goes with it, also when the program is told to end by a signal. What a
/// killed program left, the next one removes (LeftScratch).
/// There is at most one at a time in a process.
///
/// Its path is always Latin-1 that the library can be given.
class ScratchFolder {
public:
    /// Creates it in the folder that TMPDIR names, else in /tmp. Throws
    /// std::system_error.
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::string& path() const { return m_path; }
    /// The folder in which it lies.
    static std::string parent();

    /// The path for one more entry, which is removed in the end; `name` without
    /// a slash. At most eight.
    std::string entry(std::string_view name);

private:
    std::string m_path;
    int m_hold = -1; ///< keeps others from removing it
};
