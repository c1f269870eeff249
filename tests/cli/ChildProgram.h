// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// One run of a program, from its arguments to what it left behind.
struct ChildProgram {
    std::vector<std::string> arguments;                            ///< the program's path first
    std::map<std::string, std::optional<std::string>> environment; ///< beside ours; none: taken out
    std::string workingDirectory;
    std::string input;            ///< what standard input holds
    std::function<void()> before; ///< called in the child, right before the program starts
    int terminalColumns = 0;      ///< not 0: standard output and error are a terminal of that width

    struct Result {
        int status = -1; ///< exit status; 128 and the number when a signal ended it
        std::string output;
        std::string messages; ///< part of `output` on a terminal
    };

    /// Throws std::system_error when it cannot be started.
    Result run() const;
};
