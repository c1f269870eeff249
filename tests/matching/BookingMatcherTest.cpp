// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "matching/BookingMatcher.h"

#include <chrono>
#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace {

using namespace std::chrono_literals;
using Mark = Resemblance::Mark;
using Reason = Resemblance::Reason;
using ::testing::ElementsAre;

constexpr std::chrono::sys_days kDay = std::chrono::year{2024} / 6 / 3;

BookingFacts booking(double amount, std::string_view payee, std::string_view purpose, int daysLater = 0) {
    BookingFacts facts;
    facts.day = kDay + std::chrono::days(daysLater);
    facts.amount = amount;
    facts.payee = payee;
    facts.purpose = purpose;
    return facts;
}

BookingFacts numbered(BookingFacts facts, std::string_view number) {
    facts.number = number;
    return facts;
}

BookingFacts detailed(BookingFacts facts, std::string_view category) {
    facts.details[0] = category;
    return facts;
}

BookingFacts undated(BookingFacts facts) {
    facts.day.reset();
    return facts;
}

std::vector<Resemblance> match(const std::vector<BookingFacts>& stored, const std::vector<BookingFacts>& file) {
    BookingMatcher matcher;
    for (const BookingFacts& facts : stored)
        matcher.addStored(facts);
    return matcher.match(file);
}

/// "fresh", "known 0", "doubtful 1": the mark and which of the stored ones it is.
std::vector<std::string> marks(const std::vector<BookingFacts>& stored, const std::vector<BookingFacts>& file) {
    std::vector<std::string> words;
    for (const Resemblance& answer : match(stored, file)) {
        if (answer.mark == Mark::fresh)
            words.emplace_back("fresh");
        else
            words.push_back((answer.mark == Mark::known ? "known " : "doubtful ") + std::to_string(answer.stored));
    }
    return words;
}

Reason reason(const BookingFacts& stored, const BookingFacts& file) { return match({stored}, {file})[0].reason; }

const BookingFacts kCoffee = booking(-3.5, "Cafe Sperl", "Karte 1234");

TEST(BookingMatcher, EverythingIsFreshToAnEmptyStore) {
    EXPECT_THAT(marks({}, {kCoffee, kCoffee}), ElementsAre("fresh", "fresh"));
}

TEST(BookingMatcher, ABookingIsKnownByDayAmountPayeeAndPurpose) {
    EXPECT_THAT(marks({kCoffee}, {kCoffee}), ElementsAre("known 0"));
    EXPECT_EQ(reason(kCoffee, kCoffee), Reason::sameContent);
    EXPECT_THAT(marks({kCoffee}, {booking(-3.5, "Cafe Sperl", "Karte 1234", 40)}), ElementsAre("fresh"));
    EXPECT_THAT(marks({kCoffee}, {booking(-3.51, "Cafe Sperl", "Karte 1234")}), ElementsAre("fresh"));
    EXPECT_THAT(marks({kCoffee}, {booking(-3.5, "Kiosk Nord", "Bar bezahlt")}), ElementsAre("fresh"));
}

TEST(BookingMatcher, BlanksCaseAndLineBreaksOfTheBankDoNotCount) {
    EXPECT_THAT(marks({kCoffee}, {booking(-3.5, "CAFE SPERL ", "Kar\nte 12 34")}), ElementsAre("known 0"));
}

TEST(BookingMatcher, TextsDoNotRunTogether) {
    EXPECT_THAT(marks({booking(1, "ab", "")}, {booking(1, "a", "b")}), ElementsAre(::testing::Not("known 0")));
}

TEST(BookingMatcher, NegativeZeroIsZero) {
    EXPECT_THAT(marks({booking(0.0, "a", "b")}, {booking(-0.0, "a", "b")}), ElementsAre("known 0"));
}

TEST(BookingMatcher, RealTwinsStay) {
    EXPECT_THAT(marks({kCoffee}, {kCoffee, kCoffee}), ElementsAre("known 0", "fresh"));
    EXPECT_THAT(marks({kCoffee, kCoffee}, {kCoffee, kCoffee, kCoffee}), ElementsAre("known 0", "known 1", "fresh"));
    EXPECT_THAT(marks({kCoffee, kCoffee}, {kCoffee}), ElementsAre("known 0"));
}

TEST(BookingMatcher, OfEqualBookingsTheOneThatIsEqualToTheLastLetterIsKnown) {
    const BookingFacts food = detailed(kCoffee, "Essen");
    const BookingFacts work = detailed(kCoffee, "Arbeit");
    EXPECT_THAT(marks({work}, {food, work}), ElementsAre("fresh", "known 0"));
    EXPECT_THAT(marks({work, food}, {food, work}), ElementsAre("known 1", "known 0"));
    EXPECT_THAT(marks({work}, {food}), ElementsAre("known 0")) << "a category that was changed makes no new booking";
}

TEST(BookingMatcher, BookingsWithoutTextsAreToldByTheirDetails) {
    const BookingFacts gas = detailed(booking(-20, "", ""), "Gas");
    const BookingFacts power = detailed(booking(-20, "", ""), "Strom");
    EXPECT_THAT(marks({gas}, {gas}), ElementsAre("known 0"));
    EXPECT_NE(match({gas}, {power})[0].mark, Mark::known);
}

