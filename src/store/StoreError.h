// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

#include "store/StoreErrorCode.h"

/// A store that cannot be used. `what()` is the whole German text for a person,
/// UTF-8: what happened, to which file, what to do.
class StoreError : public std::runtime_error {
public:
    /// `path` as the person wrote it; `detail` is what the code's text asks for.
    StoreError(StoreErrorCode code, const std::filesystem::path& path, const std::string& detail = {});

    StoreErrorCode code() const { return m_code; }
    /// The stable name of the code, for scripts ("store-busy").
    const char* codeText() const;

private:
    StoreErrorCode m_code;
};
