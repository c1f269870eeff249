// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "datamodel/TableSpec.h"
#include "store/ExpectStoreError.h"
#include "store/ModelAccess.h"
#include "store/Sql.h"
#include "store/Store.h"
#include "store/StoreFolder.h"
#include "store/StoreVersions.h"

using namespace ModelAccess;

namespace {

class StoreTransaction : public ::testing::Test {
protected:
    Store open() { return Store::open(m_file, Store::Access::readWrite); }
    Store openForReading() { return Store::open(m_file, Store::Access::readOnly); }

    std::vector<int> stored() {
        Store store = openForReading();
        return recordNumbers(store.model());
    }
    void storeRecords(int first, int last) {
        Store store = open();
        appendRecords(store.model(), first, last);
        store.commit();
    }
    TableNode& records(Store& store) { return table(store.model(), "DataSets"); }

    StoreFolder m_folder;
    std::filesystem::path m_file = m_folder / "bestand.db";
};

using Numbers = std::vector<int>;

} // namespace

TEST_F(StoreTransaction, WhatIsNotCommittedIsForgotten) {
    storeRecords(1, 3);
    {
        Store store = open();
        appendRecords(store.model(), 4, 5);
        set(*records(store).row(1), "UniqueID", integer(100));
        records(store).remove(records(store).row(2));
    }
    EXPECT_EQ((Numbers{1, 2, 3}), stored());
}

TEST_F(StoreTransaction, RollbackGivesBackTheStoredModel) {
    storeRecords(1, 3);
    Store store = open();
    const std::string before = dump(store.model());
    appendRecords(store.model(), 4, 5);
    set(*records(store).row(1), "UniqueID", integer(100));
    records(store).remove(records(store).row(2));
    set(root(store.model()), "NextUniqueID", integer(77));
    store.rollback();
    EXPECT_EQ(before, dump(store.model()));
    appendRecords(store.model(), 4, 4);
    store.commit();
    EXPECT_EQ((Numbers{1, 2, 3, 4}), stored());
}

TEST_F(StoreTransaction, CommitRightAfterARollbackWritesNothing) {
    storeRecords(1, 3);
    Store store = open();
    appendRecords(store.model(), 4, 5);
    store.rollback();
    store.commit();
    EXPECT_EQ((Numbers{1, 2, 3}), stored());
}

TEST_F(StoreTransaction, RollbackOfANewStoreGivesBackTheFreshModel) {
    Store store = open();
    appendRecords(store.model(), 1, 2);
    store.rollback();
    DataManager fresh;
    EXPECT_EQ(dump(fresh), dump(store.model()));
}

TEST_F(StoreTransaction, RollbackKeepsTheSwitchesOfTheSchema) {
    Store store = open();
    store.model().model().schema().table("DataSets")->row.setTakesZeroDate("Datum", false);
    store.rollback();
    EXPECT_FALSE(set(*records(store).append(), "Datum", noDate()));
}

TEST_F(StoreTransaction, StoredZeroDateIsReadWhenTheFieldHasComeToDemandADate) {
    {
        Store store = open();
        set(*records(store).append(), "Datum", noDate());
        store.commit();
    }
    Store store = open();
    store.model().model().schema().table("DataSets")->row.setTakesZeroDate("Datum", false);
    EXPECT_EQ(DataType::eDate, get(*records(store).row(1), "Datum").kind());
}

TEST_F(StoreTransaction, EachCommitIsATransactionOfItsOwn) {
    Store store = open();
    for (int import = 1; import <= 4; ++import) {
        appendRecords(store.model(), import * 10, import * 10 + 1);
        if (import == 3)
            store.rollback();
        else
            store.commit();
    }
    EXPECT_EQ((Numbers{10, 11, 20, 21, 40, 41}), stored());
    EXPECT_EQ((Numbers{10, 11, 20, 21, 40, 41}), recordNumbers(store.model()));
}

TEST_F(StoreTransaction, ChangedRowIsWrittenAgainAfterACommit) {
    Store store = open();
    appendRecords(store.model(), 1, 2);
    store.commit();
    set(*records(store).row(2), "UniqueID", integer(20));
    store.commit();
    set(*records(store).row(1), "UniqueID", integer(10));
    store.commit();
    EXPECT_EQ((Numbers{10, 20}), stored());
}

