// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "cli/ProblemTexts.h"

/// One problem of one file, as the person and the machine are told of it.
struct Message {
    std::string code; ///< stable, for scripts
    Severity severity = Severity::error;
    std::optional<std::size_t> line; ///< physical line from 1; none where the whole file is meant
    std::string text;                ///< German, UTF-8, complete but for the hint
    std::string hint;                ///< what to do; may be empty
    std::string excerpt;             ///< the line's bytes as UTF-8; may be empty
    std::size_t markFirst = 0;       ///< the bytes of the excerpt that are meant
    std::size_t markLength = 0;      ///< 0: none in particular

    /// `arguments` fill the problem's text in order.
    static Message of(Problem problem, std::initializer_list<std::string_view> arguments,
                      std::optional<std::size_t> line = std::nullopt);

    /// Whether something that was asked for was not done.
    bool isError() const { return severity == Severity::error; }
    /// The text with the hint.
    std::string fullText() const;
};
