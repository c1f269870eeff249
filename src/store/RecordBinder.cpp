// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/RecordBinder.h"

#include <algorithm>

#include "store/StoredField.h"

namespace {

class Parameter {
public:
    Parameter(SqliteStatement& statement, int place) : m_statement(statement), m_place(place) {}

    void nothing() { m_statement.bindNull(m_place); }
    void number(std::int64_t value) { m_statement.bind(m_place, value); }
    void real(double value) { m_statement.bind(m_place, value); }
    void text(std::string_view value) { m_statement.bind(m_place, value); }
    void passingText(std::string_view value) { m_statement.bind(m_place, value); } // kept by the binder

private:
    SqliteStatement& m_statement;
    int m_place;
};

} // namespace

void RecordBinder::bind(SqliteStatement& statement, int firstParameter, const RecordNode& record) {
    const auto fields = record.fields();
    m_converted.resize(std::max(m_converted.size(), fields.size()));
    for (std::size_t i = 0; i < fields.size(); ++i)
        StoredField::give(fields[i], m_converted[i], Parameter(statement, firstParameter + static_cast<int>(i)));
}