TEST_F(StoreTransaction, OnlyWhatChangedIsWritten) {
    storeRecords(1, 100);
    // A mark that a write would wipe out, in a column the model does not change.
    Sql(m_file).run("UPDATE DataSets SET Buchungstext = 'von Hand'");
    Store store = open();
    for (unsigned row = 1; row <= 100; ++row)
        records(store).row(row); // loading is no change
    appendRecords(store.model(), 101, 101);
    Sql counter(m_file);
    store.commit();
    EXPECT_EQ("100", counter.value("SELECT count(*) FROM DataSets WHERE Buchungstext = 'von Hand'"));
    EXPECT_EQ("101", counter.value("SELECT count(*) FROM DataSets"));
}

TEST_F(StoreTransaction, RemovedRowIsGoneAndTheOthersKeepTheirOrder) {
    storeRecords(1, 5);
    {
        Store store = open();
        records(store).remove(records(store).row(2));
        records(store).remove(records(store).row(3));
        store.commit();
        EXPECT_EQ((Numbers{1, 3, 5}), recordNumbers(store.model()));
    }
    EXPECT_EQ((Numbers{1, 3, 5}), stored());
}

TEST_F(StoreTransaction, RowsBehindARemovedOneAreLoadedAfterTheCommit) {
    storeRecords(1, 5);
    Store store = open();
    records(store).remove(records(store).row(2));
    store.commit();
    appendRecords(store.model(), 6, 6);
    store.commit();
    EXPECT_EQ((Numbers{1, 3, 4, 5, 6}), recordNumbers(store.model()));
}

TEST_F(StoreTransaction, RowsOfATableWithGapsAreLoadedAfterFurtherChanges) {
    storeRecords(1, 8);
    {
        Store store = open();
        records(store).remove(records(store).row(4));
        store.commit();
    }
    Store store = open();
    appendRecords(store.model(), 9, 10);
    store.commit(); // before any row was loaded
    records(store).remove(records(store).row(6));
    store.commit();
    EXPECT_EQ((Numbers{1, 2, 3, 5, 6, 8, 9, 10}), recordNumbers(store.model()));
    EXPECT_EQ((Numbers{1, 2, 3, 5, 6, 8, 9, 10}), stored());
}

TEST_F(StoreTransaction, LastRowCanBeRemovedAndAddedAgain) {
    storeRecords(1, 3);
    Store store = open();
    records(store).remove(records(store).row(3));
    appendRecords(store.model(), 30, 31);
    store.commit();
    EXPECT_EQ((Numbers{1, 2, 30, 31}), stored());
    records(store).remove(records(store).row(4));
    store.commit();
    appendRecords(store.model(), 32, 32);
    store.commit();
    EXPECT_EQ((Numbers{1, 2, 30, 32}), stored());
}

TEST_F(StoreTransaction, RowThatIsAddedAndRemovedBeforeTheCommitLeavesNothing) {
    Store store = open();
    appendRecords(store.model(), 1, 2);
    records(store).remove(records(store).row(1));
    store.commit();
    EXPECT_EQ((Numbers{2}), stored());
}

TEST_F(StoreTransaction, AllRowsCanBeRemoved) {
    storeRecords(1, 3);
    {
        Store store = open();
        while (records(store).getNodeCount() != 0)
            records(store).remove(records(store).row(1));
        store.commit();
    }
    EXPECT_EQ((Numbers{}), stored());
    storeRecords(7, 7);
    EXPECT_EQ((Numbers{7}), stored());
}

TEST_F(StoreTransaction, BookingsAreAddedChangedAndRemoved) {
    {
        Store store = open();
        RecordNode& account = appendAccount(store.model(), "1");
        for (int number = 1; number <= 3; ++number)
            appendBooking(account, number);
        store.commit();
    }
    {
        Store store = open();
        RecordNode& account = *table(store.model(), "HomeBankingImport").row(1);
        TableNode& bookings = table(account, "DataSets");
        set(*bookings.row(1), "Notiz", text("ge\xE4ndert"));
        bookings.remove(bookings.row(2));
        appendBooking(account, 4);
        store.commit();
    }
    EXPECT_EQ((std::vector<std::string>{"B1|geändert", "B3|NULL", "B4|NULL"}),
              Sql(m_file).rows("SELECT BuchungsID, Notiz FROM HomeBankingDataSets ORDER BY id"));
    EXPECT_EQ("3", Sql(m_file).value("SELECT Anzahl FROM Zeilenzahlen WHERE Tabelle = 'HomeBankingDataSets'"));
}

