// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "homebanking/ImportHomeBankingData.h"

#include "framework/AssertTypeSizes.h"
#include "homebanking/BankingXML.h"

ImportHomeBankingData::ImportHomeBankingData() : m_bankingXml(std::make_unique<BankingXML>()) {}
ImportHomeBankingData::~ImportHomeBankingData() = default;

bool ImportHomeBankingData::updateAccountList(const XmlImportData& data) {
    return m_bankingXml->updateAccountList(data);
}

bool ImportHomeBankingData::importAccountingEntries(const XmlImportData& data) {
    return m_bankingXml->importAccountingEntries(data);
}

const char* ImportHomeBankingData::getErrorMsg() const { return m_bankingXml->getErrorMsg(); }
