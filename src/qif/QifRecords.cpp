// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "framework/AssertTypeSizes.h"
#include "framework/Latin1.h"
#include "qif/ImportModuleQIF.h"
#include "qif/QifFieldTables.h"
#include "qif/StrippedLine.h"

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
    const StrippedLine entry(line);
    const char letter = entry.letter();
    m_atRecordStart = letter == QifFieldTables::kEndOfRecord;
    const Row* field = m_accountType == Category ? find(QifFieldTables::kCategoryFields, letter)
                                                 : find(QifFieldTables::kTransactionFields, letter);
    if (field == nullptr) {
        reportUnknownEntry(line);
        return true;
    }
    const std::string_view value = entry.text().substr(1); // every known letter is a character
    switch (field->action) {
    case Action::keepText:
        m_currentDataSet.*field->text = value;
        break;
    case Action::readDate:
        return parseDate(value.data());
    case Action::addBudget:
        m_currentDataSet.addBudget(scanCurrency(value.data()));
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
    const Verdict verdict = complete(m_currentDataSet);
    if (verdict == Verdict::collect) {
        std::string label = m_currentDataSet.m_sectionLabel;
        m_dataSets.push_back(std::move(m_currentDataSet));
        m_currentDataSet.m_sectionLabel = std::move(label);
    }
    m_currentDataSet.clearRecord();
    return verdict != Verdict::refuse;
}

void ImportModuleQIF::reportUnknownEntry(const char* line) {
    const std::string message = "Unbekannter Eintrag:" + std::string(line) + " wird ignoriert\r\n";
    setErrorLineMsg(message.c_str());
}

bool ImportModuleQIF::processDataSet(ImportDataSet& dataSet) {
    const Verdict verdict = complete(dataSet);
    if (verdict == Verdict::collect)
        m_dataSets.push_back(dataSet);
    return verdict != Verdict::refuse;
}

ImportModuleQIF::Verdict ImportModuleQIF::complete(ImportDataSet& dataSet) {
    // Every header sets a label, so that a run never meets this.
    if (dataSet.m_sectionLabel.empty()) {
        setErrorLineMsg("Ungültiger Datensatz"_latin1);
        return Verdict::refuse;
    }
    if (m_accountType == Category && dataSet.m_amount.empty())
        return Verdict::skip;
    dataSet.describeSecurity();
    return Verdict::collect;
}
