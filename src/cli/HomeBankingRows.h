// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "datamodel/DataManager.h"
#include "datamodel/TableNode.h"

/// What a home-banking document has left in a model.
namespace HomeBankingRows {

std::size_t presentAccounts(DataManager& model);
bool accountsAreFull(DataManager& model);
/// Whether an account that was asked for its bookings has no room for another one.
bool anAccountIsFull(DataManager& model);

/// The bookings that were added to an account.
class Bookings {
public:
    /// The last `count` rows of `table`, which is null when there are none.
    Bookings(DataManager& model, const TableNode* table, std::size_t count);

    /// Whether the library gave the last one up before it had its number.
    bool lastIsUnfinished() const;
    std::string lastId() const; ///< UTF-8
    void removeLast();
    std::size_t undated() const;

private:
    TableNode* m_table = nullptr;
    unsigned m_count;
};

} // namespace HomeBankingRows
