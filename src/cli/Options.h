// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

/// The command line as it was written: which options were given, not yet what
/// they mean. Texts are the shell's bytes.
struct Options {
    std::vector<std::string> operands; ///< files, or what else the command takes

    std::optional<std::string> store;
    std::optional<std::string> columns;
    std::optional<std::string> delimiter;
    std::optional<std::string> encoding;
    std::optional<std::string> dateOrder;
    std::optional<std::string> decimal;
    std::optional<std::string> format;
    std::optional<std::string> info;
    std::optional<std::string> limit;
    std::optional<std::string> profile;
    std::optional<std::string> saveProfile;
    std::optional<std::string> report;
    std::optional<std::string> color;
    std::optional<std::string> to;
    std::optional<std::string> session;
    std::optional<std::string> since;
    std::optional<std::string> until;
    std::optional<std::string> account;

    bool unassigned = false;
    bool header = false;
    bool noHeader = false;
    bool verbatim = false;
    bool allowUndated = false;
    bool keepPartial = false;
    bool again = false;
    bool newOnly = false;
    bool json = false;
    bool quiet = false;
};
