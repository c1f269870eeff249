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

const auto kOutAndIn = ElementsAre("13.02.2024 -500,00", "14.02.2024 1.500,00");

struct Case {
    std::string_view text;
    const char* what;
};

TEST(SignsOverColumn, StandWhereTheFileHasThem) {
    constexpr Case kCases[] = {
        {"Datum;Text;Betrag\n13.02.2024;a;-500,00\n14.02.2024;b;1500,00\n", "a minus"},
        {"Datum;Text;Betrag\n13.02.2024;a;500,00-\n14.02.2024;b;1500,00\n", "a minus behind"},
        {"Datum;Text;Betrag\n13.02.2024;a;500,00 S\n14.02.2024;b;1500,00 H\n", "S and H behind"},
        {"Datum;Text;Betrag;S/H\n13.02.2024;a;500,00;S\n14.02.2024;b;1500,00;H\n", "S and H beside"},
        {"Datum;Text;Betrag;\n13.02.2024;a;500,00;S\n14.02.2024;b;1500,00;H\n", "S and H without a name"},
        {"Date;Text;Amount;D/C\n13/02/2024;a;500.00;D\n14/02/2024;b;1500.00;C\n", "D and C"},
        {"Date;Text;Amount;Type\n13/02/2024;a;500.00;debit\n14/02/2024;b;1500.00;credit\n", "words"},
        {"Datum;Text;Betrag;Richtung\n13.02.2024;a;500,00;Ausgang\n14.02.2024;b;1500,00;Eingang\n", "German words"},
        {"Date;Libellé;Montant;Sens\n13/02/2024;a;500,00;Débit\n14/02/2024;b;1500,00;Crédit\n", "French words"},
        {"Data;Descrizione;Importo;Segno\n13/02/2024;a;500,00;Dare\n14/02/2024;b;1500,00;Avere\n", "Italian words"},
        {"Datum;Omschrijving;Af Bij;Bedrag\n20240213;a;Af;500,00\n20240214;b;Bij;1500,00\n", "Dutch words"},
        {"Datum;Text;+/-;Betrag\n13.02.2024;a;-;500,00\n14.02.2024;b;+;1500,00\n", "a sign by itself"},
        {"Datum;Text;Soll;Haben\n13.02.2024;a;500,00;\n14.02.2024;b;;1500,00\n", "two columns"},
        {"Datum;Text;Haben;Soll\n13.02.2024;a;;500,00\n14.02.2024;b;1500,00;\n", "two columns, the other way round"},
        {"Datum;Text;Soll;Haben\n13.02.2024;a;-500,00;\n14.02.2024;b;;1500,00\n", "two columns, debits with a minus"},
        {"Datum;Text;Soll;Haben\n13.02.2024;a;500,00;0,00\n14.02.2024;b;0,00;1500,00\n", "two columns with zeros"},
        {"Datum;Text;Soll;Haben\n13.02.2024;a;-500,00;0,00\n14.02.2024;b;0,00;1500,00\n",
         "two columns with zeros, debits with a minus"},
        {"Date;Description;Debit;Credit\n13/02/2024;a;500.00;\n14/02/2024;b;;-1500.00\n",
         "two columns of a card, credits lower the debt"},
        {"Date;Description;Money Out (GBP);Money In (GBP)\n13/02/2024;a;500.00;\n14/02/2024;b;;1500.00\n",
         "two columns with a currency in their names"},
        {"Date;Libellé;Débit euros;Crédit euros\n13/02/2024;a;500,00;\n14/02/2024;b;;1500,00\n", "French columns"},
        {"Dato;Forklaring;Ut fra konto;Inn på konto\n13.02.2024;a;500,00;\n14.02.2024;b;;1500,00\n",
         "Norwegian columns"},
    };
    for (const Case& c : kCases) {
        const FileReading file(c.text);
        EXPECT_THAT(file.datesAndAmounts(), kOutAndIn) << c.what;
        EXPECT_THAT(file.messages(), IsEmpty()) << c.what;
        EXPECT_EQ(file.lines(), "HRR") << c.what;
    }
}

TEST(SignsOverColumn, UnknownNameBesideAKnownOneIsTheOtherSide) {
    const FileReading file("Datum;Text;Soll;Xyzzy\n13.02.2024;a;500,00;0,00\n14.02.2024;b;0,00;1500,00\n");
    EXPECT_THAT(file.datesAndAmounts(), kOutAndIn);
}

