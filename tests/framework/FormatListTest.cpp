// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "framework/ImportExternData.h"

namespace {

struct Entry {
    int format;
    std::string label;
    std::string extension;
};

void expectTheFiveFormats() {
    const std::vector<Entry> entries = {
        {0, "Star Money", "ssx"},
        {1, "Komma getrennte Liste", "csv"},
        {2, "Quicken Interchange Format", "qif"},
        {3, "Steuer Daten Import", "sdi"},
        {5, "Zasterhof Money Import", "zhof"},
    };
    const std::list<ImportExternData::FileFormatInfo>& formats = ImportExternData::getSupportedFileFormats();
    ASSERT_EQ(formats.size(), entries.size());
    auto format = formats.begin();
    for (const Entry& entry : entries) {
        EXPECT_EQ(format->m_format, entry.format) << entry.label;
        EXPECT_EQ(format->m_label, entry.label);
        EXPECT_EQ(format->m_extension, entry.extension) << entry.label;
        ++format;
    }
}

TEST(FormatListTest, HoldsTheFiveFormatsInTheirOrder) { expectTheFiveFormats(); }

TEST(FormatListTest, FillingItAgainChangesNothing) {
    ImportExternData::initFileFormatList();
    expectTheFiveFormats();
}

TEST(FormatListTest, IsOneListForAll) {
    EXPECT_EQ(&ImportExternData::getSupportedFileFormats(), &ImportExternData::getSupportedFileFormats());
}

} // namespace
