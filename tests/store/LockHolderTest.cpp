// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <fstream>

#include "store/ChildProcess.h"
#include "store/LockHolder.h"
#include "store/Sql.h"
#include "store/StoreFolder.h"

namespace {

std::string ownName() {
    std::ifstream input("/proc/self/comm");
    std::string name;
    std::getline(input, name);
    return name;
}

/// Where the system does not tell (no /proc/locks), nobody is named.
std::string named(const std::string& holder) {
    return std::ifstream("/proc/locks") ? holder : "einem anderen Programm";
}

class LockHolderNames : public ::testing::Test {
protected:
    LockHolderNames() { Sql(m_file).run("CREATE TABLE t (a)"); }

    StoreFolder m_folder;
    std::filesystem::path m_file = m_folder / "x.db";
};

} // namespace

TEST_F(LockHolderNames, FileThatNobodyHoldsHasNone) {
    EXPECT_EQ("einem anderen Programm", LockHolder::describe(m_file));
    EXPECT_EQ("einem anderen Programm", LockHolder::describe(m_folder / "fehlt.db"));
}

TEST_F(LockHolderNames, OtherProgramIsNamedWithItsNumber) {
    ChildProcess other([this](const ChildProcess::Parent& parent) {
        Sql sql(m_file);
        sql.run("BEGIN IMMEDIATE");
        parent.ready();
        parent.waitForParent();
        return 0;
    });
    ASSERT_TRUE(other.waitUntilReady());
    EXPECT_EQ(named(ownName() + " (Prozess " + std::to_string(other.id()) + ")"), LockHolder::describe(m_file));
}

TEST_F(LockHolderNames, ProgramItselfIsNamedAsSuch) {
    Sql sql(m_file);
    sql.run("BEGIN IMMEDIATE");
    EXPECT_EQ(named("diesem Programm selbst (Prozess " + std::to_string(getpid()) + ")"), LockHolder::describe(m_file));
}

TEST_F(LockHolderNames, WriterIsNamedRatherThanAReaderOrOurselves) {
    const auto holding = [this](const char* sql) {
        return [this, sql](const ChildProcess::Parent& parent) {
            Sql other(m_file);
            other.run(sql);
            parent.ready();
            parent.waitForParent();
            return 0;
        };
    };
    ChildProcess reader(holding("BEGIN; SELECT * FROM t"));
    ASSERT_TRUE(reader.waitUntilReady());
    ChildProcess writer(holding("BEGIN IMMEDIATE"));
    ASSERT_TRUE(writer.waitUntilReady());
    Sql own(m_file);
    own.run("BEGIN; SELECT * FROM t");
    EXPECT_EQ(named(ownName() + " (Prozess " + std::to_string(writer.id()) + ")"), LockHolder::describe(m_file));
}
