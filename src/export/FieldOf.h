// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "datamodel/FieldNode.h"
#include "datamodel/RecordNode.h"

/// The bare content of a record's field; nothing where the field is empty.
namespace FieldOf {

inline std::size_t place(const RecordSpec& spec, const char* name) { return spec.fieldIndex(name).value(); }

inline std::string_view text(const RecordNode& row, std::size_t field) { return row.fields()[field].text(); }

inline DMDate day(const RecordNode& row, std::size_t field) {
    const FieldNode& node = row.fields()[field];
    return node.kind() == DataType::eDate ? node.date() : DMDate();
}

inline std::optional<std::int32_t> integer(const RecordNode& row, std::size_t field) {
    const FieldNode& node = row.fields()[field];
    return node.kind() == DataType::eInteger ? std::optional(node.integer()) : std::nullopt;
}

inline std::optional<double> amount(const RecordNode& row, std::size_t field) {
    const FieldNode& node = row.fields()[field];
    return node.kind() == DataType::eCurrency ? std::optional(node.amount()) : std::nullopt;
}

inline std::optional<bool> flag(const RecordNode& row, std::size_t field) {
    const FieldNode& node = row.fields()[field];
    return node.kind() == DataType::eBoolean ? std::optional(node.flag()) : std::nullopt;
}

} // namespace FieldOf
