// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
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

/// The rows by their letters, so that none is searched for.
class RowsByLetter {
public:
    template <std::size_t size>
    constexpr explicit RowsByLetter(const std::array<Row, size>& rows) {
        for (const Row& row : rows)
            m_rows[static_cast<unsigned char>(row.letter)] = &row;
    }

    /// Null for an unknown letter.
    constexpr const Row* find(char letter) const { return m_rows[static_cast<unsigned char>(letter)]; }

private:
    std::array<const Row*, 256> m_rows{};
};

constexpr RowsByLetter kTransactionRows(QifFieldTables::kTransactionFields);
constexpr RowsByLetter kCategoryRows(QifFieldTables::kCategoryFields);

} // namespace

bool ImportModuleQIF::parseAcountItem(const char* line) {
    const StrippedLine entry(line);
    const char letter = entry.letter();
    m_atRecordStart = letter == QifFieldTables::kEndOfRecord;
    const Row* field = (m_accountType == Category ? kCategoryRows : kTransactionRows).find(letter);
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
