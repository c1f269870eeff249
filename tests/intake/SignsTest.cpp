// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "intake/DelimitedInspector.h"
#include "intake/PhysicalLines.h"

namespace {

/// How a whole text is read, its amounts as the account holder sees them.
struct Reading {
    SignRule rule = SignRule::asWritten;
    std::vector<std::string> amounts;
    std::string undecided; ///< the code
};

Reading read(std::string_view text) {
    const PhysicalLines lines = LineSplitting::split(text);
    const DelimitedFile file = DelimitedInspector::inspect(lines.lines, InspectionOptions());
    Reading reading;
    if (file.plan.undecided)
        reading.undecided = file.plan.undecided->code;
    if (file.plan.tables.empty())
        return reading;
    reading.rule = file.plan.tables.front().sign;
    for (const BookingRow& row : file.rows.front())
        reading.amounts.push_back(row.kind == BookingRow::Kind::booking ? row.amount->text() : "-");
    return reading;
}

struct Case {
    std::string_view text;
    SignRule rule;
    std::vector<std::string> amounts;
    const char* why;
};

TEST(Signs, AreTakenFromWhereTheFileHasThem) {
    const std::vector<Case> cases = {
        {"Datum;Text;Betrag\n01.02.2024;a;-5,00\n02.02.2024;b;6,00\n",
         SignRule::asWritten,
         {"-5,00", "6,00"},
         "a minus"},
        {"Datum;Text;Betrag\n01.02.2024;a;5,00-\n02.02.2024;b;6,00\n",
         SignRule::asWritten,
         {"-5,00", "6,00"},
         "a minus behind"},
        {"Datum;Text;Betrag\n01.02.2024;a;5,00 S\n02.02.2024;b;6,00 H\n",
         SignRule::asWritten,
         {"-5,00", "6,00"},
         "a letter behind the amount"},
        {"Datum;Text;Betrag;\n01.02.2024;a;5,00;S\n02.02.2024;b;6,00;H\n",
         SignRule::signColumn,
         {"-5,00", "6,00"},
         "a letter in a column without a name"},
        {"Date;Text;Amount;Type\n2024-02-01;a;5.00;debit\n2024-02-02;b;6.00;credit\n",
         SignRule::signColumn,
         {"-5,00", "6,00"},
         "a word in a column of types"},
        {"Datum;Text;Soll;Haben\n01.02.2024;a;5,00;\n02.02.2024;b;;6,00\n",
         SignRule::twoColumns,
         {"-5,00", "6,00"},
         "two columns"},
        {"Datum;Text;Soll;Haben\n01.02.2024;a;-5,00;\n02.02.2024;b;;6,00\n",
         SignRule::twoColumns,
         {"-5,00", "6,00"},
         "two columns, debits with a minus"},
        {"Datum;Text;Soll;Haben\n01.02.2024;a;5,00;0,00\n02.02.2024;b;0,00;6,00\n",
         SignRule::twoColumns,
         {"-5,00", "6,00"},
         "two columns, zero in the other"},
        {"Datum;Text;Betrag;Saldo\n01.02.2024;a;5,00;95,00\n02.02.2024;b;6,00;101,00\n03.02.2024;c;1,00;100,00\n",
         SignRule::fromBalance,
         {"-", "6,00", "-1,00"},
         "the balance; the first booking has none before it"},
        {"Datum;Text;Betrag;Saldo\n03.02.2024;c;1,00;100,00\n02.02.2024;b;6,00;101,00\n01.02.2024;a;5,00;95,00\n",
         SignRule::fromBalance,
         {"-1,00", "6,00", "-"},
         "the balance, newest first"},
        {"Datum;Art;Text;Betrag\n01.02.2024;Lastschrift;a;5,00\n02.02.2024;Gutschrift;b;6,00\n",
         SignRule::kindOfBooking,
         {"-5,00", "6,00"},
         "the kind of booking, where nothing else tells"},
        {"Datum;Art;Text;Betrag\n01.02.2024;Lastschrift;a;-5,00\n02.02.2024;Lastschrift;b;6,00\n",
         SignRule::asWritten,
         {"-5,00", "6,00"},
         "what is signed needs no kind of booking"},
    };
    for (const Case& c : cases) {
        const Reading reading = read(c.text);
        EXPECT_EQ(reading.rule, c.rule) << c.why;
        EXPECT_EQ(reading.amounts, c.amounts) << c.why;
        EXPECT_EQ(reading.undecided, "") << c.why;
    }
}

TEST(Signs, KindsThatSayTooLittleAreAQuestion) {
    EXPECT_EQ(read("Datum;Art;Text;Betrag\n01.02.2024;Lastschrift;a;5,00\n02.02.2024;Transfer;b;6,00\n").undecided,
              "sign-ambiguous");
    // Nothing speaks of money that goes out.
    EXPECT_EQ(read("Datum;Art;Text;Betrag\n01.02.2024;Transfer;a;5,00\n02.02.2024;Gutschrift;b;6,00\n").undecided, "");
}

TEST(CardStatement, PurchasesMayCountAsPositive) {
    const std::vector<Case> cases = {
        {"Datum;Karteninhaber;Text;Betrag\n01.02.2024;Max;Hotel;200,00\n02.02.2024;Max;Zug;50,00\n"
         "03.02.2024;Max;ZAHLUNG ERHALTEN;-250,00\n",
         SignRule::inverted,
         {"-200,00", "-50,00", "250,00"},
         "the payment is negative"},
        {"Trans. Date,Description,Amount\n01/30/2024,WALMART,35.20\n01/20/2024,SHELL,40.00\n"
         "01/15/2024,INTERNET PAYMENT - THANK YOU,-200.00\n",
         SignRule::inverted,
         {"-35,20", "-40,00", "200,00"},
         "thanks for a payment, and no word of a card"},
        {"Date,Description,Type,Amount\n2024-01-30,A,Purchase,35.20\n2024-01-20,B,Purchase,40.00\n"
         "2024-01-15,C,Payment,-200.00\n",
         SignRule::inverted,
         {"-35,20", "-40,00", "200,00"},
         "what is positive was purchased"},
        {"Datum;Karteninhaber;Text;Betrag\n01.02.2024;Max;Hotel;200,00\n02.02.2024;Max;Zug;50,00\n",
         SignRule::inverted,
         {"-200,00", "-50,00"},
         "purchases only"},
        {"Datum;Kartennummer;Text;Betrag\n01.02.2024;12;Hotel;-200,00\n02.02.2024;12;Zug;-50,00\n"
         "03.02.2024;12;Zahlung erhalten;250,00\n",
         SignRule::asWritten,
         {"-200,00", "-50,00", "250,00"},
         "a card statement with the usual signs"},
        {"Datum;Kartennummer;Text;Betrag\n04.01.2024;;Mieter A;700,00\n05.01.2024;;Mieter B;650,00\n"
         "06.01.2024;;Mieter C;720,00\n",
         SignRule::asWritten,
         {"700,00", "650,00", "720,00"},
         "money that came in without a card"},
        {"Datum;Kartennummer;Text;Betrag\n01.02.2024;12;REWE SAGT DANKE;-20,00\n02.02.2024;12;Zug;-5,00\n"
         "03.02.2024;12;Storno Hotel;30,00\n",
         SignRule::asWritten,
         {"-20,00", "-5,00", "30,00"},
         "a shop that thanks is no payment"},
    };
    for (const Case& c : cases) {
        const Reading reading = read(c.text);
        EXPECT_EQ(reading.rule, c.rule) << c.why;
        EXPECT_EQ(reading.amounts, c.amounts) << c.why;
    }
}

TEST(CardStatement, PurchasesAndPaymentsWithoutAnySignAreAQuestion) {
    EXPECT_EQ(read("Datum;Karteninhaber;Text;Betrag\n01.02.2024;Max;Hotel;200,00\n"
                   "03.02.2024;Max;Zahlung erhalten;200,00\n")
                  .undecided,
              "sign-ambiguous");
}

TEST(Signs, ColumnsThatTheUserNamedAreTakenAsWritten) {
    const PhysicalLines lines = LineSplitting::split("Datum;Karteninhaber;Text;Betrag\n01.02.2024;Max;Hotel;200,00\n");
    InspectionOptions options;
    options.columns = {{"Datum", 0}, {"Betrag", 3}};
    const DelimitedFile file = DelimitedInspector::inspect(lines.lines, options);
    EXPECT_EQ(file.plan.tables.front().sign, SignRule::asWritten);
}

} // namespace
