// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <set>
#include <string_view>

#include "store/PrintableText.h"
#include "store/StoreError.h"

namespace {

constexpr StoreErrorCode kCodes[] = {
    StoreErrorCode::missing,   StoreErrorCode::noDirectory,  StoreErrorCode::isDirectory,  StoreErrorCode::pathTooLong,
    StoreErrorCode::notAStore, StoreErrorCode::newerVersion, StoreErrorCode::olderVersion, StoreErrorCode::busy,
    StoreErrorCode::changed,   StoreErrorCode::readOnly,     StoreErrorCode::noPermission, StoreErrorCode::full,
    StoreErrorCode::damaged,   StoreErrorCode::badValue,     StoreErrorCode::tooManyRows,  StoreErrorCode::io,
};

} // namespace

TEST(StoreErrorTexts, EveryErrorNamesTheFileAndHasACodeOfItsOwn) {
    std::set<std::string> codeTexts;
    for (const StoreErrorCode code : kCodes) {
        const StoreError error(code, "/x/bestand.db", "DETAIL");
        const std::string text = error.what();
        EXPECT_EQ(code, error.code());
        EXPECT_TRUE(std::string_view(error.codeText()).starts_with("store-"));
        EXPECT_TRUE(codeTexts.insert(error.codeText()).second) << error.codeText();
        EXPECT_NE(std::string::npos, text.find("„/x/bestand.db“")) << text;
        EXPECT_EQ(std::string::npos, text.find('{')) << text;
        EXPECT_EQ('.', text.back()) << text;
    }
}

TEST(StoreErrorTexts, TextSaysWhatWhereAndWhatToDo) {
    const StoreError busy(StoreErrorCode::busy, "bestand.db", "dmimport (Prozess 4711)");
    EXPECT_STREQ("Der Bestand „bestand.db“ wird gerade von dmimport (Prozess 4711) benutzt. Warten Sie, bis es fertig "
                 "ist, und versuchen Sie es noch einmal.",
                 busy.what());
    EXPECT_STREQ("store-busy", busy.codeText());
}

TEST(StoreErrorTexts, PathThatLooksLikeAPatternIsNotFilledIn) {
    const StoreError error(StoreErrorCode::damaged, "/x/{detail}.db", "{path}");
    EXPECT_NE(std::string::npos, std::string(error.what()).find("„/x/{detail}.db“ ist beschädigt ({path})"));
}

TEST(PrintableText, AnyBytesBecomeSafeUtf8) {
    struct Case {
        std::string bytes;
        const char* text;
        const char* why;
    };
    const Case cases[] = {
        {"", "", "nothing"},
        {"bestand.db", "bestand.db", "ASCII"},
        {"\xC3\xBC\xE2\x82\xAC\xF0\x9F\x92\xB6", "ü€💶", "UTF-8 of two, three and four bytes"},
        {"\xFC", "ü", "Latin-1"},
        {"a\xC3", "aÃ", "cut off"},
        {"\xE2\x82"
         "a",
         "â?a", "cut off before another character; the second byte is a control character"},
        {"\xC0\xAF", "À¯", "overlong"},
        {"\xE0\x80\xAF", "à?¯", "overlong"},
        {"\xF0\x80\x80\xAF", "ð??¯", "overlong"},
        {"\xED\xA0\xA0", "í\u00A0\u00A0", "a surrogate"},
        {"\xF4\xA0\xA0\xA0", "ô\u00A0\u00A0\u00A0", "beyond the last character"},
        {"\xFF", "ÿ", "no lead byte"},
        {"\x1B[31mrot\n", "?[31mrot?", "control characters"},
        {"\x7F\xC2\x9B", "??", "control characters behind ASCII"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(c.text, PrintableText::of(c.bytes)) << c.why;
}
