// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/DataType.h"

#include <utility>

#include "datamodel/DataTypeAccess.h"
#include "datamodel/DisplayText.h"

static_assert(sizeof(DataType) == 24, "a value fits three registers' worth of stack");

DataType::DataType(const DataType& other)
    : m_content(other.m_content), m_kind(other.m_kind), m_longText(other.m_longText) {
    if (SharedText* text = DataTypeAccess::sharedText(*this))
        text->acquire();
}

DataType::~DataType() { DataTypeAccess::release(*this); }

DataType& DataType::operator=(const DataType& other) {
    // Acquired before the old content goes: both may own the same block.
    if (SharedText* text = DataTypeAccess::sharedText(other))
        text->acquire();
    DataTypeAccess::release(*this);
    m_content = other.m_content;
    m_kind = other.m_kind;
    m_longText = other.m_longText;
    return *this;
}

DataType& DataType::operator=(const char* text) {
    // Built aside, since `text` may lie in the content that is given up.
    DataType value = DataTypeAccess::makeText(text != nullptr ? text : "");
    std::swap(m_content, value.m_content);
    std::swap(m_kind, value.m_kind);
    std::swap(m_longText, value.m_longText);
    return *this;
}

DataType& DataType::operator=(const DMDate& date) {
    DataTypeAccess::release(*this);
    m_content.date = date;
    m_kind = eDate;
    m_longText = false;
    return *this;
}

int DataType::getInt() const { return m_kind == eInteger ? m_content.integer : 0; }

DMDate DataType::getDate() const { return m_kind == eDate ? m_content.date : DMDate(); }

std::string DataType::asString(bool grouped, unsigned short decimals) const {
    switch (m_kind) {
    case eEmpty:
        break;
    case eInteger:
        return std::to_string(m_content.integer);
    case eCurrency:
        return DisplayText::amount(m_content.currency, grouped, decimals);
    case eString:
        return std::string(DataTypeAccess::text(*this));
    case eDate:
        return DisplayText::date(m_content.date);
    case eBoolean:
        return m_content.boolean ? "Ja" : "Nein";
    }
    return {};
}
