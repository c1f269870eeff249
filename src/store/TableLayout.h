// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "datamodel/RecordSpec.h"

/// How a table of the model lies in the file: its name there, and the
/// statements that read and write it. The statements follow from the schema's field
/// names; values only ever travel as parameters.
///
/// The root record is laid out like a table of one row. The rows of a table
/// that is nested in another table's rows name the row they belong to, their
/// owner, in the column "KontoID"; the tables of the root have no such column.
class TableLayout {
public:
    /// The root ("Bestand") with all tables below it. `root` must outlive the layout.
    explicit TableLayout(const RecordSpec& root);

    const RecordSpec& spec() const { return *m_spec; }
    const std::string& name() const { return m_name; }
    bool hasOwner() const { return m_hasOwner; }
    /// In the order of the schema's tables.
    const std::vector<TableLayout>& nested() const { return m_nested; }

    /// The owner if there is one, then the fields in the schema's order, as a list.
    std::string columns() const;
    /// Enters all rows of the table `source`, which has those columns.
    std::string insertSql(std::string_view source) const;
    /// Parameters: the fields, then the id.
    std::string updateSql() const;
    /// Parameter: the id.
    std::string removeSql() const;
    /// Parameters: the owner if there is one, then the least id. Columns: the
    /// id, then the fields. In the order of the ids, which is that of the rows.
    std::string selectSql() const;
    /// Parameters: the owner if there is one, then those of `condition`. Columns and order as above.
    std::string selectWhereSql(std::string_view condition) const;
    /// Parameter: the owner if there is one. All ids in order.
    std::string idsSql() const;
    /// The same from the last one on.
    std::string idsBackwardsSql() const;

private:
    TableLayout(const RecordSpec& spec, std::string_view name, bool hasOwner);

    std::string ownerClause(std::string_view last) const;

    const RecordSpec* m_spec;
    std::string m_name;
    bool m_hasOwner;
    std::vector<TableLayout> m_nested;
};
