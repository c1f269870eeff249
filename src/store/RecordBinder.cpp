// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/RecordBinder.h"

#include <algorithm>

#include "datamodel/HostText.h"
#include "store/AsciiText.h"
#include "store/StoreDate.h"

std::string_view RecordBinder::utf8(std::size_t field, std::string_view hostText) {
    if (AsciiText::isAscii(hostText))
        return hostText;
    m_converted[field].clear();
    HostText::appendUtf8(m_converted[field], hostText);
    return m_converted[field];
}

void RecordBinder::bind(SqliteStatement& statement, int firstParameter, const RecordNode& record) {
    const auto fields = record.fields();
    m_converted.resize(std::max(m_converted.size(), fields.size()));
    int parameter = firstParameter;
    for (std::size_t i = 0; i < fields.size(); ++i, ++parameter) {
        const FieldNode& field = fields[i];
        switch (field.kind()) {
        case DataType::eEmpty:
            statement.bindNull(parameter);
            break;
        case DataType::eInteger:
            statement.bind(parameter, std::int64_t{field.integer()});
            break;
        case DataType::eCurrency:
            statement.bind(parameter, field.amount());
            break;
        case DataType::eString:
            statement.bind(parameter, utf8(i, field.text()));
            break;
        case DataType::eDate:
            m_converted[i].resize(StoreDate::kLength);
            StoreDate::write(m_converted[i].data(), field.date());
            statement.bind(parameter, std::string_view(m_converted[i]));
            break;
        case DataType::eBoolean:
            statement.bind(parameter, field.flag() ? std::int64_t{1} : std::int64_t{0});
            break;
        }
    }
}
