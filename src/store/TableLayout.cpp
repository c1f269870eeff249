// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/TableLayout.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "datamodel/TableSpec.h"

namespace {

constexpr std::string_view kRootTable = "Bestand";
constexpr std::string_view kOwnerColumn = "KontoID";

struct TableName {
    std::string_view parent; // as it is called in the file
    std::string_view inModel;
    std::string_view inFile;
};

constexpr TableName kTableNames[] = {
    {kRootTable, "DataSets", "DataSets"},
    {kRootTable, "Importsessions", "Importsessions"},
    {kRootTable, "HomeBankingImport", "HomeBankingImport"},
    {kRootTable, "Buchungslisten", "Buchungslisten"},
    {"HomeBankingImport", "DataSets", "HomeBankingDataSets"},
};

std::string_view nameInFile(std::string_view parent, std::string_view inModel) {
    const auto* found = std::find_if(std::begin(kTableNames), std::end(kTableNames), [&](const TableName& name) {
        return name.parent == parent && name.inModel == inModel;
    });
    if (found == std::end(kTableNames))
        throw std::logic_error("TableLayout: the schema has a table that no migration makes");
    return found->inFile;
}

} // namespace

TableLayout::TableLayout(const RecordSpec& root) : TableLayout(root, kRootTable, false) {}

TableLayout::TableLayout(const RecordSpec& spec, std::string_view name, bool hasOwner)
    : m_spec(&spec), m_name(name), m_hasOwner(hasOwner) {
    m_nested.reserve(spec.tables().size());
    for (const TableSpec& table : spec.tables())
        m_nested.push_back(TableLayout(table.row, nameInFile(name, table.name), name != kRootTable));
}

std::string TableLayout::columns() const {
    std::string columns(m_hasOwner ? kOwnerColumn : "");
    for (const FieldSpec& field : m_spec->fields())
        columns.append(columns.empty() ? "" : ", ").append(field.name);
    return columns;
}

std::string TableLayout::insertSql(std::string_view source) const {
    return "INSERT INTO " + m_name + " (" + columns() + ") SELECT * FROM " + std::string(source);
}

std::string TableLayout::updateSql() const {
    std::string assignments;
    for (const FieldSpec& field : m_spec->fields())
        assignments.append(assignments.empty() ? "" : ", ").append(field.name).append(" = ?");
    return "UPDATE " + m_name + " SET " + assignments + " WHERE id = ?";
}

std::string TableLayout::removeSql() const { return "DELETE FROM " + m_name + " WHERE id = ?"; }

std::string TableLayout::ownerClause(std::string_view last) const {
    std::string clause;
    if (m_hasOwner)
        clause.append(kOwnerColumn).append(" = ?").append(last.empty() ? "" : " AND ");
    clause.append(last);
    return clause.empty() ? clause : " WHERE " + clause;
}

std::string TableLayout::selectSql() const { return selectWhereSql("id >= ?"); }

std::string TableLayout::selectWhereSql(std::string_view condition) const {
    std::string columns = "id";
    for (const FieldSpec& field : m_spec->fields())
        columns.append(", ").append(field.name);
    return "SELECT " + columns + " FROM " + m_name + ownerClause(condition) + " ORDER BY id";
}

std::string TableLayout::idsSql() const { return "SELECT id FROM " + m_name + ownerClause("") + " ORDER BY id"; }

std::string TableLayout::idsBackwardsSql() const { return idsSql() + " DESC"; }
