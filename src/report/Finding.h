// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>

/// Something that was said about a file. Texts are printable UTF-8.
struct Finding {
    enum class Kind { error, warning, note };

    Kind kind = Kind::note;
    std::optional<std::size_t> line; ///< from 1; none where the file is meant
    std::string code;
    std::string text;
    std::string hint; ///< what to do; may be empty
};
