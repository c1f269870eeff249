// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "intake/FileReading.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string purposeNames(std::string_view stem, char delimiter) {
    std::string names;
    for (int i = 1; i <= 14; ++i)
        names += std::string(stem) + std::to_string(i) + delimiter;
    return names;
}

/// The header of the short names; `more` behind it.
std::string shortHeader(std::string_view more) {
    return "Saldo;SdoWaehr;AgBlz;AgKto;AgName1;Storno;OrigBtg;Betrag;BtgWaehr;OCMTBetr;OCMTWaehr;Textschl;" +
           purposeNames("VWZ", ';') + "BuchDatum;WertDatum;Primanota;Kategorie;Unterkat;Kostenst" + std::string(more) +
           "\n";
}

std::string shortRow(std::string_view payee, std::string_view amount, std::string_view purpose1,
                     std::string_view purpose2, std::string_view day, std::string_view category,
                     std::string_view more) {
    std::string row = "63,39;\"EUR\";\"\";\"\";\"";
    row += payee;
    row += "\";0;";
    row += amount;
    row += ';';
    row += amount;
    row += ";\"EUR\";";
    row += amount;
    row += ";\"EUR\";5;\"";
    row += purpose1;
    row += "\";\"";
    row += purpose2;
    row += "\";";
    for (int i = 3; i <= 14; ++i)
        row += "\"\";";
    row += day;
    row += ';';
    row += day;
    row += ";\"9044\";\"";
    row += category;
    row += "\";\"\";\"\"";
    row += more;
    return row + '\n';
}

const auto kBookings = ElementsAre("17.03.2004 -26,93 Müller | Miete März", "08.03.2004 1.234,56 Firma | Lohn");

TEST(StarMoneyFiles, Of32And33And66ColumnsAreReadByTheirHeader) {
    struct Case {
        std::string moreNames;
        std::string moreFields;
        int width;
    };
    std::string names = ";BuchText";
    std::string fields = ";\"LASTSCHRIFT\"";
    for (int i = 33; i < 66; ++i) {
        names += ";Feld" + std::to_string(i);
        fields += ";\"\"";
    }
    for (const Case& c : {Case{"", "", 32}, Case{";BuchText", ";\"LASTSCHRIFT\"", 33}, Case{names, fields, 66}}) {
        const FileReading file =
            starMoney(shortHeader(c.moreNames) +
                      shortRow("Müller", "-26,93", "Miete", "März", "17.3.2004", "Wohnen", c.moreFields) +
                      shortRow("Firma", "1234,56", "Lohn", "", "8.3.2004", "", c.moreFields));
        EXPECT_EQ(file.intake().format, Import::eFormatCSV) << "no layout of the library's own";
        EXPECT_THAT(file.bookings(), kBookings) << c.width;
        EXPECT_THAT(file.messages(), IsEmpty()) << c.width;
        ASSERT_EQ(file.records().size(), 2U);
        EXPECT_EQ(file.records().front().category, "Wohnen");
        EXPECT_EQ(file.records().front().postingText, c.width > 32 ? "LASTSCHRIFT" : "") << c.width;
    }
}

