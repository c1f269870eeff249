// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "intake/FileReading.h"
#include "support/Utf8.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::string_view kText = "Datum;Empfänger;Verwendungszweck;Betrag\n"
                                   "01.02.2024;Bäckerei Süß;Brötchen für Zoë;-3,20\n"
                                   "02.02.2024;Müller;Miete;500,00\n";
const auto kBookings =
    ElementsAre("01.02.2024 -3,20 Bäckerei Süß | Brötchen für Zoë", "02.02.2024 500,00 Müller | Miete");

/// UTF-16 of characters up to U+FFFF.
std::string utf16(std::string_view utf8, bool bigEndian) {
    std::string text;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        unsigned c = static_cast<unsigned char>(utf8[i]);
        const int more = c >= 0xE0U ? 2 : c >= 0xC0U ? 1 : 0;
        c &= more == 2 ? 0x0FU : more == 1 ? 0x1FU : 0x7FU;
        for (int k = 0; k < more; ++k)
            c = c << 6U | (static_cast<unsigned char>(utf8[++i]) & 0x3FU);
        const char high = static_cast<char>(c >> 8U);
        const char low = static_cast<char>(c & 0xFFU);
        text += bigEndian ? high : low;
        text += bigEndian ? low : high;
    }
    return text;
}

struct Case {
    std::string bytes;
    Encoding encoding;
    bool bom;
    const char* what;
};

TEST(Encodings, AreToldByTheBytes) {
    const Case cases[] = {
        {std::string(kText), Encoding::utf8, false, "UTF-8"},
        {"\xEF\xBB\xBF" + std::string(kText), Encoding::utf8, true, "UTF-8 with a byte-order mark"},
        {"\xFF\xFE" + utf16(kText, false), Encoding::utf16le, true, "UTF-16, little end first"},
        {"\xFE\xFF" + utf16(kText, true), Encoding::utf16be, true, "UTF-16, big end first"},
        {utf16(kText, false), Encoding::utf16le, false, "UTF-16 without a mark, little end first"},
        {utf16(kText, true), Encoding::utf16be, false, "UTF-16 without a mark, big end first"},
        {latin1FromUtf8(kText), Encoding::latin1, false, "Latin-1"},
    };
    for (const Case& c : cases) {
        const FileReading file(c.bytes);
        EXPECT_THAT(file.bookings(), kBookings) << c.what;
        EXPECT_EQ(file.intake().encoding, c.encoding) << c.what;
        EXPECT_EQ(file.intake().bom, c.bom) << c.what;
        EXPECT_THAT(file.messages(), IsEmpty()) << c.what;
        EXPECT_EQ(file.lines(), "HRR") << c.what;
    }
}

TEST(Encodings, EuroSignTellsWindows1252FromLatin1) {
    const FileReading file("Datum;Text;Betrag\n01.02.2024;5 \x80 f\xFCr Tee;-5,00\n");
    EXPECT_EQ(file.intake().encoding, Encoding::windows1252);
    EXPECT_THAT(file.bookings(), ElementsAre("01.02.2024 -5,00  | 5 € für Tee"));
}

TEST(Encodings, WindowsCharactersOfUtf8KeepTheirPlace) {
    const FileReading file("Datum;Text;Betrag\n01.02.2024;„5 €“ – Œuvre;-5,00\n");
    EXPECT_THAT(file.bookings(), ElementsAre("01.02.2024 -5,00  | „5 €“ – Œuvre"));
    EXPECT_THAT(file.messages(), IsEmpty());
}

TEST(Encodings, CharacterWithoutPlaceIsTransliteratedAndCounted) {
    const FileReading file("Datum;Text;Betrag\n01.02.2024;Łódź;-5,00\n02.02.2024;Łuków;-6,00\n");
    EXPECT_THAT(file.bookings(), ElementsAre("01.02.2024 -5,00  | Lódz", "02.02.2024 -6,00  | Luków"));
    EXPECT_THAT(file.messages(), ElementsAre("character-replaced@2", "character-replaced@2"));
    EXPECT_NE(file.intake().prepared.messages.front().text.find("2-mal"), std::string::npos);
}

TEST(Encodings, MinusThatIsNoHyphenIsAMinus) {
    const FileReading file("Datum;Text;Betrag\n01.02.2024;Tee;\u22125,00\n02.02.2024;Brot;\u20136,00\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("01.02.2024 -5,00", "02.02.2024 -6,00"));
}

TEST(Encodings, SpacesOfAllWidthsGroupThousands) {
    const FileReading file("Datum;Text;Betrag\n01.02.2024;Tee;-1\u00A0234,00\n02.02.2024;Brot;5\u202F678,00\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("01.02.2024 -1.234,00", "02.02.2024 5.678,00"));
}

TEST(Encodings, BrokenUtf8IsReadAsItsNeighbourhoodAndReported) {
    InspectionOptions options;
    options.encoding = Encoding::utf8;
    const FileReading file("Datum;Text;Betrag\n01.02.2024;T\xE4 \xC3\xA4;-5,00\n", Import::eFormatCSV, options);
    EXPECT_THAT(file.bookings(), ElementsAre("01.02.2024 -5,00  | T? ä"));
    EXPECT_THAT(file.messages(), ElementsAre("encoding-broken@2"));
}

TEST(Encodings, ZeroBytesInTextsBecomeBlanks) {
    const FileReading file(std::string_view("Datum;Text;Betrag\n01.02.2024;A\0B;-5,00\n", 40));
    EXPECT_THAT(file.bookings(), ElementsAre("01.02.2024 -5,00  | A B"));
    EXPECT_THAT(file.messages(), ElementsAre("zero-bytes"));
}

TEST(Encodings, ZeroBytesOfAListShownAsItStandsBecomeBlanks) {
    const std::string_view bytes("Datum;Text;Betrag\n01.02.2024;A\0B;-5,00\n", 39);
    EXPECT_EQ(Intake::readAsItStands(bytes, {}).prepared.text, "Datum;Text;Betrag\n01.02.2024;A B;-5,00\n");
}

TEST(Encodings, UserOverrulesTheBytes) {
    InspectionOptions options;
    options.encoding = Encoding::latin1;
    const FileReading file("Datum;Text;Betrag\n01.02.2024;\xC3\xA4;-5,00\n", Import::eFormatCSV, options);
    EXPECT_THAT(file.bookings(), ElementsAre("01.02.2024 -5,00  | Ã¤"));
}

} // namespace
