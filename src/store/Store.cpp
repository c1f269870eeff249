// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/Store.h"

#include <algorithm>
#include <new>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "datamodel/DataModel.h"
#include "datamodel/TableSpec.h"
#include "store/ModelWriter.h"
#include "store/StoreDatabase.h"
#include "store/StoredQuery.h"
#include "store/StoreTree.h"

namespace {

void copySwitches(const RecordSpec& from, RecordSpec& to) {
    for (const FieldSpec& field : from.fields()) {
        if (field.kind == DataType::eDate)
            to.setTakesZeroDate(field.name, field.takesZeroDate);
    }
    for (const TableSpec& table : from.tables())
        copySwitches(table.row, to.table(table.name)->row);
}

} // namespace

class Store::Impl {
public:
    Impl(const std::filesystem::path& path, Access access, std::chrono::milliseconds patience)
        : m_database(path, access, patience) {
        if (m_database.hasTables())
            m_tree.emplace(m_database);
        load();
    }

    DataManager& model() {
        m_database.begin();
        if (m_database.isStale() || m_outdated)
            load();
        return *m_model;
    }

    void visitRecords(const StoredDays& days, const RowVisitor& use) {
        static constexpr StoredQuery::DayColumns kColumns{"Datum", nullptr};
        m_database.begin();
        if (m_tree)
            StoredQuery::byDays(*m_tree, tableNamed("DataSets"), 0, kColumns, days, use);
    }

    void visitBookings(const RecordNode& account, const StoredDays& days, const RowVisitor& use) {
        static constexpr StoredQuery::DayColumns kColumns{"BuchungsDatum", "BuchungsID"};
        m_database.begin();
        if (m_database.isStale()) // then the account is a node of an older tree
            throw StoreError(StoreErrorCode::changed, m_database.connection().path().given);
        if (m_tree && account.storeId() != 0)
            StoredQuery::byDays(*m_tree, tableNamed("HomeBankingImport").nested().front(), account.storeId(), kColumns,
                                days, use);
    }

    void visitMatches(const char* table, const char* field, std::string_view text, const RowVisitor& use) {
        m_database.begin();
        if (m_tree)
            StoredQuery::byText(*m_tree, tableNamed(table), field, text, use);
    }

    void commit() {
        if (m_database.access() == StoreAccess::readOnly)
            throw StoreError(StoreErrorCode::readOnly, m_database.connection().path().given);
        throwIfUnreadable();
        m_database.begin();
        if (m_database.isStale())
            throw StoreError(StoreErrorCode::changed, m_database.connection().path().given);
        if (m_outdated)
            load();
        ModelWriter writer(*m_tree);
        try {
            writer.write(root(*m_model));
            m_database.commit();
        } catch (...) {
            m_database.rollback();
            throw;
        }
        writer.markStored(root(*m_model));
    }

    void rollback() {
        m_outdated = true;
        if (m_tree)
            m_tree->clearReadError();
    }

    void throwIfUnreadable() const {
        if (m_tree && m_tree->readError())
            throw StoreError(*m_tree->readError());
    }

    void leaveModel() noexcept {
        try {
            static auto& left = *new std::vector<std::unique_ptr<DataManager>>; // known, and never destroyed
            left.push_back(std::move(m_model));
        } catch (const std::bad_alloc&) {
            // Then it is released with the store.
        }
    }

private:
    static RecordNode& root(DataManager& manager) { return manager.model().root(); }

    const TableLayout& tableNamed(std::string_view name) {
        const auto& tables = m_tree->root().layout().nested();
        return *std::find_if(tables.begin(), tables.end(),
                             [name](const TableLayout& table) { return table.name() == name; });
    }

    void load() {
        auto fresh = std::make_unique<DataManager>();
        if (m_model)
            copySwitches(m_model->model().schema(), fresh->model().schema());
        if (m_tree) {
            m_tree->loadRoot(root(*fresh));
            m_tree->clearReadError();
        }
        m_database.acceptState();
        m_model = std::move(fresh);
        m_outdated = false;
    }

    StoreDatabase m_database;
    std::optional<StoreTree> m_tree;      // none: an empty file opened for reading
    std::unique_ptr<DataManager> m_model; // before the tree its rows come from
    bool m_outdated = false;
};

Store::Store(std::unique_ptr<Impl> impl) : m_impl(std::move(impl)) {}
Store::~Store() = default;
Store::Store(Store&&) noexcept = default;
Store& Store::operator=(Store&&) noexcept = default;

Store Store::open(const std::filesystem::path& path, Access access, std::chrono::milliseconds patience) {
    return Store(std::make_unique<Impl>(path, access, patience));
}

DataManager& Store::model() { return m_impl->model(); }

void Store::visitRecords(const StoredDays& days, const RowVisitor& use) { m_impl->visitRecords(days, use); }

void Store::visitBookings(const RecordNode& account, const StoredDays& days, const RowVisitor& use) {
    m_impl->visitBookings(account, days, use);
}

void Store::visitMatches(const char* table, const char* field, std::string_view text, const RowVisitor& use) {
    m_impl->visitMatches(table, field, text, use);
}

void Store::commit() { m_impl->commit(); }

void Store::rollback() { m_impl->rollback(); }

void Store::throwIfUnreadable() const { m_impl->throwIfUnreadable(); }

void Store::leaveModel() noexcept { m_impl->leaveModel(); }
