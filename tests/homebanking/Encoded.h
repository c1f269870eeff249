// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

#include <unicode/ucnv.h>

/// A text in UTF-8 in another encoding. `name` is ICU's; "UTF-16" and "UTF-32" begin with a byte-order mark.
inline std::string encoded(const char* name, const std::string& text) {
    std::string bytes(8 * text.size() + 16, '\0');
    UErrorCode error = U_ZERO_ERROR;
    const int32_t size = ucnv_convert(name, "UTF-8", bytes.data(), static_cast<int32_t>(bytes.size()), text.data(),
                                      static_cast<int32_t>(text.size()), &error);
    if (U_FAILURE(error))
        throw std::runtime_error(u_errorName(error));
    bytes.resize(static_cast<std::size_t>(size));
    return bytes;
}
