// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/StoredDays.h"

#include <gtest/gtest.h>

#include "store/ExpectStoreError.h"
#include "store/ModelAccess.h"
#include "store/Sql.h"
#include "store/Store.h"
#include "store/StoreFolder.h"

using namespace ModelAccess;

namespace {

const DMDate kJune(1, 6, 2024);
const DMDate kJuly(31, 7, 2024);

class StoredDaysTest : public ::testing::Test {
protected:
    Store open(Store::Access access = Store::Access::readWrite) { return Store::open(m_file, access); }

    /// Records of these days, then one of the zero date and one without any.
    void fill() {
        Store store = open();
        TableNode& records = table(store.model(), "DataSets");
        int number = 0;
        for (const DataType& day :
             {date(31, 5, 2024), date(1, 6, 2024), date(31, 7, 2024), date(1, 8, 2024), noDate()}) {
            RecordNode& record = *records.append();
            set(record, "Datum", day);
            set(record, "UniqueID", integer(++number));
            set(record, "Empfaenger", text("M\xFCller " + std::to_string(number)));
        }
        set(*records.append(), "UniqueID", integer(++number));
        store.commit();
    }

    static std::vector<int> numbers(Store& store, const StoredDays& days) {
        std::vector<int> found;
        store.visitRecords(days, [&found](RecordNode& record) { found.push_back(get(record, "UniqueID").getInt()); });
        return found;
    }

    StoreFolder m_folder;
    std::filesystem::path m_file = m_folder / "bestand.db";
};

using Numbers = std::vector<int>;

} // namespace

TEST_F(StoredDaysTest, BothEndsBelongToIt) {
    fill();
    Store store = open();
    EXPECT_EQ((Numbers{2, 3}), numbers(store, {kJune, kJuly, false, {}}));
}

TEST_F(StoredDaysTest, UndatedRowsComeWhenAskedFor) {
    fill();
    Store store = open();
    EXPECT_EQ((Numbers{2, 3, 5, 6}), numbers(store, {kJune, kJuly, true, {}}));
    EXPECT_EQ((Numbers{5, 6}), numbers(store, {DMDate(), DMDate(), true, {}}));
    EXPECT_EQ((Numbers{}), numbers(store, {DMDate(), DMDate(), false, {}}));
}

TEST_F(StoredDaysTest, RowsAreWholeAndTheTreeStaysUnloaded) {
    fill();
    Store store = open();
    TableNode& records = table(store.model(), "DataSets");
    store.visitRecords({kJune, kJune, false, {}}, [](RecordNode& record) {
        EXPECT_EQ("M\xFCller 2", textOf(record, "Empfaenger"));
        EXPECT_EQ(2, record.storeId());
        EXPECT_EQ(DataType::eEmpty, get(record, "Betrag").kind());
    });
    for (unsigned row = 1; row <= 6; ++row)
        EXPECT_EQ(nullptr, records.rowIfLoaded(row));
}

TEST_F(StoredDaysTest, ChangesThatAreNotCommittedAreNotSeen) {
    fill();
    Store store = open();
    RecordNode& record = *table(store.model(), "DataSets").append();
    set(record, "Datum", date(2, 6, 2024));
    set(record, "UniqueID", integer(99));
    EXPECT_EQ((Numbers{2, 3}), numbers(store, {kJune, kJuly, false, {}}));
    store.commit();
    store.model();
    EXPECT_EQ((Numbers{2, 3, 99}), numbers(store, {kJune, kJuly, false, {}}));
}

TEST_F(StoredDaysTest, BookingsOfOneAccountByDayOrNumber) {
    {
        Store store = open();
        for (const char* name : {"1", "2"}) {
            RecordNode& account = appendAccount(store.model(), name);
            for (int number = 1; number <= 4; ++number)
                set(appendBooking(account, number), "BuchungsDatum", date(static_cast<unsigned>(number), 6, 2024));
            set(appendBooking(account, 5), "BuchungsID", text("\"B\\\xDF'\x01"));
        }
        store.commit();
    }
    Store store = open();
    RecordNode& account = *table(store.model(), "HomeBankingImport").row(2);
    const auto ids = [&](const StoredDays& days) {
        std::string found;
        store.visitBookings(account, days, [&](RecordNode& row) { found += textOf(row, "BuchungsID") + ";"; });
        return found;
    };
    const DMDate second(2, 6, 2024);
    EXPECT_EQ("B2;", ids({second, second, false, {}}));
    EXPECT_EQ("B2;B4;", ids({second, second, false, {"B4", "B77", "B2"}}));
    EXPECT_EQ("B1;", ids({DMDate(), DMDate(), false, {"B1"}}));
    EXPECT_EQ("\"B\\\xDF'\x01;", ids({DMDate(), DMDate(), false, {"\"B\\\xDF'\x01"}})) << "signs that JSON knows";
    EXPECT_EQ("B2;\"B\\\xDF'\x01;", ids({second, second, true, {}}));
}

TEST_F(StoredDaysTest, ANewAccountHasNoStoredBookings) {
    Store store = open();
    RecordNode& account = appendAccount(store.model(), "1");
    appendBooking(account, 1);
    store.visitBookings(account, {DMDate(), DMDate(), true, {"B1"}}, [](RecordNode&) { ADD_FAILURE(); });
}

TEST_F(StoredDaysTest, AnEmptyFileOpenedForReadingHasNone) {
    StoreFolder::write(m_file, "");
    Store store = open(Store::Access::readOnly);
    EXPECT_EQ((Numbers{}), numbers(store, {kJune, kJuly, true, {}}));
}

TEST_F(StoredDaysTest, AValueFromAForeignHandIsReported) {
    fill();
    Sql(m_file).run("UPDATE DataSets SET Betrag = 'viel' WHERE UniqueID = 2");
    Store store = open();
    EXPECT_EQ("store-bad-value", storeErrorCodeOf([&] { numbers(store, {kJune, kJuly, false, {}}); }));
}

TEST_F(StoredDaysTest, RowsAreFoundByAText) {
    fill();
    Store store = open();
    std::vector<int> found;
    store.visitMatches("DataSets", "Empfaenger", "M\xFCller 3",
                       [&found](RecordNode& record) { found.push_back(get(record, "UniqueID").getInt()); });
    EXPECT_EQ((Numbers{3}), found);
    store.visitMatches("Importsessions", "Pruefsumme", "0", [](RecordNode&) { ADD_FAILURE(); });
}

TEST_F(StoredDaysTest, RowsThatAnotherProgramWroteInBetweenAreSeen) {
    fill();
    Store store = open();
    store.commit();
    {
        Store other = open();
        set(*table(other.model(), "DataSets").row(2), "Datum", date(2, 9, 2024));
        other.commit();
    }
    EXPECT_EQ((Numbers{3}), numbers(store, {kJune, kJuly, false, {}}));
    EXPECT_EQ(6, table(store.model(), "DataSets").getNodeCount()) << "the tree is loaded anew afterwards";
}
