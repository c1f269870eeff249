// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ScratchFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>

#include <gmock/gmock.h>

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
