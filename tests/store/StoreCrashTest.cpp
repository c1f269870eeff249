// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <sqlite3.h>
#include <sys/mount.h>
#include <sys/resource.h>

#include <csignal>

#include "store/ChildProcess.h"
#include "store/ExpectStoreError.h"
#include "store/FaultyVfs.h"
#include "store/ModelAccess.h"
#include "store/Sql.h"
#include "store/Store.h"
#include "store/StoreFolder.h"

using namespace ModelAccess;

namespace {

using Numbers = std::vector<int>;

/// An import that changes something of every kind: counters, appended,
/// changed and removed rows, bookings.
void import(DataManager& model) {
    const int next = get(root(model), "NextUniqueID").getInt();
    appendRecords(model, next, next + 199);
    set(root(model), "NextUniqueID", integer(next + 200));
    TableNode& records = table(model, "DataSets");
    set(*records.row(1), "Buchungstext", text("ge\xE4ndert"));
    records.remove(records.row(2));
    RecordNode& account = appendAccount(model, "4711");
    for (int number = 1; number <= 20; ++number)
        appendBooking(account, number);
}

class StoreCrash : public ::testing::Test {
protected:
    StoreCrash() {
        Store store = Store::open(m_prepared, Store::Access::readWrite);
        import(store.model());
        store.commit();
        m_before = dump(store.model());
        import(store.model());
        m_after = dump(store.model());
    }

    void reset() {
        std::filesystem::remove(m_journal);
        std::filesystem::copy_file(m_prepared, m_file, std::filesystem::copy_options::overwrite_existing);
    }

    std::string stored() {
        Store store = Store::open(m_file, Store::Access::readWrite);
        const std::string tree = dump(store.model());
        store.throwIfUnreadable();
        return tree;
    }

    /// The file is whole, and its counts fit its rows.
    void expectSound() {
        Sql sql(m_file);
        EXPECT_EQ("ok", sql.value("PRAGMA integrity_check"));
        EXPECT_EQ("0", sql.value("SELECT count(*) FROM Zeilenzahlen WHERE Tabelle = 'DataSets' AND Anzahl <> (SELECT "
                                 "count(*) FROM DataSets)"));
    }

    StoreFolder m_folder;
    std::filesystem::path m_prepared = m_folder / "vorlage.db";
    std::filesystem::path m_file = m_folder / "bestand.db";
    std::filesystem::path m_journal = m_folder / "bestand.db-journal";
    std::string m_before;
    std::string m_after;
};

} // namespace

TEST_F(StoreCrash, ProgramKilledBeforeAnyChangeToAFileLeavesAllOrNothing) {
    ASSERT_NE(m_before, m_after);
    bool finished = false;
    int interrupted = 0;
    int recovered = 0;
    for (int fatal = 1; !finished; ++fatal) {
        reset();
        ChildProcess child([&](const ChildProcess::Parent&) {
            FaultyVfs vfs([fatal](const FaultyVfs::Operation& operation) {
                if (operation.number == fatal)
                    raise(SIGKILL);
                return SQLITE_OK;
            });
            Store store = Store::open(m_file, Store::Access::readWrite);
            import(store.model());
            store.commit();
            return 0;
        });
        const int status = child.wait();
        finished = status == 0;
        ASSERT_TRUE(finished || status == -SIGKILL) << status;
        interrupted += finished ? 0 : 1;
        recovered += std::filesystem::exists(m_journal) && std::filesystem::file_size(m_journal) != 0 ? 1 : 0;
        const std::string tree = stored();
        ASSERT_EQ(finished ? m_after : m_before, tree) << "killed before change number " << fatal;
        expectSound();
    }
    EXPECT_GE(interrupted, 10);
    EXPECT_GE(recovered, 5) << "a journal is what brings the old state back";
}

TEST_F(StoreCrash, ReaderBringsBackTheOldStateAfterAKill) {
    reset();
    ChildProcess child([&](const ChildProcess::Parent&) {
        FaultyVfs vfs([](const FaultyVfs::Operation& operation) {
            if (operation.kind == "delete")
                raise(SIGKILL); // all pages written, the journal not yet gone
            return SQLITE_OK;
        });
        Store store = Store::open(m_file, Store::Access::readWrite);
        import(store.model());
        store.commit();
        return 0;
    });
    ASSERT_EQ(-SIGKILL, child.wait());
    ASSERT_TRUE(std::filesystem::exists(m_journal));
    Store store = Store::open(m_file, Store::Access::readOnly);
    EXPECT_EQ(m_before, dump(store.model()));
    EXPECT_FALSE(std::filesystem::exists(m_journal));
}

TEST_F(StoreCrash, NewStoreThatIsKilledBeforeAnyChangeToAFileIsEmptyOrWhole) {
    const std::filesystem::path file = m_folder / "neu.db";
    DataManager fresh;
    bool finished = false;
    for (int fatal = 1; !finished; ++fatal) {
        std::filesystem::remove(file);
        std::filesystem::remove(m_folder / "neu.db-journal");
        ChildProcess child([&](const ChildProcess::Parent&) {
            FaultyVfs vfs([fatal](const FaultyVfs::Operation& operation) {
                if (operation.number == fatal)
                    raise(SIGKILL);
                return SQLITE_OK;
            });
            Store store = Store::open(file, Store::Access::readWrite);
            appendRecords(store.model(), 1, 50);
            store.commit();
            return 0;
        });
        finished = child.wait() == 0;
        Store store = Store::open(file, Store::Access::readWrite);
        const std::size_t records = recordNumbers(store.model()).size();
        ASSERT_EQ(finished ? 50u : 0u, records) << "killed before change number " << fatal;
        if (!finished) {
            ASSERT_EQ(dump(fresh), dump(store.model()));
        }
    }
}

