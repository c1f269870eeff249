// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "store/ExpectStoreError.h"
#include "store/ModelAccess.h"
#include "store/Sql.h"
#include "store/Store.h"
#include "store/StoreFolder.h"

using namespace ModelAccess;

namespace {

/// What people do to a store with another program.
class StoreForeignEdit : public ::testing::Test {
protected:
    StoreForeignEdit() {
        Store store = Store::open(m_file, Store::Access::readWrite);
        appendRecords(store.model(), 1, 5);
        for (const char* number : {"1", "2"}) {
            RecordNode& account = appendAccount(store.model(), number);
            for (int booking = 1; booking <= 3; ++booking)
                appendBooking(account, booking);
        }
        store.commit();
    }

    void edit(const std::string& sql) { Sql(m_file).run(sql); }

    std::vector<int> numbers() {
        Store store = Store::open(m_file, Store::Access::readOnly);
        const std::vector<int> result = recordNumbers(store.model());
        store.throwIfUnreadable();
        return result;
    }
    unsigned bookingCount(unsigned account) {
        Store store = Store::open(m_file, Store::Access::readOnly);
        TableNode& bookings = table(*table(store.model(), "HomeBankingImport").row(account), "DataSets");
        for (unsigned row = 1; row <= bookings.getNodeCount(); ++row)
            EXPECT_NE(nullptr, bookings.row(row));
        store.throwIfUnreadable();
        return bookings.getNodeCount();
    }

    StoreFolder m_folder;
    std::filesystem::path m_file = m_folder / "bestand.db";
};

using Numbers = std::vector<int>;

} // namespace

TEST_F(StoreForeignEdit, RowsDeletedByHandAreGone) {
    edit("DELETE FROM DataSets WHERE UniqueID IN (2, 5)");
    EXPECT_EQ((Numbers{1, 3, 4}), numbers());
}

TEST_F(StoreForeignEdit, RowsInsertedByHandAreThere) {
    edit("INSERT INTO DataSets (UniqueID, Betrag) VALUES (6, 7)");
    EXPECT_EQ((Numbers{1, 2, 3, 4, 5, 6}), numbers());
}

TEST_F(StoreForeignEdit, FirstRowsInsertedByHandAreThere) {
    edit("INSERT INTO Importsessions (ImportID) VALUES (9)");
    Store store = Store::open(m_file, Store::Access::readOnly);
    EXPECT_EQ(9, get(*table(store.model(), "Importsessions").row(1), "ImportID").getInt());
}

TEST_F(StoreForeignEdit, IdsMayBeAnyNumber) {
    edit("INSERT INTO DataSets (id, UniqueID) VALUES (-9223372036854775808, 0)");
    edit("INSERT INTO DataSets (id, UniqueID) VALUES (9223372036854775806, 6)");
    EXPECT_EQ((Numbers{0, 1, 2, 3, 4, 5, 6}), numbers());
}

TEST_F(StoreForeignEdit, RowsThatFindNoIdBehindTheLastAreRefused) {
    edit("INSERT INTO DataSets (id, UniqueID) VALUES (9223372036854775805, 6)");
    {
        Store store = Store::open(m_file, Store::Access::readWrite);
        appendRecords(store.model(), 7, 9); // the third would get an id anywhere
        EXPECT_EQ("store-damaged", storeErrorCodeOf([&] { store.commit(); }));
    }
    EXPECT_EQ((Numbers{1, 2, 3, 4, 5, 6}), numbers());
}

TEST_F(StoreForeignEdit, TableWithTheNameThatNewRowsHaveIsNotReadInTheirPlace) {
    edit("CREATE TABLE new_rows_of_DataSets AS SELECT * FROM DataSets WHERE id = 1");
    Store store = Store::open(m_file, Store::Access::readWrite);
    appendRecords(store.model(), 6, 6);
    EXPECT_EQ("store-damaged", storeErrorCodeOf([&] { store.commit(); }));
    EXPECT_EQ((Numbers{1, 2, 3, 4, 5}), numbers());
}

TEST_F(StoreForeignEdit, BookingsChangedByHandAreCounted) {
    edit("DELETE FROM HomeBankingDataSets WHERE KontoID = 1 AND BuchungsID = 'B2'");
    edit("INSERT INTO HomeBankingDataSets (KontoID, BuchungsID) VALUES (2, 'B4')");
    EXPECT_EQ(2u, bookingCount(1));
    EXPECT_EQ(4u, bookingCount(2));
    edit("UPDATE HomeBankingDataSets SET KontoID = 1 WHERE BuchungsID = 'B4'");
    EXPECT_EQ(3u, bookingCount(1));
    EXPECT_EQ(3u, bookingCount(2));
}

