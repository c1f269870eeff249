// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/MessageText.h"

#include <gmock/gmock.h>

namespace {

Message atLine(std::size_t line, const char* cell = "x") {
    Message message = Message::of(Problem::badDate, {cell}, line);
    message.excerpt = std::string("a;") + cell + ";b";
    message.markFirst = 2;
    message.markLength = std::string_view(cell).size();
    return message;
}

TEST(MessageText, PlaceProblemCodeExcerptAndHint) {
    EXPECT_EQ(
        MessageText::render("a.csv", {atLine(7)}, false),
        "a.csv:7: Fehler: „x“ ist kein Datum, oder Tag und Monat stehen anders als in den übrigen Zeilen. [bad-date]\n"
        "    a;x;b\n"
        "      ^\n"
        "  Hinweis: Berichtigen Sie die Zeile, oder übernehmen Sie solche Datensätze mit --allow-undated ohne "
        "Datum.\n");
}

TEST(MessageText, HintIsGivenOnce) {
    const std::string text = MessageText::render("a.csv", {atLine(7), atLine(9, "y")}, false);
    EXPECT_EQ(text.find("Hinweis"), text.rfind("Hinweis"));
    EXPECT_THAT(text, testing::HasSubstr("a.csv:9: "));
}

TEST(MessageText, EqualMessagesOfSuccessiveLinesAreOne) {
    std::vector<Message> messages;
    for (const std::size_t line : {3U, 4U, 5U, 8U})
        messages.push_back(Message::of(Problem::tableFull, {}, line));
    const std::string text = MessageText::render("a.csv", messages, false);
    EXPECT_THAT(text, testing::HasSubstr("a.csv:3-5: Fehler: "));
    EXPECT_THAT(text, testing::HasSubstr("a.csv:8: Fehler: "));
}

TEST(MessageText, MarkStandsBelowItsBytesWhateverTheyAre) {
    const std::string text = MessageText::render("a.csv", {atLine(1, "\033日")}, false);
    EXPECT_THAT(text, testing::HasSubstr("    a;␛日;b\n      ^^^\n"));
}

TEST(MessageText, MarkThatIsTooFarRightIsLeftOut) {
    Message message = atLine(1);
    message.excerpt = std::string(500, 'x') + message.excerpt;
    message.markFirst += 500;
    const std::string text = MessageText::render("a.csv", {message}, false);
    EXPECT_THAT(text, testing::HasSubstr("x…\n"));
    EXPECT_EQ(text.find('^'), std::string::npos);
}

TEST(MessageText, ManyMessagesKeepTheirLines) {
    std::vector<Message> messages = {Message::of(Problem::optionIgnored, {"--columns"})};
    for (std::size_t line = 1; line <= 50; ++line)
        messages.push_back(line == 45 ? Message::of(Problem::badAmount, {"1"}, line)
                                      : atLine(line, std::to_string(line).c_str()));
    const std::string text = MessageText::render("a.csv", messages, false);
    EXPECT_THAT(text, testing::StartsWith("a.csv: Achtung: --columns hat"));
    EXPECT_THAT(text, testing::HasSubstr("a.csv:20: Fehler: "));
    EXPECT_THAT(text, testing::HasSubstr("a.csv: Fehler: ebenso die Zeilen 21-44, 46-50 [bad-date]\n"));
    EXPECT_THAT(text, testing::HasSubstr("a.csv: Fehler: ebenso die Zeilen 45 [bad-amount]\n"));
}

TEST(MessageText, ColorsMarkSeverities) {
    EXPECT_THAT(MessageText::render("a", {atLine(1)}, true), testing::HasSubstr("a:1: \033[31mFehler:\033[0m "));
    EXPECT_THAT(MessageText::render("a", {Message::of(Problem::noDate, {}, 1)}, true),
                testing::HasSubstr("a:1: \033[33mAchtung:\033[0m "));
}

TEST(MessageText, FileNamesAreShownSafely) {
    EXPECT_THAT(MessageText::render("\033[1m\n", {atLine(1)}, false), testing::StartsWith("␛[1m␊:1: "));
}

} // namespace