// After a power cut the size of a file may be on the disk, and its content not.
TEST_F(StoreCrash, NewStoreOfZerosIsEmptiedByItsJournal) {
    const std::filesystem::path file = m_folder / "neu.db";
    ChildProcess child([&](const ChildProcess::Parent&) {
        FaultyVfs vfs([](const FaultyVfs::Operation& operation) {
            if (operation.kind == "delete")
                raise(SIGKILL);
            return SQLITE_OK;
        });
        Store store = Store::open(file, Store::Access::readWrite);
        store.commit();
        return 0;
    });
    ASSERT_EQ(-SIGKILL, child.wait());
    StoreFolder::write(file, std::string(std::filesystem::file_size(file), '\0'));
    Store store = Store::open(file, Store::Access::readWrite);
    DataManager fresh;
    EXPECT_EQ(dump(fresh), dump(store.model()));
}

TEST_F(StoreCrash, FailureOfAnyChangeToAFileLeavesTheStoreAsItWas) {
    struct Case {
        int failure;
        bool once; ///< else everything after it fails, too
        const char* code;
        const char* why;
    };
    const Case cases[] = {
        {SQLITE_FULL, false, "store-full", "disk full"},
        {SQLITE_IOERR_WRITE, false, "store-io", "broken disk"},
        {SQLITE_FULL, true, "store-full", "disk full for a moment"},
        {SQLITE_IOERR_WRITE, true, "store-io", "one change that is lost"},
    };
    for (const Case& c : cases) {
        bool finished = false;
        for (int fatal = 1; !finished; ++fatal) {
            SCOPED_TRACE(std::string(c.why) + " from change number " + std::to_string(fatal));
            reset();
            bool hit = false;
            bool failed = false;
            {
                FaultyVfs vfs([&](const FaultyVfs::Operation& operation) {
                    hit = hit || operation.number == fatal;
                    const bool fails = c.once ? operation.number == fatal : hit && operation.kind != "delete";
                    return fails ? c.failure : SQLITE_OK;
                });
                Store store = Store::open(m_file, Store::Access::readWrite);
                import(store.model());
                try {
                    store.commit();
                } catch (const StoreError& error) {
                    EXPECT_STREQ(c.code, error.codeText());
                    failed = true;
                }
            }
            finished = !hit;
            ASSERT_EQ(failed ? m_before : m_after, stored());
            expectSound();
        }
    }
}

TEST_F(StoreCrash, CommitCanBeRepeatedOnceTheDiskHasRoomAgain) {
    reset();
    bool full = true;
    FaultyVfs vfs([&](const FaultyVfs::Operation& operation) {
        return full && operation.kind == "write" && operation.path == m_file ? SQLITE_FULL : SQLITE_OK;
    });
    Store store = Store::open(m_file, Store::Access::readWrite);
    import(store.model());
    EXPECT_EQ("store-full", storeErrorCodeOf([&] { store.commit(); }));
    full = false;
    store.rollback();
    EXPECT_EQ(m_before, dump(store.model()));
    import(store.model());
    store.commit();
    EXPECT_EQ(m_after, stored());
}

TEST_F(StoreCrash, FileSizeLimitCountsAsAFullDisk) {
    reset();
    const std::string before = StoreFolder::bytes(m_file);
    ChildProcess child([this, &before](const ChildProcess::Parent&) {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {before.size() + 4096, before.size() + 4096};
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
            return 1;
        Store store = Store::open(m_file, Store::Access::readWrite);
        appendRecords(store.model(), 1000, 5000);
        try {
            store.commit();
        } catch (const StoreError& error) {
            return error.code() == StoreErrorCode::full ? 0 : 2;
        }
        return 3;
    });
    EXPECT_EQ(0, child.wait());
    EXPECT_EQ(m_before, stored());
}

TEST_F(StoreCrash, FullDiskLeavesTheStoreAsItWas) {
    // A small file system of our own where the rights allow one, else a small limit.
    const std::filesystem::path disk = m_folder / "platte";
    std::filesystem::create_directory(disk);
    const std::filesystem::path file = disk / "bestand.db";
    ChildProcess child([&](const ChildProcess::Parent&) {
        if (mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=512k") != 0) {
            signal(SIGXFSZ, SIG_IGN);
            const rlimit limit = {512 * 1024, 512 * 1024};
            if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
                return 1;
        }
        int result = 2;
        {
            Store store = Store::open(file, Store::Access::readWrite);
            appendRecords(store.model(), 1, 100);
            store.commit();
        }
        const std::string before = StoreFolder::bytes(file);
        try {
            Store store = Store::open(file, Store::Access::readWrite);
            appendRecords(store.model(), 101, 20000);
            store.commit();
        } catch (const StoreError& error) {
            result = error.code() == StoreErrorCode::full ? 0 : 3;
        }
        if (StoreFolder::bytes(file) != before)
            result = 4;
        {
            Store store = Store::open(file, Store::Access::readOnly);
            if (recordNumbers(store.model()).size() != 100)
                result = 5;
        }
        umount(disk.c_str());
        return result;
    });
    EXPECT_EQ(0, child.wait());
    umount(disk.c_str()); // in case the child did not get that far
}
