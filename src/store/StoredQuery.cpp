// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/StoredQuery.h"

#include <memory>
#include <string>

#include "datamodel/DataModel.h"
#include "datamodel/HostText.h"
#include "store/RecordReader.h"
#include "store/StoreDate.h"

namespace {

struct Destroy {
    void operator()(RecordNode* record) const { RecordNode::destroy(record); }
};

/// The numbers as a JSON list, which SQLite can take for a table.
std::string jsonList(const std::vector<std::string>& numbers) {
    constexpr char kHex[] = "0123456789abcdef";
    std::string list = "[";
    for (const std::string& number : numbers) {
        list += list.size() > 1 ? ",\"" : "\"";
        for (const char c : HostText::toUtf8(number)) {
            const auto byte = static_cast<unsigned char>(c);
            if (byte < 0x20) {
                list += "\\u00";
                list += kHex[byte >> 4U];
                list += kHex[byte & 0xFU];
                continue;
            }
            if (c == '"' || c == '\\')
                list += '\\';
            list += c;
        }
        list += '"';
    }
    return list + "]";
}

std::string conditionOf(const StoredQuery::DayColumns& columns, const StoredDays& days) {
    const std::string date = columns.date;
    // The zero date sorts before every day.
    std::string condition = "(" + date + " BETWEEN ? AND ?";
    if (days.undated)
        condition += " OR " + date + " IS NULL OR " + date + " = '0000-00-00'";
    if (!days.numbers.empty() && columns.number != nullptr)
        condition += std::string(" OR ") + columns.number + " IN (SELECT value FROM json_each(?))";
    return condition + ")";
}

std::string isoText(const DMDate& day) {
    std::string text(StoreDate::kLength, '\0');
    StoreDate::write(text.data(), day);
    return text;
}

void visit(SqliteStatement& rows, const TableLayout& layout, const SqliteConnection& connection,
           const RowVisitor& use) {
    ModelContext context(DataModel::kCenturyWindowStart);
    const std::unique_ptr<RecordNode, Destroy> record(RecordNode::make(layout.spec(), context));
    while (rows.step()) {
        RecordReader::read(rows, layout, connection, *record);
        use(*record);
    }
}

} // namespace

namespace StoredQuery {

void byDays(StoreTree& tree, const TableLayout& layout, std::int64_t owner, const DayColumns& columns,
            const StoredDays& days, const RowVisitor& use) {
    SqliteConnection& connection = tree.database().connection();
    SqliteStatement rows(connection, layout.selectWhereSql(conditionOf(columns, days)));
    int parameter = 1;
    if (layout.hasOwner())
        rows.bind(parameter++, owner);
    const bool anyDay = !days.first.isZero();
    const std::string first = anyDay ? isoText(days.first) : "1";
    const std::string last = anyDay ? isoText(days.last) : "0";
    rows.bind(parameter++, std::string_view(first));
    rows.bind(parameter++, std::string_view(last));
    const std::string numbers = jsonList(days.numbers);
    if (!days.numbers.empty() && columns.number != nullptr)
        rows.bind(parameter++, std::string_view(numbers));
    visit(rows, layout, connection, use);
}

void byText(StoreTree& tree, const TableLayout& layout, const char* column, std::string_view text,
            const RowVisitor& use) {
    SqliteConnection& connection = tree.database().connection();
    SqliteStatement rows(connection, layout.selectWhereSql(std::string(column) + " = ?"));
    const std::string utf8 = HostText::toUtf8(text);
    rows.bind(1, std::string_view(utf8));
    visit(rows, layout, connection, use);
}

} // namespace StoredQuery
