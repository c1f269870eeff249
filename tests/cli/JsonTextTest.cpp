// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/JsonText.h"

#include <gmock/gmock.h>

namespace {

TEST(JsonText, KeepsTheOrderAndOneLine) {
    EXPECT_EQ(JsonText::of({{"b", 1}, {"a", {1.5, nullptr, true}}, {"ä", "ö€\n"}}),
              R"({"b":1,"a":[1.5,null,true],"ä":"ö€\n"})");
}

TEST(JsonText, WhatCouldSteerATerminalIsEscaped) {
    const std::string text = "\x1B\x7F\u0090\u202E\uFEFF\U000E0041";
    const std::string json = JsonText::of(text);
    EXPECT_EQ(json, R"("\u001b\u007f\u0090\u202e\ufeff\udb40\udc41")");
    EXPECT_EQ(Json::parse(json).get<std::string>(), text);
}

TEST(JsonText, BytesThatAreNoUtf8AreReplaced) { EXPECT_EQ(JsonText::of("a\xFF"), "\"a\uFFFD\""); }

TEST(JsonText, AmountsAreShortAndExact) {
    for (const double amount : {0.1, -0.05, 1234.56, 9999999999999.99, -0.0, 1e-7})
        EXPECT_EQ(Json::parse(JsonText::of(amount)).get<double>(), amount);
    EXPECT_EQ(JsonText::of(1234.56), "1234.56");
    EXPECT_EQ(JsonText::of(9999999999999.99), "9999999999999.99");
    EXPECT_EQ(JsonText::of(-20.0), "-20.0");
}

} // namespace
