// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/Message.h"

Message Message::of(Problem problem, std::initializer_list<std::string_view> arguments,
                    std::optional<std::size_t> line) {
    const ProblemTexts& texts = ProblemTexts::of(problem);
    Message message;
    message.code = texts.code;
    message.severity = texts.severity;
    message.line = line;
    message.text = ProblemTexts::filled(texts.text, arguments);
    message.hint = texts.hint;
    return message;
}

std::string Message::fullText() const { return hint.empty() ? text : text + " " + hint; }
