// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "qif/ImportModuleQIF.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <cstdlib>

#include "framework/AssertTypeSizes.h"
#include "framework/Latin1.h"
#include "qif/QifFieldTables.h"
#include "qif/StrippedLine.h"

namespace {

using Record = ImportModuleQIF::ImportDataSet;

struct RowColumn {
    Import::E_ColumnIndex column;
    std::string Record::*text; ///< null for the date
};

// The columns of a row, in the order of the preview. The file's category is the
// subcategory: the category is the kind of account.
constexpr std::array<RowColumn, 7> kRowColumns = {{
    {Import::eColKategorie, &Record::m_sectionLabel},
    {Import::eColVerwendungszweck, &Record::m_memo},
    {Import::eColDatum, nullptr},
    {Import::eColBetrag, &Record::m_amount},
    {Import::eColEmpfaenger, &Record::m_payee},
    {Import::eColUnterkategorie, &Record::m_category},
    {Import::eColBuchungstext, &Record::m_number},
}};

constexpr int kRowWidth = static_cast<int>(kRowColumns.size());

} // namespace

const char* const ImportModuleQIF::m_MyFileExtension = "qif";

ImportModuleQIF::ImportModuleQIF() { setup(); }

ImportModuleQIF::~ImportModuleQIF() = default;

const char* ImportModuleQIF::getFileExtension() const { return m_MyFileExtension; }

const char* ImportModuleQIF::getDefaultTargetNodeName() const { return "Noch nicht festgelegt !!"; }

int ImportModuleQIF::getInputFileColNo(Import::E_ColumnIndex column) {
    const auto* found = std::find_if(kRowColumns.begin(), kRowColumns.end(),
                                     [&](const RowColumn& candidate) { return candidate.column == column; });
    return found != kRowColumns.end() ? static_cast<int>(found - kRowColumns.begin()) : 0;
}

int ImportModuleQIF::importFile(const ImportInputParams& params) {
    m_accountType = NoSection;
    m_atRecordStart = false;
    m_dataSets.clear();
    // The current record is not emptied: hosts that run a module twice get what
    // the first run left unfinished.
    const int result = ImportFileBase::importFile(params);
    if (result != 0)
        onImportAllDataSets(params); // that writing stopped part-way does not change the result
    return result;
}

bool ImportModuleQIF::processLine(char* line, Node* /*target*/) {
    if (m_accountType == NoSection) {
        if (parseHeader(line))
            return true;
        setErrorLineMsg("Keine gültige QIF-Datei"_latin1);
        return false;
    }
    if (m_atRecordStart)
        return parseHeader(line) || parseAcountItem(line);
    if (m_accountType != Ignored)
        return parseAcountItem(line);
    // The end of a skipped record empties nothing: the first line behind a header
    // or a "^" was read like any other, and what it said reaches the next record.
    m_atRecordStart = StrippedLine(line).letter() == QifFieldTables::kEndOfRecord;
    return true;
}

bool ImportModuleQIF::onImportAllDataSets(const ImportInputParams& /*params*/) {
    return writeHeaderRow() && std::all_of(m_dataSets.begin(), m_dataSets.end(),
                                           [&](const ImportDataSet& dataSet) { return writeDataSet(dataSet); });
}

bool ImportModuleQIF::writeHeaderRow() {
    const RowInserter row = startRow(kRowWidth, true);
    const bool stored = std::all_of(kRowColumns.begin(), kRowColumns.end(), [&](const RowColumn& column) {
        const char* name = getColumnNameForIndex(column.column);
        return setColumnVal(row, name, name, true);
    });
    return stored && ImportFileBase::compelteRowProcessing(true);
}

bool ImportModuleQIF::writeDataSet(const ImportDataSet& dataSet) {
    const std::string date = dataSet.m_date.asString();
    const RowInserter row = startRow(kRowWidth, false);
    for (const RowColumn& column : kRowColumns) {
        const std::string& value = column.text != nullptr ? dataSet.*column.text : date;
        if (!setColumnVal(row, getColumnNameForIndex(column.column), value.c_str(), false))
            return false;
    }
    ImportFileBase::compelteRowProcessing(false); // a record without identifiers is kept, and not counted
    return true;
}

double ImportModuleQIF::qifCurrencytoDouble(std::string& text) {
    std::erase(text, ',');
    // The runtime expects the host's decimal mark, and a comma is no longer in the text.
    std::string number;
    for (const char c : text) {
        if (c == '.')
            number += std::localeconv()->decimal_point;
        else
            number += c;
    }
    return std::strtod(number.c_str(), nullptr);
}
