// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include "store/ChildProcess.h"
#include "store/ExpectStoreError.h"
#include "store/ModelAccess.h"
#include "store/Sql.h"
#include "store/Store.h"
#include "store/StoreDatabase.h"
#include "store/StoreFolder.h"
#include "store/StoreVersions.h"

using namespace ModelAccess;

namespace {

/// A later release with one more step.
class LaterRelease {
public:
    explicit LaterRelease(const char* sql) : m_steps(StoreMigrations::all().begin(), StoreMigrations::all().end()) {
        m_steps.push_back({static_cast<int>(m_steps.size()) + 1, sql});
    }

    StoreDatabase open(const std::filesystem::path& file, StoreAccess access) const {
        return StoreDatabase(file, access, Store::kPatience, m_steps);
    }

private:
    std::vector<StoreMigration> m_steps;
};

constexpr char kAddColumn[] = "ALTER TABLE DataSets ADD COLUMN Waehrung TEXT; UPDATE DataSets SET Waehrung = 'EUR'";

class StoreMigrationSteps : public ::testing::Test {
protected:
    StoreMigrationSteps() {
        Store store = Store::open(m_file, Store::Access::readWrite);
        appendRecords(store.model(), 1, 3);
        store.commit();
    }

    StoreFolder m_folder;
    std::filesystem::path m_file = m_folder / "bestand.db";
};

} // namespace

TEST_F(StoreMigrationSteps, VersionsCountFromOneWithoutGaps) {
    int version = 0;
    for (const StoreMigration& step : StoreMigrations::all())
        EXPECT_EQ(++version, step.version);
    EXPECT_GE(version, 1);
}

TEST_F(StoreMigrationSteps, OlderStoreIsBroughtUpToDateWithItsRecords) {
    {
        StoreDatabase database = LaterRelease(kAddColumn).open(m_file, StoreAccess::readWrite);
        database.commit();
    }
    Sql sql(m_file);
    EXPECT_EQ(StoreVersions::next(), sql.value("PRAGMA user_version"));
    EXPECT_EQ((std::vector<std::string>{"1|EUR", "2|EUR", "3|EUR"}),
              sql.rows("SELECT UniqueID, Waehrung FROM DataSets ORDER BY id"));
    EXPECT_EQ("store-newer-version", storeErrorCodeOf([&] { Store::open(m_file, Store::Access::readWrite); }));
}

TEST_F(StoreMigrationSteps, NewStoreOfALaterReleaseGoesThroughAllSteps) {
    {
        StoreDatabase database = LaterRelease(kAddColumn).open(m_folder / "neu.db", StoreAccess::readWrite);
        database.commit();
    }
    EXPECT_EQ(StoreVersions::next(), Sql(m_folder / "neu.db").value("PRAGMA user_version"));
    EXPECT_EQ(
        "1",
        Sql(m_folder / "neu.db").value("SELECT count(*) FROM pragma_table_info('DataSets') WHERE name = 'Waehrung'"));
}

TEST_F(StoreMigrationSteps, StepIsDoneOnce) {
    const LaterRelease later(kAddColumn);
    later.open(m_file, StoreAccess::readWrite).commit();
    EXPECT_NO_THROW(later.open(m_file, StoreAccess::readWrite).commit());
    EXPECT_NO_THROW(later.open(m_file, StoreAccess::readOnly));
}

TEST_F(StoreMigrationSteps, StepThatIsNotCommittedLeavesTheOldVersion) {
    { StoreDatabase database = LaterRelease(kAddColumn).open(m_file, StoreAccess::readWrite); }
    EXPECT_EQ(StoreVersions::ours(), Sql(m_file).value("PRAGMA user_version"));
    Store store = Store::open(m_file, Store::Access::readOnly);
    EXPECT_EQ((std::vector<int>{1, 2, 3}), recordNumbers(store.model()));
}

TEST_F(StoreMigrationSteps, StepThatFailsLeavesTheStoreAsItWas) {
    const std::string before = StoreFolder::bytes(m_file);
    const LaterRelease later("ALTER TABLE DataSets ADD COLUMN Waehrung TEXT; UPDATE GibtEsNicht SET x = 1");
    EXPECT_EQ("store-damaged", storeErrorCodeOf([&] { later.open(m_file, StoreAccess::readWrite); }));
    EXPECT_EQ(before, StoreFolder::bytes(m_file));
}

TEST_F(StoreMigrationSteps, ReaderBringsAnOlderStoreUpToDate) {
    StoreDatabase database = LaterRelease(kAddColumn).open(m_file, StoreAccess::readOnly);
    EXPECT_EQ(StoreVersions::next(), std::to_string(database.connection().number("PRAGMA user_version")));
    EXPECT_EQ(StoreVersions::next(), Sql(m_file).value("PRAGMA user_version"));
}

TEST_F(StoreMigrationSteps, ReaderWhoMayNotWriteSaysWhatIsMissing) {
    std::filesystem::permissions(m_folder.path(), std::filesystem::perms(0755));
    ASSERT_EQ(0, chmod(m_file.c_str(), 0444));
    ChildProcess child([this](const ChildProcess::Parent&) {
        constexpr uid_t kNobody = 65534;
        if (geteuid() == 0 && (setgid(kNobody) != 0 || setuid(kNobody) != 0))
            return 1;
        try {
            LaterRelease(kAddColumn).open(m_file, StoreAccess::readOnly);
        } catch (const StoreError& error) {
            return error.code() == StoreErrorCode::olderVersion ? 0 : 2;
        }
        return 3;
    });
    EXPECT_EQ(0, child.wait());
    EXPECT_EQ(StoreVersions::ours(), Sql(m_file).value("PRAGMA user_version"));
}

TEST_F(StoreMigrationSteps, VersionThatBecomesNewerBetweenTwoTransactionsIsRefused) {
    Store store = Store::open(m_file, Store::Access::readWrite);
    store.commit();
    LaterRelease(kAddColumn).open(m_file, StoreAccess::readWrite).commit();
    EXPECT_EQ("store-newer-version", storeErrorCodeOf([&] { store.model(); }));
}
