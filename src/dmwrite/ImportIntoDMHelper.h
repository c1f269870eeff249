// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "dmwrite/E_ColumnIndex.h"
#include "dmwrite/E_HBColumnIndex.h"
#include "framework/datamodel_api/DataType.h"
#include "framework/ImportModuleApi.h"

class Node;
class SeesionInfo;

/// The root of every importer: the node that receives the records, the error
/// text, the catalogue of columns with the conversion of input texts, and the
/// counters and markers under the root. All texts are Latin-1.
class IMPORT_MODULE_API ImportIntoDMHelper {
public:
    virtual ~ImportIntoDMHelper();
    /// German text, HTML-like; valid until the importer writes to it or dies.
    virtual const char* getErrorMsg() const;

    ImportIntoDMHelper(const ImportIntoDMHelper&) = delete;
    ImportIntoDMHelper& operator=(const ImportIntoDMHelper&) = delete;

    /// The field's name in a record; null for `eColNone` and any other number.
    const char* getColumnNameForIndex(Import::E_ColumnIndex index) const;
    const char* getColumnNameForHBIndex(Import::E_HBColumnIndex index) const;
    /// Compared byte for byte; `eColNone` for an unknown name. Not null.
    Import::E_ColumnIndex getColumnIndexForName(const char* name) const;

    /// The typed value of an input text (not null). A text that is no date
    /// becomes the zero date, an amount outside the host's bounds the empty
    /// value; both are left to the data model to refuse.
    DataType convertStringToDataType(Import::E_ColumnIndex index, const char* text) const;
    DataType convertStringToDataType(Import::E_HBColumnIndex index, const char* text) const;
    DataType convertStringToDataType(const char* columnName, const char* text) const;

    /// Reads an amount in German or English notation, in currency units. Which
    /// of "." and "," is the decimal mark is decided text by text; the odd
    /// results are relied upon by hosts:
    ///   1.234,56 EUR -> 1234.56    1.234 -> 1.234    1,234.5 -> 1.2345    12,50- -> 12.5
    double scanCurrency(const char* text) const;

    /// The root's "NextUniqueID" as read; one more is stored back as an
    /// integer, 1 after a value that is no integer.
    DataType getNextUniqueID() const;
    /// Gives a record the next unique ID. The counter moves on even where the
    /// record has no such field.
    bool setUniqueID(Node* dataSet) const;
    /// Both leave a marker under the root; a host without it gets none.
    void writeLastImportDate(const SeesionInfo& session) const;
    void writeNewDataExists() const;

protected:
    ImportIntoDMHelper();

    Node* m_targetNode = nullptr; ///< set when an import starts; the host's
    std::string m_errorMsg;
};
