// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <sqlite3.h>

#include "store/ModelAccess.h"
#include "store/Store.h"
#include "store/StoreFolder.h"

using namespace ModelAccess;

namespace {

/// Counts what all connections made while it lives ask of SQLite: steps of its
/// virtual machine, in tens. (Every row that is looked at costs some.)
class WorkCounter {
public:
    WorkCounter() {
        sm_steps = 0;
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(&attach));
    }
    ~WorkCounter() { sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(&attach)); }
    WorkCounter(const WorkCounter&) = delete;
    WorkCounter& operator=(const WorkCounter&) = delete;

    long steps() const { return sm_steps; }

private:
    static int attach(sqlite3* connection, const char**, const void*) {
        const auto count = [](void*) {
            sm_steps += 10;
            return 0;
        };
        sqlite3_progress_handler(connection, 10, count, nullptr);
        return SQLITE_OK;
    }

    inline static long sm_steps = 0;
};

class StoreLaziness : public ::testing::Test {
protected:
    static constexpr int kMany = 60000;

    void fill(int count, bool gaps = false) {
        Store store = Store::open(m_file, Store::Access::readWrite);
        appendRecords(store.model(), 1, count);
        store.commit();
        if (gaps) {
            table(store.model(), "DataSets").remove(table(store.model(), "DataSets").row(2));
            store.commit();
        }
    }

    /// The work of appending ten records to the store as it is.
    long workOfAppendingTen() {
        WorkCounter counter;
        Store store = Store::open(m_file, Store::Access::readWrite);
        const int before = table(store.model(), "DataSets").getNodeCount();
        appendRecords(store.model(), before + 1, before + 10);
        store.commit();
        for (int row = 1; row <= before; ++row)
            EXPECT_EQ(nullptr, table(store.model(), "DataSets").rowIfLoaded(static_cast<unsigned>(row)));
        return counter.steps();
    }

    StoreFolder m_folder;
    std::filesystem::path m_file = m_folder / "bestand.db";
};

} // namespace

TEST_F(StoreLaziness, AppendingTakesAsMuchWorkInAFullStoreAsInASmallOne) {
    fill(10);
    const long small = workOfAppendingTen();
    std::filesystem::remove(m_file);
    fill(kMany);
    const long full = workOfAppendingTen();
    EXPECT_LE(full, small + 100) << "steps in a store of ten records: " << small;
}

TEST_F(StoreLaziness, AppendingTakesAsMuchWorkInAStoreWithGaps) {
    fill(20, true);
    const long small = workOfAppendingTen();
    std::filesystem::remove(m_file);
    fill(kMany, true);
    const long full = workOfAppendingTen();
    EXPECT_LE(full, small + 100) << "steps in a small store: " << small;
}

TEST_F(StoreLaziness, OneRowIsLoadedWithoutThoseBeforeIt) {
    fill(kMany);
    WorkCounter counter;
    Store store = Store::open(m_file, Store::Access::readOnly);
    const long opened = counter.steps();
    TableNode& records = table(store.model(), "DataSets");
    EXPECT_EQ(50000, get(*records.row(50000), "UniqueID").getInt());
    EXPECT_LE(counter.steps() - opened, 100);
    EXPECT_EQ(nullptr, records.rowIfLoaded(49999));
    EXPECT_EQ(nullptr, records.rowIfLoaded(50001));
}

TEST_F(StoreLaziness, ReadingAllRowsTakesTheSameWorkForEach) {
    const auto workPerRow = [this](int count, bool gaps) {
        std::filesystem::remove(m_file);
        fill(count, gaps);
        WorkCounter counter;
        Store store = Store::open(m_file, Store::Access::readOnly);
        recordNumbers(store.model());
        return static_cast<double>(counter.steps()) / count;
    };
    for (const bool gaps : {false, true}) {
        const double few = workPerRow(2000, gaps);
        const double many = workPerRow(40000, gaps);
        EXPECT_LE(many, few * 1.1) << (gaps ? "with gaps" : "without gaps");
    }
}

TEST_F(StoreLaziness, BookingsAreNotLoadedWithTheirAccount) {
    {
        Store store = Store::open(m_file, Store::Access::readWrite);
        RecordNode& account = appendAccount(store.model(), "1");
        for (int number = 1; number <= 1000; ++number)
            appendBooking(account, number);
        store.commit();
    }
    WorkCounter counter;
    Store store = Store::open(m_file, Store::Access::readWrite);
    RecordNode& account = *table(store.model(), "HomeBankingImport").row(1);
    TableNode& bookings = table(account, "DataSets");
    EXPECT_EQ(1000, bookings.getNodeCount());
    appendBooking(account, 1001);
    store.commit();
    EXPECT_EQ(nullptr, bookings.rowIfLoaded(1000));
    EXPECT_LE(counter.steps(), 1000);
}
