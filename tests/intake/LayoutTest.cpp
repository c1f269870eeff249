// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "intake/FileReading.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::string_view kText = "Datum;Empfänger;Verwendungszweck;Betrag\n"
                                   "01.02.2024;Müller;Miete;-500,00\n"
                                   "02.02.2024;Firma;Lohn;1.500,00\n";
const auto kBookings = ElementsAre("01.02.2024 -500,00 Müller | Miete", "02.02.2024 1.500,00 Firma | Lohn");

std::string replaced(std::string_view text, std::string_view what, std::string_view with) {
    std::string out(text);
    for (std::size_t at = 0; (at = out.find(what, at)) != std::string::npos; at += with.size())
        out.replace(at, what.size(), with);
    return out;
}

// Line ends

TEST(LineEnds, OfAnySystemAreRead) {
    struct Case {
        std::string bytes;
        LineEnds ends;
    };
    const Case cases[] = {
        {std::string(kText), LineEnds::lf},
        {replaced(kText, "\n", "\r\n"), LineEnds::crlf},
        {replaced(kText, "\n", "\r"), LineEnds::cr},
        {replaced(kText, "Miete;-500,00\n", "Miete;-500,00\r\n"), LineEnds::mixed},
    };
    for (const Case& c : cases) {
        const FileReading file(c.bytes);
        EXPECT_THAT(file.bookings(), kBookings);
        EXPECT_EQ(file.intake().lineEnds, c.ends);
        EXPECT_EQ(file.lines(), "HRR");
    }
}

TEST(LineEnds, LastLineNeedsNone) {
    const FileReading file(kText.substr(0, kText.size() - 1));
    EXPECT_THAT(file.bookings(), kBookings);
}

TEST(LineEnds, InsideQuotesBreakNoRecord) {
    const FileReading file("Datum;Empfänger;Verwendungszweck;Betrag\n"
                           "01.02.2024;Müller;\"Miete\nFebruar\n2024\";-500,00\n"
                           "02.02.2024;Firma;Lohn;1.500,00\n");
    EXPECT_THAT(file.bookings(),
                ElementsAre("01.02.2024 -500,00 Müller | Miete Februar 2024", "02.02.2024 1.500,00 Firma | Lohn"));
    EXPECT_EQ(file.lines(), "HRIIR");
}

TEST(LineEnds, CarriageReturnAndLineFeedInsideQuotesAreOneBreak) {
    const FileReading file("Datum;Verwendungszweck;Betrag\r\n01.02.2024;\"Miete\r\nFebruar\";-500,00\r\n");
    EXPECT_THAT(file.bookings(), ElementsAre("01.02.2024 -500,00  | Miete Februar"));
    EXPECT_EQ(file.lines(), "HRI");
}

