// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/E_SupportedImportFormats.h"
#include "framework/ImportExternInterface.h"
#include "framework/ImportModuleApi.h"
#include "framework/ImportRecordSetImpl.h"

/// The base of every module: its format and the preview it fills.
class IMPORT_MODULE_API ImportModuleBase : public ImportExternInterface {
public:
    const ImportRecordSet& getLastSimulatedImport() const override;

protected:
    friend class ImportExternData; // its factory names the format right after making the module

    Import::E_SupportedImportFormats m_format = Import::eFormatNone;
    ImportRecordSetImpl m_simulatedImport;
};
