// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

/// What the shell learns of a call.
enum class ExitStatus : int {
    done = 0,    ///< everything asked for was done
    refused = 1, ///< a file was refused, or records of it were
    usage = 2,   ///< the command line is wrong
    store = 3,   ///< the store cannot be used; nothing was written
};
