// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "datamodel/FieldNode.h"
#include "datamodel/HostText.h"
#include "store/AsciiText.h"
#include "store/StoreDate.h"

/// A field's value as the store keeps it.
namespace StoredField {

/// Gives the value to `taker`, which has
///     void nothing();
///     void number(std::int64_t);       // a flag as well, 0 or 1
///     void real(double);
///     void text(std::string_view);     // UTF-8, valid as long as the field is unchanged
///     void passingText(std::string_view); // UTF-8 in `buffer`, valid as long as that is
template <typename Taker>
void give(const FieldNode& field, std::string& buffer, Taker&& taker) {
    switch (field.kind()) {
    case DataType::eEmpty:
        return taker.nothing();
    case DataType::eInteger:
        return taker.number(field.integer());
    case DataType::eCurrency:
        return taker.real(field.amount());
    case DataType::eString:
        if (AsciiText::isAscii(field.text()))
            return taker.text(field.text());
        buffer.clear();
        HostText::appendUtf8(buffer, field.text());
        return taker.passingText(buffer);
    case DataType::eDate:
        buffer.resize(StoreDate::kLength);
        StoreDate::write(buffer.data(), field.date());
        return taker.passingText(buffer);
    case DataType::eBoolean:
        return taker.number(field.flag() ? 1 : 0);
    }
}

} // namespace StoredField
