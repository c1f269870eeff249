// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include "framework/AssertTypeSizes.h"
#include "qif/ImportModuleQIF.h"
#include "qif/QifHeaderTable.h"
#include "qif/StrippedLine.h"

void ImportModuleQIF::setup() {
    for (const QifHeaderTable::Row& row : QifHeaderTable::kRows)
        addHeaderInfo(row.header, row.label, row.type);
}

void ImportModuleQIF::addHeaderInfo(const char* header, const char* name, E_AccountType type) {
    m_headerMap.insert_or_assign(header, AccountTypeAndName{type, name});
}

bool ImportModuleQIF::parseHeader(const char* line) {
    const StrippedLine stripped(line);
    const std::string_view text = stripped.text();
    // The first line of every record comes here: the ends of the map tell most of them without a copy.
    if (m_headerMap.empty() || text < m_headerMap.begin()->first || text > m_headerMap.rbegin()->first)
        return false;
    const auto known = m_headerMap.find(std::string(text));
    if (known == m_headerMap.end())
        return false;
    m_accountType = known->second.type;
    // Only the label: what an ignored section left in the record stays there.
    m_currentDataSet.m_sectionLabel = known->second.name;
    m_atRecordStart = true;
    return true;
}
