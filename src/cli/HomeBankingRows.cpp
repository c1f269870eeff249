// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/HomeBankingRows.h"

#include <cstdint>

#include "cli/HomeBankingDocument.h"
#include "cli/ModelTables.h"
#include "datamodel/DataModel.h"
#include "datamodel/HostText.h"

namespace {

TableNode& accounts(DataManager& model) { return ModelTables::table(model.model().root(), "HomeBankingImport"); }

/// The first of the accounts' booking tables that somebody asked for and that is wanted.
template <class Predicate>
HomeBankingRows::AccountsBookings findBookings(DataManager& model, Predicate isWanted) {
    TableNode& all = accounts(model);
    for (unsigned number = 1; number <= all.getNodeCount(); ++number) {
        RecordNode* account = all.rowIfLoaded(number);
        if (account == nullptr)
            continue;
        TableNode* bookings = account->tableIfMade(*account->spec().tableIndex("DataSets"));
        if (bookings != nullptr && isWanted(*bookings))
            return {bookings, account, number};
    }
    return {};
}

bool isFull(const TableNode& table) { return table.getNodeCount() == TableNode::kMaxRows; }

} // namespace

namespace HomeBankingRows {

std::size_t presentAccounts(DataManager& model) {
    TableNode& all = accounts(model);
    std::size_t present = 0;
    for (unsigned number = 1; number <= all.getNodeCount(); ++number) {
        RecordNode* account = all.row(number);
        if (account == nullptr)
            continue; // cannot be read; the store tells
        const DataType value = ModelTables::field(*account, "ExistsInHB").getValue();
        present += value.kind() == DataType::eBoolean && value.getBoolean() ? 1 : 0;
    }
    return present;
}

bool accountsAreFull(DataManager& model) { return isFull(accounts(model)); }

bool anAccountIsFull(DataManager& model) { return findBookings(model, isFull).bookings != nullptr; }

Bookings::Bookings(DataManager& model, const TableNode* table, std::size_t count)
    : Bookings(findBookings(model, [table](const TableNode& bookings) { return &bookings == table; }), count) {}

Bookings::Bookings(const AccountsBookings& found, std::size_t count)
    : m_table(found.bookings), m_account(found.account), m_accountRow(found.row),
      m_count(found.bookings != nullptr ? static_cast<unsigned>(count) : 0) {}

bool Bookings::lastIsUnfinished() const {
    if (m_count == 0)
        return false;
    return ModelTables::field(*m_table->row(m_table->getNodeCount()), "UniqueID").kind() == DataType::eEmpty;
}

std::string Bookings::lastId() const {
    RecordNode& row = *m_table->row(m_table->getNodeCount());
    return HostText::toUtf8(ModelTables::field(row, BookingElements::kIdField).text());
}

void Bookings::removeLast() {
    m_table->remove(m_table->row(m_table->getNodeCount()));
    --m_count;
}

std::vector<RecordNode*> Bookings::rows() const {
    std::vector<RecordNode*> rows;
    for (unsigned i = 0; i < m_count; ++i)
        rows.push_back(m_table->row(m_table->getNodeCount() - m_count + 1 + i));
    return rows;
}

void Bookings::remove(const std::vector<const RecordNode*>& rows) {
    if (rows.empty())
        return;
    auto next = rows.begin();
    m_count -= m_table->removeLoaded([&](const RecordNode& row) {
        const bool found = next != rows.end() && *next == &row;
        next += found ? 1 : 0;
        return found;
    });
    ModelTables::field(*m_account, "NeueBuchungen")
        .setValue(DataType::makeInteger(static_cast<std::int32_t>(m_count)), NDX(), 0);
}

std::size_t Bookings::undated() const {
    if (m_count == 0)
        return 0;
    const std::size_t field = *m_table->rowSpec().fieldIndex("BuchungsDatum");
    std::size_t undated = 0;
    for (unsigned row = m_table->getNodeCount() - m_count + 1; row <= m_table->getNodeCount(); ++row)
        undated += m_table->row(row)->fields()[field].kind() == DataType::eEmpty ? 1 : 0;
    return undated;
}

} // namespace HomeBankingRows
