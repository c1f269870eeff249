// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "intake/BalanceNames.h"
#include "intake/Cells.h"
#include "intake/MessageTexts.h"
#include "intake/SignWords.h"
#include "intake/StatusWords.h"
#include "intake/TextTools.h"

namespace {

constexpr auto kMinus = AmountCell::Sign::minus;
constexpr auto kPlus = AmountCell::Sign::plus;

TEST(TextTools, NamesAreFoldedForComparison) {
    EXPECT_EQ(TextTools::fold("Empf\xE4nger / Zahlungspfl."), "empfaenger zahlungspfl");
    EXPECT_EQ(TextTools::fold("  D\xE9"
                              "bit (EUR) "),
              "debit eur");
    EXPECT_EQ(TextTools::fold("Gr\xF6\xDF"
                              "e"),
              "groesse");
    EXPECT_EQ(TextTools::fold("\x80"), "");
    EXPECT_EQ(TextTools::toUtf8("5 \x80 f\xFCr"), "5 \xE2\x82\xAC f\xC3\xBCr");
    EXPECT_EQ(TextTools::trim(" \t\xA0 a b \r\n"), "a b");
}

TEST(SignWords, MarkBesideTheAmountTellsTheSign) {
    for (const char* word : {"S", "s", " Soll ", "debit", "DBIT", "Ausgang", "Af", "-", "Dare", "Belastung", "DR"})
        EXPECT_EQ(SignWords::read(word), kMinus) << word;
    for (const char* word : {"H", "Haben", "Credit", "CRDT", "Eingang", "Bij", "+", "Avere", "Gutschrift", "CR"})
        EXPECT_EQ(SignWords::read(word), kPlus) << word;
    for (const char* word :
         {"", "EUR", "Payment", "POS", "Soll oder Haben", "Lastschrift", "Sollzinsen Quartal 4/2023"})
        EXPECT_EQ(SignWords::read(word), std::nullopt) << word;
}

TEST(SignWords, KindOfBookingTellsWhichWayMoneyGoes) {
    for (const char* word : {"Lastschrift", "SEPA-Basislastschrift", "Kartenzahlung", "Dauerauftrag", "Card payment",
                             "Pr\xE9l\xE8vement", "Auszahlung am Geldautomaten", "Debit"})
        EXPECT_EQ(SignWords::ofKind(word), kMinus) << word;
    for (const char* word : {"Gutschrift", "Gehalt/Rente",
                             "R\xFC"
                             "cklastschrift",
                             "Einzahlung", "Refund", "Haben"})
        EXPECT_EQ(SignWords::ofKind(word), kPlus) << word;
    for (const char* word : {"\xDC"
                             "berweisung",
                             "Transfer", "Payment", ""})
        EXPECT_EQ(SignWords::ofKind(word), std::nullopt) << word;
}

TEST(StatusWords, StateTellsWhetherABookingHappened) {
    for (const char* word : {"Umsatz vorgemerkt", "Pending", "nicht gebucht", "Ausstehend", "offen", "en attente"})
        EXPECT_EQ(StatusWords::read(word), BookingStatus::pending) << word;
    for (const char* word : {"Abgelehnt", "Storniert", "DECLINED", "Reverted", "Cancelled", "failed", "Refus\xE9"})
        EXPECT_EQ(StatusWords::read(word), BookingStatus::failed) << word;
    for (const char* word : {"Umsatz gebucht", "booked", "COMPLETED", "Abgeschlossen", "Executed", "Contabilizzato"})
        EXPECT_EQ(StatusWords::read(word), BookingStatus::booked) << word;
    for (const char* word : {"", "x", "offener Posten", "Refund"})
        EXPECT_EQ(StatusWords::read(word), std::nullopt) << word;
}

TEST(BalanceNames, TextThatNamesABalanceAndNothingElse) {
    for (const char* text : {"Anfangssaldo", "Alter Kontostand", "Saldovortrag vom 31.12.2023", "OPENING BALANCE",
                             "Balance brought forward", "Solde initial au 01/01/2024"})
        EXPECT_EQ(BalanceNames::read(text), BalanceName::opening) << text;
    for (const char* text : {"Endsaldo", "Neuer Kontostand:", "Closing Balance", "Ending balance as of 01/31/2024"})
        EXPECT_EQ(BalanceNames::read(text), BalanceName::closing) << text;
    for (const char* text : {"Saldo", "Kontostand am 31.01.2024", "Stand 31.01.2024:", "Balance (EUR)"})
        EXPECT_EQ(BalanceNames::read(text), BalanceName::any) << text;
    for (const char* text :
         {"", "Saldo Nebenkosten 2023", "Saldoausgleich", "Miete", "EUR", "Balance Board", "New Balance Store Berlin"})
        EXPECT_EQ(BalanceNames::read(text), std::nullopt) << text;
}

TEST(BalanceNames, RecordThatSpeaksOfABalanceOrTotal) {
    for (const char* line : {"Summe Januar;;5,00", ";Gesamt;5,00", "Kontostand;31.01.2024;;5,00", "Total;5.00"})
        EXPECT_TRUE(BalanceNames::mentionedIn(Cells(line).table(), 0)) << line;
    for (const char* line : {"01.02.2024;Miete;5,00", "Totalausfall;;5,00", "Sommer;;5,00"})
        EXPECT_FALSE(BalanceNames::mentionedIn(Cells(line).table(), 0)) << line;
}

TEST(Messages, EveryCodeIsStableAndEveryTextSaysSomething) {
    std::set<std::string_view> texts;
    for (const Messages::Text& row : Messages::table()) {
        EXPECT_EQ(row.code.find_first_not_of("abcdefghijklmnopqrstuvwxyz-"), std::string_view::npos) << row.code;
        EXPECT_TRUE(texts.insert(row.text).second) << row.text;
        EXPECT_EQ(row.text.back(), '.') << row.text;
    }
}

TEST(Messages, ArgumentsStandInTheirPlaces) {
    const IntakeMessage message = Messages::make(MessageId::characterReplaced, 7, {"a", "3", "b"});
    EXPECT_EQ(message.line, 7);
    EXPECT_EQ(message.code, "character-replaced");
    EXPECT_FALSE(message.refusal);
    EXPECT_EQ(message.text.rfind("Zeile 7: ", 0), 0U);
    EXPECT_NE(message.text.find("3-mal"), std::string::npos);
    EXPECT_EQ(message.text.find('%'), std::string::npos);
}

TEST(Messages, TextFromAFileIsNoPlaceForArguments) {
    const IntakeMessage message = Messages::make(MessageId::badDate, 0, {"%1 %2"});
    EXPECT_NE(message.text.find("%1 %2"), std::string::npos);
    EXPECT_EQ(message.text.rfind("Das Datum", 0), 0U);
    EXPECT_TRUE(message.refusal);
}

} // namespace
