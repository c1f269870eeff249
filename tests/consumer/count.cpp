// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT

// A program of somebody else's: imports one list with columns "Buchungstag" first and "Betrag" sixth into our model
// and prints how many records the model holds then.
#include <cstdio>

#include "datamodel/DataManager.h"
#include "framework/datamodel_api/DataModelApi.h"
#include "framework/ImportExternData.h"

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2)
        return 2;
    const DataManager manager;

    ColumnAssignment columns = {};
    columns.m_pairs[0] = {0, Import::eColDatum};
    columns.m_pairs[1] = {5, Import::eColBetrag};
    columns.m_count = 2;

    ImportInputParams params;
    params.m_fileName = arguments[1];
    params.m_targetNode = manager.root();
    params.m_firstLineIsHeader = 1;

    ImportExternData door;
    if (door.importFile(params, ';', &columns) != 1) {
        std::fprintf(stderr, "%s\n", door.getErrorMsg());
        return 1;
    }
    std::printf("%d\n", static_cast<int>(manager.root()->getNode(NDX("DataSets"))->getNodeCount()));
    return 0;
}
