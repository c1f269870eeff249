// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ShowTables.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "cli/ModelTables.h"
#include "datamodel/TableSpec.h"

namespace {

template <const char* const* name>
TableNode& tableOf(RecordNode& root) {
    return ModelTables::table(root, *name);
}

constexpr const char* kDataSets = "DataSets";
constexpr const char* kSessions = "Importsessions";
constexpr const char* kAccounts = "HomeBankingImport";

constexpr const char* kRecordFields[] = {"Datum",        "Betrag",    "Empfaenger",     "Verwendungszweck",
                                         "Buchungstext", "Kategorie", "Unterkategorie", "ImportID",
                                         "UniqueID"};
constexpr const char* kSessionFields[] = {"ImportID",    "ImportDatum",     "ImportTyp", "ImportFileName", "ImportInfo",
                                          "Datensaetze", "Abgelehnt",       "Bekannt",   "Summe",          "ErsterTag",
                                          "LetzterTag",  "Zurueckgenommen", "Pruefsumme"};
constexpr const char* kAccountFields[] = {"BLZ", "KtoNummer", "Bezeichnung"};
constexpr const char* kBookingFields[] = {"BuchungsDatum", "ValutaDatum", "Betrag", "Empfaenger", "Verwendungszweck"};
constexpr const char* kCounterFields[] = {"NextImportID", "NextUniqueID", "LetztesImportDatum", "NeueDatenVorhanden"};

constexpr const char* kRecordFieldsInJson[] = {"Zeile", "Geaendert"};
constexpr const char* kSessionFieldsInJson[] = {"Pruefsumme"};

template <const char* const* name>
const RecordSpec& rowSpecOf(RecordNode& root) {
    return tableOf<name>(root).rowSpec();
}

/// A row that cannot be read is left out; the store remembers why.
void addRows(std::vector<ShownRow>& rows, TableNode& table, RecordNode* account, std::size_t limit) {
    for (unsigned number = 1; number <= table.getNodeCount() && rows.size() < limit; ++number) {
        if (RecordNode* row = table.row(number))
            rows.push_back({row, account});
    }
}

template <const char* const* name>
std::vector<ShownRow> rowsOf(RecordNode& root, std::size_t limit, std::size_t& total) {
    std::vector<ShownRow> rows;
    TableNode& table = tableOf<name>(root);
    total = table.getNodeCount();
    addRows(rows, table, nullptr, limit);
    return rows;
}

const RecordSpec& bookingSpec(RecordNode& root) {
    const RecordSpec& account = tableOf<&kAccounts>(root).rowSpec();
    return account.tables()[*account.tableIndex(kDataSets)].row;
}

std::vector<ShownRow> bookings(RecordNode& root, std::size_t limit, std::size_t& total) {
    std::vector<ShownRow> rows;
    TableNode& accounts = tableOf<&kAccounts>(root);
    total = 0;
    for (unsigned number = 1; number <= accounts.getNodeCount(); ++number) {
        RecordNode* account = accounts.row(number);
        if (account == nullptr)
            continue;
        TableNode& table = ModelTables::table(*account, kDataSets);
        total += table.getNodeCount();
        addRows(rows, table, account, limit);
    }
    return rows;
}

const RecordSpec& rootSpec(RecordNode& root) { return root.spec(); }

std::vector<ShownRow> rootAlone(RecordNode& root, std::size_t limit, std::size_t& total) {
    total = 1;
    return limit > 0 ? std::vector<ShownRow>{{&root, nullptr}} : std::vector<ShownRow>();
}

constexpr ShowTable kTables[] = {
    {"data-sets", "dataSets", "Datensatz", "Datensätze", kRecordFields, rowSpecOf<&kDataSets>, rowsOf<&kDataSets>,
     false, kRecordFieldsInJson},
    {"sessions", "sessions", "Importsitzung", "Importsitzungen", kSessionFields, rowSpecOf<&kSessions>,
     rowsOf<&kSessions>, false, kSessionFieldsInJson},
    {"accounts", "accounts", "Konto", "Konten", kAccountFields, rowSpecOf<&kAccounts>, rowsOf<&kAccounts>, false},
    {"bookings", "bookings", "Buchung", "Buchungen", kBookingFields, bookingSpec, bookings, true},
    {"counters", "counters", "Zeile", "Zeilen", kCounterFields, rootSpec, rootAlone, false},
};

} // namespace

namespace ShowTables {

std::span<const ShowTable> all() { return kTables; }

const ShowTable* byName(std::string_view name) {
    const auto* found = std::find_if(std::begin(kTables), std::end(kTables),
                                     [name](const ShowTable& table) { return name == table.name; });
    return found != std::end(kTables) ? found : nullptr;
}

std::vector<std::size_t> fieldOrder(const ShowTable& table, const RecordSpec& spec) {
    std::vector<std::size_t> order;
    for (const char* name : table.firstFields)
        order.push_back(*spec.fieldIndex(name));
    for (std::size_t field = 0; field < spec.fields().size(); ++field) {
        if (std::find(order.begin(), order.end(), field) == order.end())
            order.push_back(field);
    }
    return order;
}

std::vector<std::size_t> fieldsForPeople(const ShowTable& table, const RecordSpec& spec) {
    std::vector<std::size_t> order = fieldOrder(table, spec);
    for (const char* name : table.jsonOnly)
        std::erase(order, *spec.fieldIndex(name));
    return order;
}

} // namespace ShowTables
