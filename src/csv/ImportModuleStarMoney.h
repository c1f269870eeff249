// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "csv/ImportCSVBase.h"
#include "csv/ImportDataSetStartMoney.h"
#include "framework/ImportModuleApi.h"

/// The booking export of StarMoney in its fixed layout of 21 columns (see
/// docs/formats/star-money.md). The first line that is not empty is the header,
/// whatever the parameters say; a simulated import shows its names.
///
/// Writes line by line: a line of another width, or with a refused value, ends
/// the import with failure, and the records before it stay.
class IMPORT_MODULE_API ImportModuleStarMoney : public ImportCSVBase<ImportDataSetStartMoney> {
public:
    static const char* const m_MyFileExtension;

    ImportModuleStarMoney();
    ~ImportModuleStarMoney() override;

    const char* getFileExtension() const override;
    bool importRowIntoTable(const ImportDataSetStartMoney& row, int columnCount, int rowIndex) override;
};
