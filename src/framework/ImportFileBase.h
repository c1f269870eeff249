// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>

#include "dmwrite/SeesionInfo.h"
#include "framework/ImportInputParams.h"
#include "framework/ImportModuleApi.h"
#include "framework/ImportModuleBase.h"

/// The machinery of the line-oriented modules: reads the input line by line and
/// gives a module the operations of one row, which write a record into the
/// host's model or, simulating, a row of the preview.
///
/// An object serves one import. Records written before a failure stay; undoing
/// a partial import is the host's business.
class IMPORT_MODULE_API ImportFileBase : public ImportModuleBase {
public:
    /// Longest line in bytes, without its line feed; a carriage return counts.
    static constexpr int kMaxLineLength = 4094;

    /// The row that `startRow` began.
    class RowInserter {
    public:
        RowInserter() = default;
        explicit RowInserter(Node* record) : m_record(record) {}
        explicit RowInserter(int previewRow) : m_previewRow(previewRow) {}

        Node* record() const {
            return m_record;
        } ///< null when simulating, for a header row, and where no record could be made
        int previewRow() const { return m_previewRow; } ///< raw number from 0; only when simulating

    private:
        Node* m_record = nullptr;
        int m_previewRow = 0;
    };

    /// Reads the file, or the buffer where there is no file name. The session's
    /// import type is the module's format.
    int importFile(const ImportInputParams& params) override;
    int getLastImportedDataSetsCount() const override;
    /// 0 while the session has no integer ID.
    int getLastImportedSessionID() const override;

    /// Handles one line that is not empty; false ends the import. The line may
    /// be changed in place and is gone when the call returns.
    virtual bool processLine(char* line, Node* target) = 0;
    /// Finishes the current row and counts it; a skipped row is not imported.
    /// The first imported row also writes the session and the new-data marker.
    virtual bool compelteRowProcessing(bool skip);
    /// The preview column that shows a data-model column.
    virtual int getInputFileColNo(Import::E_ColumnIndex column);

protected:
    ImportFileBase() = default;

    /// Whether a line holds nothing but blanks and tabs. A carriage return is
    /// content.
    static bool isEmptyLine(const char* line);

    /// Begins a row: a new record, or a row of the preview as wide as given. A
    /// header row makes no record.
    RowInserter startRow(int columns, bool header);
    /// Stores a field of the current row. A refused value removes the record
    /// and is reported; further writes to that row fail silently.
    bool setColumnVal(const RowInserter& row, const char* columnName, const char* value, bool header);
    /// Stores a cell of the preview in the host's display form; as it stands in
    /// a header row and for `eColNone`.
    bool setColumnVal(int row, int column, const char* value, bool header, Import::E_ColumnIndex index);
    bool completeRowImport();

    /// Appends `heading` if there is no error text yet, then `text`; null
    /// stands for nothing.
    void appendErrorMsg(const char* heading, const char* text);
    /// Appends "(Zeile nnn):" for the current line, then `text` whole.
    void setErrorLineMsg(const char* text);

    void setupImportDate();
    bool setImportSessionInfo();

    int m_lineNo = 0; ///< physical line being read, from 1
    int m_importedCount = 0;
    int m_processedCount = 0; ///< rows completed, skipped or not
    SeesionInfo m_session;
    bool m_newDataFlagged = false; ///< session and new-data marker have been written
    int m_result = 0;              ///< what a successful import returns
    bool m_simulate = false;
    bool m_skipRow = false; ///< the current row is counted, not imported
    RowInserter m_currentRow;

private:
    int readLines(std::istream& input, Node* target);
    void reportRefusedValue(const char* value);
};
