// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/ImportExternInterface.h"
#include "framework/ImportRecordSetImpl.h"

/// The smallest importer: the operations of the base classes on a target node.
class Importer : public ImportExternInterface {
public:
    explicit Importer(Node* target = nullptr) { m_targetNode = target; }

    void setError(const std::string& text) { m_errorMsg = text; }
    Node* target() const { return m_targetNode; }

    const char* getFileExtension() const override { return "test"; }
    int importFile(const ImportInputParams& /*params*/) override { return 0; }
    const ImportRecordSet& getLastSimulatedImport() const override { return m_preview; }
    int getLastImportedDataSetsCount() const override { return 0; }
    int getLastImportedSessionID() const override { return 0; }

private:
    ImportRecordSetImpl m_preview;
};