TEST_F(StoreTransaction, RemovedAccountTakesItsBookingsAlong) {
    {
        Store store = open();
        for (const char* number : {"1", "2"})
            appendBooking(appendAccount(store.model(), number), 1);
        store.commit();
        TableNode& accounts = table(store.model(), "HomeBankingImport");
        accounts.remove(accounts.row(1));
        store.commit();
    }
    Sql sql(m_file);
    EXPECT_EQ((std::vector<std::string>{"2|2"}), sql.rows("SELECT a.id, b.KontoID FROM HomeBankingImport a, "
                                                          "HomeBankingDataSets b"));
    EXPECT_EQ((std::vector<std::string>{"HomeBankingDataSets|2|1", "HomeBankingImport|0|1"}),
              sql.rows("SELECT * FROM Zeilenzahlen ORDER BY Tabelle"));
}

TEST_F(StoreTransaction, StoreOpenedForReadingCannotCommit) {
    storeRecords(1, 1);
    const std::string before = StoreFolder::bytes(m_file);
    Store store = openForReading();
    appendRecords(store.model(), 2, 2);
    EXPECT_EQ("store-read-only", storeErrorCodeOf([&] { store.commit(); }));
    store.rollback();
    EXPECT_EQ((Numbers{1}), recordNumbers(store.model()));
    EXPECT_EQ(before, StoreFolder::bytes(m_file));
}

TEST_F(StoreTransaction, WriteBetweenTwoTransactionsIsSeenByTheNext) {
    Store store = open();
    appendRecords(store.model(), 1, 1);
    store.commit();
    storeRecords(2, 2);
    EXPECT_EQ((Numbers{1, 2}), recordNumbers(store.model()));
    appendRecords(store.model(), 3, 3);
    store.commit();
    EXPECT_EQ((Numbers{1, 2, 3}), stored());
}

TEST_F(StoreTransaction, ChangesThatOverlookedAnotherWriteAreRefused) {
    Store store = open();
    DataManager& model = store.model();
    appendRecords(model, 1, 1);
    store.commit();
    storeRecords(2, 2);
    appendRecords(model, 3, 3); // without asking for the model of the new transaction
    EXPECT_EQ("store-changed", storeErrorCodeOf([&] { store.commit(); }));
    EXPECT_EQ("store-changed", storeErrorCodeOf([&] { store.commit(); }));
    EXPECT_EQ((Numbers{1, 2}), recordNumbers(store.model()));
    appendRecords(store.model(), 3, 3);
    store.commit();
    EXPECT_EQ((Numbers{1, 2, 3}), stored());
}

TEST_F(StoreTransaction, RowsAreNotLoadedFromAStateThatTheTreeDoesNotKnow) {
    storeRecords(1, 3);
    Store store = open();
    DataManager& model = store.model();
    store.commit();
    Sql(m_file).run("DELETE FROM DataSets WHERE id = 1");
    EXPECT_EQ(nullptr, table(model, "DataSets").row(1));
    EXPECT_EQ("store-changed", storeErrorCodeOf([&] { store.throwIfUnreadable(); }));
    EXPECT_EQ((Numbers{2, 3}), recordNumbers(store.model()));
    EXPECT_NO_THROW(store.throwIfUnreadable());
}

TEST_F(StoreTransaction, FileThatWasMovedAwayTakesNoCommit) {
    storeRecords(1, 1);
    Store store = open();
    appendRecords(store.model(), 2, 2);
    std::filesystem::rename(m_file, m_folder / "woanders.db");
    EXPECT_EQ("store-missing", storeErrorCodeOf([&] { store.commit(); }));
    EXPECT_EQ("1", Sql(m_folder / "woanders.db").value("SELECT count(*) FROM DataSets"));
    EXPECT_FALSE(std::filesystem::exists(m_file));
}

TEST_F(StoreTransaction, StoreCanBeMoved) {
    Store store = open();
    appendRecords(store.model(), 1, 1);
    Store moved = std::move(store);
    appendRecords(moved.model(), 2, 2);
    moved.commit();
    EXPECT_EQ((Numbers{1, 2}), stored());
}

TEST_F(StoreTransaction, CommitWithoutChangesMakesTheStore) {
    { open().commit(); }
    EXPECT_EQ(StoreVersions::ours(), Sql(m_file).value("PRAGMA user_version"));
}

TEST_F(StoreTransaction, StoreThatNeverCommittedLeavesNoFile) {
    {
        Store store = open();
        appendRecords(store.model(), 1, 3);
    }
    EXPECT_EQ(0u, m_folder.entries());
}

TEST_F(StoreTransaction, NoOtherFileRemainsBesideTheStore) {
    storeRecords(1, 3);
    EXPECT_EQ(1u, m_folder.entries());
}