TEST(BookingMatcher, UndatedBookingsAreToldByTheirDetails) {
    const BookingFacts gas = undated(detailed(booking(-20, "Budget", ""), "Gas"));
    const BookingFacts power = undated(detailed(booking(-20, "Budget", ""), "Strom"));
    EXPECT_THAT(marks({gas}, {power, gas}), ElementsAre("fresh", "known 0"));
    EXPECT_THAT(marks({gas}, {detailed(booking(-20, "Budget", ""), "Gas")}), ElementsAre("fresh"));
}

TEST(BookingMatcher, ABookingWithoutAnAmountIsNotOneOfZero) {
    BookingFacts none = booking(0, "a", "b");
    none.amount.reset();
    EXPECT_THAT(marks({none}, {none}), ElementsAre("known 0"));
    EXPECT_THAT(marks({none}, {booking(0, "a", "b")}), ElementsAre("fresh"));
}

TEST(BookingMatcher, TheBanksNumberComesFirst) {
    const BookingFacts stored = numbered(kCoffee, "N1");
    EXPECT_EQ(reason(stored, numbered(booking(-3.5, "Sperl", "Kartenzahlung"), "N1")), Reason::sameNumber);
    EXPECT_THAT(marks({stored}, {numbered(booking(-3.5, "", ""), "N1")}), ElementsAre("known 0"));
    EXPECT_THAT(marks({stored, numbered(kCoffee, "N2")}, {numbered(kCoffee, "N2")}), ElementsAre("known 1"));
}

TEST(BookingMatcher, ANumberUsedForSomethingElseMakesDoubtful) {
    const BookingFacts stored = numbered(kCoffee, "N1");
    EXPECT_EQ(reason(stored, numbered(booking(-99, "Werkstatt", "Rechnung"), "N1")), Reason::numberReused);
    EXPECT_EQ(match({stored}, {numbered(booking(-99, "Werkstatt", "Rechnung"), "N1")})[0].mark, Mark::doubtful);
}

TEST(BookingMatcher, EqualBookingsWithNumbersOfTheirOwnAreTwins) {
    const auto answers = match({numbered(kCoffee, "N1")}, {numbered(kCoffee, "N1"), numbered(kCoffee, "N2")});
    EXPECT_EQ(answers[0].mark, Mark::known);
    EXPECT_EQ(answers[1].mark, Mark::fresh);
}

TEST(BookingMatcher, OneContentUnderTwoNumbersIsDoubtful) {
    EXPECT_EQ(reason(numbered(kCoffee, "N1"), numbered(kCoffee, "N2")), Reason::renumbered);
    EXPECT_THAT(marks({kCoffee}, {numbered(kCoffee, "N2")}), ElementsAre("known 0")) << "the stored one has none";
}

TEST(BookingMatcher, ANumberGivenToSeveralTellsNothing) {
    const BookingFacts other = booking(-3.5, "Kiosk Nord", "Bar bezahlt");
    EXPECT_THAT(marks({numbered(kCoffee, "0")}, {numbered(other, "0"), numbered(kCoffee, "0")}),
                ElementsAre("fresh", "known 0"));
}

TEST(BookingMatcher, AnotherWordingOfDayAndAmountIsDoubtful) {
    const BookingFacts longer = booking(-3.5, "Cafe Sperl Wien", "Karte 1234 Ref. 99");
    EXPECT_THAT(marks({kCoffee}, {longer}), ElementsAre("doubtful 0"));
    EXPECT_EQ(reason(kCoffee, longer), Reason::otherText);
}

TEST(BookingMatcher, ABookingMovedByDaysIsDoubtful) {
    const auto answer = match({kCoffee}, {booking(-3.5, "Cafe Sperl", "Karte 1234", -2)})[0];
    EXPECT_EQ(answer.reason, Reason::otherDay);
    EXPECT_EQ(answer.daysLater, -2);
    EXPECT_EQ(reason(kCoffee, booking(-3.5, "Cafe Sperl", "Karte 1234", 5)), Reason::otherDay);
    EXPECT_EQ(reason(kCoffee, booking(-3.5, "Cafe Sperl", "Karte 1234", 6)), Reason::none);
}

TEST(BookingMatcher, AStoredBookingStandsForOneOnly) {
    // The second would be doubtful if the stored one were not taken by the first.
    EXPECT_THAT(marks({kCoffee}, {kCoffee, booking(-3.5, "Cafe Sperl", "Karte 1234 Ref. 99")}),
                ElementsAre("known 0", "fresh"));
    EXPECT_THAT(marks({kCoffee}, {booking(-3.5, "Cafe Sperl", "Karte 1234 Ref. 99"), kCoffee}),
                ElementsAre("fresh", "known 0"));
}

TEST(BookingMatcher, ManyEqualBookingsTakeNoLongerThanDifferentOnes) {
    // 65,535 each way: with a search through all of them this would not end within minutes.
    const std::vector<BookingFacts> equal(65535, kCoffee);
    const auto answers = match(equal, equal);
    for (std::size_t i = 0; i < answers.size(); ++i) {
        ASSERT_EQ(answers[i].mark, Mark::known) << i;
        ASSERT_EQ(answers[i].stored, i);
    }
    const std::vector<BookingFacts> others(65535, booking(-3.5, "Kiosk", "Zeitung"));
    for (const Resemblance& answer : match(equal, others))
        ASSERT_EQ(answer.mark, Mark::fresh);
}

} // namespace
