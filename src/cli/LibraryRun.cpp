// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/LibraryRun.h"

#include "datamodel/HostText.h"

RunOutcome LibraryRun::run(const RunRequest& request, Node* target) {
    ImportInputParams params;
    params.m_fileName = request.fileName.c_str();
    params.m_targetNode = target;
    params.m_importInfo = request.info.c_str();
    params.m_firstLineIsHeader = request.header ? 1 : 0;
    params.m_simulate = request.simulate ? 1 : 0;
    ColumnAssignment columns = request.columns.value_or(ColumnAssignment{});

    RunOutcome outcome;
    outcome.result = m_door.importFile(params, request.delimiter, request.columns ? &columns : nullptr);
    outcome.importedCount = m_door.getLastImportedDataSetsCount();
    outcome.sessionId = m_door.getLastImportedSessionID();
    const char* error = m_door.getErrorMsg();
    outcome.errorText = HostText::toUtf8(error != nullptr ? error : "");
    return outcome;
}
