// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <list>
#include <memory>
#include <string>

#include "framework/ColumnAssignment.h"
#include "framework/E_SupportedImportFormats.h"
#include "framework/ImportInputParams.h"
#include "framework/ImportModuleApi.h"
#include "framework/ImportRecordSet.h"

class ImportModuleBase;

/// The front door of the file imports: picks a module for a file, runs it and
/// answers afterwards what happened. Used from one thread; one import at a time
/// in a process, since the date order that is learned is class-wide.
///
/// What an import left behind (error text, counts, preview) is kept until the
/// next import or the end of this object.
class IMPORT_MODULE_API ImportExternData {
public:
    struct FileFormatInfo {
        Import::E_SupportedImportFormats m_format;
        std::string m_label;     ///< for the user
        std::string m_extension; ///< without the dot; compared without regard to case
    };

    ImportExternData();
    virtual ~ImportExternData();
    ImportExternData(const ImportExternData&) = delete;
    ImportExternData& operator=(const ImportExternData&) = delete;

    /// For a host's file dialog; alive as long as the library is loaded.
    static const std::list<FileFormatInfo>& getSupportedFileFormats();
    /// Fills the list if it is empty. Runs once when the library is loaded.
    static void initFileFormatList();

    /// Makes the module of a format and drops the one before. False, and no
    /// module, for a number that is no format.
    bool create(Import::E_SupportedImportFormats format);
    /// The same by the extension behind the last dot; without one, or with an
    /// unknown one, the file is read as a delimited list.
    bool create(std::string fileName);

    /// Runs one import: 0 failed, 1 imported, 2 simulated, 3 read without a
    /// column assignment. `delimiter` and `assignment` (may be null) serve the
    /// delimited list ("csv") alone. Makes a new module: what was set on the
    /// one before is lost. Files only; without a file name it fails and leaves
    /// the module of the import before.
    int importFile(const ImportInputParams& params, char delimiter, ColumnAssignment* assignment);
    /// Reads nothing; always false.
    bool importElsterXmlFile(const ImportInputParams& params);

    /// These two reach a delimited-list module only; any other ignores them.
    void setDelimiterChar(char delimiter);
    void assignColumns(const ColumnAssignment& assignment); ///< takes a copy
    /// The delimiter that a simulated import found; "," without such an import.
    char getBestDelimiter() const;

    void setupDefaultColumnAssignmentVKD();  ///< tax data: seven columns, ";"
    void setupDefaultColumnAssignmentZHOF(); ///< the money program's fourteen columns, ";"

    /// Null or 0 while there is no module.
    const char* getFileExtension() const;
    const char* getErrorMsg() const; ///< German, Latin-1; an import that succeeds has one where values were refused
    int getLastImportedDataSetsCount() const; ///< simulating: how many would have been
    int getLastImportedSessionID() const;     ///< without a record no session was written: the next import gets it
    /// An empty table while there is no module. Valid until the next import.
    const ImportRecordSet& getLastSimulatedImport() const;

private:
    int importWithModule(const ImportInputParams& params, char delimiter, const ColumnAssignment* assignment);
    void setupFixedLayout(const ColumnAssignment& assignment);

    static std::list<FileFormatInfo> m_FileFormatInfoListCreator;

    std::unique_ptr<ImportModuleBase> m_module;
    Import::E_SupportedImportFormats m_format = Import::eFormatNone;
};
