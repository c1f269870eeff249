// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <list>

#include "csv/BlockStringBuf.h"
#include "csv/DelimiterFinder.h"
#include "csv/ImportCSVBase.h"
#include "csv/UnknownRowInfo.h"
#include "framework/ImportModuleApi.h"

/// Delimited text whose columns the user assigns.
///
/// Works in two passes: reading, it only buffers the rows and lets the date
/// order be learned from every date of the file; then it writes them. So a file
/// whose first day above 12 comes late is still read in the right order.
///
/// Without a column assignment a real import writes nothing, and a simulated
/// one shows every column as it stands; the result is then 3, once a row was read.
class IMPORT_MODULE_API ImportModuleCSV : public ImportCSVBase<UnknownRowInfo> {
public:
    static const char* const m_MyFileExtension;

    ImportModuleCSV();
    ~ImportModuleCSV() override;

    const char* getFileExtension() const override;
    int importFile(const ImportInputParams& params) override;
    bool processLine(char* line, Node* target) override;
    /// Does nothing: while the file is read no row is written.
    bool compelteRowProcessing(bool skip) override;
    int getInputFileColNo(Import::E_ColumnIndex column) override;
    bool importRowIntoTable(const UnknownRowInfo& row, int columnCount, int rowIndex) override;
    /// A text for the user: no table is proposed.
    virtual const char* getDefaultTargetNodeName() const;
    /// The second pass; false when a simulated import could not store a cell.
    virtual bool onImportAllDataSets(const ImportInputParams& params);

    /// What the last simulated import found; the delimiter in use where it
    /// found none.
    char getBestDelimiter() const;

private:
    friend class ImportExternData; // sets m_delimiter

    bool importBufferedRow(BlockStringBuf& row, bool header);
    bool showUnassignedRow(const RowInserter& row, char** columns, int columnCount, bool header);
    bool writeAssignedRow(const RowInserter& row, char** columns, int columnCount, bool header);

    std::list<BlockStringBuf> m_rows;
    DelimiterFinder m_delimiterFinder;
    bool m_scanDelimiter = false; ///< simulating: the lines are fed to the finder
};
