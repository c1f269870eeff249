// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/ImportModuleApi.h"

/// The preview of a simulated import: a table of texts, Latin-1. Rows and
/// columns count from 0; the header row is not among the rows. Reading outside
/// the table yields the empty text.
class IMPORT_MODULE_API ImportRecordSet {
public:
    virtual ~ImportRecordSet();

    /// Width of the widest row.
    virtual int getColumnCount() const = 0;
    virtual int getRowCount() const = 0;
    virtual std::string getString(int row, int column) const = 0;
    virtual std::string getColumnHeader(int column) const = 0;
    virtual bool hasHeader() const = 0;

    ImportRecordSet(const ImportRecordSet&) = delete;
    ImportRecordSet& operator=(const ImportRecordSet&) = delete;

protected:
    ImportRecordSet() = default;
};