TEST(StarMoneyFiles, OfLongNamesAreReadByTheirHeader) {
    const std::string header =
        "Kontonummer;Bankleitzahl;Betrag;Betrag - Währung;Buchungstext;Buchungstag;"
        "Begünstigter/Absender - Bankleitzahl;Begünstigter/Absender - Kontonummer;"
        "Begünstigter/Absender - Name;Kategorie;Kostenstelle;Laufende Nummer;Marker;Orginalbetrag;"
        "Originalbetrag - Währung;Primanota;Saldo;Saldo - Währung;Storno;Storno - Originalbetrag;"
        "Splittbuchung - Orginal Betrag;Textschlüssel;Unterkategorie;" +
        purposeNames("Verwendungszweckzeile ", ';') + "Wertstellungstag\n";
    const auto row = [](std::string_view amount, std::string_view day, std::string_view payee,
                        std::string_view purpose) {
        return "\"123\";\"10000000\";" + std::string(amount) + ";\"EUR\";\"UMSATZ\";" + std::string(day) +
               ";\"20000000\";\"456\";\"" + std::string(payee) + "\";\"\";\"\";1;\"\";" + std::string(amount) +
               ";\"EUR\";\"9044\";0,00;\"EUR\";\"\";;;5;\"\";" + std::string(purpose) + ";\"\";\"\";\"\";\"\";\"\";" +
               "\"\";\"\";\"\";\"\";\"\";\"\";" + std::string(day) + "\n";
    };
    const FileReading file = starMoney(header + row("-26,93", "17.03.2004", "Müller", "\"Miete\";\"März\"") +
                                       row("1.234,56", "08.03.2004", "Firma", "\"Lohn\";\"\""));
    EXPECT_THAT(file.bookings(), kBookings);
}

TEST(StarMoneyFiles, OfTheLibrarysLayoutKeepIt) {
    const std::string header =
        "BuchDatum|AgName1|Betrag|BtgWaehr|" + purposeNames("VWZ", '|') + "BuchText|Kategorie|Unterkat\n";
    const std::string text = header + "17.03.2004|Mueller|-26,93|EUR|Miete|||||||||||||| LASTSCHRIFT|Wohnen|\n";
    const FileReading file = starMoney(text);
    EXPECT_EQ(file.intake().format, Import::eFormatStarMoney);
    EXPECT_TRUE(file.untouched());
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("17.03.2004 -26,93"));
}

TEST(StarMoneyFiles, OfTheLibrarysLayoutWithOtherDatesAreReadByTheirHeader) {
    const std::string header =
        "BuchDatum|AgName1|Betrag|BtgWaehr|" + purposeNames("VWZ", '|') + "BuchText|Kategorie|Unterkat\n";
    const FileReading file =
        starMoney(header + "2004-03-17|Mueller|-26,93|EUR|Miete|||||||||||||| LASTSCHRIFT|Wohnen|\n");
    EXPECT_EQ(file.intake().format, Import::eFormatCSV);
    EXPECT_THAT(file.bookings(), ElementsAre("17.03.2004 -26,93 Mueller | Miete"));
}

/// What the library would split otherwise or refuse is not handed to it as it is.
TEST(StarMoneyFiles, OfTheLibrarysLayoutWithLinesThatItMisreadsAreReadByTheirHeader) {
    const std::string header =
        "BuchDatum|AgName1|Betrag|BtgWaehr|" + purposeNames("VWZ", '|') + "BuchText|Kategorie|Unterkat\n";
    const std::string rest = "|||||||||||||| LASTSCHRIFT|Wohnen|\n";
    const std::string sound = "17.03.2004|Mueller|-26,93|EUR|Miete" + rest;
    struct Case {
        const char* what;
        std::string line;
        const char* booking;
    };
    const Case cases[] = {
        {"quotes that open again", "18.03.2004|\"\"Mueller\"|-1,00|EUR|\"Miete\"" + rest, "18.03.2004 -1,00"},
        {"a line too long", "18.03.2004|Mueller|-1,00|EUR|" + std::string(4100, 'x') + rest, nullptr},
        {"quotes alone", "\"\"\n", nullptr},
    };
    for (const Case& c : cases) {
        const FileReading file = starMoney(header + c.line + sound);
        EXPECT_EQ(file.intake().format, Import::eFormatCSV) << c.what;
        if (c.booking != nullptr)
            EXPECT_THAT(file.datesAndAmounts(), ElementsAre(c.booking, "17.03.2004 -26,93")) << c.what;
        else
            EXPECT_THAT(file.datesAndAmounts(), ElementsAre("17.03.2004 -26,93")) << c.what;
    }
}

} // namespace
