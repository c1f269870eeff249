// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ProblemTexts.h"

#include <string>

#include <gmock/gmock.h>

#include "cli/Message.h"

namespace {

TEST(ProblemTexts, EveryProblemHasACodeAndASentence) {
    for (int number = 0; number <= static_cast<int>(Problem::unexpected); ++number) {
        const ProblemTexts& texts = ProblemTexts::of(static_cast<Problem>(number));
        EXPECT_THAT(texts.code, testing::MatchesRegex("[a-z]+(-[a-z]+)*"));
        EXPECT_THAT(texts.text, testing::MatchesRegex("(.|\n)+[.}]")) << texts.code;
        EXPECT_EQ(std::string(texts.hint).find("{}"), std::string::npos) << texts.code;
    }
}

TEST(ProblemTexts, ArgumentsFillTheirPlaces) {
    EXPECT_EQ(ProblemTexts::filled("{} und {}.", {"a", "{}"}), "a und {}.");
    EXPECT_EQ(ProblemTexts::filled("{} {}", {"a"}), "a {}");
    EXPECT_EQ(ProblemTexts::filled("", {"a"}), "");
}

TEST(ProblemTexts, FullTextEndsWithTheHint) {
    const Message message = Message::of(Problem::fileMissing, {"a.csv"});
    EXPECT_EQ(message.fullText(), "Die Datei „a.csv“ gibt es nicht. Prüfen Sie den Namen und den Ordner.");
    EXPECT_EQ(Message::of(Problem::noDate, {}, 1).fullText(), "Der Datensatz wurde ohne Datum übernommen.");
}

} // namespace
