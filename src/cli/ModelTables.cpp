// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ModelTables.h"

#include <optional>
#include <stdexcept>
#include <string>

namespace {

[[noreturn]] void failOn(std::string_view name) { throw std::logic_error("no such node: " + std::string(name)); }

} // namespace

namespace ModelTables {

TableNode& table(RecordNode& record, std::string_view name) {
    const std::optional<std::size_t> index = record.spec().tableIndex(name);
    if (!index)
        failOn(name);
    return record.table(*index);
}

FieldNode& field(RecordNode& record, std::string_view name) {
    const std::optional<std::size_t> index = record.spec().fieldIndex(name);
    if (!index)
        failOn(name);
    return record.fields()[*index];
}

} // namespace ModelTables
