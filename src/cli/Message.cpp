// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/Message.h"

Message Message::of(Problem problem, std::initializer_list<std::string_view> arguments,
                    std::optional<std::size_t> line) {
    return {problem, line, ProblemTexts::filled(ProblemTexts::of(problem).text, arguments), {}, 0, 0};
}

std::string Message::fullText() const {
    const std::string_view hint = texts().hint;
    return hint.empty() ? text : text + " " + std::string(hint);
}
