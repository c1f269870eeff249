// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/ColumnAssignment.h"
#include "framework/ImportFileBase.h"
#include "framework/ImportModuleApi.h"

/// What the front door reaches of every delimited-text module.
class IMPORT_MODULE_API ImportCSVInterface : public ImportFileBase {
public:
    /// Takes a copy. Must come before the import.
    virtual void assignColumns(const ColumnAssignment& assignment) = 0;
};