TEST(LineEnds, QuoteThatOpensByMistakeSwallowsNothing) {
    const FileReading file("Datum;Verwendungszweck;Betrag\n"
                           "01.02.2024;\"Miete;-500,00\n"
                           "02.02.2024;Lohn;1.500,00\n"
                           "03.02.2024;Strom;-60,00\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("01.02.2024 -500,00", "02.02.2024 1.500,00", "03.02.2024 -60,00"));
}

// Delimiters

TEST(Delimiter, IsFoundByWhatItMakesOfTheLines) {
    for (const char delimiter : {';', '\t', '|'}) {
        const FileReading file(replaced(kText, ";", std::string(1, delimiter)));
        EXPECT_THAT(file.bookings(), kBookings) << delimiter;
        EXPECT_EQ(file.intake().delimiter, delimiter);
    }
}

TEST(Delimiter, CommaStandsBesideDecimalCommasInQuotes) {
    const FileReading file("Datum,Empfänger,Verwendungszweck,Betrag\n"
                           "01.02.2024,Müller,Miete,\"-500,00\"\n"
                           "02.02.2024,Firma,Lohn,\"1.500,00\"\n");
    EXPECT_THAT(file.bookings(), kBookings);
    EXPECT_EQ(file.intake().delimiter, ',');
}

TEST(Delimiter, OtherCharactersInTheTextsAreMoreFrequent) {
    const FileReading file("Datum;Verwendungszweck;Betrag\n"
                           "01.02.2024;a,b,c,d|e:f,g;-500,00\n"
                           "02.02.2024;a,b,c,d|e:f,g;1.500,00\n");
    EXPECT_EQ(file.intake().delimiter, ';');
    EXPECT_THAT(file.bookings(),
                ElementsAre("01.02.2024 -500,00  | a,b,c,d|e:f,g", "02.02.2024 1.500,00  | a,b,c,d|e:f,g"));
}

TEST(Delimiter, MayBeFixedByTheUser) {
    InspectionOptions options;
    options.delimiter = ',';
    const FileReading file("Date,Text,Amount\n2024-02-01,a;b;c,-5.00\n", Import::eFormatCSV, options);
    EXPECT_THAT(file.bookings(), ElementsAre("01.02.2024 -5,00  | a;b;c"));
}

// Around the table

TEST(Layout, PreambleAndFooterAreToldByTheirContent) {
    const FileReading file("\"Konto\";\"DE00 1234\"\n"
                           "Zeitraum;01.02.2024 - 29.02.2024\n"
                           "\n"
                           "Datum;Empfänger;Verwendungszweck;Betrag\n"
                           "01.02.2024;Müller;Miete;-500,00\n"
                           "02.02.2024;Firma;Lohn;1.500,00\n"
                           "\n"
                           "Alle Angaben ohne Gewähr\n");
    EXPECT_THAT(file.bookings(), kBookings);
    EXPECT_EQ(file.lines(), "PPBHRRBF");
    EXPECT_EQ(file.intake().preambleLines, 3);
    EXPECT_THAT(file.messages(), IsEmpty());
}

TEST(Layout, ClosingBalanceBelowIsNoBooking) {
    const FileReading file("Datum;Empfänger;Verwendungszweck;Betrag\n"
                           "01.02.2024;Müller;Miete;-500,00\n"
                           "02.02.2024;Firma;Lohn;1.500,00\n"
                           "02.02.2024;;Endsaldo;2.000,00\n");
    EXPECT_THAT(file.bookings(), kBookings);
}

TEST(Layout, TotalsBetweenBookingsAreReported) {
    const FileReading file("Datum;Empfänger;Verwendungszweck;Betrag\n"
                           "01.02.2024;Müller;Miete;-500,00\n"
                           ";;Zwischensumme;-500,00\n"
                           "02.02.2024;Firma;Lohn;1.500,00\n");
    EXPECT_THAT(file.bookings(), kBookings);
    EXPECT_EQ(file.lines(), "HRIR");
    EXPECT_THAT(file.messages(), ElementsAre("balance-line@3"));
}

TEST(Layout, NamelessClosingBalanceOfAFileWithoutHeaderIsNoBooking) {
    const FileReading file("01.02.2024;-500,00;Miete Müller\n"
                           "02.02.2024;1.500,00;Lohn Firma\n"
                           "13.02.2024;-20,00;Bäckerei\n"
                           "29.02.2024;1.980,00;00012345\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("01.02.2024 -500,00", "02.02.2024 1.500,00", "13.02.2024 -20,00"));
}

TEST(Layout, HeaderMayBeMissing) {
    const FileReading file("01.02.2024;Müller;Miete Februar 2024 Gartenweg;-500,00\n"
                           "02.02.2024;Firma;Lohn Januar 2024 Personalnummer;1.500,00\n");
    EXPECT_THAT(file.bookings(), ElementsAre("01.02.2024 -500,00 Müller | Miete Februar 2024 Gartenweg",
                                             "02.02.2024 1.500,00 Firma | Lohn Januar 2024 Personalnummer"));
    EXPECT_EQ(file.lines(), "RR");
    EXPECT_FALSE(file.intake().header);
}

TEST(Layout, NamesMayBeUnknown) {
    const FileReading file("Quando;Chi;Perche;Quanto\n"
                           "01.02.2024;Müller;Miete Februar Gartenweg;-500,00\n"
                           "02.02.2024;Firma;Lohn Januar Personal;1.500,00\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("01.02.2024 -500,00", "02.02.2024 1.500,00"));
    EXPECT_EQ(file.lines(), "HRR");
    EXPECT_LT(file.intake().confidence, 0.9);
}

TEST(Layout, NamesMayBeBlankOrRepeated) {
    const FileReading file("Datum;Datum;Empfänger;;Verwendungszweck;Verwendungszweck;Betrag;\n"
                           "01.02.2024;02.02.2024;Müller;x;Miete;Februar;-500,00;EUR\n"
                           "02.02.2024;03.02.2024;Firma;y;Lohn;;1.500,00;EUR\n");
    EXPECT_THAT(file.bookings(),
                ElementsAre("01.02.2024 -500,00 Müller | Miete Februar", "02.02.2024 1.500,00 Firma | Lohn"));
}

TEST(Layout, HeaderRepeatsOnEveryPage) {
    const FileReading file("Datum;Empfänger;Verwendungszweck;Betrag\n"
                           "01.02.2024;Müller;Miete;-500,00\n"
                           "Datum;Empfänger;Verwendungszweck;Betrag\n"
                           "02.02.2024;Firma;Lohn;1.500,00\n");
    EXPECT_THAT(file.bookings(), kBookings);
    EXPECT_EQ(file.lines(), "HRHR");
}

TEST(Layout, SecondTableFurtherDownIsReadToo) {
    const FileReading file("Umsätze Girokonto\n"
                           "Datum;Empfänger;Verwendungszweck;Betrag\n"
                           "01.02.2024;Müller;Miete;-500,00\n"
                           "\n"
                           "Umsätze Karte\n"
                           "Buchungstag;Belegdatum;Beschreibung;Betrag in EUR\n"
                           "05.02.2024;03.02.2024;Bäckerei;-3,20\n");
    EXPECT_THAT(file.bookings(), ElementsAre("01.02.2024 -500,00 Müller | Miete", "05.02.2024 -3,20  | Bäckerei"));
    EXPECT_EQ(file.lines(), "PHRBFHR");
}

TEST(Layout, RowsMayBeRagged) {
    const FileReading file("Datum;Empfänger;Betrag;Verwendungszweck;Notiz\n"
                           "01.02.2024;Müller;-500,00;Miete;;;;\n"
                           "02.02.2024;Firma;1.500,00\n"
                           "03.02.2024;Stadt;-20,00;Gebühr\n");
    EXPECT_THAT(file.bookings(), ElementsAre("01.02.2024 -500,00 Müller | Miete", "02.02.2024 1.500,00 Firma | ",
                                             "03.02.2024 -20,00 Stadt | Gebühr"));
}

TEST(Layout, DelimiterInsideATextThatMovesTheAmountIsRefused) {
    const FileReading file("Datum;Verwendungszweck;Betrag;Saldo\n"
                           "01.02.2024;Miete; 5;-500,00;500,00\n"
                           "02.02.2024;Lohn;1.500,00;2.000,00\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("02.02.2024 1.500,00"));
    EXPECT_THAT(file.messages(), ElementsAre("too-many-fields@2"));
    EXPECT_EQ(file.refused(), 1);
}

TEST(Layout, TextGoesOnInTheLinesBelow) {
    const FileReading file("Datum;Empfänger;Verwendungszweck;Betrag\n"
                           "01.02.2024;Müller;Miete;-500,00\n"
                           ";;Februar 2024;\n"
                           "02.02.2024;Firma;Lohn;1.500,00\n");
    EXPECT_THAT(file.bookings(),
                ElementsAre("01.02.2024 -500,00 Müller | Miete Februar 2024", "02.02.2024 1.500,00 Firma | Lohn"));
    EXPECT_EQ(file.lines(), "HRIR");
}

TEST(Layout, FieldsOfASpreadsheetsTextFormulaAreTexts) {
    const FileReading file("Datum;Konto;Verwendungszweck;Betrag\n01.02.2024;=\"00123\";=\"Miete\";-500,00\n");
    EXPECT_THAT(file.bookings(), ElementsAre("01.02.2024 -500,00  | Miete"));
}

TEST(Layout, FileWithoutBookingsIsNotGuessedAt) {
    for (const std::string_view text : {"", "\n\n", "Hallo Welt\n", "a;b;c\nd;e;f\n", "Datum;Text;Betrag\n"}) {
        const FileReading file(text);
        EXPECT_EQ(file.undecided(), "no-bookings") << text;
        EXPECT_THAT(file.records(), IsEmpty()) << text;
    }
}

TEST(Layout, WhatTheLibraryReadsRightGoesThroughUntouched) {
    const std::string_view text = "Datum;Empfaenger;Verwendungszweck;Betrag\n"
                                  "01.02.2024;Mueller;Miete;-500,00\n"
                                  "13.02.2024;Firma;Lohn;1500,00\n";
    const FileReading file(text);
    EXPECT_TRUE(file.untouched());
    EXPECT_EQ(file.preparedText(), text);
    EXPECT_FALSE(FileReading(replaced(text, "-500,00", "500,00-")).untouched());
    EXPECT_FALSE(FileReading(replaced(text, "01.02.2024", "2024-02-01")).untouched());
}

TEST(Layout, LongLineIsWrittenAnewAndTooLongABookingRefused) {
    const std::string filler(5000, 'x');
    const FileReading shortened("Datum;Verwendungszweck;Betrag;Beleg\n01.02.2024;Miete;-500,00;" + filler + "\n");
    EXPECT_THAT(shortened.bookings(), ElementsAre("01.02.2024 -500,00  | Miete"));
    const FileReading refused("Datum;Verwendungszweck;Betrag\n01.02.2024;" + filler +
                              ";-500,00\n02.02.2024;Lohn;1.500,00\n");
    EXPECT_THAT(refused.bookings(), ElementsAre("02.02.2024 1.500,00  | Lohn"));
    EXPECT_THAT(refused.messages(), ElementsAre("line-too-long@2"));
}

// Names of columns

TEST(ColumnNames, OfFourLanguagesAreKnown) {
    constexpr std::string_view kRows = "\n01/02/2024;Müller;Miete;-500,00\n13/02/2024;Firma;Lohn;1500,00\n";
    for (const std::string_view header :
         {"Buchungstag;Auftraggeber/Empfänger;Verwendungszweck;Betrag", "Booking date;Payee;Payment reference;Amount",
          "Date opération;Bénéficiaire;Libellé;Montant", "Data contabile;Beneficiario;Descrizione;Importo",
          "BUCHUNGSTAG;EMPFAENGER;VERWENDUNGSZWECK;BETRAG (EUR)", "Fecha;Beneficiario;Concepto;Importe",
          "Boekdatum;Naam tegenpartij;Omschrijving;Bedrag", "Data operacji;Nazwa kontrahenta;Opis operacji;Kwota"}) {
        const FileReading file(std::string(header) + std::string(kRows));
        EXPECT_THAT(file.bookings(),
                    ElementsAre("01.02.2024 -500,00 Müller | Miete", "13.02.2024 1.500,00 Firma | Lohn"))
            << header;
        EXPECT_GE(file.intake().confidence, 0.9) << header;
    }
}

TEST(ColumnNames, DayOfBookingStandsBeforeValueDate) {
    const FileReading file("Wertstellung;Buchungstag;Verwendungszweck;Betrag\n05.02.2024;01.02.2024;Miete;-500,00\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("01.02.2024 -500,00"));
}

TEST(ColumnNames, OriginalAmountOfAForeignPurchaseIsNotTheAmount) {
    const FileReading file("Datum;Text;Originalbetrag;Originalwährung;Betrag;Währung\n"
                           "01.02.2024;Café;-12,00;USD;-11,05;EUR\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("01.02.2024 -11,05"));
}

// Texts

TEST(Texts, SeveralPurposeColumnsBecomeOneText) {
    const FileReading file("Datum;Empfänger;VWZ1;VWZ2;VWZ3;Betrag\n"
                           "01.02.2024;Müller;Miete;Februar;2024;-500,00\n"
                           "02.02.2024;Firma;Lohn;;;1.500,00\n");
    EXPECT_THAT(file.bookings(),
                ElementsAre("01.02.2024 -500,00 Müller | Miete Februar 2024", "02.02.2024 1.500,00 Firma | Lohn"));
}

TEST(Texts, SignChoosesBetweenTwoPayees) {
    const FileReading file("Datum;Auftraggeber;Empfänger;Verwendungszweck;Betrag\n"
                           "01.02.2024;Ich;Müller;Miete;-500,00\n"
                           "02.02.2024;Firma;Ich;Lohn;1.500,00\n");
    EXPECT_THAT(file.bookings(), kBookings);
}

TEST(Texts, DelimiterAndQuotesInsideAFieldSurvive) {
    const FileReading file("Datum;Verwendungszweck;Betrag\n2024-02-01;\"a;b \"\"c\"\"\";-5,00\n");
    EXPECT_THAT(file.bookings(), ElementsAre("01.02.2024 -5,00  | a;b \"c\""));
}

// Bookings that are none yet

TEST(Status, PendingAndFailedBookingsAreLeftOutWithAWord) {
    const FileReading file("Datum;Verwendungszweck;Betrag;Status\n"
                           "01.02.2024;Miete;-500,00;gebucht\n"
                           "02.02.2024;Tanken;-60,00;vorgemerkt\n"
                           "03.02.2024;Kino;-12,00;storniert\n"
                           "04.02.2024;Lohn;1.500,00;gebucht\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("01.02.2024 -500,00", "04.02.2024 1.500,00"));
    EXPECT_EQ(file.lines(), "HRIIR");
    EXPECT_THAT(file.messages(), ElementsAre("pending@3", "not-booked@4"));
    EXPECT_EQ(file.refused(), 0);
}

TEST(Status, IsUnderstoodInOtherLanguages) {
    for (const std::string_view words : {"Posted;Pending", "Comptabilisé;En attente", "Contabilizzato;Autorizzato",
                                         "Udført;Venter", "COMPLETED;PENDING", "Booked;Authorised"}) {
        const std::string booked(words.substr(0, words.find(';')));
        const std::string pending(words.substr(words.find(';') + 1));
        const FileReading file("Date;Description;Amount;Status\n01/02/2024;a;-1,00;" + booked +
                               "\n13/02/2024;b;-2,00;" + pending + "\n");
        EXPECT_THAT(file.datesAndAmounts(), ElementsAre("01.02.2024 -1,00")) << words;
        EXPECT_THAT(file.messages(), ElementsAre("pending@3")) << words;
    }
}

TEST(Status, WordInsteadOfADayMeansPending) {
    const FileReading file("Buchungstag;Verwendungszweck;Betrag\n"
                           "offen;Tanken;-60,00\n"
                           "01.02.2024;Miete;-500,00\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("01.02.2024 -500,00"));
    EXPECT_THAT(file.messages(), ElementsAre("pending@2"));
}

} // namespace
