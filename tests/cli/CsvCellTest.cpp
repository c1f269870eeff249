// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/CsvCell.h"

#include <gmock/gmock.h>

#include "cli/LibraryRun.h"
#include "datamodel/DataManager.h"
#include "support/TemporaryFile.h"

namespace {

constexpr const char* kLines[] = {
    "a;b;c",    ";;",         "\"a;b\";c;d", "\"a\"\"b\";x\"y\"z;\"\"", "\"offen;b;c", "x\"ab\"\"c;d\"e;f", "a\"",
    "\"\"\"\"", " \"a\" ; b", "nur eine",
};

TEST(CsvCell, SplitsLikeTheLibrary) {
    for (const char* text : kLines) {
        SCOPED_TRACE(text);
        const TemporaryFile file(std::string(text) + "\n");
        const DataManager model;
        LibraryRun run;
        RunRequest request;
        request.fileName = file.path();
        request.delimiter = ';';
        run.run(request, model.root());
        const ImportRecordSet& preview = run.preview();
        ASSERT_GE(preview.getColumnCount(), 1);
        for (int column = 0; column < preview.getColumnCount(); ++column)
            EXPECT_EQ(CsvCell::of(text, ';', column).text, preview.getString(0, column)) << column;
    }
}

TEST(CsvCell, PlaceIncludesTheQuotes) {
    const CsvCell cell = CsvCell::of("a;\"b;c\";d", ';', 1);
    EXPECT_EQ(cell.first, 2U);
    EXPECT_EQ(cell.length, 5U);
    EXPECT_EQ(cell.text, "b;c");
}

TEST(CsvCell, ColumnBehindTheLastIsEmptyAtTheEnd) {
    const CsvCell cell = CsvCell::of("a;b", ';', 2);
    EXPECT_EQ(cell.first, 3U);
    EXPECT_EQ(cell.length, 0U);
    EXPECT_EQ(cell.text, "");
}

TEST(CsvCell, LineEndsAtItsFirstNulByte) { EXPECT_EQ(CsvCell::of(std::string_view("a;b\0c;d", 7), ';', 1).text, "b"); }

} // namespace
