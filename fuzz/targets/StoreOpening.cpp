// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <string>
#include <string_view>

#include "datamodel/DataManager.h"
#include "datamodel/TableNode.h"
#include "store/ModelAccess.h"
#include "store/Sql.h"
#include "store/Store.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"
#include "support/ModelText.h"
#include "support/require.h"
#include "support/ScratchFile.h"

// Damage done to a store, which is then opened. The first byte chooses: opened
// for writing (bit 0), the rest is the file itself (bit 1). Otherwise the rest is
// what is done to a good store, step by step.
namespace {

constexpr std::chrono::milliseconds kNoPatience{0};
constexpr int kMostSteps = 6; // each costs a millisecond

struct Column {
    const char* table;
    const char* name;
};

constexpr Column kColumns[] = {
    {"Bestand", "id"},
    {"Bestand", "NextImportID"},
    {"Bestand", "NextUniqueID"},
    {"Bestand", "LetztesImportDatum"},
    {"Bestand", "NeueDatenVorhanden"},
    {"DataSets", "id"},
    {"DataSets", "Empfaenger"},
    {"DataSets", "Datum"},
    {"DataSets", "Betrag"},
    {"DataSets", "UniqueID"},
    {"DataSets", "Geaendert"},
    {"Importsessions", "id"},
    {"Importsessions", "ImportDatum"},
    {"Importsessions", "Summe"},
    {"HomeBankingImport", "id"},
    {"HomeBankingImport", "ExistsInHB"},
    {"HomeBankingDataSets", "id"},
    {"HomeBankingDataSets", "KontoID"},
    {"HomeBankingDataSets", "BuchungsDatum"},
    {"HomeBankingDataSets", "Steuerrelevant"},
    {"Buchungslisten", "id"},
    {"Buchungslisten", "Pruefsumme"},
    {"Zeilenzahlen", "Tabelle"},
    {"Zeilenzahlen", "KontoID"},
    {"Zeilenzahlen", "Anzahl"},
    {"sqlite_master", "sql"},
    {"sqlite_master", "rootpage"},
    {"sqlite_master", "name"},
};

constexpr const char* kStatements[] = {
    "PRAGMA user_version = 0",
    "PRAGMA user_version = 1",
    "PRAGMA user_version = 2",
    "DROP TABLE Buchungslisten",
    "PRAGMA user_version = 99",
    "PRAGMA application_id = 0",
    "DROP TABLE Bestand",
    "DROP TABLE DataSets",
    "DROP TABLE Zeilenzahlen",
    "DROP TABLE HomeBankingDataSets",
    "ALTER TABLE DataSets DROP COLUMN Betrag",
    "ALTER TABLE DataSets ADD COLUMN Weiteres BLOB DEFAULT x'00'",
    "ALTER TABLE Importsessions RENAME TO Sitzungen",
    "DELETE FROM Bestand",
    "DELETE FROM Zeilenzahlen",
    "INSERT INTO DataSets (id) VALUES (9223372036854775807)",
    "INSERT INTO DataSets (UniqueID) SELECT id FROM DataSets",
    "INSERT INTO HomeBankingDataSets (KontoID) VALUES (77)",
    "CREATE VIEW Sicht AS SELECT 1",
    "DROP INDEX HomeBankingDataSets_KontoID",
    "PRAGMA journal_mode = WAL",
    "PRAGMA encoding = 'UTF-16'",
    "VACUUM",
};

const ScratchFile& file() {
    static const ScratchFile file("db");
    return file;
}

std::string storeBytes() {
    std::filesystem::remove(file().path());
    Store store = Store::open(file().path(), StoreAccess::readWrite, kNoPatience);
    ModelAccess::appendRecords(store.model(), 1, 5);
    RecordNode& account = ModelAccess::appendAccount(store.model(), "1");
    for (int booking = 1; booking <= 3; ++booking)
        ModelAccess::appendBooking(account, booking);
    ModelAccess::table(store.model(), "Importsessions").append();
    store.commit();
    return file().read();
}

std::size_t place(FuzzInput& input, std::size_t size) {
    const std::size_t high = input.byte();
    return (high << 8U | input.byte()) % (size + 1);
}

std::string literal(unsigned kind, std::string_view bytes) {
    std::string hex;
    for (const char c : bytes) {
        constexpr const char* kDigits = "0123456789abcdef";
        hex += kDigits[static_cast<unsigned char>(c) >> 4U];
        hex += kDigits[static_cast<unsigned char>(c) & 15U];
    }
    switch (kind) {
    case 0:
        return "NULL";
    case 1:
        return "x'" + hex + "'";
    case 2:
        return "CAST(x'" + hex + "' AS TEXT)";
    case 3:
        return "CAST(CAST(x'" + hex + "' AS TEXT) AS INTEGER)";
    default:
        return "CAST(CAST(x'" + hex + "' AS TEXT) AS REAL)";
    }
}

/// One statement of another program; what SQLite refuses is not done.
void runForeign(std::string& bytes, const std::string& sql) {
    try {
        file().write(bytes);
        Sql program(file().path());
        program.run("PRAGMA synchronous = OFF");
        program.run("PRAGMA journal_mode = MEMORY");
        program.run("PRAGMA writable_schema = ON");
        program.run(sql);
    } catch (const std::runtime_error&) {
        return;
    }
    bytes = file().read();
}

void damage(std::string& bytes, FuzzInput& input) {
    switch (input.choice(5)) {
    case 0: { // anywhere
        const std::size_t at = place(input, bytes.size());
        const std::string_view patch = input.bytes(input.choice(17));
        bytes.replace(at, patch.size(), patch);
        break;
    }
    case 1: // in the file's header
        bytes.replace(input.choice(100) % (bytes.size() + 1), 1, 1, static_cast<char>(input.byte()));
        break;
    case 2:
        bytes.resize(place(input, bytes.size()));
        break;
    case 3: {
        const Column& column = kColumns[input.choice(std::size(kColumns))];
        const std::string row = std::to_string(input.choice(6));
        const unsigned kind = input.choice(5);
        const std::string value = literal(kind, input.bytes(input.choice(24)));
        const std::string table = column.table;
        runForeign(bytes, "UPDATE " + table + " SET " + column.name + " = " + value + " WHERE rowid = " + row);
        break;
    }
    default:
        runForeign(bytes, kStatements[input.choice(std::size(kStatements))]);
    }
}

void write(Store& store) {
    // Through the contract: in a damaged store every node may be missing.
    Node* table = store.model().root()->getNode(NDX("DataSets"));
    if (auto* records = dynamic_cast<TableNode*>(table))
        records->append();
    store.commit();
}

/// Of the store's tables; 0 where the file is too short to tell.
unsigned versionOf(std::string_view bytes) {
    constexpr std::size_t kAt = 60; // four bytes, the highest first
    unsigned version = 0;
    for (const char c : bytes.substr(std::min(kAt, bytes.size()), sizeof version))
        version = version << 8U | static_cast<unsigned char>(c);
    return version;
}

/// Whoever only reads an old store brings its tables up to date first, as a change of its own.
bool isSameOrBroughtUp(std::string_view before, std::string_view after) {
    return after == before || versionOf(after) > versionOf(before);
}

void open(const std::string& bytes, bool forWriting) {
    std::string unchanged = bytes;
    try {
        Store store =
            Store::open(file().path(), forWriting ? StoreAccess::readWrite : StoreAccess::readOnly, kNoPatience);
        ModelText::of(store.model());
        unchanged = file().read();
        require(forWriting || isSameOrBroughtUp(bytes, unchanged), "reading changes nothing");
        store.throwIfUnreadable();
        if (!forWriting)
            return;
        write(store);
    } catch (const StoreError& error) {
        require(*error.what() != '\0' && *error.codeText() != '\0', "a store that cannot be used tells why");
        const std::string now = file().read();
        require(now == unchanged || (!forWriting && isSameOrBroughtUp(bytes, now)), "what fails changes nothing");
        return;
    }
    Store again = Store::open(file().path(), StoreAccess::readOnly, kNoPatience);
    require(again.model().root()->getNode(NDX("DataSets")) != nullptr, "what was committed is there");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const std::string good = storeBytes();
    FuzzInput input(bytes, size);
    const unsigned way = input.byte();
    std::string damaged(input.rest());
    if ((way & 2U) == 0) {
        damaged = good;
        for (int step = 0; step < kMostSteps && !input.empty(); ++step)
            damage(damaged, input);
    }
    for (const char* beside : {"-journal", "-wal", "-shm"})
        std::filesystem::remove(file().path() + beside);
    file().write(damaged);
    open(damaged, (way & 1U) != 0);
    return 0;
}
