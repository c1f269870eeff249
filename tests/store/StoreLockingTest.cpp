// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <chrono>
#include <fstream>

#include "store/ChildProcess.h"
#include "store/ExpectStoreError.h"
#include "store/ModelAccess.h"
#include "store/Sql.h"
#include "store/Store.h"
#include "store/StoreFolder.h"

using namespace ModelAccess;
using namespace std::chrono_literals;

namespace {

class StoreLocking : public ::testing::Test {
protected:
    StoreLocking() {
        Store store = Store::open(m_file, Store::Access::readWrite);
        appendRecords(store.model(), 1, 3);
        store.commit();
    }

    /// A program that has the store open until it is told to go on, and then
    /// commits what it has added when it writes.
    static std::function<int(const ChildProcess::Parent&)> holding(Store::Access access, std::filesystem::path file) {
        return [access, file](const ChildProcess::Parent& parent) {
            Store store = Store::open(file, access);
            appendRecords(store.model(), 4, 5);
            parent.ready();
            parent.waitForParent();
            if (access == Store::Access::readWrite)
                store.commit();
            return 0;
        };
    }

    std::vector<int> stored() {
        Store store = Store::open(m_file, Store::Access::readOnly);
        return recordNumbers(store.model());
    }

    static bool systemNamesLockHolders() { return std::ifstream("/proc/locks").good(); }

    StoreFolder m_folder;
    std::filesystem::path m_file = m_folder / "bestand.db";
};

using Numbers = std::vector<int>;

} // namespace

TEST_F(StoreLocking, SecondWriterLearnsWhoIsBusy) {
    ChildProcess other(holding(Store::Access::readWrite, m_file));
    ASSERT_TRUE(other.waitUntilReady());
    const auto error = storeErrorOf([&] { Store::open(m_file, Store::Access::readWrite, 50ms); });
    ASSERT_TRUE(error);
    EXPECT_EQ(StoreErrorCode::busy, error->code());
    const std::string expected =
        systemNamesLockHolders() ? "(Prozess " + std::to_string(other.id()) + ")" : "von einem anderen Programm";
    EXPECT_NE(std::string::npos, std::string(error->what()).find(expected)) << error->what();
    other.release();
    EXPECT_EQ(0, other.wait());
    EXPECT_EQ((Numbers{1, 2, 3, 4, 5}), stored());
}

TEST_F(StoreLocking, SecondWriterWaitsForTheFirst) {
    ChildProcess other([this](const ChildProcess::Parent& parent) {
        Store store = Store::open(m_file, Store::Access::readWrite);
        appendRecords(store.model(), 4, 5);
        parent.ready();
        usleep(200'000);
        store.commit();
        return 0;
    });
    ASSERT_TRUE(other.waitUntilReady());
    Store store = Store::open(m_file, Store::Access::readWrite, 60s);
    EXPECT_EQ((Numbers{1, 2, 3, 4, 5}), recordNumbers(store.model()));
    EXPECT_EQ(0, other.wait());
}

TEST_F(StoreLocking, PatienceIsSpentBeforeTheStoreIsCalledBusy) {
    ChildProcess other(holding(Store::Access::readWrite, m_file));
    ASSERT_TRUE(other.waitUntilReady());
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ("store-busy", storeErrorCodeOf([&] { Store::open(m_file, Store::Access::readWrite, 300ms); }));
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 250ms);
}

TEST_F(StoreLocking, ReaderSeesTheOldStateWhileAWriterPrepares) {
    ChildProcess other(holding(Store::Access::readWrite, m_file));
    ASSERT_TRUE(other.waitUntilReady());
    EXPECT_EQ((Numbers{1, 2, 3}), stored());
    other.release();
    EXPECT_EQ(0, other.wait());
    EXPECT_EQ((Numbers{1, 2, 3, 4, 5}), stored());
}

TEST_F(StoreLocking, ReaderKeepsItsStateAndTheWriterWaitsForIt) {
    ChildProcess reader([this](const ChildProcess::Parent& parent) {
        Store store = Store::open(m_file, Store::Access::readOnly);
        table(store.model(), "DataSets").row(1);
        parent.ready();
        parent.waitForParent();
        return recordNumbers(store.model()) == Numbers{1, 2, 3} ? 0 : 1;
    });
    ASSERT_TRUE(reader.waitUntilReady());
    Store store = Store::open(m_file, Store::Access::readWrite, 50ms);
    appendRecords(store.model(), 4, 4);
    const auto error = storeErrorOf([&] { store.commit(); });
    ASSERT_TRUE(error);
    EXPECT_EQ(StoreErrorCode::busy, error->code());
    if (systemNamesLockHolders()) {
        const std::string process = "(Prozess " + std::to_string(reader.id()) + ")";
        EXPECT_NE(std::string::npos, std::string(error->what()).find(process)) << error->what();
    }
    reader.release();
    EXPECT_EQ(0, reader.wait());
    store.commit(); // the changes are still there
    EXPECT_EQ((Numbers{1, 2, 3, 4}), stored());
}

