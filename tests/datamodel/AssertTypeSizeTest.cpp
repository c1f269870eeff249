// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "framework/datamodel_api/DataModelApi.h"

namespace {

// As the import library does it: at load, before the program runs.
const bool g_checkedAtLoad = [] {
    AssertTypeSize_Node::assertTypeSize(sizeof(Node));
    AssertTypeSize_DataManager::assertTypeSize(sizeof(DataManager));
    return true;
}();

TEST(AssertTypeSize, EqualSizesPassAtLoad) { EXPECT_TRUE(g_checkedAtLoad); }

TEST(AssertTypeSizeDeathTest, NodeOfAnotherSizeEndsTheProgramWithTheReason) {
    EXPECT_DEATH(AssertTypeSize_Node::assertTypeSize(sizeof(Node) + 8),
                 "libDm \\[dm-type-size\\]: Importbibliothek und Datenmodell passen nicht zusammen: \"Node\" hat dort "
                 "16 und hier 8 Bytes\\. Bitte beide aus derselben Version bauen");
}

TEST(AssertTypeSizeDeathTest, DataManagerOfAnotherSizeEndsTheProgramWithTheReason) {
    EXPECT_DEATH(AssertTypeSize_DataManager::assertTypeSize(0), "\"DataManager\" hat dort 0 und hier [0-9]+ Bytes");
}

} // namespace
