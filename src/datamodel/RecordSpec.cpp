// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/RecordSpec.h"

#include <bit>
#include <stdexcept>

#include "datamodel/TableSpec.h"

namespace {

constexpr std::size_t kMostChildren = 255; // a bucket holds position plus one in a byte

// Names of a schema differ in their length or one of three characters as a rule.
std::size_t hashOf(std::string_view name) {
    if (name.empty())
        return 0;
    const auto at = [name](std::size_t i) { return static_cast<std::size_t>(static_cast<unsigned char>(name[i])); };
    return name.size() * 7 + at(0) * 31 + at(name.size() / 2) * 5 + at(name.size() - 1);
}

[[noreturn]] void refuse(const std::string& reason) { throw std::invalid_argument("RecordSpec: " + reason); }

} // namespace

RecordSpec::RecordSpec(std::vector<FieldSpec> fields, std::vector<TableSpec> tables)
    : m_fields(std::move(fields)), m_tables(std::move(tables)) {
    const std::size_t count = m_fields.size() + m_tables.size();
    if (count > kMostChildren)
        refuse("more than 255 fields and tables");
    m_buckets.resize(std::bit_ceil(4 * count + 4));
    for (std::size_t i = 0; i < count; ++i)
        enter(i);
}

RecordSpec::~RecordSpec() = default;
RecordSpec::RecordSpec(RecordSpec&&) noexcept = default;
RecordSpec& RecordSpec::operator=(RecordSpec&&) noexcept = default;

const std::string& RecordSpec::nameAt(std::size_t position) const {
    return position < m_fields.size() ? m_fields[position].name : m_tables[position - m_fields.size()].name;
}

void RecordSpec::enter(std::size_t position) {
    const std::string& name = nameAt(position);
    if (name.empty())
        refuse("a name is empty");
    const std::size_t mask = m_buckets.size() - 1;
    std::size_t bucket = hashOf(name) & mask;
    for (; m_buckets[bucket] != 0; bucket = (bucket + 1) & mask) {
        if (nameAt(m_buckets[bucket] - 1U) == name)
            refuse("two children are named " + name);
    }
    m_buckets[bucket] = static_cast<std::uint8_t>(position + 1);
}

std::optional<std::size_t> RecordSpec::position(std::string_view name) const {
    if (m_buckets.empty())
        return std::nullopt; // moved from
    const std::size_t mask = m_buckets.size() - 1;
    for (std::size_t bucket = hashOf(name) & mask; m_buckets[bucket] != 0; bucket = (bucket + 1) & mask) {
        const std::size_t found = m_buckets[bucket] - 1U;
        if (nameAt(found) == name)
            return found;
    }
    return std::nullopt;
}

std::optional<std::size_t> RecordSpec::fieldIndex(std::string_view name) const {
    const auto found = position(name);
    return found && *found < m_fields.size() ? found : std::nullopt;
}

std::optional<std::size_t> RecordSpec::tableIndex(std::string_view name) const {
    const auto found = position(name);
    if (!found || *found < m_fields.size())
        return std::nullopt;
    return *found - m_fields.size();
}

void RecordSpec::setTakesZeroDate(std::string_view field, bool takes) {
    const auto index = fieldIndex(field);
    if (!index || m_fields[*index].kind != DataType::eDate)
        refuse("no date field is named " + std::string(field));
    m_fields[*index].takesZeroDate = takes;
}

TableSpec* RecordSpec::table(std::string_view name) {
    const auto index = tableIndex(name);
    return index ? &m_tables[*index] : nullptr;
}
