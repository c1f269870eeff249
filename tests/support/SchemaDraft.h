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
    std::vector<FieldSpec> fields;
    std::vector<std::pair<std::string, SchemaDraft>> tables;

    /// The finance schema as it is.
    static SchemaDraft finance() { return of(makeFinanceSchema()); }

    static SchemaDraft of(const RecordSpec& spec) {
        SchemaDraft draft{spec.fields(), {}};
        for (const TableSpec& table : spec.tables())
            draft.tables.emplace_back(table.name, of(table.row));
        return draft;
    }

    SchemaDraft& table(std::string_view name) {
        for (auto& [tableName, row] : tables) {
            if (tableName == name)
                return row;
        }
        throw std::invalid_argument("no such table: " + std::string(name));
    }

    FieldSpec& field(std::string_view name) {
        for (FieldSpec& spec : fields) {
            if (spec.name == name)
                return spec;
        }
        throw std::invalid_argument("no such field: " + std::string(name));
    }

    /// Removes the field or table of that name.
    SchemaDraft& without(std::string_view name) {
        const auto removed = std::erase_if(fields, [name](const FieldSpec& spec) { return spec.name == name; }) +
                             std::erase_if(tables, [name](const auto& table) { return table.first == name; });
        if (removed != 1)
            throw std::invalid_argument("no such child: " + std::string(name));
        return *this;
    }

    /// Makes a field refuse what imports assign to it: a kind that no import writes there.
    SchemaDraft& refusing(std::string_view name) {
        FieldSpec& spec = field(name);
        spec.kind = spec.kind == DataType::eBoolean ? DataType::eCurrency : DataType::eBoolean;
        return *this;
    }

    RecordSpec build() const {
        std::vector<TableSpec> specs;
        for (const auto& [name, row] : tables)
            specs.push_back({name, row.build()});
        return {fields, std::move(specs)};
    }
};
