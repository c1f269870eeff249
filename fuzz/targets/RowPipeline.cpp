// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <string>
#include <vector>

#include "dmwrite/SmartDate.h"
#include "framework/ScriptedModule.h"
#include "support/FinanceModel.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"
#include "support/ModelText.h"
#include "support/require.h"
#include "support/ScratchFile.h"

// A file for a module whose lines are orders to the row pipeline: the first
// character names the operation, the rest is its value.
namespace {

constexpr const char* kColumns[] = {"Empfaenger",   "Kategorie", "Unterkategorie", "Verwendungszweck",
                                    "Buchungstext", "Datum",     "Betrag"};

class Orders : public ScriptedModule {
public:
    Orders() {
        onLine([this](char* line) { return obey(line); });
    }

    int started() const { return m_started; }
    int refused() const { return m_refused; }

private:
    bool obey(const char* line) {
        const char* value = line + 1;
        switch (*line) {
        case 'r':
            return start(false, static_cast<int>(std::string(value).size()));
        case 'h':
            return start(true, 7);
        case 'c':
            compelteRowProcessing(false);
            return true;
        case 's':
            compelteRowProcessing(true);
            return true;
        case 'e':
            setErrorLineMsg(value);
            return true;
        case 'a':
            appendErrorMsg("heading", value);
            return true;
        case 'n':
            return store("UniqueID", value);
        case 'o': // to a row that may be gone
            setColumnVal(m_before, "Verwendungszweck", value, false);
            return true;
        case 'p':
            return m_currentRow.record() != nullptr || showCell(value);
        case 'q':
            return false;
        default:
            return *line < '0' || *line > '6' || store(kColumns[*line - '0'], value);
        }
    }

    bool start(bool header, int columns) {
        m_before = m_row;
        m_header = header;
        m_row = startRow(columns, header);
        m_started += m_row.record() != nullptr ? 1 : 0;
        return true;
    }
    bool store(const char* column, const char* value) {
        const bool open = m_row.record() != nullptr && m_row.record() == m_currentRow.record();
        const bool stored = setColumnVal(m_row, column, value, m_header);
        m_refused += open && !m_header && !stored ? 1 : 0;
        return true;
    }
    bool showCell(const char* value) {
        if (value[0] != '\0' && value[1] != '\0')
            setColumnVal(value[0] - '0', value[1] - '0', value + 2, m_header,
                         static_cast<Import::E_ColumnIndex>(value[1] - '0'));
        return true;
    }

    RowInserter m_row;
    RowInserter m_before;
    bool m_header = false;
    int m_started = 0;
    int m_refused = 0;
};

struct Outcome {
    int result;
    std::string error;
    int count;
    std::string model;
    std::vector<std::string> lines;
    std::vector<int> numbers;

    bool operator==(const Outcome&) const = default;
};

Outcome run(ImportInputParams params, bool simulate) {
    const FinanceModel model;
    const std::string before = ModelText::of(*model.root());
    SmartDate::sm_order = 0;
    Orders module;
    params.m_targetNode = model.root();
    params.m_simulate = simulate ? 1 : 0;
    const int result = module.importFile(params);
    const std::string after = ModelText::of(*model.root());
    if (simulate)
        require(after == before, "a simulated import writes nothing");
    else
        require(model.rows("DataSets") == module.started() - module.refused(),
                "a record is there until a value of it is refused");
    require(result == 0 || result == (simulate ? 2 : 1), "the result tells what was done");
    return {result, module.getErrorMsg(), module.getLastImportedDataSetsCount(),
            after,  module.lines(),       module.lineNumbers()};
}

bool isBlank(const std::string& line) { return line.find_first_not_of(" \t") == std::string::npos; }

/// The lines that reach the module, by the rules: up to one that is too long.
void requireLinesAsTheyStand(const Outcome& outcome, const std::string& bytes) {
    std::vector<std::string> lines;
    std::vector<int> numbers;
    int number = 0;
    bool tooLong = false;
    for (std::size_t at = 0; at <= bytes.size() && !tooLong;) {
        const std::size_t end = std::min(bytes.find('\n', at), bytes.size());
        ++number;
        tooLong = end - at > ImportFileBase::kMaxLineLength;
        const std::string line = bytes.substr(at, end - at).c_str(); // a zero byte ends it
        if (!tooLong && !isBlank(line)) {
            lines.push_back(line);
            numbers.push_back(number);
        }
        at = end + 1;
    }
    const bool stopped = outcome.result == 0 && outcome.lines.size() < lines.size();
    if (stopped) { // the module wanted no more
        lines.resize(outcome.lines.size());
        numbers.resize(outcome.lines.size());
        require(!lines.empty() && lines.back().front() == 'q', "an import ends where the module ends it");
    }
    require(outcome.lines == lines, "lines reach the module as they stand");
    require(outcome.numbers == numbers, "under the numbers that they have in the file");
    require(stopped || outcome.result != 0 || tooLong || (!lines.empty() && lines.back().front() == 'q'),
            "nothing else ends an import");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const ScratchFile file("orders");
    const std::string text(FuzzInput(bytes, size).rest());

    ImportInputParams buffer;
    buffer.setInputFileBuffer(text.data(), text.size());
    const Outcome real = run(buffer, false);
    requireLinesAsTheyStand(real, text);
    require(run(buffer, false) == real, "an import does the same twice");
    const Outcome simulated = run(buffer, true);
    require((simulated.result != 0) == (real.result != 0), "a simulated import ends like a real one");
    require(simulated.lines == real.lines, "and reads the same lines");

    ImportInputParams path;
    path.m_fileName = file.write(text).c_str();
    require(run(path, false) == real, "a file is read like a buffer");
    return 0;
}
