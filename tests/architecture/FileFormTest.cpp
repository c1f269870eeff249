// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "architecture/SourceTree.h"

namespace {

using SourceTree::SourceFile;

const std::string kCopyright = "// SPDX-FileCopyrightText: 2026 The ImportModule authors";
const std::string kLicence = "// SPDX-License-Identifier: MIT";

bool startsWithLicence(const SourceFile& file) {
    return file.lines.size() > 2 && file.lines[0] == kCopyright && file.lines[1] == kLicence;
}

bool isGuardedBehindLicence(const SourceFile& file) { return file.lines.size() > 2 && file.lines[2] == "#pragma once"; }

/// How often a file includes the check that tells the host the sizes of its types.
int sizeChecks(const SourceFile& file) {
    const std::vector<SourceTree::Include> includes = SourceTree::includesOf(file);
    return static_cast<int>(std::count_if(includes.begin(), includes.end(), [](const SourceTree::Include& include) {
        return include.name == "framework/AssertTypeSizes.h";
    }));
}

bool isSourceOfTheLibrary(const std::string& path) {
    const std::string room = path.substr(0, path.find('/'));
    const bool inLibrary =
        room == "framework" || room == "dmwrite" || room == "csv" || room == "qif" || room == "homebanking";
    return inLibrary && !SourceTree::isHeader(path);
}

TEST(FileForm, ChecksTellGoodFromBad) {
    EXPECT_TRUE(startsWithLicence({"a.h", {kCopyright, kLicence, ""}}));
    EXPECT_FALSE(startsWithLicence({"a.h", {"", kCopyright, kLicence}}));
    EXPECT_FALSE(startsWithLicence({"a.h", {kCopyright, "// SPDX-License-Identifier: BSD-2-Clause", ""}}));
    EXPECT_FALSE(startsWithLicence({"a.h", {}}));
    EXPECT_TRUE(isGuardedBehindLicence({"a.h", {kCopyright, kLicence, "#pragma once"}}));
    EXPECT_FALSE(isGuardedBehindLicence({"a.h", {kCopyright, kLicence, "#ifndef A_H"}}));
    EXPECT_EQ(sizeChecks({"a.cpp", {"#include \"framework/AssertTypeSizes.h\""}}), 1);
    EXPECT_EQ(sizeChecks({"a.cpp", {"#include \"framework/Latin1.h\""}}), 0);
}

TEST(FileForm, EveryFileStartsWithItsLicence) {
    for (const SourceFile& file : SourceTree::files())
        EXPECT_TRUE(startsWithLicence(file)) << file.path;
}

TEST(FileForm, EveryListOfSourcesStartsWithItsLicence) {
    int count = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(IMPORT_MODULE_SOURCE_ROOT)) {
        if (entry.path().filename() != "CMakeLists.txt")
            continue;
        std::ifstream input(entry.path());
        std::string copyright;
        std::string licence;
        std::getline(input, copyright);
        std::getline(input, licence);
        EXPECT_EQ(copyright, "#" + kCopyright.substr(2)) << entry.path();
        EXPECT_EQ(licence, "#" + kLicence.substr(2)) << entry.path();
        ++count;
    }
    EXPECT_GE(count, 10);
}

TEST(FileForm, EveryHeaderIsGuarded) {
    for (const SourceFile& file : SourceTree::files()) {
        if (SourceTree::isHeader(file.path)) {
            EXPECT_TRUE(isGuardedBehindLicence(file)) << file.path;
        }
    }
}

TEST(FileForm, EverySourceOfTheLibraryAndNoOtherFileChecksTheTypeSizes) {
    for (const SourceFile& file : SourceTree::files())
        EXPECT_EQ(sizeChecks(file), isSourceOfTheLibrary(file.path) ? 1 : 0) << file.path;
}

} // namespace
