// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FileLines.h"

#include <system_error>

#include <gmock/gmock.h>

#include "support/TemporaryFile.h"

namespace {

std::vector<std::string> allLines(std::string_view bytes) {
    const TemporaryFile file(bytes);
    std::vector<std::string> lines;
    std::string line;
    FileLines::scan(file.path(), [&](std::string_view piece, bool last) {
        line += piece;
        if (last) {
            lines.push_back(line);
            line.clear();
        }
    });
    return lines;
}

using Lines = std::vector<std::string>;

TEST(FileLines, LastLineNeedsNoLineFeed) {
    EXPECT_EQ(allLines(""), Lines());
    EXPECT_EQ(allLines("\n"), Lines({""}));
    EXPECT_EQ(allLines("a"), Lines({"a"}));
    EXPECT_EQ(allLines("a\n"), Lines({"a"}));
    EXPECT_EQ(allLines("a\n\nb"), Lines({"a", "", "b"}));
    EXPECT_EQ(allLines("a\r\nb\r\n"), Lines({"a\r", "b\r"}));
}

TEST(FileLines, LinesCrossTheBlocksInWhichTheyAreRead) {
    for (const std::size_t length : {65534U, 65535U, 65536U, 65537U, 200000U}) {
        const std::string line(length, 'x');
        EXPECT_EQ(allLines(line + "\ny\n"), Lines({line, "y"})) << length;
        EXPECT_EQ(allLines(line), Lines({line})) << length;
    }
}

TEST(FileLines, ReadsTheWantedOnesCut) {
    const TemporaryFile file("eins\nzwei\n" + std::string(100000, 'x') + "\nvier");
    EXPECT_EQ(FileLines::read(file.path(), {2, 3, 4, 9}, 5), Lines({"zwei", "xxxxx", "vier", ""}));
    EXPECT_EQ(FileLines::read(file.path(), {}, 5), Lines());
}

TEST(FileLines, FileThatCannotBeReadIsAnError) {
    const TemporaryFolder folder;
    const auto ignore = [](std::string_view, bool) {};
    EXPECT_THROW(FileLines::scan(folder.path() / "fehlt", ignore), std::system_error);
    EXPECT_THROW(FileLines::scan(folder.path(), ignore), std::system_error) << "a folder opens, and cannot be read";
}

} // namespace
