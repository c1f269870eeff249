// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "cli/Problem.h"

enum class Severity {
    error,   ///< something asked for was not done
    warning, ///< it was done, and there is something to know
    note,    ///< what was done, for who wants to know it exactly
};

/// One entry of the list of all problems.
struct ProblemTexts {
    Problem problem;
    const char* code; ///< stable, for scripts
    Severity severity;
    const char* text; ///< German, UTF-8; each "{}" stands for an argument of the occasion
    const char* hint; ///< what to do; may be empty

    static const ProblemTexts& of(Problem problem);

    /// `pattern` with each "{}" replaced by the next argument.
    static std::string filled(std::string_view pattern, std::initializer_list<std::string_view> arguments);
};
