// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "intake/HostTextReader.h"

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

/// Text as UTF-16, without a mark.
std::string utf16(std::u16string_view text, bool bigEndian) {
    std::string bytes;
    for (const char16_t unit : text) {
        const char high = static_cast<char>(unit >> 8U);
        const char low = static_cast<char>(unit & 0xFFU);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

struct EncodingCase {
    std::string bytes;
    Encoding encoding;
    bool bom;
    std::string text; ///< Windows-1252
    const char* why;
};

const std::vector<EncodingCase>& encodingCases() {
    static const std::vector<EncodingCase> cases = {
        {"", Encoding::ascii, false, "", "an empty file needs no decision"},
        {"Datum;Betrag\n", Encoding::ascii, false, "Datum;Betrag\n", "ASCII is part of every encoding"},
        {"\xEF\xBB\xBFM\xC3\xBCller", Encoding::utf8, true, "M\xFCller", "the mark of UTF-8"},
        {"M\xC3\xBCller", Encoding::utf8, false, "M\xFCller", "valid UTF-8"},
        {"\xE2\x82\xAC 5 \xE2\x80\x93 6", Encoding::utf8, false, "\x80 5 \x96 6", "euro and dash have a place"},
        {"M\xFCller", Encoding::latin1, false, "M\xFCller", "no valid UTF-8, nothing only Windows has"},
        {"5 \x80", Encoding::windows1252, false, "5 \x80", "the euro of Windows"},
        {"M\xFCller\x96", Encoding::windows1252, false, "M\xFCller\x96", "the dash of Windows"},
        {"M\xC3\xBCller \xFC", Encoding::latin1, false, "M\xC3\xBCller \xFC", "one byte that UTF-8 has not decides"},
        {"\xFF\xFE"s + utf16(u"M\u00FC;1", false), Encoding::utf16le, true, "M\xFC;1", "the mark, low byte first"},
        {"\xFE\xFF"s + utf16(u"M\u00FC;1", true), Encoding::utf16be, true, "M\xFC;1", "the mark, high byte first"},
        {utf16(u"Datum;Betrag", false), Encoding::utf16le, false, "Datum;Betrag", "every second byte is zero"},
        {utf16(u"Datum;Betrag", true), Encoding::utf16be, false, "Datum;Betrag", "every first byte is zero"},
        {"\xEF\xBB\xBF", Encoding::utf8, true, "", "a mark and nothing else"},
        {"Datum\0Betrag"s, Encoding::ascii, false, "Datum Betrag"s, "one zero byte makes no UTF-16"},
    };
    return cases;
}

TEST(HostTextReader, EncodingIsFoundFromTheBytes) {
    for (const EncodingCase& c : encodingCases()) {
        const HostFileText text = HostTextReader::read(c.bytes);
        EXPECT_EQ(text.encoding, c.encoding) << c.why;
        EXPECT_EQ(text.bom, c.bom) << c.why;
        EXPECT_EQ(text.text, c.text) << c.why;
        EXPECT_TRUE(text.substitutions.empty()) << c.why;
        EXPECT_EQ(text.brokenLine, 0) << c.why;
    }
}

TEST(HostTextReader, EncodingThatTheUserFixedHolds) {
    EXPECT_EQ(HostTextReader::read("M\xC3\xBCller", Encoding::windows1252).text, "M\xC3\xBCller");
    EXPECT_EQ(HostTextReader::read("M\xC3\xBCller", Encoding::windows1252).encoding, Encoding::windows1252);
}

TEST(HostTextReader, MarkOverrulesTheByteOrderOfUtf16) {
    const std::string bytes = "\xFE\xFF"s + utf16(u"ab", true);
    const HostFileText text = HostTextReader::read(bytes, Encoding::utf16le);
    EXPECT_EQ(text.text, "ab");
    EXPECT_EQ(text.encoding, Encoding::utf16be);
}

struct SubstitutionCase {
    std::string_view utf8;
    std::string_view host;
    const char* why;
};

TEST(HostTextReader, CharacterWithoutAPlaceIsTransliterated) {
    constexpr SubstitutionCase kCases[] = {
        {"Pawe\xC5\x82", "Pawel", "Polish l"},
        {"\xC4\x87", "c", "Croatian c"},
        {"\xD0\x96", "Z", "Cyrillic"},
        {"\xE2\x88\x92"
         "5,00",
         "-5,00", "the minus sign of typographers"},
        {"1\xE2\x80\x89"
         "000",
         "1 000", "a thin blank"},
        {"1\xE2\x80\xAF"
         "000",
         "1 000", "a narrow blank that does not break"},
        {"a\xE2\x80\x8B"
         "b",
         "ab", "a blank without width"},
        {"\xE2\x80\x91", "-", "a hyphen that does not break"},
        {"\xF0\x9F\x9B\x92", "?", "a picture has no letters"},
    };
    for (const SubstitutionCase& c : kCases) {
        const HostFileText text = HostTextReader::read(c.utf8);
        EXPECT_EQ(text.text, c.host) << c.why;
        EXPECT_EQ(text.substitutions.size(), 1U) << c.why;
    }
}

TEST(HostTextReader, QuotesOfTypographersHaveAPlace) {
    const HostFileText text = HostTextReader::read("\xE2\x80\x9Ehallo\xE2\x80\x9C \xE2\x80\x9D");
    EXPECT_EQ(text.text, "\x84hallo\x93 \x94");
    EXPECT_TRUE(text.substitutions.empty());
}

TEST(HostTextReader, SubstitutionsAreCountedFromTheirFirstLine) {
    const HostFileText text = HostTextReader::read("a\nPawe\xC5\x82\n\xC5\x82\xD0\x96\n");
    ASSERT_EQ(text.substitutions.size(), 2U);
    const auto& polish = text.substitutions.at(U'\u0142');
    EXPECT_EQ(polish.replacement, "l");
    EXPECT_EQ(polish.count, 2U);
    EXPECT_EQ(polish.firstLine, 2);
    EXPECT_EQ(text.substitutions.at(U'\u0416').firstLine, 3);
}

TEST(HostTextReader, LoneSurrogateIsABrokenCharacter) {
    std::string bytes = "\xFF\xFE"s + utf16(u"a\nb", false);
    bytes += "\x00\xD8"sv; // a leading half, and nothing behind it
    const HostFileText text = HostTextReader::read(bytes);
    EXPECT_EQ(text.text, "a\nb?");
    EXPECT_EQ(text.brokenLine, 2);
}

TEST(HostTextReader, PairOfSurrogatesIsOneCharacter) {
    const HostFileText text = HostTextReader::read("\xFF\xFE"s + utf16(u"a\U0001F6D2", false));
    EXPECT_EQ(text.text, "a?");
    EXPECT_EQ(text.brokenLine, 0);
    EXPECT_EQ(text.substitutions.count(U'\U0001F6D2'), 1U);
}

TEST(HostTextReader, OddByteAtTheEndOfUtf16IsBroken) {
    const HostFileText text = HostTextReader::read("\xFF\xFE"s + utf16(u"ab", false) + "c");
    EXPECT_EQ(text.text, "ab?");
    EXPECT_EQ(text.brokenLine, 1);
}

TEST(HostTextReader, ByteThatUtf8HasNotIsReportedWithItsLine) {
    const HostFileText text = HostTextReader::read("gut\nM\xFCller\n\xFC\n", Encoding::utf8);
    EXPECT_EQ(text.text, "gut\nM?ller\n?\n");
    EXPECT_EQ(text.brokenLine, 2);
}

TEST(HostTextReader, CutCharacterAtTheEndIsBroken) {
    const HostFileText text = HostTextReader::read("\xEF\xBB\xBFM\xC3");
    EXPECT_EQ(text.text, "M?");
    EXPECT_EQ(text.brokenLine, 1);
}

} // namespace
