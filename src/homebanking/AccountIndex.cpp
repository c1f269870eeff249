// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "homebanking/AccountIndex.h"

#include "framework/AssertTypeSizes.h"
#include "homebanking/AccountFields.h"
#include "homebanking/HostAccess.h"

AccountIndex::AccountIndex(const NodeTable& table) : m_table(table) {
    const unsigned count = table.getNodeCount();
    for (unsigned row = 1; row <= count; ++row)
        add(row);
}

Node* AccountIndex::find(const std::string& bankCode, const std::string& number) const {
    const auto found = m_rows.find({bankCode, number});
    return found != m_rows.end() ? m_table.getNodeNum(found->second) : nullptr;
}

void AccountIndex::addLastRow() { add(m_table.getNodeCount()); }

void AccountIndex::add(unsigned row) {
    const Node* account = m_table.getNodeNum(static_cast<unsigned short>(row));
    if (account == nullptr)
        return;
    m_rows.try_emplace({HostAccess::fieldText(*account, AccountFields::kBankCode),
                        HostAccess::fieldText(*account, AccountFields::kNumber)},
                       static_cast<unsigned short>(row));
}
