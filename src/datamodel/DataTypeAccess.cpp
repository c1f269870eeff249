// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/DataTypeAccess.h"

#include <cstring>

DataType DataTypeAccess::makeText(std::string_view text) {
    DataType value;
    fill(value, text);
    return value;
}

DataType DataTypeAccess::makeText(SharedText& text) {
    DataType value;
    fill(value, text.acquire());
    return value;
}

void DataTypeAccess::fill(DataType& value, std::string_view text) {
    if (text.size() > kInlineText) {
        fill(value, SharedText::make(text));
        return;
    }
    std::memcpy(value.m_content.shortText, text.data(), text.size());
    value.m_content.shortText[text.size()] = '\0';
    value.m_kind = DataType::eString;
    value.m_longText = false;
}

void DataTypeAccess::fill(DataType& value, SharedText* owned) {
    value.m_content.text = reinterpret_cast<char*>(owned);
    value.m_kind = DataType::eString;
    value.m_longText = true;
}
