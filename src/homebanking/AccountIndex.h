// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <utility>

class Node;
class NodeTable;

/// Finds accounts by bank code and account number without walking the table for
/// each: a list of accounts costs one walk. Serves one list; the table must
/// outlive it, and only rows told to `add` may appear meanwhile.
class AccountIndex {
public:
    explicit AccountIndex(const NodeTable& table);

    /// The lowest row with that pair as the table stores it, or null.
    Node* find(const std::string& bankCode, const std::string& number) const;
    /// Takes note of a row just appended.
    void addLastRow();

private:
    using Key = std::pair<std::string, std::string>;

    void add(unsigned row);

    const NodeTable& m_table;
    std::map<Key, unsigned short> m_rows;
};
