// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "datamodel/FinanceSchema.h"
#include "datamodel/RecordSpec.h"
#include "datamodel/TableSpec.h"

/// A record's schema as a test may change it before a model is built from it:
/// trees that lack a field or a table, or refuse a value.
struct SchemaDraft {
    struct Table;

    std::vector<FieldSpec> fields;
    std::vector<Table> tables;

    /// The finance schema as it is.
    static SchemaDraft finance();
    static SchemaDraft of(const RecordSpec& spec);

    SchemaDraft& table(std::string_view name);
    FieldSpec& field(std::string_view name);

    /// Removes the field or table of that name.
    SchemaDraft& without(std::string_view name);
    /// Makes a field refuse what imports assign to it: a kind that no import writes there.
    SchemaDraft& refusing(std::string_view name);

    RecordSpec build() const;
};

struct SchemaDraft::Table {
    std::string name;
    SchemaDraft row;
};

inline SchemaDraft SchemaDraft::of(const RecordSpec& spec) {
    SchemaDraft draft{spec.fields(), {}};
    for (const TableSpec& table : spec.tables())
        draft.tables.push_back({table.name, of(table.row)});
    return draft;
}

inline SchemaDraft SchemaDraft::finance() { return of(makeFinanceSchema()); }

inline SchemaDraft& SchemaDraft::table(std::string_view name) {
    for (Table& table : tables) {
        if (table.name == name)
            return table.row;
    }
    throw std::invalid_argument("no such table: " + std::string(name));
}

inline FieldSpec& SchemaDraft::field(std::string_view name) {
    for (FieldSpec& spec : fields) {
        if (spec.name == name)
            return spec;
    }
    throw std::invalid_argument("no such field: " + std::string(name));
}

inline SchemaDraft& SchemaDraft::without(std::string_view name) {
    const auto removed = std::erase_if(fields, [name](const FieldSpec& spec) { return spec.name == name; }) +
                         std::erase_if(tables, [name](const Table& table) { return table.name == name; });
    if (removed != 1)
        throw std::invalid_argument("no such child: " + std::string(name));
    return *this;
}

inline SchemaDraft& SchemaDraft::refusing(std::string_view name) {
    FieldSpec& spec = field(name);
    spec.kind = spec.kind == DataType::eBoolean ? DataType::eCurrency : DataType::eBoolean;
    return *this;
}

inline RecordSpec SchemaDraft::build() const {
    std::vector<TableSpec> specs;
    for (const Table& table : tables)
        specs.push_back({table.name, table.row.build()});
    return {fields, std::move(specs)};
}