TEST_F(StoreForeignEdit, AccountDeletedByHandTakesItsBookingsAlong) {
    edit("DELETE FROM HomeBankingImport WHERE id = 1");
    EXPECT_EQ(3u, bookingCount(1)); // the former second one
    EXPECT_EQ("3", Sql(m_file).value("SELECT count(*) FROM HomeBankingDataSets"));
    EXPECT_EQ("1", Sql(m_file).value("SELECT count(*) FROM Zeilenzahlen WHERE Tabelle = 'HomeBankingDataSets'"));
}

TEST_F(StoreForeignEdit, TriggersOfTheFileAreNotRunByTheStore) {
    edit("CREATE TRIGGER boese AFTER INSERT ON DataSets BEGIN DELETE FROM Importsessions; DELETE FROM DataSets; END");
    {
        Store store = Store::open(m_file, Store::Access::readWrite);
        appendRecords(store.model(), 6, 6);
        store.commit();
    }
    EXPECT_EQ((Numbers{1, 2, 3, 4, 5, 6}), numbers());
}

TEST_F(StoreForeignEdit, ValuesThatTheModelCannotHoldAreNamed) {
    struct Case {
        const char* table;
        const char* column;
        const char* value;
        const char* why;
    };
    const Case cases[] = {
        {"DataSets", "Datum", "'gestern'", "no date"},
        {"DataSets", "Datum", "'2004-02-30'", "a day that does not exist"},
        {"DataSets", "Datum", "'2004-2-3'", "not of ten characters"},
        {"DataSets", "Datum", "'2004-0x-01'", "not of digits"},
        {"DataSets", "Datum", "'2004/01/01'", "other separators"},
        {"DataSets", "Datum", "'2004-00-00'", "half a zero date"},
        {"DataSets", "Datum", "x'00'", "bytes"},
        {"DataSets", "Betrag", "'viel'", "no number"},
        {"DataSets", "Betrag", "1e300", "beyond the bounds"},
        {"DataSets", "Betrag", "9e999", "infinite"},
        {"DataSets", "Empfaenger", "x'C3BC'", "bytes"},
        {"DataSets", "Empfaenger", "CAST(x'FC' AS TEXT)", "no UTF-8"},
        {"DataSets", "Empfaenger", "'Ω'", "a character that the host's texts do not have"},
        {"DataSets", "Empfaenger", "CAST(x'610062' AS TEXT)", "a zero byte"},
        {"DataSets", "UniqueID", "'x'", "no number"},
        {"DataSets", "UniqueID", "2147483648", "too large"},
        {"DataSets", "UniqueID", "-2147483649", "too small"},
        {"DataSets", "UniqueID", "1.5", "a fraction"},
        {"HomeBankingImport", "ExistsInHB", "2", "neither yes nor no"},
        {"HomeBankingImport", "ExistsInHB", "'ja'", "no number"},
        {"HomeBankingDataSets", "Steuerrelevant", "-1", "neither yes nor no"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.table) + "." + c.column + " " + c.why);
        const std::filesystem::path copy = m_folder / "kopie.db";
        std::filesystem::copy_file(m_file, copy, std::filesystem::copy_options::overwrite_existing);
        Sql(copy).run(std::string("UPDATE ") + c.table + " SET " + c.column + " = " + c.value + " WHERE id = 2");
        const auto error = storeErrorOf([&] {
            Store store = Store::open(copy, Store::Access::readOnly);
            dump(store.model());
            store.throwIfUnreadable();
        });
        ASSERT_TRUE(error);
        EXPECT_STREQ("store-bad-value", error->codeText());
        const std::string place = std::string("Tabelle ") + c.table + ", id 2, Spalte " + c.column;
        EXPECT_NE(std::string::npos, std::string(error->what()).find(place)) << error->what();
    }
}

TEST_F(StoreForeignEdit, BadValueInTheRootIsNamedAtOnce) {
    edit("UPDATE Bestand SET LetztesImportDatum = 'x'");
    EXPECT_EQ("store-bad-value", storeErrorCodeOf([&] { Store::open(m_file, Store::Access::readWrite); }));
}

