// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FreshDates.h"

#include "framework/ImportExternData.h"

void forgetEarlierDates(Node* target) {
    ImportExternData door;
    door.create(Import::eFormatCSV);
    ImportInputParams noFile;
    noFile.m_targetNode = target;
    door.importFile(noFile, ',', nullptr);
}
