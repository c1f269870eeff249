// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FieldText.h"

#include <cstdio>

#include "cli/SafeText.h"
#include "datamodel/HostText.h"

namespace {

Json isoDate(const DMDate& date) {
    if (date.isZero())
        return nullptr;
    char text[16];
    std::snprintf(text, sizeof text, "%04u-%02u-%02u", date.year(), date.month(), date.day());
    return text;
}

} // namespace

namespace FieldText {

Json json(const FieldNode& field, const FieldSpec& spec) {
    if (spec.kind == DataType::eString)
        return HostText::toUtf8(field.text());
    const DataType value = field.getValue();
    switch (value.kind()) {
    case DataType::eInteger:
        return value.getInt();
    case DataType::eCurrency:
        return value.getCurrency();
    case DataType::eDate:
        return isoDate(value.getDate());
    case DataType::eBoolean:
        return value.getBoolean();
    case DataType::eEmpty:
    case DataType::eString:
        break;
    }
    return nullptr;
}

std::string display(const FieldNode& field) {
    if (field.kind() == DataType::eString)
        return SafeText::printable(HostText::toUtf8(field.text()));
    return SafeText::printable(HostText::toUtf8(field.getValue().asString(true, 2)));
}

} // namespace FieldText
