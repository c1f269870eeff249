// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/ImportModuleApi.h"

/// The fields of one line of unknown layout, in file order: pointers into the
/// split line, null behind the last field. Owns nothing.
/// Exported, or the templates over it would not be.
struct IMPORT_MODULE_API UnknownRowInfo {
    static constexpr int kColumns = 50;
    char* m_columns[kColumns];
};
