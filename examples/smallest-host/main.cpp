// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
//
// The smallest host: imports a file into a fresh data model and prints its records.
#include <iostream>
#include <string>

#include "framework/datamodel_api/DataModelApi.h"
#include "framework/ImportExternData.h"

namespace {

/// The library speaks Latin-1, the terminal UTF-8.
std::string utf8(const std::string& latin1) {
    std::string text;
    for (const char c : latin1) {
        const auto byte = static_cast<unsigned char>(c);
        text += byte < 0x80 ? std::string(1, c)
                            : std::string{static_cast<char>(0xC0 | byte >> 6), static_cast<char>(0x80 | (byte & 0x3F))};
    }
    return text;
}

std::string field(const Node& record, const char* name) {
    return utf8(record.getNode(NDX(name))->getValue().asString(true, 2));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: smallest-host FILE\n";
        return 2;
    }
    DataManager model; // owns the tree that receives the records

    ImportInputParams input;
    input.m_fileName = argv[1];
    input.m_targetNode = model.root();
    input.m_firstLineIsHeader = 1;
    ColumnAssignment columns = {{{0, Import::eColDatum}, {1, Import::eColEmpfaenger}, {3, Import::eColBetrag}}, 3};

    ImportExternData frontDoor;
    const int result = frontDoor.importFile(input, ';', &columns);
    if (result == 0) {
        std::cerr << utf8(frontDoor.getErrorMsg()) << '\n';
        return 1;
    }
    const Node* records = model.root()->getNode(NDX("DataSets"));
    for (int row = 1; row <= records->getNodeCount(); ++row) {
        const Node& record = *records->getNodeNum(static_cast<unsigned short>(row));
        std::cout << field(record, "Datum") << "  " << field(record, "Empfaenger") << "  " << field(record, "Betrag")
                  << '\n';
    }
    std::cout << frontDoor.getLastImportedDataSetsCount() << " records imported\n";
    return 0;
}
