// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/ImportModuleCSV.h"

#include "dmwrite/SmartDate.h"
#include "framework/AssertTypeSizes.h"

namespace {
constexpr int kReadWithoutAssignment = 3;
}

const char* const ImportModuleCSV::m_MyFileExtension = "csv";

ImportModuleCSV::ImportModuleCSV() = default;
ImportModuleCSV::~ImportModuleCSV() = default;

const char* ImportModuleCSV::getFileExtension() const { return m_MyFileExtension; }

int ImportModuleCSV::importFile(const ImportInputParams& params) {
    m_rows.clear();
    m_delimiterFinder.clear();
    m_scanDelimiter = params.m_simulate != 0;
    const int result = ImportFileBase::importFile(params);
    if (result != 0 && !onImportAllDataSets(params))
        return 0;
    if (m_scanDelimiter)
        m_delimiterFinder.endScan();
    return result;
}

bool ImportModuleCSV::processLine(char* line, Node* target) {
    if (m_scanDelimiter)
        m_delimiterFinder.scanLine(line); // before the line is split in place
    return ImportCSVBase::processLine(line, target);
}

bool ImportModuleCSV::compelteRowProcessing(bool /*skip*/) { return true; }

int ImportModuleCSV::getInputFileColNo(Import::E_ColumnIndex column) {
    if (!hasColumnAssignment())
        return column; // the file is taken as being in the data model's order
    for (int i = 0; i < pairCount(); ++i) {
        if (m_columnAssignment.m_pairs[i].m_column == column)
            return m_columnAssignment.m_pairs[i].m_inputColumn;
    }
    return 0;
}

bool ImportModuleCSV::importRowIntoTable(const UnknownRowInfo& row, int columnCount, int /*rowIndex*/) {
    m_rows.emplace_back(row, columnCount);
    if (!hasColumnAssignment())
        m_result = kReadWithoutAssignment;
    if (m_dateColumn >= 0 && m_dateColumn < columnCount)
        SmartDate().parse(row.m_columns[m_dateColumn]); // for the order that it learns
    return true;
}

const char* ImportModuleCSV::getDefaultTargetNodeName() const { return "Noch nicht festgelegt !!"; }

bool ImportModuleCSV::onImportAllDataSets(const ImportInputParams& params) {
    if (!hasColumnAssignment() && !m_simulate)
        return true;
    bool header = params.m_firstLineIsHeader != 0 || m_format == Import::eFormatZasterhof;
    // Each row goes when it is written: the buffer and the model are never both whole.
    for (; !m_rows.empty(); m_rows.pop_front()) {
        if (!importBufferedRow(m_rows.front(), header))
            return false;
        header = false;
    }
    return true;
}

bool ImportModuleCSV::importBufferedRow(BlockStringBuf& row, bool header) {
    int columnCount = 0;
    char** columns = row.restore(columnCount);
    const RowInserter inserter = startRow(columnCount, header);
    const bool stored = hasColumnAssignment() ? writeAssignedRow(inserter, columns, columnCount, header)
                                              : showUnassignedRow(inserter, columns, columnCount, header);
    if (!stored)
        return !m_simulate; // a real import drops the row and goes on
    ImportFileBase::compelteRowProcessing(header);
    return true;
}

bool ImportModuleCSV::showUnassignedRow(const RowInserter& row, char** columns, int columnCount, bool header) {
    for (int column = 0; column < columnCount; ++column) {
        if (!setColumnVal(row.previewRow(), column, columns[column], header, Import::eColNone))
            return false;
    }
    return true;
}

bool ImportModuleCSV::writeAssignedRow(const RowInserter& row, char** columns, int columnCount, bool header) {
    for (int column = 0; column < columnCount; ++column) {
        const char* name = getAssignedColumnNameForIndex(column);
        if (name != nullptr && !setColumnVal(row, name, columns[column], header))
            return false;
    }
    return true;
}

char ImportModuleCSV::getBestDelimiter() const {
    const char found = m_delimiterFinder.getBestDelimiter();
    return found != 0 ? found : m_delimiter;
}
