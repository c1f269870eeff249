// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "dmwrite/ImportIntoDMHelper.h"
#include "framework/ImportModuleApi.h"

struct ImportInputParams;
class ImportRecordSet;

/// What the front door asks of a module. The order of the virtual operations is
/// what hosts were built against; new ones go to the end.
class IMPORT_MODULE_API ImportExternInterface : public ImportIntoDMHelper {
public:
    /// The extension of the module's files, without the dot; a literal.
    virtual const char* getFileExtension() const = 0;
    /// 0 failed, otherwise success: 1 imported, 2 simulated, 3 read without a
    /// column assignment.
    virtual int importFile(const ImportInputParams& params) = 0;
    /// The preview of the last simulated import; lives as long as the module.
    virtual const ImportRecordSet& getLastSimulatedImport() const = 0;
    virtual int getLastImportedDataSetsCount() const = 0;
    virtual int getLastImportedSessionID() const = 0;

    /// Appends a record to the root's "DataSets"; null where that fails.
    Node* createNewDataSet() const;
    /// Gives a record its session's import ID, then a unique ID of its own.
    bool setIDsInDataSet(Node* dataSet, const SeesionInfo& session) const;
};
