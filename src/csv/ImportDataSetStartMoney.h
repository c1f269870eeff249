// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/ImportModuleApi.h"

/// The fields of one line of a StarMoney export, in file order: pointers into
/// the split line. Owns nothing.
/// Exported, or the templates over it would not be. (The name is misspelt in hosts, too.)
struct IMPORT_MODULE_API ImportDataSetStartMoney {
    static constexpr int kColumns = 21;
    char* m_columns[kColumns];
};
