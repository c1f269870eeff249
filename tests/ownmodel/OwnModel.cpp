// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "ownmodel/OwnModel.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>

constinit OwnModelLog g_ownModelLog;

// The tree

namespace {
DMSchemaContext g_context(79); // 80 is the first year of the 1900s
} // namespace

bool OwnLeaf::setValue(const DataType& value, const NDX& where, int flags) {
    if (where.name() != nullptr || flags != 0)
        ++g_ownModelLog.breaches;
    if (value.kind() != m_kind)
        return false;
    m_value = value;
    return true;
}

DMSchemaContext* OwnLeaf::getSchemaContext() const { return &g_context; }

OwnRecord::OwnRecord(const OwnFields& fields) {
    for (const auto& [name, kind] : fields)
        m_leaves.emplace_back(name, std::make_unique<OwnLeaf>(kind));
}

OwnRecord::~OwnRecord() = default;

DMSchemaContext* OwnRecord::getSchemaContext() const { return &g_context; }

void OwnRecord::addTable(const char* name, OwnFields rowFields) {
    m_tables.emplace_back(name, std::make_unique<OwnTable>(std::move(rowFields)));
}

Node* OwnRecord::child(const std::string& name) const {
    for (const auto& [leafName, leaf] : m_leaves) {
        if (leafName == name)
            return leaf.get();
    }
    for (const auto& [tableName, table] : m_tables) {
        if (tableName == name)
            return table.get();
    }
    return nullptr;
}

DMSchemaContext* OwnTable::getSchemaContext() const { return &g_context; }

DataModel::DataModel()
    : root({{"NextImportID", DataType::eInteger},
            {"NextUniqueID", DataType::eInteger},
            {"LetztesImportDatum", DataType::eDate},
            {"NeueDatenVorhanden", DataType::eBoolean}}) {
    root.addTable("DataSets", {{"Empfaenger", DataType::eString},
                               {"Buchungstext", DataType::eString},
                               {"Datum", DataType::eDate},
                               {"Betrag", DataType::eCurrency},
                               {"ImportID", DataType::eInteger},
                               {"UniqueID", DataType::eInteger}});
    root.addTable("Importsessions", {{"ImportDatum", DataType::eDate},
                                     {"ImportInfo", DataType::eString},
                                     {"ImportID", DataType::eInteger},
                                     {"ImportTyp", DataType::eInteger},
                                     {"ImportFileName", DataType::eString}});
}

// The contract

Node* Node::getNode(const NDX& name) const {
    const auto* record = dynamic_cast<const OwnRecord*>(this);
    return record != nullptr && name.name() != nullptr ? record->child(name.name()) : nullptr;
}

Node* Node::getNodeNum(unsigned short row) const {
    const auto* table = dynamic_cast<const OwnTable*>(this);
    return table != nullptr && row >= 1 && row <= table->m_rows.size() ? table->m_rows[row - 1U].get() : nullptr;
}

int NodeTable::create(unsigned short row) {
    auto& table = static_cast<OwnTable&>(*this);
    if (!std::exchange(g_ownModelLog.rowPrepared, false))
        ++g_ownModelLog.breaches;
    if (row != table.m_rows.size() + 1) {
        ++g_ownModelLog.breaches;
        return 0;
    }
    table.m_rows.push_back(std::make_unique<OwnRecord>(table.m_rowFields));
    return 1;
}

void NodeTable::destroy(Node* row, bool final) {
    auto& rows = static_cast<OwnTable&>(*this).m_rows;
    const auto found = std::find_if(rows.begin(), rows.end(), [row](const auto& owned) { return owned.get() == row; });
    if (!final || found == rows.end()) {
        ++g_ownModelLog.breaches;
        return;
    }
    rows.erase(found);
    ++g_ownModelLog.rowsDestroyed;
}

DataManager::DataManager() : m_model(std::make_unique<DataModel>()) {}
DataManager::~DataManager() = default;
Node* DataManager::root() const { return &m_model->root; }

// Texts lie in blocks of their own, every copy has one.
namespace {
char* copyOf(const char* text) {
    const std::size_t size = std::strlen(text) + 1;
    return static_cast<char*>(std::memcpy(new char[size], text, size));
}
} // namespace

DataType::DataType(const DataType& other) : m_content(other.m_content), m_kind(other.m_kind) {
    if (m_kind == eString)
        m_content.text = copyOf(other.m_content.text);
}

DataType::~DataType() {
    if (m_kind == eString)
        delete[] m_content.text;
}

DataType& DataType::operator=(const DataType& other) {
    DataType copy(other);
    std::swap(m_content, copy.m_content);
    std::swap(m_kind, copy.m_kind);
    return *this;
}

DataType& DataType::operator=(const char* text) {
    DataType value;
    value.m_content.text = copyOf(text != nullptr ? text : "");
    value.m_kind = eString;
    return *this = value;
}

DataType& DataType::operator=(const DMDate& date) {
    DataType value(eDate);
    value.m_content.date = date;
    return *this = value;
}

int DataType::getInt() const { return m_kind == eInteger ? m_content.integer : 0; }

DMDate DataType::getDate() const { return m_kind == eDate ? m_content.date : DMDate(); }

std::string DataType::asString(bool grouped, unsigned short decimals) const {
    if (!grouped || decimals != 2)
        ++g_ownModelLog.breaches;
    char text[64] = "";
    if (m_kind == eString)
        return m_content.text;
    if (m_kind == eCurrency)
        std::snprintf(text, sizeof text, "%ld cent", static_cast<long>(m_content.currency * 100));
    if (m_kind == eDate)
        std::snprintf(text, sizeof text, "%u/%u/%u", m_content.date.year(), m_content.date.month(),
                      m_content.date.day());
    return text;
}

const double DMCurrency::MIN_CURRENCY = -100.0;
const double DMCurrency::MAX_CURRENCY = 1000.0;

unsigned short DMSchemaContext::getCenturyWindowStart() const { return m_centuryWindowStart; }

int DMDate::DayWithinMonth(unsigned month, unsigned day, unsigned year) {
    using namespace std::chrono;
    return year_month_day(std::chrono::year(static_cast<int>(year)), std::chrono::month(month), std::chrono::day(day))
                   .ok()
               ? 1
               : 0;
}

int CrossPlatformApi::strCmpNoCase(const char* a, const char* b) {
    const auto lower = [](std::string text) {
        std::transform(text.begin(), text.end(), text.begin(),
                       [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
        return text;
    };
    return lower(a).compare(lower(b));
}

/// This host's file system lies below "host:".
std::string CrossPlatformApi::fileSystemEncoding(const std::string& path) {
    return path.rfind("host:", 0) == 0 ? path.substr(5) : "nowhere/" + path;
}

std::string DMStringFunctions::strip(const std::string& text, StripType type, char character) {
    std::size_t begin = 0;
    std::size_t end = text.size();
    while (type != eStripTrailing && begin < end && text[begin] == character)
        ++begin;
    while (type != eStripLeading && end > begin && text[end - 1] == character)
        --end;
    return text.substr(begin, end - begin);
}

namespace {
void checkSize(int& checks, unsigned long size, unsigned long expected) {
    ++checks;
    if (size != expected)
        ++g_ownModelLog.wrongSizes;
}
} // namespace

void AssertTypeSize_Node::assertTypeSize(unsigned long size) {
    checkSize(g_ownModelLog.nodeSizeChecks, size, sizeof(Node));
}

void AssertTypeSize_DataManager::assertTypeSize(unsigned long size) {
    checkSize(g_ownModelLog.managerSizeChecks, size, sizeof(DataManager));
}
