// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "intake/Cells.h"
#include "intake/ColumnChooser.h"

namespace {

ColumnChoice choose(std::string_view text) {
    const Cells cells(text);
    const auto regions = TableFinder::find(cells.table(), ColumnLexicon::builtIn());
    if (regions.empty())
        return {};
    return ColumnChooser::choose(cells.table(), regions.front(), ColumnLexicon::builtIn());
}

ColumnRoles rolesOf(std::string_view text) { return choose(text).roles; }

TEST(ColumnChooser, NamesDecide) {
    const ColumnRoles roles = rolesOf("Konto;Buchungstag;Valuta;Name;Buchungstext;Verwendungszweck;Betrag;Saldo;Whg\n"
                                      "1;01.02.2024;02.02.2024;Huber;LASTSCHRIFT;Miete;-700,00;300,00;EUR\n"
                                      "1;02.02.2024;03.02.2024;Acme;GUTSCHRIFT;Lohn;800,00;1.100,00;EUR\n");
    EXPECT_EQ(roles.date, 1);
    EXPECT_EQ(roles.amount, 6);
    EXPECT_EQ(roles.balance, 7);
    EXPECT_EQ(roles.currency, 8);
    EXPECT_EQ(roles.counterparty, 3);
    EXPECT_EQ(roles.postingText, 4);
    EXPECT_EQ(roles.purpose, (std::vector<int>{5}));
}

TEST(ColumnChooser, ValuesDecideWhereNamesAreUnknown) {
    const ColumnChoice choice = choose("Kuup\xE4"
                                       "ev;Saaja;Selgitus;Raha\n"
                                       "01.02.2024;Huber;Miete Januar 2024 warm;-700,00\n"
                                       "02.02.2024;Acme;Lohn Januar 2024 brutto;800,00\n");
    EXPECT_EQ(choice.roles.date, 0);
    EXPECT_EQ(choice.roles.amount, 3);
    EXPECT_EQ(choice.roles.counterparty, 1);
    EXPECT_EQ(choice.roles.purpose, (std::vector<int>{2}));
    EXPECT_FALSE(choice.dateByName);
    EXPECT_FALSE(choice.amountByName);
}

TEST(ColumnChooser, NameWithoutFittingValuesIsNotBelieved) {
    const ColumnRoles roles = rolesOf("Datum;Betrag;Umsatz;Text\n01.02.2024;siehe rechts;-5,00;a b c\n");
    EXPECT_EQ(roles.amount, 2);
}

TEST(ColumnChooser, DayOfBookingBesideAValueDateNeedsNoKnownName) {
    EXPECT_EQ(rolesOf("Journal;Valuta;Text;Betrag\n04.01.2024;05.01.2024;a;-7,00\n05.01.2024;08.01.2024;b;2,00\n").date,
              0);
    // Far apart: another kind of date.
    EXPECT_EQ(rolesOf("Vertrag;Valuta;Text;Betrag\n04.01.2014;05.01.2024;a;-7,00\n05.01.2024;08.01.2024;b;2,00\n").date,
              1);
}

TEST(ColumnChooser, WordInTheColumnOfDatesIsABookingToCome) {
    EXPECT_EQ(rolesOf("Buchungstag;Valuta;Text;Betrag\noffen;05.01.2024;a;-7,00\noffen;05.01.2024;a;-7,00\n"
                      "05.01.2024;08.01.2024;b;2,00\n")
                  .date,
              0);
}

TEST(ColumnChooser, DayAndMonthTakeTheYearFromAnotherColumn) {
    const ColumnRoles roles = rolesOf("Buchungstag;Valuta;Text;Betrag\n04.01.;05.01.2024;a;-7,00\n");
    EXPECT_EQ(roles.date, 0);
    EXPECT_EQ(roles.yearSource, 1);
}

TEST(ColumnChooser, DebitAndCreditFillEachOther) {
    const ColumnRoles roles = rolesOf("Datum;Text;Soll;Haben\n01.02.2024;a;5,00;\n02.02.2024;b;;6,00\n");
    EXPECT_EQ(roles.amount, -1);
    EXPECT_EQ(roles.debit, 2);
    EXPECT_EQ(roles.credit, 3);
    EXPECT_TRUE(roles.twoAmounts());
}

TEST(ColumnChooser, SignedAmountComesBeforeDebitAndCredit) {
    const ColumnRoles roles = rolesOf("Datum;Betrag;Soll;Haben\n01.02.2024;-5,00;-5,00;\n02.02.2024;6,00;;6,00\n");
    EXPECT_EQ(roles.amount, 1);
}

TEST(ColumnChooser, AccountsInDebitAndCreditAreNoAmounts) {
    const ColumnRoles roles = rolesOf("Datum;Soll;Haben;Betrag;Text\n01.02.2024;4930;1200;5,00;a\n"
                                      "02.02.2024;1200;8400;6,00;b\n");
    EXPECT_EQ(roles.amount, 3);
}

TEST(ColumnChooser, MarkStandsBesideTheAmount) {
    EXPECT_EQ(rolesOf("Datum;Text;Betrag;\n01.02.2024;a;5,00;S\n02.02.2024;b;6,00;H\n").sign, 3);
    EXPECT_EQ(rolesOf("Datum;Text;Betrag;Soll/Haben-Kennzeichen\n01.02.2024;a;5,00;S\n").sign, 3);
    EXPECT_EQ(rolesOf("01.02.2024;Miete;5,00;S\n02.02.2024;Lohn;6,00;S\n").sign, 3);
    // What is signed already needs no mark.
    EXPECT_EQ(rolesOf("Datum;Text;Betrag;\n01.02.2024;a;-5,00;S\n02.02.2024;b;6,00;H\n").sign, -1);
    // A word that every booking has is no mark, unless the column is one for marks.
    EXPECT_EQ(rolesOf("Datum;Text;Betrag;Bemerkung\n01.02.2024;a;5,00;Eingang\n02.02.2024;b;6,00;Eingang\n").sign, -1);
}

struct PartsCase {
    std::string_view text;
    int amount;
    bool settled;
    const char* why;
};

TEST(ColumnChooser, SumsShowWhichAmountMovesTheAccount) {
    const PartsCase kCases[] = {
        {"Datum;Text;Brutto;Entgelt;Netto\n01.02.2024;a;10,00;-0,50;9,50\n02.02.2024;b;8,00;0,00;8,00\n", 4, true,
         "a fee is taken off"},
        {"Created;Text;Amount;Fee;Net\n2024-02-01;a;10.00;0.50;9.50\n2024-02-02;b;8.00;0.40;7.60\n", 4, true,
         "a fee without a sign"},
        {"Datum;Beleg;Netto;MwSt;Brutto\n01.02.2024;a;10,00;1,90;11,90\n02.02.2024;b;20,00;3,80;23,80\n", 4, true,
         "a tax is added"},
        {"Datum;Text;Brutto;Netto\n01.02.2024;a;10,00;9,50\n02.02.2024;b;8,00;7,00\n", 2, false,
         "nothing tells what lies between"},
        {"Datum;Text;Betrag (CHF);Betrag (EUR)\n01.02.2024;a;10.00;9.50\n02.02.2024;b;8.00;7.00\n", 2, false,
         "two currencies under one name"},
        {"Datum;Text;Umsatz;Betrag\n01.02.2024;a;10,00;10,00\n02.02.2024;b;8,00;8,00\n", 2, true,
         "the same amounts twice"},
        {"Posting Date;Text;Transaction Amount;Billing Amount\n2024-02-01;a;10.00;9.50\n", 3, true,
         "what is billed moves the account"},
    };
    for (const PartsCase& c : kCases) {
        const ColumnChoice choice = choose(c.text);
        EXPECT_EQ(choice.roles.amount, c.amount) << c.why;
        EXPECT_EQ(choice.rivalAmounts.empty(), c.settled) << c.why;
    }
}

TEST(ColumnChooser, TwoAmountsWithoutNamesAreRivals) {
    const ColumnChoice choice = choose("01.02.2024;Miete Januar;-5,00;100,00\n02.02.2024;Lohn Januar;6,00;106,00\n");
    EXPECT_EQ(choice.roles.amount, 2);
    EXPECT_EQ(choice.rivalAmounts, (std::vector<int>{3}));
}

TEST(ColumnChooser, EverySideHasItsColumn) {
    const ColumnRoles roles = rolesOf("Datum;Auftraggeber;Empf\xE4nger;Zweck;Betrag\n"
                                      "01.02.2024;Ich;Huber;Miete;-5,00\n02.02.2024;Acme;Ich;Lohn;6,00\n");
    EXPECT_EQ(roles.payer, 1);
    EXPECT_EQ(roles.recipient, 2);
    EXPECT_EQ(roles.counterparty, -1);
}

TEST(ColumnChooser, PayeeBesideAPayerIsTheRecipient) {
    const ColumnRoles roles = rolesOf("Date;Payer Name;Payee Name;Merchant;Description;Amount\n"
                                      "2024-02-01;;Huber;;Rent;-5.00\n2024-02-02;Acme;;;Wage;6.00\n"
                                      "2024-02-03;;;Laden;Bread;-2.00\n");
    EXPECT_EQ(roles.payer, 1);
    EXPECT_EQ(roles.recipient, 2);
    EXPECT_EQ(roles.counterparty, 3);
}

TEST(ColumnChooser, OwnerOfTheAccountIsNotTheOtherSide) {
    const ColumnRoles roles = rolesOf("Datum;Auftraggeber/Zahlungsempf\xE4nger;Empf\xE4nger/Zahlungspflichtiger;Zweck;"
                                      "Betrag\n01.02.2024;Ich;Huber;Miete;-5,00\n02.02.2024;Ich;Acme;Lohn;6,00\n");
    EXPECT_EQ(roles.counterparty, 2);
}

TEST(ColumnChooser, PurposeMayHaveSeveralColumns) {
    EXPECT_EQ(rolesOf("Datum;VWZ1;VWZ2;VWZ3;Betrag\n01.02.2024;a;b;c;-5,00\n02.02.2024;d;;;6,00\n").purpose,
              (std::vector<int>{1, 2, 3}));
}

TEST(ColumnChooser, ColumnThatNeverChangesIsNoPurpose) {
    EXPECT_EQ(rolesOf("Datum;Beschreibung;Verwendungszweck;Betrag\n01.02.2024;Mein Konto;a;-5,00\n"
                      "02.02.2024;Mein Konto;b;6,00\n")
                  .purpose,
              (std::vector<int>{2}));
}

TEST(ColumnChooser, PostingTextServesWhereNoPurposeIsNamed) {
    const ColumnRoles roles =
        rolesOf("Datum;Vorgang;Buchungstext;Betrag\n01.02.2024;Lastschrift;Telekom Rechnung;-5,00\n"
                "02.02.2024;Lastschrift;Stadtwerke Abschlag;-6,00\n");
    EXPECT_EQ(roles.postingText, 1);
    EXPECT_EQ(roles.purpose, (std::vector<int>{2}));
}

TEST(ColumnChooser, ColumnOfUnknownNameServesBeforeRareNotes) {
    EXPECT_EQ(rolesOf("Datum;Ding;Empf\xE4nger;Betrag;Notiz\n01.02.2024;Kinobesuch;Tom;-5,00;\n"
                      "02.02.2024;Eis essen;Tom;-6,00;\n03.02.2024;Brezeln;Tom;-6,00;lecker\n")
                  .purpose,
              (std::vector<int>{1}));
}

TEST(ColumnChooser, StateOfABookingHasAColumn) {
    EXPECT_EQ(rolesOf("Datum;Text;Betrag;Status\n01.02.2024;a;-5,00;gebucht\n").status, 3);
    EXPECT_EQ(rolesOf("Datum;Text;Betrag;Status\n01.02.2024;a;-5,00;Gold\n").status, -1);
}

TEST(ColumnChooser, FieldsBehindTheLastNameBelongToThePurpose) {
    EXPECT_TRUE(rolesOf("Datum;Betrag;Zweck\n01.02.2024;-5,00;a;b\n02.02.2024;6,00;c\n").overflowIsPurpose);
    EXPECT_FALSE(rolesOf("Datum;Zweck;Betrag\n01.02.2024;a;-5,00;b\n02.02.2024;c;6,00\n").overflowIsPurpose);
}

TEST(ColumnChooser, SingleBookingSuffices) {
    const ColumnRoles roles = rolesOf("01.02.2024;Miete Januar;-5,00;EUR\n");
    EXPECT_EQ(roles.date, 0);
    EXPECT_EQ(roles.amount, 2);
}

} // namespace
