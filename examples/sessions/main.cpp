// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
//
// Imports files one after the other, says of each what the library answered and
// what that means, and lists the sessions that the model holds afterwards.
#include <iostream>
#include <string>

#include "framework/datamodel_api/DataModelApi.h"
#include "framework/ImportExternData.h"

namespace {

std::string utf8(const std::string& latin1) {
    std::string text;
    for (const char c : latin1) {
        const auto byte = static_cast<unsigned char>(c);
        text += byte < 0x80 ? std::string(1, c)
                            : std::string{static_cast<char>(0xC0 | byte >> 6), static_cast<char>(0x80 | (byte & 0x3F))};
    }
    return text;
}

struct Meaning {
    const char* text; ///< part of an error text, UTF-8
    const char* meaning;
};

/// What is looked for first stands first: two texts begin alike.
constexpr Meaning kMeanings[] = {
    {"konnte nicht geöffnet werden", "there is no such file, or it may not be read"},
    {"XML-Datei.<br>", "a value was refused: its record is missing, all others are there; records are counted, "
                       "the header is number 1"},
    {"XML-Datei.\n", "a line has more than 4,094 bytes: what is behind it was not read"},
    {"Keine gültige QIF-Datei", "the first line is no header of a QIF section: nothing was imported"},
    {"Ungültiges Datumsformat", "a date of the file is none: nothing was imported"},
    {"wird ignoriert", "lines of a QIF file were left out, the records are there"},
};

const char* nameOfResult(int result) {
    constexpr const char* kNames[] = {"failed", "imported", "simulated", "read without an assignment"};
    return kNames[result];
}

void explain(const std::string& errorText) {
    if (errorText.empty())
        return;
    // Some texts end in a line end, some do not.
    std::cout << "    text:  " << errorText.substr(0, errorText.find_last_not_of("\r\n") + 1) << '\n';
    for (const Meaning& known : kMeanings) {
        if (errorText.find(known.text) != std::string::npos) {
            std::cout << "    means: " << known.meaning << '\n';
            return;
        }
    }
}

bool importInto(Node* root, const char* fileName) {
    ImportInputParams input;
    input.m_fileName = fileName;
    input.m_targetNode = root;
    input.m_importInfo = "example"; // is kept with the session
    input.m_firstLineIsHeader = 1;
    // Used for delimited lists alone; every other format knows its fields.
    ColumnAssignment columns = {{{0, Import::eColDatum}, {1, Import::eColEmpfaenger}, {2, Import::eColBetrag}}, 3};

    ImportExternData frontDoor;
    const int result = frontDoor.importFile(input, ';', &columns);
    const int count = frontDoor.getLastImportedDataSetsCount();
    std::cout << fileName << ": " << nameOfResult(result) << ", " << count << " records";
    // Without a record no session is written: the number would be the next import's.
    if (count > 0)
        std::cout << ", session " << frontDoor.getLastImportedSessionID();
    std::cout << '\n';
    explain(utf8(frontDoor.getErrorMsg()));
    return result != 0;
}

DataType value(const Node& row, const char* field) { return row.getNode(NDX(field))->getValue(); }

/// How many records carry the session's number.
int recordsOf(const Node& records, int session) {
    int count = 0;
    for (int row = 1; row <= records.getNodeCount(); ++row) {
        if (value(*records.getNodeNum(static_cast<unsigned short>(row)), "ImportID").getInt() == session)
            ++count;
    }
    return count;
}

void listSessions(const Node& root) {
    const Node& sessions = *root.getNode(NDX("Importsessions"));
    const Node& records = *root.getNode(NDX("DataSets"));
    for (int row = 1; row <= sessions.getNodeCount(); ++row) {
        const Node& session = *sessions.getNodeNum(static_cast<unsigned short>(row));
        const int number = value(session, "ImportID").getInt();
        std::cout << "session " << number << " of " << value(session, "ImportDatum").asString(true, 2) << ": "
                  << utf8(value(session, "ImportFileName").asString(true, 2)) << ", format "
                  << value(session, "ImportTyp").getInt() << ", " << recordsOf(records, number) << " records\n";
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::cerr << "usage: sessions FILE...\n";
        return 2;
    }
    DataManager model;
    bool allRead = true;
    for (int i = 1; i < argc; ++i)
        allRead = importInto(model.root(), argv[i]) && allRead;
    listSessions(*model.root());
    return allRead ? 0 : 1;
}
