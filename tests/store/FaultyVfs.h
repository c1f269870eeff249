// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

/// The file system under SQLite, with a hand that may interfere before every
/// change to a file. While the object lives all new connections go through it.
class FaultyVfs {
public:
    /// A change about to be made: "write", "sync", "truncate", or "delete", and
    /// to which file.
    struct Operation {
        int number; // from 1
        std::string kind;
        std::string path;
    };
    /// Returns SQLITE_OK to let it happen, else the code of its failure. May
    /// also end the process.
    using Decide = std::function<int(const Operation&)>;

    explicit FaultyVfs(Decide decide);
    ~FaultyVfs();
    FaultyVfs(const FaultyVfs&) = delete;
    FaultyVfs& operator=(const FaultyVfs&) = delete;

    int operationCount() const;
};
