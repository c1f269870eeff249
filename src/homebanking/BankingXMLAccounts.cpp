// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <QtXml/QDomElement>

#include "dmwrite/NodeAccess.h"
#include "dmwrite/UtcClock.h"
#include "framework/AssertTypeSizes.h"
#include "homebanking/AccountFields.h"
#include "homebanking/AccountIndex.h"
#include "homebanking/BankingXML.h"
#include "homebanking/HostAccess.h"
#include "homebanking/XmlNames.h"

namespace {

constexpr int kImportTypeHomeBanking = 6; // known to hosts as a bare number

bool holds(const Node& account, const char* field, const std::string& text) {
    return HostAccess::fieldText(account, field) == text;
}

} // namespace

bool BankingXML::importKonten(const QDomElement& list) {
    m_count = 0;
    setExistsInHBToFalse(); // before anything is known of the list: an empty one marks all accounts as absent
    const NodeTable* table = getAccountsBaseNode();
    if (table == nullptr)
        return false;
    AccountIndex accounts(*table);
    const QString accountTag = QString::fromLatin1(g_tagKonto);
    for (QDomNode konto = list.firstChild(); !konto.isNull(); konto = konto.nextSibling()) {
        if (konto.nodeName() != accountTag)
            return false;
        if (importKonto(konto, accounts))
            ++m_count;
    }
    return true;
}

bool BankingXML::importKonto(const QDomNode& konto) {
    const NodeTable* table = getAccountsBaseNode();
    if (table == nullptr)
        return false;
    AccountIndex accounts(*table);
    return importKonto(konto, accounts);
}

bool BankingXML::importKonto(const QDomNode& konto, AccountIndex& accounts) {
    const QString blz = getSafeChildValue(konto, g_tagBLZ);
    const QString ktonr = getSafeChildValue(konto, g_tagKtonr);
    const QString name = getSafeChildValue(konto, g_tagBezeichnung);
    Node* account = accounts.find(HostAccess::text(blz), HostAccess::text(ktonr));
    if (account == nullptr) {
        account = createNewAccount(blz, ktonr);
        if (account == nullptr)
            return false;
        accounts.addLastRow();
    }
    NodeAccess::assignField(account, AccountFields::kName, HostAccess::textValue(name));
    NodeAccess::assignField(account, AccountFields::kExists, DataType::makeBoolean(true));
    return true;
}

NodeTable* BankingXML::getAccountsBaseNode() const {
    Node* node = m_targetNode != nullptr ? m_targetNode->getNode(NDX(AccountFields::kTable)) : nullptr;
    return dynamic_cast<NodeTable*>(node);
}

Node* BankingXML::getAccount(QString blz, QString ktonr) const {
    const NodeTable* table = getAccountsBaseNode();
    if (table == nullptr)
        return nullptr;
    const std::string bankCode = HostAccess::text(blz);
    const std::string number = HostAccess::text(ktonr);
    const unsigned count = table->getNodeCount();
    for (unsigned row = 1; row <= count; ++row) {
        Node* account = table->getNodeNum(static_cast<unsigned short>(row));
        if (account != nullptr && holds(*account, AccountFields::kBankCode, bankCode) &&
            holds(*account, AccountFields::kNumber, number))
            return account;
    }
    return nullptr;
}

Node* BankingXML::createNewAccount(QString blz, QString ktonr) const {
    Node* account = HostAccess::appendRow(getAccountsBaseNode());
    NodeAccess::assignField(account, AccountFields::kBankCode, HostAccess::textValue(blz));
    NodeAccess::assignField(account, AccountFields::kNumber, HostAccess::textValue(ktonr));
    NodeAccess::assignField(account, AccountFields::kImportType, DataType::makeInteger(kImportTypeHomeBanking));
    return account;
}

void BankingXML::setExistsInHBToFalse() {
    const NodeTable* table = getAccountsBaseNode();
    const unsigned count = table != nullptr ? table->getNodeCount() : 0U;
    for (unsigned row = 1; row <= count; ++row)
        NodeAccess::assignField(table->getNodeNum(static_cast<unsigned short>(row)), AccountFields::kExists,
                                DataType::makeBoolean(false));
}

bool BankingXML::writeImportAccountInfo(Node* account) {
    DataType today;
    today = UtcClock::today();
    if (!NodeAccess::assignField(account, AccountFields::kLastImportDate, today))
        return false;
    const DataType lastId = HostAccess::textValue(m_lastBookingId);
    if (!m_lastBookingId.isEmpty() && !NodeAccess::assignField(account, AccountFields::kLastBookingId, lastId))
        return false;
    Node* newBookings = account->getNode(NDX(AccountFields::kNewBookings));
    if (newBookings == nullptr)
        return false;
    newBookings->setValue(DataType::makeInteger(m_count), NDX(), 0);
    return true;
}
