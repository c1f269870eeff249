// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
//
// Everything that the contract leaves to the host.
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "BookNodes.h"
#include "Texts.h"

// The tree

Node* Node::getNode(const NDX& name) const {
    const auto* record = dynamic_cast<const RecordNode*>(this);
    return record != nullptr && name.name() != nullptr ? record->child(name.name()) : nullptr;
}

Node* Node::getNodeNum(unsigned short row) const {
    const auto* table = dynamic_cast<const TableNode*>(this);
    return table != nullptr ? table->row(row) : nullptr;
}

int NodeTable::create(unsigned short row) {
    if (row == 0 || row != getNodeCount() + 1) // row numbers are 16 bits wide: 0 is what follows 65,535
        return 0;
    static_cast<TableNode&>(*this).append();
    return 1;
}

void NodeTable::destroy(Node* row, bool /*final*/) { static_cast<TableNode&>(*this).remove(row); }

// Values. How a value keeps its text is the host's business: here every value has a copy.

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

std::string DataType::asString(bool /*grouped*/, unsigned short decimals) const {
    char text[350] = ""; // the largest double in full
    if (m_kind == eString)
        return m_content.text;
    if (m_kind == eCurrency)
        std::snprintf(text, sizeof text, "%.*f", static_cast<int>(decimals), m_content.currency);
    if (m_kind == eDate && !m_content.date.isZero())
        std::snprintf(text, sizeof text, "%04u-%02u-%02u", m_content.date.year(), m_content.date.month(),
                      m_content.date.day());
    return text;
}

// Bounds and helpers

const double DMCurrency::MIN_CURRENCY = -9999999.99;
const double DMCurrency::MAX_CURRENCY = 9999999.99;

unsigned short DMSchemaContext::getCenturyWindowStart() const { return m_centuryWindowStart; }

int DMDate::DayWithinMonth(unsigned month, unsigned day, unsigned year) {
    constexpr unsigned kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (year < 1 || month < 1 || month > 12 || day < 1)
        return 0;
    const bool leapDay = month == 2 && year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return day <= kDays[month - 1] + (leapDay ? 1U : 0U) ? 1 : 0;
}

int CrossPlatformApi::strCmpNoCase(const char* a, const char* b) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : static_cast<unsigned char>(c); };
    for (; *a != '\0' && lower(*a) == lower(*b); ++a)
        ++b;
    return lower(*a) - lower(*b);
}

std::string CrossPlatformApi::fileSystemEncoding(const std::string& path) { return utf8FromLatin1(path); }

std::string DMStringFunctions::strip(const std::string& text, StripType type, char character) {
    std::size_t begin = 0;
    std::size_t end = text.size();
    while (type != eStripTrailing && begin < end && text[begin] == character)
        ++begin;
    while (type != eStripLeading && end > begin && text[end - 1] == character)
        --end;
    return text.substr(begin, end - begin);
}

// The library was compiled with the same classes: it asks while it is loaded,
// before main, and perhaps before anything of this program is initialised.

namespace {

void demand(unsigned long size, unsigned long expected, const char* type) {
    if (size != expected) {
        std::fprintf(stderr, "The import library was built with another %s.\n", type);
        std::abort();
    }
}

} // namespace

void AssertTypeSize_Node::assertTypeSize(unsigned long size) { demand(size, sizeof(Node), "Node"); }

void AssertTypeSize_DataManager::assertTypeSize(unsigned long size) {
    demand(size, sizeof(DataManager), "DataManager");
}
