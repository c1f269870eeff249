// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "csv/ImportCSVBase.h"
#include "csv/UnknownRowInfo.h"
#include "framework/ImportModuleApi.h"

/// The booking export of StarMoney with any columns: finds them by the names in
/// the first line (see docs/formats/star-money.md). The front door never makes
/// it; a host that wants it makes its own.
///
/// A booking with a refused value ends the import with failure, and the records
/// before it stay.
class IMPORT_MODULE_API ImportModuleStarMoney2 : public ImportCSVBase<UnknownRowInfo> {
public:
    ImportModuleStarMoney2();
    ~ImportModuleStarMoney2() override;

    const char* getFileExtension() const override;
    bool importRowIntoTable(const UnknownRowInfo& row, int columnCount, int rowIndex) override;

    /// Takes the columns' meaning from the header line; always true. Seven
    /// columns are assigned at most, further ones are left out.
    bool setupColumnMapping(const UnknownRowInfo& header, int columnCount);

private:
    static constexpr int kNoPurpose = -1;

    void mapColumn(int column, const char* name);
    bool isPurposePart(int column) const { return m_purposePart[column] != kNoPurpose; }

    ColumnAssignment m_headerAssignment{};       ///< what the header line says
    int m_purposePart[UnknownRowInfo::kColumns]; ///< per file column: the number in its "VWZ" name, or -1
};
