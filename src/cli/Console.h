// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Message.h"
#include "cli/Options.h"

class StoreError;

/// Where a command's words go: results to standard output, messages to standard
/// error, coloured and fitted to the width where that is a terminal.
class Console {
public:
    /// Throws UsageError for a `--color` that is none.
    explicit Console(const Options& options);

    bool json() const { return m_json; }
    bool quiet() const { return m_quiet; }
    /// Whether somebody sees a progress bar on standard error.
    bool showsProgress() const { return m_showsProgress; }
    /// Columns of the terminal that standard output is; 0 where it is none.
    std::size_t width() const { return m_width; }
    bool colorsOutput() const { return m_colorsOutput; }

    /// A piece of the result. What comes from files must be made printable before.
    void write(std::string_view text);
    /// A line for people, left out with --quiet and with --json.
    void summary(std::string_view line);

    /// Tells of a file's problems, one after the other; equal ones of successive
    /// lines together. `file` is the shell's bytes.
    void report(std::string_view file, const std::vector<Message>& messages);
    void report(const StoreError& error);
    void reportUsage(std::string_view text);

    /// Whether all that was written has arrived; tells if not.
    bool finish();

private:
    void complain(std::string_view text);

    bool m_json;
    bool m_quiet;
    bool m_colorsOutput = false;
    bool m_colorsMessages = false;
    bool m_showsProgress = false;
    bool m_failed = false;
    std::size_t m_width = 0;
};
