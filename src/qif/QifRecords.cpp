// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

#include "framework/AssertTypeSizes.h"
#include "framework/Latin1.h"
#include "qif/ImportModuleQIF.h"
#include "qif/QifFieldTables.h"
#include "qif/stripBlanks.h"

namespace {

using QifFieldTables::Action;
using QifFieldTables::Row;

template <std::size_t size>
const Row* find(const std::array<Row, size>& rows, char letter) {
    const auto* row = std::find_if(rows.begin(), rows.end(), [&](const Row& r) { return r.letter == letter; });
    return row != rows.end() ? row : nullptr;
}

} // namespace

bool ImportModuleQIF::parseAcountItem(const char* line) {
    const std::string entry = stripBlanks(line);
    const char letter = *entry.c_str();
    m_atRecordStart = letter == QifFieldTables::kEndOfRecord;
    const Row* field = m_accountType == Category ? find(QifFieldTables::kCategoryFields, letter)
                                                 : find(QifFieldTables::kTransactionFields, letter);
    if (field == nullptr) {
        reportUnknownEntry(line);
        return true;
    }
    const char* value = entry.c_str() + 1;
    switch (field->action) {
    case Action::keepText:
        m_currentDataSet.*field->text = value;
        break;
    case Action::readDate:
        return parseDate(value);
    case Action::addBudget:
        m_currentDataSet.addBudget(scanCurrency(value));
        break;
    case Action::endRecord:
        return endRecord();
    case Action::ignore:
        break;
    }
    return true;
}

bool ImportModuleQIF::parseDate(const char* text) {
    if (m_currentDataSet.m_date.parse(text))
        return true;
    setErrorLineMsg("Ungültiges Datumsformat"_latin1);
    return false;
}

bool ImportModuleQIF::endRecord() {
    const bool valid = processDataSet(m_currentDataSet);
    m_currentDataSet.clearRecord();
    return valid;
}

void ImportModuleQIF::reportUnknownEntry(const char* line) {
    const std::string message = "Unbekannter Eintrag:" + std::string(line) + " wird ignoriert\r\n";
    setErrorLineMsg(message.c_str());
}

bool ImportModuleQIF::processDataSet(ImportDataSet& dataSet) {
    // Every header sets a label, so that a run never meets this.
    if (dataSet.m_sectionLabel.empty()) {
        setErrorLineMsg("Ungültiger Datensatz"_latin1);
        return false;
    }
    if (m_accountType == Category && dataSet.m_amount.empty())
        return true;
    dataSet.describeSecurity();
    m_dataSets.push_back(dataSet);
    return true;
}
