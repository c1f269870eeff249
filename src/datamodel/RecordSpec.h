// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "datamodel/FieldSpec.h"

struct TableSpec;

/// The schema of a record: its fields, and the tables nested in it, both in
/// order. Lookup by name takes constant time. Immutable but for the switch of
/// a date field; the records made from it keep a pointer to it.
class DM_API RecordSpec {
public:
    /// Names must be unique across fields and tables, not empty and without a
    /// zero byte, and there are at most 255 of both; throws std::invalid_argument otherwise.
    RecordSpec(std::vector<FieldSpec> fields, std::vector<TableSpec> tables);
    ~RecordSpec();
    RecordSpec(RecordSpec&&) noexcept;
    RecordSpec& operator=(RecordSpec&&) noexcept;
    RecordSpec(const RecordSpec&) = delete;
    RecordSpec& operator=(const RecordSpec&) = delete;

    const std::vector<FieldSpec>& fields() const { return m_fields; }
    const std::vector<TableSpec>& tables() const { return m_tables; }

    /// Index of the field of that name, compared byte for byte.
    std::optional<std::size_t> fieldIndex(std::string_view name) const;
    std::optional<std::size_t> tableIndex(std::string_view name) const;
    /// Place of the field or table of that name, fields first, then tables.
    std::optional<std::size_t> position(std::string_view name) const;
    /// The same for a zero-terminated name, which need not be measured.
    std::optional<std::size_t> position(const char* name) const;

    /// Whether that date field takes the zero date from now on. What is already
    /// stored stays. Throws std::invalid_argument when there is no such date field.
    void setTakesZeroDate(std::string_view field, bool takes);

    /// Null when there is no table of that name.
    TableSpec* table(std::string_view name);

private:
    void enter(std::string_view name);
    template <typename Name, typename IsSame>
    std::optional<std::size_t> search(Name name, IsSame isSame) const;

    std::vector<FieldSpec> m_fields;
    std::vector<TableSpec> m_tables;
    std::vector<std::string_view> m_names; // by position; they view the specs above, which moving leaves in place
    std::vector<std::uint8_t> m_buckets;   // hash of a name to its position plus one; 0: free
    int m_hashShift = 0;                   // what leaves the number of a bucket of a hash
};
