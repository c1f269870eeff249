// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
//
// Shows a file before it is imported, lets the user say which column is what, and
// imports it when told to. Commands come from the arguments behind the file, else
// from standard input, one a line:
//
//   header                       the first line is a header
//   0=Datum 1=Empfaenger         which column (from 0) feeds which field
//   import                       as the preview shows it
#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "framework/datamodel_api/DataModelApi.h"
#include "framework/ImportExternData.h"

namespace {

struct FieldName {
    const char* name;
    Import::E_ColumnIndex column;
};

constexpr FieldName kFields[] = {
    {"Datum", Import::eColDatum},
    {"Betrag", Import::eColBetrag},
    {"Empfaenger", Import::eColEmpfaenger},
    {"Verwendungszweck", Import::eColVerwendungszweck},
    {"Buchungstext", Import::eColBuchungstext},
    {"Kategorie", Import::eColKategorie},
    {"Unterkategorie", Import::eColUnterkategorie},
};

std::string utf8(const std::string& latin1) {
    std::string text;
    for (const char c : latin1) {
        const auto byte = static_cast<unsigned char>(c);
        text += byte < 0x80 ? std::string(1, c)
                            : std::string{static_cast<char>(0xC0 | byte >> 6), static_cast<char>(0x80 | (byte & 0x3F))};
    }
    return text;
}

/// One file, what the user has said of it so far, and the model that is to receive it.
class Assistant {
public:
    explicit Assistant(const char* fileName) {
        m_input.m_fileName = fileName;
        m_input.m_targetNode = m_model.root();
        findDelimiter();
    }

    /// A simulated import with what is known: nothing is written. False when the
    /// file cannot be read.
    bool show() {
        if (run(true) == 0)
            return complain();
        print(m_frontDoor.getLastSimulatedImport());
        return true;
    }

    bool import() {
        if (!m_assigned) {
            std::cout << "not imported: no column was assigned\n";
            return false;
        }
        if (run(false) == 0)
            return complain();
        std::cout << m_frontDoor.getLastImportedDataSetsCount() << " records imported\n";
        complain(); // values that were refused, with their records
        return true;
    }

    /// False for a command that is none.
    bool obey(const std::string& command) {
        if (command == "header") {
            m_input.m_firstLineIsHeader = 1;
            return true;
        }
        std::istringstream words(command);
        ColumnAssignment assignment = {};
        for (std::string word; words >> word;) {
            if (assignment.m_count == ColumnAssignment::kMaxPairs || !assign(assignment, word))
                return false;
        }
        m_assignment = assignment;
        m_assigned = true;
        return true;
    }

private:
    int run(bool simulate) {
        m_input.m_simulate = simulate ? 1 : 0;
        return m_frontDoor.importFile(m_input, m_delimiter, m_assigned ? &m_assignment : nullptr);
    }

    void findDelimiter() {
        // Nobody has said anything yet: a first simulated import finds the delimiter.
        run(true);
        m_delimiter = m_frontDoor.getBestDelimiter();
    }

    static bool assign(ColumnAssignment& assignment, const std::string& word) {
        char* rest = nullptr;
        const long column = std::strtol(word.c_str(), &rest, 10);
        if (rest == word.c_str() || *rest != '=' || column < 0 || column > 48)
            return false;
        const auto* field = std::find_if(std::begin(kFields), std::end(kFields), [rest](const FieldName& known) {
            return known.name == std::string(rest + 1);
        });
        if (field == std::end(kFields))
            return false;
        assignment.m_pairs[assignment.m_count++] = {static_cast<int>(column), field->column};
        return true;
    }

    bool complain() const {
        const char* text = m_frontDoor.getErrorMsg();
        if (text != nullptr && *text != '\0')
            std::cout << utf8(text) << '\n';
        return false;
    }

    /// The preview below a line that says which column feeds which field. The library's
    /// texts are Latin-1: a byte is a character wide.
    void print(const ImportRecordSet& preview) const {
        std::vector<std::vector<std::string>> lines(1);
        for (int column = 0; column < preview.getColumnCount(); ++column)
            lines.front().push_back(std::to_string(column) + fieldOf(column));
        for (int row = preview.hasHeader() ? -1 : 0; row < preview.getRowCount(); ++row) {
            lines.emplace_back();
            for (int column = 0; column < preview.getColumnCount(); ++column)
                lines.back().push_back(row < 0 ? preview.getColumnHeader(column) : preview.getString(row, column));
        }
        std::vector<std::size_t> widths(lines.front().size());
        for (const auto& line : lines) {
            for (std::size_t column = 0; column < line.size(); ++column)
                widths[column] = std::max(widths[column], line[column].size());
        }
        for (auto& line : lines) {
            std::cout << '|';
            for (std::size_t column = 0; column < line.size(); ++column) {
                line[column].resize(widths[column], ' ');
                std::cout << ' ' << utf8(line[column]) << " |";
            }
            std::cout << '\n';
        }
    }

    std::string fieldOf(int column) const {
        for (int pair = 0; pair < m_assignment.m_count; ++pair) {
            if (m_assignment.m_pairs[pair].m_inputColumn == column)
                return std::string("=") + nameOf(m_assignment.m_pairs[pair].m_column);
        }
        return {};
    }

    static const char* nameOf(Import::E_ColumnIndex column) {
        const auto* field = std::find_if(std::begin(kFields), std::end(kFields),
                                         [column](const FieldName& known) { return known.column == column; });
        return field->name;
    }

    DataManager m_model;
    ImportInputParams m_input;
    ImportExternData m_frontDoor;
    char m_delimiter = ',';
    bool m_assigned = false;
    ColumnAssignment m_assignment = {};
};

bool nextCommand(int argc, char** argv, int& used, std::string& command) {
    if (argc == 2)
        return static_cast<bool>(std::getline(std::cin, command));
    if (used == argc)
        return false;
    command = argv[used++];
    return true;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::cerr << "usage: preview FILE [COMMAND...]\n";
        return 2;
    }
    Assistant assistant(argv[1]);
    if (!assistant.show())
        return 1;
    int used = 2;
    for (std::string command; nextCommand(argc, argv, used, command);) {
        std::cout << "> " << command << '\n';
        if (command == "import")
            return assistant.import() ? 0 : 1;
        if (!assistant.obey(command))
            std::cout << "not understood: header, import, or 0=Datum 1=Empfaenger ...\n";
        else if (!assistant.show())
            return 1;
    }
    std::cout << "nothing was imported\n";
    return 0;
}
