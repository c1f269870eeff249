// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "datamodel/DataManager.h"
#include "datamodel/TableNode.h"

/// What a home-banking document has left in a model.
namespace HomeBankingRows {

std::size_t presentAccounts(DataManager& model);
bool accountsAreFull(DataManager& model);
/// Whether an account that was asked for its bookings has no room for another one.
bool anAccountIsFull(DataManager& model);

/// An account with its bookings.
struct AccountsBookings {
    TableNode* bookings = nullptr;
    RecordNode* account = nullptr;
    unsigned row = 0; ///< of the account
};

/// The bookings that were added to an account.
class Bookings {
public:
    /// The last `count` rows of `table`, which is null when there are none.
    Bookings(DataManager& model, const TableNode* table, std::size_t count);

    /// Whether the library gave the last one up before it had its number.
    bool lastIsUnfinished() const;
    std::string lastId() const; ///< UTF-8
    void removeLast();
    /// In order, as many as `count` tells.
    std::vector<RecordNode*> rows() const;
    std::size_t count() const { return m_count; }
    /// Their account, and its row; null and 0 without bookings.
    RecordNode* account() const { return m_account; }
    unsigned accountRow() const { return m_accountRow; }
    /// Takes some of them, in order, out of the model, and has the account tell of the rest as new.
    void remove(const std::vector<const RecordNode*>& rows);
    std::size_t undated() const;

private:
    Bookings(const AccountsBookings& found, std::size_t count);

    TableNode* m_table;
    RecordNode* m_account;
    unsigned m_accountRow;
    unsigned m_count; // of the last rows
};

} // namespace HomeBankingRows