TEST_F(StoreForeignEdit, CounterWithoutAValueIsReadAsItIs) {
    edit("UPDATE Bestand SET NextUniqueID = NULL");
    Store store = Store::open(m_file, Store::Access::readOnly);
    EXPECT_EQ(DataType::eEmpty, get(root(store.model()), "NextUniqueID").kind());
}

TEST_F(StoreForeignEdit, WholeNumbersAreAmounts) {
    edit("UPDATE DataSets SET Betrag = 5 WHERE id = 1");
    Store store = Store::open(m_file, Store::Access::readOnly);
    EXPECT_EQ(5.0, get(*table(store.model(), "DataSets").row(1), "Betrag").getCurrency());
}

TEST_F(StoreForeignEdit, CountThatDoesNotFitTheRowsIsReported) {
    struct Case {
        const char* sql;
        const char* why;
    };
    const Case cases[] = {
        {"UPDATE Zeilenzahlen SET Anzahl = 6 WHERE Tabelle = 'DataSets'", "more than there can be"},
        {"UPDATE Zeilenzahlen SET Anzahl = 0 WHERE Tabelle = 'DataSets'", "none, and there are some"},
        {"UPDATE Zeilenzahlen SET Anzahl = -1 WHERE Tabelle = 'DataSets'", "less than none"},
        {"DELETE FROM Zeilenzahlen", "no count at all"},
        {"UPDATE Zeilenzahlen SET Anzahl = 1 WHERE Tabelle = 'Importsessions'; INSERT INTO Zeilenzahlen VALUES "
         "('Importsessions', 0, 1)",
         "some, and there are none"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        const std::filesystem::path copy = m_folder / "kopie.db";
        std::filesystem::copy_file(m_file, copy, std::filesystem::copy_options::overwrite_existing);
        Sql(copy).run(c.sql);
        EXPECT_EQ("store-damaged", storeErrorCodeOf([&] { Store::open(copy, Store::Access::readWrite); }));
    }
}

TEST_F(StoreForeignEdit, MissingRowIsNoticedWhenItIsRead) {
    edit("DROP TRIGGER DataSets_weniger; DELETE FROM DataSets WHERE id = 3");
    Store store = Store::open(m_file, Store::Access::readOnly);
    EXPECT_EQ(-1, recordNumbers(store.model()).at(2));
    EXPECT_EQ("store-damaged", storeErrorCodeOf([&] { store.throwIfUnreadable(); }));
}

TEST_F(StoreForeignEdit, MissingRowsOfATableWithGapsAreNoticed) {
    edit("DELETE FROM DataSets WHERE id = 2; DROP TRIGGER DataSets_weniger; DELETE FROM DataSets WHERE id = 3");
    Store store = Store::open(m_file, Store::Access::readOnly);
    EXPECT_EQ((Numbers{-1, -1, -1, -1}), recordNumbers(store.model()));
    EXPECT_EQ("store-damaged", storeErrorCodeOf([&] { store.throwIfUnreadable(); }));
}

TEST_F(StoreForeignEdit, RowThatVanishedUnnoticedCannotBeChanged) {
    Store store = Store::open(m_file, Store::Access::readWrite);
    RecordNode& record = *table(store.model(), "DataSets").row(3);
    record.setStoreId(300);
    set(record, "UniqueID", integer(30));
    EXPECT_EQ("store-damaged", storeErrorCodeOf([&] { store.commit(); }));
}

TEST_F(StoreForeignEdit, TableLongerThanTheModelTakesIsReported) {
    edit("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT 65531) INSERT INTO DataSets (UniqueID) "
         "SELECT i FROM n");
    EXPECT_EQ("store-too-many-rows", storeErrorCodeOf([&] { Store::open(m_file, Store::Access::readWrite); }));
    edit("DELETE FROM DataSets WHERE id = 65536");
    EXPECT_EQ(65535u, numbers().size());
}

TEST_F(StoreForeignEdit, StoreSwitchedToAWriteAheadLogStillWorks) {
    edit("PRAGMA journal_mode = WAL");
    {
        Store store = Store::open(m_file, Store::Access::readWrite);
        appendRecords(store.model(), 6, 6);
        store.commit();
    }
    EXPECT_EQ((Numbers{1, 2, 3, 4, 5, 6}), numbers());
}
