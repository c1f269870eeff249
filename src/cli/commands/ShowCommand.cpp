// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/commands/Commands.h"
#include "cli/Console.h"
#include "cli/FieldText.h"
#include "cli/JsonRows.h"
#include "cli/ModelTables.h"
#include "cli/RowLimit.h"
#include "cli/ShowTables.h"
#include "cli/StoreAtPath.h"
#include "cli/Suggestion.h"
#include "cli/TableWriter.h"
#include "cli/UsageError.h"
#include "datamodel/DataModel.h"

namespace {

const char* const kOptions[] = {"--store", "--limit"};
constexpr const char* kAccountFields[] = {"BLZ", "KtoNummer"};

const ShowTable& tableOf(const Options& options) {
    const std::string name = options.operands.empty() ? "data-sets" : options.operands.front();
    if (const ShowTable* table = ShowTables::byName(name))
        return *table;
    std::vector<std::string> names;
    std::string list;
    for (const ShowTable& table : ShowTables::all()) {
        names.emplace_back(table.name);
        list += std::string(list.empty() ? "" : ", ") + table.name;
    }
    throw UsageError("„" + name + "“ lässt sich nicht zeigen." + Suggestion::question(name, names) +
                     "\nschreiben Sie: dmimport show TABELLE, mit einer von: " + list);
}

/// The rows of one table and how they are shown.
class View {
public:
    View(const ShowTable& table, RecordNode& root, std::size_t limit)
        : m_table(table), m_spec(table.rowSpec(root)), m_order(ShowTables::fieldOrder(table, m_spec)),
          m_shown(ShowTables::fieldsForPeople(table, m_spec)), m_rows(table.rows(root, limit, m_total)) {}

    void writeJson(Console& console) const {
        JsonRows rows(console, std::string("{\"") + m_table.jsonKey + "\":");
        for (const ShownRow& row : m_rows)
            rows.add(json(row));
        rows.end("}\n");
    }

    void writeTable(Console& console) const {
        if (!m_rows.empty()) {
            TableWriter table(console, headings());
            for (const ShownRow& row : m_rows)
                table.measure(cells(row));
            table.begin();
            for (const ShownRow& row : m_rows)
                table.write(cells(row));
        }
        std::string all = std::to_string(m_total) + " " + (m_total == 1 ? m_table.one : m_table.many);
        if (m_rows.size() < m_total) {
            if (m_total != 1 && !all.ends_with('n'))
                all += 'n'; // the dative
            all = std::to_string(m_rows.size()) + " von " + all;
        }
        console.summary(all);
    }

private:
    Json json(const ShownRow& row) const {
        Json object = Json::object();
        auto& members = object.get_ref<Json::object_t&>();
        members.reserve(m_order.size() + std::size(kAccountFields));
        if (m_table.hasAccount) {
            for (const char* name : kAccountFields)
                members.emplace_back(name, accountText(row, name));
        }
        for (const std::size_t field : m_order)
            members.emplace_back(m_spec.fields()[field].name,
                                 FieldText::json(row.record->fields()[field], m_spec.fields()[field]));
        return object;
    }

    static Json accountText(const ShownRow& row, const char* name) {
        const RecordSpec& spec = row.account->spec();
        const std::size_t field = *spec.fieldIndex(name);
        return FieldText::json(row.account->fields()[field], spec.fields()[field]);
    }

    std::vector<TableColumn> headings() const {
        using Kind = TableColumn::Kind;
        std::vector<TableColumn> columns;
        if (m_table.hasAccount) {
            for (const char* name : kAccountFields)
                columns.push_back({name, Kind::fixed});
        }
        for (const std::size_t field : m_shown) {
            const FieldSpec& spec = m_spec.fields()[field];
            Kind kind = Kind::fixed;
            if (spec.kind == DataType::eString)
                kind = Kind::text;
            else if (spec.kind == DataType::eCurrency)
                kind = Kind::amount;
            else if (spec.kind == DataType::eInteger)
                kind = Kind::number;
            columns.push_back({spec.name, kind});
        }
        return columns;
    }

    std::vector<std::string> cells(const ShownRow& row) const {
        std::vector<std::string> cells;
        if (m_table.hasAccount) {
            for (const char* name : kAccountFields)
                cells.push_back(FieldText::display(ModelTables::field(*row.account, name)));
        }
        for (const std::size_t field : m_shown)
            cells.push_back(FieldText::display(row.record->fields()[field]));
        return cells;
    }

    const ShowTable& m_table;
    const RecordSpec& m_spec;
    std::vector<std::size_t> m_order; // of the JSON
    std::vector<std::size_t> m_shown; // of the table
    std::size_t m_total = 0;
    std::vector<ShownRow> m_rows;
};

ExitStatus run(const Options& options, Console& console) {
    const ShowTable& table = tableOf(options);
    const std::size_t limit = rowLimit(options.limit);
    StoreAtPath storeAtPath(options.store);
    Store& store = storeAtPath.forReading();
    const View view(table, store.model().model().root(), limit);
    store.throwIfUnreadable();
    if (console.json())
        view.writeJson(console);
    else
        view.writeTable(console);
    return ExitStatus::done;
}

} // namespace

const Command kShowCommand = {"show", "Bestand ansehen", {"TABELLE", false, false}, kOptions, run};
