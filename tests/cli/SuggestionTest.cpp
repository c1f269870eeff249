// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/Suggestion.h"

#include <vector>

#include <gmock/gmock.h>

namespace {

const std::vector<std::string> kWords = {"import", "preview", "show", "csv", "--columns"};

TEST(Suggestion, ClosestWordWins) {
    EXPECT_EQ(Suggestion::closest("imprt", kWords), "import");
    EXPECT_EQ(Suggestion::closest("IMPORT", kWords), "import");
    EXPECT_EQ(Suggestion::closest("cvs", kWords), "csv") << "two letters swapped";
    EXPECT_EQ(Suggestion::closest("--colum", kWords), "--columns");
    EXPECT_EQ(Suggestion::closest("shwo", kWords), "show");
}

TEST(Suggestion, FarWordsAreNoGuess) {
    EXPECT_EQ(Suggestion::closest("undo", kWords), "");
    EXPECT_EQ(Suggestion::closest("", kWords), "");
    EXPECT_EQ(Suggestion::closest(std::string(100000, 'x'), kWords), "") << "and cost no time";
    EXPECT_EQ(Suggestion::closest("import", {}), "");
}

TEST(Suggestion, QuestionIsGerman) {
    EXPECT_EQ(Suggestion::question("improt", kWords), " Meinten Sie „import“?");
    EXPECT_EQ(Suggestion::question("xyzzy", kWords), "");
}

} // namespace
