// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/ImportFileBase.h"

#include <cstdio>
#include <fstream>
#include <istream>
#include <string>

#include "framework/AssertTypeSizes.h"
#include "framework/Latin1.h"
#include "framework/LineReader.h"
#include "framework/MemoryStreamBuf.h"

namespace {

enum Result : int { eFailed = 0, eImported = 1, eSimulated = 2 };

// Both texts speak of XML although no module here reads any; hosts show them so.
constexpr const char* kUnreadableLine = "Fehler beim Analysieren der Daten aus der XML-Datei.\n";
constexpr const char* kRefusedValues = "Fehler beim Analysieren der Daten aus der XML-Datei.<br>";
constexpr const char* kCannotOpen = "Die Importdatei konnte nicht geöffnet werden."_latin1;

constexpr std::size_t kMessageSize = 498; // 497 characters at most
constexpr std::size_t kBlockSize = 32768; // read from a file at once

const char* orEmpty(const char* text) { return text != nullptr ? text : ""; }

} // namespace

int ImportFileBase::importFile(const ImportInputParams& params) {
    m_simulate = params.m_simulate != 0;
    m_result = m_simulate ? eSimulated : eImported;
    m_targetNode = params.m_targetNode;

    m_session.init(params.m_targetNode);
    m_session.m_importType = m_format;
    m_session.m_importInfo = orEmpty(params.m_importInfo);
    m_session.m_importFileName = orEmpty(params.m_fileName);
    setupImportDate();

    m_importedCount = 0;
    m_processedCount = 0;
    m_newDataFlagged = false;
    m_lineNo = 1;
    m_skipRow = false;
    m_currentRow = RowInserter();

    if (params.m_fileName == nullptr && params.m_buffer != nullptr) {
        MemoryStreamBuf bytes(params.m_buffer, params.m_bufferSize);
        std::istream input(&bytes);
        return readLines(input, params.m_targetNode);
    }
    char block[kBlockSize];
    std::ifstream input;
    input.rdbuf()->pubsetbuf(block, sizeof block);
    if (params.m_fileName != nullptr)
        input.open(CrossPlatformApi::fileSystemEncoding(params.m_fileName));
    if (!input.is_open()) {
        m_errorMsg = kCannotOpen;
        return eFailed;
    }
    return readLines(input, params.m_targetNode);
}

int ImportFileBase::readLines(std::istream& input, Node* target) {
    LineReader lines(*input.rdbuf());
    char line[kMaxLineLength + 1]; // of fixed size, since a module may write into it
    for (;;) {
        const LineReader::Outcome outcome = lines.next(line, sizeof line);
        if (outcome == LineReader::Outcome::unreadable) {
            setErrorLineMsg(kUnreadableLine);
            return eFailed;
        }
        if (!isEmptyLine(line)) {
            m_skipRow = false;
            if (!processLine(line, target))
                return eFailed;
        }
        ++m_lineNo;
        if (outcome == LineReader::Outcome::lastLine)
            return m_result;
    }
}

int ImportFileBase::getLastImportedDataSetsCount() const { return m_importedCount; }

int ImportFileBase::getLastImportedSessionID() const { return m_session.m_importID.getInt(); }

int ImportFileBase::getInputFileColNo(Import::E_ColumnIndex column) { return column; }

bool ImportFileBase::isEmptyLine(const char* line) {
    while (*line == ' ' || *line == '\t')
        ++line;
    return *line == '\0';
}

ImportFileBase::RowInserter ImportFileBase::startRow(int columns, bool header) {
    m_currentRow = RowInserter();
    if (m_simulate)
        m_currentRow = RowInserter(m_simulatedImport.addRow(columns));
    else if (!header)
        m_currentRow = RowInserter(createNewDataSet());
    return m_currentRow;
}

bool ImportFileBase::setColumnVal(const RowInserter& row, const char* columnName, const char* value, bool header) {
    if (m_simulate) {
        const Import::E_ColumnIndex index = getColumnIndexForName(columnName);
        if (index == Import::eColNone)
            return false;
        setColumnVal(row.previewRow(), getInputFileColNo(index), value, header, index);
        return true; // a cell that the preview has no room for stops no import
    }
    if (header) {
        m_skipRow = true;
        return true;
    }
    // A record that was removed, or never made, takes nothing.
    if (row.record() == nullptr || row.record() != m_currentRow.record())
        return false;
    // Converted first: a date teaches its order even where the record has no such field.
    const DataType converted = convertStringToDataType(columnName, value);
    Node* field = row.record()->getNode(NDX(columnName));
    if (field == nullptr)
        return false;
    if (field->setValue(converted, NDX(), 0))
        return true;
    reportRefusedValue(value);
    return false;
}

void ImportFileBase::reportRefusedValue(const char* value) {
    if (auto* table = dynamic_cast<NodeTable*>(m_targetNode->getNode(NDX("DataSets"))))
        table->destroy(m_currentRow.record(), true);
    m_currentRow = RowInserter();

    // Records are counted, not lines: with a header line the first record is number 2.
    char message[kMessageSize];
    std::snprintf(message, sizeof message, "Zeile %d: %s<br>", m_processedCount + 1, value);
    appendErrorMsg(kRefusedValues, message);
}

bool ImportFileBase::setColumnVal(int row, int column, const char* value, bool header, Import::E_ColumnIndex index) {
    if (header) {
        m_skipRow = true;
    } else if (index != Import::eColNone) {
        return m_simulatedImport.takeString(row, column, convertStringToDataType(index, value).asString(true, 2),
                                            false);
    }
    return m_simulatedImport.takeString(row, column, value, header);
}

bool ImportFileBase::completeRowImport() {
    if (m_simulate || m_skipRow)
        return true;
    return setIDsInDataSet(m_currentRow.record(), m_session);
}

bool ImportFileBase::compelteRowProcessing(bool skip) {
    m_skipRow = skip;
    if (!completeRowImport())
        return false;
    ++m_processedCount;
    if (skip)
        return true;
    ++m_importedCount;
    if (m_newDataFlagged || m_simulate)
        return true;
    m_newDataFlagged = true;
    writeNewDataExists();
    return setImportSessionInfo();
}

void ImportFileBase::appendErrorMsg(const char* heading, const char* text) {
    if (m_errorMsg.empty() && heading != nullptr)
        m_errorMsg += heading;
    if (text != nullptr)
        m_errorMsg += text;
}

void ImportFileBase::setErrorLineMsg(const char* text) {
    char place[32];
    std::snprintf(place, sizeof place, "(Zeile %3d):", m_lineNo);
    m_errorMsg += place;
    m_errorMsg += text;
}

void ImportFileBase::setupImportDate() {
    m_session.setupImportDate();
    if (!m_simulate)
        writeLastImportDate(m_session);
}

bool ImportFileBase::setImportSessionInfo() { return m_simulate || m_session.writeSessionInfoToDM() != nullptr; }