TEST(SignsOverColumn, TwoColumnsWithoutNamesAreNotGuessed) {
    for (const std::string_view text : {"13.02.2024;Text a;500,00;\n14.02.2024;Text b;;1500,00\n",
                                        "13.02.2024;Text a;500,00;\n14.02.2024;Text b;1,00;\n",
                                        "13.02.2024;Text a;500,00;0,00\n14.02.2024;Text b;0,00;1500,00\n"}) {
        const FileReading file(text);
        EXPECT_EQ(file.undecided(), "amount-column-ambiguous") << text;
    }
}

TEST(SignsOverColumn, ReturnedDebitStaysOne) {
    const FileReading file("Datum;Text;Soll;Haben\n"
                           "13.02.2024;a;-500,00;\n14.02.2024;b;-20,00;\n15.02.2024;Storno;20,00;\n"
                           "16.02.2024;c;;1500,00\n");
    EXPECT_THAT(file.datesAndAmounts(),
                ElementsAre("13.02.2024 -500,00", "14.02.2024 -20,00", "15.02.2024 20,00", "16.02.2024 1.500,00"));
}

TEST(SignsOverColumn, AmountInBothColumnsIsRefused) {
    const FileReading file("Datum;Text;Soll;Haben\n"
                           "13.02.2024;a;500,00;\n14.02.2024;b;;1500,00\n15.02.2024;c;20,00;30,00\n"
                           "16.02.2024;d;1,00;\n17.02.2024;e;2,00;\n18.02.2024;f;3,00;\n19.02.2024;g;4,00;\n"
                           "20.02.2024;h;5,00;\n21.02.2024;i;6,00;\n22.02.2024;j;7,00;\n");
    EXPECT_THAT(file.messages(), ElementsAre("bad-amount@4"));
    EXPECT_EQ(file.refused(), 1);
    EXPECT_EQ(file.records().size(), 9U);
}

TEST(SignsOverColumn, MarkThatIsUnknownIsRefused) {
    const FileReading file("Datum;Text;Betrag;S/H\n"
                           "13.02.2024;a;500,00;S\n14.02.2024;b;1500,00;H\n15.02.2024;c;2,00;S\n16.02.2024;d;2,00;H\n"
                           "17.02.2024;e;2,00;S\n18.02.2024;f;2,00;S\n19.02.2024;g;2,00;S\n20.02.2024;h;2,00;S\n"
                           "21.02.2024;i;2,00;S\n22.02.2024;j;2,00;X\n");
    EXPECT_THAT(file.messages(), ElementsAre("bad-amount@11"));
    EXPECT_EQ(file.records().size(), 9U);
}

TEST(SignsOverColumn, CardStatementCountsChargesAsPositive) {
    const FileReading file("Date,Description,Card Member,Amount\n"
                           "13/02/2024,Bakery,ME,12.50\n14/02/2024,Books,ME,30.00\n"
                           "15/02/2024,PAYMENT RECEIVED - THANK YOU,ME,-42.50\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("13.02.2024 -12,50", "14.02.2024 -30,00", "15.02.2024 42,50"));
    EXPECT_LT(file.intake().confidence, 1.0);
}

TEST(SignsOverColumn, KindOfBookingTellsWhereNoAmountHasASign) {
    const FileReading file("Datum;Umsatzart;Text;Betrag\n"
                           "13.02.2024;Lastschrift;a;500,00\n14.02.2024;Gutschrift;b;1500,00\n");
    EXPECT_THAT(file.datesAndAmounts(), kOutAndIn);
    EXPECT_LT(file.intake().confidence, 1.0);
}

TEST(SignsOverColumn, SignsThatNothingTellsAreNotGuessed) {
    const FileReading file("Datum;Umsatzart;Text;Betrag\n"
                           "13.02.2024;Lastschrift;a;500,00\n14.02.2024;Sonstiges;b;1500,00\n");
    EXPECT_EQ(file.undecided(), "sign-ambiguous");
    EXPECT_THAT(file.records(), IsEmpty());
}

TEST(SignsOverColumn, AccountWithoutExpensesIsDoubtful) {
    const FileReading file("Datum;Text;Betrag\n13.02.2024;a;5,00\n14.02.2024;b;6,00\n15.02.2024;c;7,00\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("13.02.2024 5,00", "14.02.2024 6,00", "15.02.2024 7,00"));
    EXPECT_LE(file.intake().confidence, 0.75);
}

} // namespace