TEST_F(StoreLocking, SecondStoreOfTheSameProgramIsBusyToo) {
    Store first = Store::open(m_file, Store::Access::readWrite);
    appendRecords(first.model(), 4, 4);
    const auto error = storeErrorOf([&] { Store::open(m_file, Store::Access::readWrite, 0ms); });
    ASSERT_TRUE(error);
    EXPECT_EQ(StoreErrorCode::busy, error->code());
    // The refused one must not have cost the first its lock.
    ChildProcess other([this](const ChildProcess::Parent&) {
        try {
            Store::open(m_file, Store::Access::readWrite, 0ms);
        } catch (const StoreError& busy) {
            return busy.code() == StoreErrorCode::busy ? 0 : 2;
        }
        return 1;
    });
    EXPECT_EQ(0, other.wait());
    first.commit();
    EXPECT_EQ((Numbers{1, 2, 3, 4}), stored());
}

TEST_F(StoreLocking, RefusedFileOfTheSameProgramDoesNotCostTheStoreItsLock) {
    Store first = Store::open(m_file, Store::Access::readWrite);
    std::filesystem::create_hard_link(m_file, m_folder / "zweiter Name.db");
    storeErrorCodeOf([&] { Store::open(m_folder / "zweiter Name.db", Store::Access::readWrite, 0ms); });
    ChildProcess other([this](const ChildProcess::Parent&) {
        try {
            Store::open(m_file, Store::Access::readWrite, 0ms);
        } catch (const StoreError&) {
            return 0;
        }
        return 1;
    });
    EXPECT_EQ(0, other.wait());
}

TEST_F(StoreLocking, CommitReleasesTheLockUntilTheModelIsAskedForAgain) {
    Store first = Store::open(m_file, Store::Access::readWrite);
    first.commit();
    Store second = Store::open(m_file, Store::Access::readWrite, 0ms);
    EXPECT_EQ("store-busy",
              storeErrorCodeOf([&] { Store third = Store::open(m_file, Store::Access::readWrite, 0ms); }));
    EXPECT_NO_THROW(second.commit());
    EXPECT_NO_THROW(first.model());
    EXPECT_EQ("store-busy", storeErrorCodeOf([&] { Store::open(m_file, Store::Access::readWrite, 0ms); }));
}

TEST_F(StoreLocking, ManyProgramsAtOnceLoseNothing) {
    constexpr int kPrograms = 6;
    constexpr int kImports = 5;
    std::vector<std::unique_ptr<ChildProcess>> programs;
    const std::filesystem::path file = m_folder / "neu.db"; // and make the store among themselves
    for (int program = 0; program < kPrograms; ++program) {
        programs.push_back(std::make_unique<ChildProcess>([&](const ChildProcess::Parent&) {
            for (int import = 0; import < kImports; ++import) {
                Store store = Store::open(file, Store::Access::readWrite, 60s);
                DataManager& model = store.model();
                const int next = get(root(model), "NextUniqueID").getInt();
                appendRecords(model, next, next + 9);
                set(root(model), "NextUniqueID", integer(next + 10));
                if (import % 2 == 0 || program % 2 == 0)
                    store.commit();
            }
            return 0;
        }));
    }
    for (const auto& program : programs)
        EXPECT_EQ(0, program->wait());
    Store store = Store::open(file, Store::Access::readOnly);
    const Numbers numbers = recordNumbers(store.model());
    // Three of them commit all five imports, the others those with even numbers.
    ASSERT_EQ((3u * 5u + 3u * 3u) * 10u, numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i)
        ASSERT_EQ(static_cast<int>(i) + 1, numbers[i]);
}

TEST_F(StoreLocking, WaitingForAStoreThatIsGivenUpMakesANewOne) {
    const std::filesystem::path file = m_folder / "neu.db";
    ChildProcess other([&](const ChildProcess::Parent& parent) {
        Store store = Store::open(file, Store::Access::readWrite);
        parent.ready();
        usleep(200'000);
        return 0; // closes without a commit, which removes the file
    });
    ASSERT_TRUE(other.waitUntilReady());
    {
        Store store = Store::open(file, Store::Access::readWrite, 60s);
        appendRecords(store.model(), 1, 2);
        store.commit();
    }
    EXPECT_EQ(0, other.wait());
    EXPECT_EQ("2", Sql(file).value("SELECT count(*) FROM DataSets"));
}
