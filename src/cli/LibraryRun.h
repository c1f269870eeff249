// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "framework/ColumnAssignment.h"
#include "framework/ImportExternData.h"

/// What one call of the front door is asked to do. Texts are the host's bytes.
struct RunRequest {
    std::string fileName; ///< Latin-1; its extension picks the module
    char delimiter = ',';
    std::optional<ColumnAssignment> columns;
    bool header = false;
    bool simulate = true;
    std::string info;
};

/// What the library says afterwards.
struct RunOutcome {
    int result = 0;
    int importedCount = 0;
    int sessionId = 0;     ///< the next session's number where none was written
    std::string errorText; ///< UTF-8, otherwise the library's own
};

/// One call of the library's front door, and its preview while this object lives.
class LibraryRun {
public:
    RunOutcome run(const RunRequest& request, Node* target);

    char bestDelimiter() const { return m_door.getBestDelimiter(); }
    const ImportRecordSet& preview() const { return m_door.getLastSimulatedImport(); }
    /// Whether the library has a module for the format.
    bool hasModule() const { return m_door.getFileExtension() != nullptr; }

private:
    ImportExternData m_door;
};
