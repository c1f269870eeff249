// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ScratchFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>

#include <gmock/gmock.h>

#include "cli/LeftScratch.h"
#include "support/TemporaryFile.h"

namespace {

namespace fs = std::filesystem;

/// Points TMPDIR elsewhere for a while.
class OtherParent {
public:
    explicit OtherParent(const std::string& path) {
        if (const char* value = std::getenv("TMPDIR"))
            m_before = value;
        ::setenv("TMPDIR", path.c_str(), 1);
    }
    ~OtherParent() {
        if (m_before.empty())
            ::unsetenv("TMPDIR");
        else
            ::setenv("TMPDIR", m_before.c_str(), 1);
    }
    OtherParent(const OtherParent&) = delete;
    OtherParent& operator=(const OtherParent&) = delete;

private:
    std::string m_before;
};

TEST(ScratchFolder, IsForTheUserAloneAndGoesAwayWithItsEntries) {
    const TemporaryFolder parent;
    const OtherParent other(parent.path());
    {
        ScratchFolder folder;
        EXPECT_EQ(fs::path(folder.path()).parent_path(), parent.path());
        EXPECT_EQ(fs::status(folder.path()).permissions(), fs::perms::owner_all);
        std::ofstream(folder.entry("copy")) << "x";
        fs::create_symlink("nirgends", folder.entry("import.qif"));
        folder.entry("nie gemacht");
        EXPECT_FALSE(fs::is_empty(folder.path()));
    }
    EXPECT_TRUE(fs::is_empty(parent.path()));
}

/// A folder as a killed program leaves it.
fs::path leave(const std::string& parent, const char* name) {
    const fs::path folder = fs::path(parent) / name;
    fs::create_directory(folder);
    fs::permissions(folder, fs::perms::owner_all);
    std::ofstream(folder / "prepared.csv") << "geheim";
    fs::create_symlink("/etc/passwd", folder / "import.csv");
    return folder;
}

TEST(ScratchFolder, WhatAKilledProgramLeftIsRemovedByTheNext) {
    const TemporaryFolder parent;
    const OtherParent other(parent.path());
    const fs::path left = leave(parent.path(), "dmimport-aB3xYz");
    LeftScratch::removeAll();
    EXPECT_FALSE(fs::exists(left));
    EXPECT_TRUE(fs::exists("/etc/passwd"));
}

TEST(ScratchFolder, OneInUseIsNotRemoved) {
    const TemporaryFolder parent;
    const OtherParent other(parent.path());
    ScratchFolder folder;
    std::ofstream(folder.entry("copy")) << "x";
    LeftScratch::removeAll();
    EXPECT_TRUE(fs::exists(folder.path() + "/copy"));
}

TEST(ScratchFolder, OnlyFoldersOfOursAreRemoved) {
    const TemporaryFolder parent;
    const OtherParent other(parent.path());
    const fs::path kept[] = {leave(parent.path(), "dmimport-short"), leave(parent.path(), "dmimport-toolong7"),
                             leave(parent.path(), "anders-aB3xYz"), leave(parent.path(), "dmimport-Public")};
    fs::permissions(kept[3], fs::perms::owner_all | fs::perms::others_read); // we make none that others may read
    const fs::path target = leave(parent.path(), "ziel");
    fs::create_symlink(target, fs::path(parent.path()) / "dmimport-aaaaaa");
    std::ofstream(fs::path(parent.path()) / "dmimport-bbbbbb") << "a file";
    LeftScratch::removeAll();
    for (const fs::path& folder : kept)
        EXPECT_TRUE(fs::exists(folder / "prepared.csv")) << folder;
    EXPECT_TRUE(fs::exists(target / "prepared.csv")) << "through a link";
    EXPECT_TRUE(fs::exists(fs::path(parent.path()) / "dmimport-bbbbbb"));
}

TEST(ScratchFolder, ThereIsOneAtATimeWithFewEntries) {
    ScratchFolder folder;
    EXPECT_THROW(ScratchFolder(), std::logic_error);
    for (int entry = 0; entry < 8; ++entry)
        folder.entry(std::to_string(entry));
    EXPECT_THROW(folder.entry("8"), std::logic_error);
}

TEST(ScratchFolder, ParentThatTheLibraryCannotNameIsPassedOver) {
    const OtherParent other("/tmp/ordner€");
    EXPECT_EQ(ScratchFolder::parent(), "/tmp");
    const OtherParent none("");
    EXPECT_EQ(ScratchFolder::parent(), "/tmp");
    const OtherParent umlaut("/tmp/größe");
    EXPECT_EQ(ScratchFolder::parent(), "/tmp/größe");
}

TEST(ScratchFolder, FolderThatCannotBeMadeIsAnError) {
    const OtherParent missing("/gibt/es/nicht");
    EXPECT_THROW(ScratchFolder(), std::system_error);
    const OtherParent tooLong("/" + std::string(5000, 'x'));
    EXPECT_THROW(ScratchFolder(), std::system_error);
}

} // namespace
