// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/Console.h"
#include "cli/FileReading.h"
#include "cli/FileReport.h"
#include "cli/ImportedRecords.h"
#include "cli/ModelWatch.h"
#include "cli/NewRecords.h"
#include "cli/StoreAtPath.h"

/// What the person wants of an import beside the reading of the file.
struct ImportWishes {
    std::string info; ///< kept with the session; host bytes
    bool allowUndated = false;
    bool keepPartial = false;
    bool again = false;   ///< also what was imported before
    bool newOnly = false; ///< leaves out records that the store has
    bool toldOf = false;  ///< a page tells of the records
};

/// The import of one file into a store: one transaction, which a failure takes
/// back unless the person wants to keep what was written before it.
class FileImport {
public:
    /// Both must outlive the object.
    FileImport(const FileReading& reading, const ImportWishes& wishes);

    /// Throws StoreError; `report` then says how far it came.
    void run(StoreAtPath& store, const Console& console);
    const FileReport& report() const { return m_report; }
    /// What it made, kept or not; nothing unless the person wants it told.
    const ImportedRecords& records() const { return m_records; }

private:
    void askForWords();
    void importInto(Store& store, const Console& console);
    void judge(const RunOutcome& outcome, const ModelWatch& watch, const NewRecords& added, Store& store);
    /// Takes out of the new records, and of `lines`, which are theirs, what the store has or has no room for.
    void leaveOutKnown(const NewRecords& added, std::vector<std::size_t>& lines, Store& store);
    bool broughtNothingNew() const { return m_report.importedCount == 0 && m_report.knownCount.value_or(0) > 0; }
    bool takeChecksum();
    bool wasImportedBefore(Store& store);
    /// The line of each record that was stored, in order; empty where it is not known.
    std::vector<std::size_t> linesOfStored(const ModelWatch& watch, const NewRecords& added) const;
    void noteUndated(const NewRecords& added, const std::vector<std::size_t>& lines);
    void countRecords(const ModelWatch& watch);
    void fail(Message message);

    const FileReading& m_reading;
    const ImportWishes& m_wishes;
    FileReport m_report;
    ImportedRecords m_records;
    std::string m_checksum;
    bool m_failed = false; ///< the file as a whole, not single records of it
};
