// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/RecordReader.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <string>

#include "datamodel/FieldSpec.h"
#include "datamodel/HostText.h"
#include "store/AsciiText.h"
#include "store/StoreDate.h"
#include "store/StoreError.h"

namespace {

using Value = std::optional<DataType>;

Value integerValue(const SqliteStatement& row, int column) {
    const std::int64_t number = row.integer(column);
    if (row.type(column) != SQLITE_INTEGER || number < std::numeric_limits<std::int32_t>::min() ||
        number > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return DataType::makeInteger(static_cast<std::int32_t>(number));
}

Value currencyValue(const SqliteStatement& row, int column) {
    if (row.type(column) != SQLITE_FLOAT && row.type(column) != SQLITE_INTEGER)
        return std::nullopt;
    return DataType::makeCurrency(row.real(column));
}

Value textValue(const SqliteStatement& row, int column) {
    if (row.type(column) != SQLITE_TEXT)
        return std::nullopt;
    const std::string_view utf8 = row.text(column); // a zero byte behind it, as SQLite makes it
    if (utf8.find('\0') != std::string_view::npos)
        return std::nullopt;
    DataType value;
    if (AsciiText::isAscii(utf8)) {
        value = utf8.data();
        return value;
    }
    const std::optional<std::string> text = HostText::fromUtf8(utf8);
    if (!text)
        return std::nullopt;
    value = text->c_str();
    return value;
}

Value dateValue(const SqliteStatement& row, int column) {
    const auto date = row.type(column) == SQLITE_TEXT ? StoreDate::read(row.text(column)) : std::nullopt;
    if (!date)
        return std::nullopt;
    DataType value;
    value = *date;
    return value;
}

Value booleanValue(const SqliteStatement& row, int column) {
    const std::int64_t number = row.integer(column);
    if (row.type(column) != SQLITE_INTEGER || (number != 0 && number != 1))
        return std::nullopt;
    return DataType::makeBoolean(number == 1);
}

Value valueOf(const SqliteStatement& row, int column, const FieldSpec& field) {
    switch (field.kind) {
    case DataType::eInteger:
        return integerValue(row, column);
    case DataType::eCurrency: {
        const Value amount = currencyValue(row, column);
        return amount && field.takes(*amount) ? amount : std::nullopt;
    }
    case DataType::eString:
        return textValue(row, column);
    case DataType::eDate:
        // The zero date stays readable when the field has come to demand a date.
        return dateValue(row, column);
    case DataType::eBoolean:
        return booleanValue(row, column);
    case DataType::eEmpty:
        break;
    }
    return std::nullopt;
}

} // namespace

void RecordReader::read(const SqliteStatement& row, const TableLayout& layout, const SqliteConnection& connection,
                        RecordNode& record) {
    record.setStoreId(row.integer(0));
    const auto fields = record.fields();
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const int column = static_cast<int>(i) + 1;
        if (row.type(column) == SQLITE_NULL) {
            fields[i].restore(DataType());
            continue;
        }
        const FieldSpec& field = layout.spec().fields()[i];
        const Value value = valueOf(row, column, field);
        if (!value)
            throw StoreError(StoreErrorCode::badValue, connection.path().given,
                             "Tabelle " + layout.name() + ", id " + std::to_string(record.storeId()) + ", Spalte " +
                                 field.name);
        fields[i].restore(*value);
    }
}
