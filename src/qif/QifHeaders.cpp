// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/AssertTypeSizes.h"
#include "qif/ImportModuleQIF.h"
#include "qif/QifHeaderTable.h"
#include "qif/stripBlanks.h"

void ImportModuleQIF::setup() {
    for (const QifHeaderTable::Row& row : QifHeaderTable::kRows)
        addHeaderInfo(row.header, row.label, row.type);
}

void ImportModuleQIF::addHeaderInfo(const char* header, const char* name, E_AccountType type) {
    m_headerMap.insert_or_assign(header, AccountTypeAndName{type, name});
}

bool ImportModuleQIF::parseHeader(const char* line) {
    const auto known = m_headerMap.find(stripBlanks(line));
    if (known == m_headerMap.end())
        return false;
    m_accountType = known->second.type;
    // Only the label: what an ignored section left in the record stays there.
    m_currentDataSet.m_sectionLabel = known->second.name;
    m_atRecordStart = true;
    return true;
}
