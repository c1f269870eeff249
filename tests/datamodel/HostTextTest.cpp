// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/HostText.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace {

std::string allBytes() {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.push_back(static_cast<char>(byte));
    return bytes;
}

struct PairCase {
    const char* host;
    const char* utf8;
    const char* why;
};

constexpr PairCase kPairs[] = {
    {"", "", "empty"},
    {"Miete Mai", "Miete Mai", "ASCII"},
    {"M\xFCller", "M\xC3\xBCller", "umlaut"},
    {"\xC4\xD6\xDC\xE4\xF6\xFC\xDF", "\xC3\x84\xC3\x96\xC3\x9C\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F", "all German letters"},
    {"\x80", "\xE2\x82\xAC", "euro sign"},
    {"\x82\x84\x93\x94\x91\x92", "\xE2\x80\x9A\xE2\x80\x9E\xE2\x80\x9C\xE2\x80\x9D\xE2\x80\x98\xE2\x80\x99",
     "quotation marks"},
    {"\x96\x97\x85", "\xE2\x80\x93\xE2\x80\x94\xE2\x80\xA6", "dashes and dots"},
    {"\x83\x86\x87\x88\x89\x8A\x8B\x8C\x8E",
     "\xC6\x92\xE2\x80\xA0\xE2\x80\xA1\xCB\x86\xE2\x80\xB0\xC5\xA0\xE2\x80\xB9"
     "\xC5\x92\xC5\xBD",
     "first half of the rest"},
    {"\x95\x98\x99\x9A\x9B\x9C\x9E\x9F", "\xE2\x80\xA2\xCB\x9C\xE2\x84\xA2\xC5\xA1\xE2\x80\xBA\xC5\x93\xC5\xBE\xC5\xB8",
     "second half of the rest"},
    {"\x81\x8D\x8F\x90\x9D", "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D", "bytes that the code page leaves open"},
    {"\xA0\xFF", "\xC2\xA0\xC3\xBF", "ends of the upper half"},
    {"1234567\xFC"
     "1234567\xFC"
     "123456789",
     "1234567\xC3\xBC"
     "1234567\xC3\xBC"
     "123456789",
     "mixed with longer runs"},
};

TEST(HostText, ConvertsBothWays) {
    for (const PairCase& c : kPairs) {
        EXPECT_EQ(HostText::toUtf8(c.host), c.utf8) << c.why;
        EXPECT_EQ(HostText::fromUtf8(c.utf8), std::optional<std::string>(c.host)) << c.why;
    }
}

TEST(HostText, EveryByteComesBackAsItWas) {
    EXPECT_EQ(HostText::fromUtf8(HostText::toUtf8(allBytes())), allBytes());
    EXPECT_EQ(HostText::utf8ToLatin1(HostText::latin1ToUtf8(allBytes())), allBytes());
}

TEST(HostText, AByteAboveAsciiIsFoundAtEveryPlace) {
    for (std::size_t length = 1; length <= 24; ++length) {
        for (std::size_t at = 0; at < length; ++at) {
            std::string host(length, 'a');
            host[at] = '\xE4';
            std::string utf8(length - 1, 'a');
            utf8.insert(at, "\xC3\xA4");
            ASSERT_EQ(HostText::toUtf8(host), utf8) << at << " of " << length;
            ASSERT_EQ(HostText::fromUtf8(utf8), host) << at << " of " << length;
        }
    }
}

TEST(HostText, AppendsToWhatIsThere) {
    std::string out = "Konto: ";
    HostText::appendUtf8(out, "\x80");
    HostText::appendUtf8(out, " 5");
    EXPECT_EQ(out, "Konto: \xE2\x82\xAC 5");
}

struct InvalidCase {
    std::string_view utf8;
    const char* why;
};

constexpr InvalidCase kInvalid[] = {
    {"\x80", "continuation alone"},
    {"\xBF", "last continuation alone"},
    {"a\xFC", "Latin-1 at the end"},
    {"M\xFCller", "Latin-1 inside"},
    {"\xC3", "two-byte form cut off"},
    {"\xE2\x82", "three-byte form cut off"},
    {"\xF0\x9F\x98", "four-byte form cut off"},
    {"\xC3(", "second byte is none"},
    {"\xE2(\xAC", "second of three is none"},
    {"\xE2\x82(", "third of three is none"},
    {"\xC3\xC3", "lead in place of a continuation"},
    {"\xC0\x80", "zero in two bytes"},
    {"\xC1\xBF", "ASCII in two bytes"},
    {"\xE0\x83\xBC", "umlaut in three bytes"},
    {"\xE0\x9F\xBF", "largest overlong three-byte form"},
    {"\xF0\x82\x82\xAC", "euro sign in four bytes"},
    {"\xF0\x80\x83\xBC", "umlaut in four bytes"},
    {"\xED\xA0\x80", "first surrogate"},
    {"\xED\xBF\xBF", "last surrogate"},
    {"\xF4\x90\x80\x80", "above the last character"},
    {"\xF7\xBF\xBF\xBF", "far above the last character"},
    {"\xF8\x88\x80\x80\x80", "five-byte form"},
    {"\xFC\x84\x80\x80\x80\x80", "six-byte form"},
    {"\xFE", "byte of no form"},
    {"\xFF", "byte of no form"},
};

TEST(HostText, RefusesWhatIsNoUtf8) {
    for (const InvalidCase& c : kInvalid) {
        EXPECT_EQ(HostText::fromUtf8(c.utf8), std::nullopt) << c.why;
        EXPECT_EQ(HostText::utf8ToLatin1(c.utf8), std::nullopt) << c.why;
    }
}

constexpr InvalidCase kHomeless[] = {
    {"\xC4\x80", "A with macron, just above Latin-1"},
    {"\xD0\x96", "Cyrillic letter"},
    {"\xE2\x82\xA4", "lira sign, neighbour of the euro sign"},
    {"\xED\x9F\xBF", "last character before the surrogates"},
    {"\xEE\x80\x80", "first character after the surrogates"},
    {"\xEF\xBB\xBF", "byte-order mark"},
    {"\xF0\x9F\x98\x80", "emoji"},
    {"\xF4\x8F\xBF\xBF", "last character"},
    {"gut, bis auf \xE2\x86\x92 hier", "arrow inside a text"},
};

TEST(HostText, RefusesACharacterWithoutAByte) {
    for (const InvalidCase& c : kHomeless) {
        EXPECT_EQ(HostText::fromUtf8(c.utf8), std::nullopt) << c.why;
        EXPECT_EQ(HostText::utf8ToLatin1(c.utf8), std::nullopt) << c.why;
    }
}

TEST(HostText, ControlCharactersWhoseByteMeansSomethingElseHaveNone) {
    EXPECT_EQ(HostText::fromUtf8("\xC2\x80"), std::nullopt) << "byte 0x80 is the euro sign";
    EXPECT_EQ(HostText::fromUtf8("\xC2\x9F"), std::nullopt);
}

TEST(HostText, FileNamesAreLatin1Proper) {
    EXPECT_EQ(HostText::latin1ToUtf8("\x80\xFC"), "\xC2\x80\xC3\xBC");
    EXPECT_EQ(HostText::utf8ToLatin1("\xC2\x80\xC3\xBC"), "\x80\xFC");
    EXPECT_EQ(HostText::utf8ToLatin1("Ums\xC3\xA4tze.csv"), "Ums\xE4tze.csv");
    EXPECT_EQ(HostText::utf8ToLatin1("\xE2\x82\xAC.csv"), std::nullopt) << "no euro sign in a file name of the host";
}

} // namespace
