// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/RecordSpec.h"

#include <bit>
#include <cstring>
#include <stdexcept>

#include "datamodel/TableSpec.h"

namespace {

constexpr std::size_t kMostChildren = 255; // a bucket holds position plus one in a byte

// Of the first characters, so that a name need not be measured first. Those that begin alike are looked at one after
// the other: with more characters they are fewer, but every name costs more. The multiplier spreads them over the upper
// bits.
class NameHash {
public:
    void add(char c) { m_key = (m_key << kShift) ^ static_cast<unsigned char>(c); }
    std::uint32_t value() const { return m_key * kSpread; }

    static constexpr std::size_t kCharacters = 3;

private:
    static constexpr std::uint32_t kSpread = 3266489917;
    static constexpr unsigned kShift = 5;

    std::uint32_t m_key = 0;
};

std::uint32_t hashOf(std::string_view name) {
    NameHash hash;
    for (const char c : name.substr(0, NameHash::kCharacters))
        hash.add(c);
    return hash.value();
}

std::uint32_t hashOf(const char* name) {
    NameHash hash;
    for (std::size_t i = 0; i < NameHash::kCharacters && name[i] != '\0'; ++i)
        hash.add(name[i]);
    return hash.value();
}

[[noreturn]] void refuse(const std::string& reason) { throw std::invalid_argument("RecordSpec: " + reason); }

} // namespace

RecordSpec::RecordSpec(std::vector<FieldSpec> fields, std::vector<TableSpec> tables)
    : m_fields(std::move(fields)), m_tables(std::move(tables)) {
    const std::size_t count = m_fields.size() + m_tables.size();
    if (count > kMostChildren)
        refuse("more than 255 fields and tables");
    m_names.reserve(count);
    m_buckets.resize(std::bit_ceil(4 * count + 4));
    m_hashShift = std::countl_zero(static_cast<std::uint32_t>(m_buckets.size() - 1));
    for (const FieldSpec& field : m_fields)
        enter(field.name);
    for (const TableSpec& table : m_tables)
        enter(table.name);
}

RecordSpec::~RecordSpec() = default;
RecordSpec::RecordSpec(RecordSpec&&) noexcept = default;
RecordSpec& RecordSpec::operator=(RecordSpec&&) noexcept = default;

void RecordSpec::enter(std::string_view name) {
    if (name.empty())
        refuse("a name is empty");
    if (name.find('\0') != std::string_view::npos)
        refuse("a name holds a zero byte");
    const std::size_t mask = m_buckets.size() - 1;
    std::size_t bucket = hashOf(name) >> m_hashShift;
    for (; m_buckets[bucket] != 0; bucket = (bucket + 1) & mask) {
        if (m_names[m_buckets[bucket] - 1U] == name)
            refuse("two children are named " + std::string(name));
    }
    m_names.push_back(name);
    m_buckets[bucket] = static_cast<std::uint8_t>(m_names.size());
}

template <typename Name, typename IsSame>
std::optional<std::size_t> RecordSpec::search(Name name, IsSame isSame) const {
    if (m_buckets.empty())
        return std::nullopt; // moved from
    const std::size_t mask = m_buckets.size() - 1;
    for (std::size_t bucket = hashOf(name) >> m_hashShift; m_buckets[bucket] != 0; bucket = (bucket + 1) & mask) {
        const std::size_t found = m_buckets[bucket] - 1U;
        if (isSame(m_names[found]))
            return found;
    }
    return std::nullopt;
}

std::optional<std::size_t> RecordSpec::position(std::string_view name) const {
    return search(name, [name](std::string_view known) { return known == name; });
}

std::optional<std::size_t> RecordSpec::position(const char* name) const {
    // What is viewed are whole strings, which a zero byte ends.
    return search(name, [name](std::string_view known) { return std::strcmp(known.data(), name) == 0; });
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
