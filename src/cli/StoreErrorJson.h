// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/JsonText.h"
#include "store/StoreError.h"

namespace StoreErrorJson {

/// `{"code":"store-busy","text":"…"}`, which stands as "error" in a document.
inline Json of(const StoreError& error) { return {{"code", error.codeText()}, {"text", error.what()}}; }

} // namespace StoreErrorJson
