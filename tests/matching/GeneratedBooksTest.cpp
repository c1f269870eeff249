// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <chrono>
#include <cstddef>
#include <iostream>
#include <map>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "matching/BookingMatcher.h"

namespace {

using Mark = Resemblance::Mark;

struct Booking {
    int day = 0;
    int cents = 0;
    std::string payee;
    std::string purpose;
    Mark truth = Mark::fresh; ///< what it is to the store

    BookingFacts facts() const {
        BookingFacts facts;
        facts.day = std::chrono::sys_days(std::chrono::days(19000 + day));
        facts.amount = cents / 100.0;
        facts.payee = payee;
        facts.purpose = purpose;
        return facts;
    }
};

/// Books of one year: few shops and amounts, so that twins and near-twins are many.
class Books {
public:
    explicit Books(unsigned seed) : m_random(seed) {}

    Booking make() {
        static const char* const kShops[] = {"Cafe Sperl",    "Kiosk Nord", "Lebensmittel Huber", "Stadtwerke",
                                             "Apotheke Mohr", "Tankstelle", "Buchhandlung Lenz",  "Bahn"};
        static const char* const kPurposes[] = {"Karte 1234", "Rechnung", "Abschlag Strom", "Danke", ""};
        Booking made;
        made.day = below(365);
        made.cents = -(below(40) * 50 + 150);
        made.payee = kShops[below(8)];
        made.purpose = kPurposes[below(5)];
        if (below(2) == 0)
            made.purpose += " Ref " + std::to_string(100000 + below(900000));
        return made;
    }

    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

private:
    std::mt19937 m_random;
};

std::string otherBlanksAndCase(std::string text) {
    for (std::size_t i = 0; i < text.size(); i += 3)
        text[i] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[i])));
    return text.insert(text.size() / 2, "\r\n") + " ";
}

std::vector<Resemblance> match(const std::vector<Booking>& stored, const std::vector<Booking>& file) {
    BookingMatcher matcher;
    for (const Booking& booking : stored)
        matcher.addStored(booking.facts());
    std::vector<BookingFacts> facts;
    for (const Booking& booking : file)
        facts.push_back(booking.facts());
    return matcher.match(facts);
}

struct Score {
    int right = 0;
    int marked = 0;
    int real = 0;

    double precision() const { return marked == 0 ? 1.0 : static_cast<double>(right) / marked; }
    double recall() const { return real == 0 ? 1.0 : static_cast<double>(right) / real; }
};

/// A second file over the same year: most bookings again, some of them in another
/// wording or moved, and new ones, among them twins and near-twins.
TEST(GeneratedBooks, MarksAreRight) {
    std::map<Mark, Score> scores;
    for (unsigned seed = 1; seed <= 40; ++seed) {
        Books books(seed);
        std::vector<Booking> stored;
        for (int i = 0; i < 300; ++i)
            stored.push_back(books.make());
        for (int i = 0; i < 20; ++i)
            stored.push_back(stored[static_cast<std::size_t>(books.below(300))]); // twins

        std::vector<Booking> file;
        for (const Booking& old : stored) {
            Booking again = old;
            again.truth = Mark::known;
            switch (books.below(20)) {
            case 0:
            case 1:
                again.purpose = otherBlanksAndCase(old.purpose);
                break;
            case 2:
                again.payee += " Filiale 7";
                again.purpose = "Lastschrift " + old.purpose + " Mandat";
                again.truth = Mark::doubtful;
                break;
            case 3:
                again.day += 1 + books.below(3);
                again.truth = Mark::doubtful;
                break;
            default:
                break;
            }
            file.push_back(again);
        }
        for (int i = 0; i < 60; ++i)
            file.push_back(books.make());
        for (int i = 0; i < 20; ++i) { // one more coffee on the same day
            Booking twin = stored[static_cast<std::size_t>(books.below(300))];
            twin.truth = Mark::fresh;
            file.push_back(twin);
        }
        for (int i = 0; i < 20; ++i) { // the same amount elsewhere
            Booking near = stored[static_cast<std::size_t>(books.below(300))];
            near.payee = "Gasthaus Post";
            near.purpose = "Tisch " + std::to_string(i);
            near.truth = Mark::fresh;
            file.push_back(near);
        }

        const std::vector<Resemblance> answers = match(stored, file);
        for (std::size_t i = 0; i < file.size(); ++i) {
            Score& marked = scores[answers[i].mark];
            ++marked.marked;
            ++scores[file[i].truth].real;
            marked.right += answers[i].mark == file[i].truth ? 1 : 0;
        }
    }
    static const std::map<Mark, const char*> kNames = {
        {Mark::fresh, "fresh"}, {Mark::known, "known"}, {Mark::doubtful, "doubtful"}};
    for (const auto& [mark, score] : scores) {
        std::cout << kNames.at(mark) << ": precision " << score.precision() << ", recall " << score.recall() << " of "
                  << score.real << '\n';
        RecordProperty(std::string(kNames.at(mark)) + "_precision", std::to_string(score.precision()));
        RecordProperty(std::string(kNames.at(mark)) + "_recall", std::to_string(score.recall()));
    }
    EXPECT_GE(scores[Mark::known].precision(), 0.98);
    EXPECT_GE(scores[Mark::known].recall(), 0.98);
    EXPECT_GE(scores[Mark::fresh].recall(), 0.95);
    EXPECT_GE(scores[Mark::doubtful].precision(), 0.85);
    EXPECT_GE(scores[Mark::doubtful].recall(), 0.85);
}

/// What is left out never exceeds what the store has of the very same booking.
TEST(GeneratedBooks, NoBookingIsLeftOutThatTheStoreLacks) {
    for (unsigned seed = 1; seed <= 200; ++seed) {
        Books books(seed);
        std::vector<Booking> stored;
        std::vector<Booking> file;
        for (int i = 0; i < 60; ++i) {
            const Booking made = books.make();
            for (int n = books.below(3); n > 0; --n)
                stored.push_back(made);
            for (int n = books.below(4); n > 0; --n)
                file.push_back(made);
        }
        const auto keyOf = [](const Booking& booking) {
            return std::tuple(booking.day, booking.cents, booking.payee, booking.purpose);
        };
        std::map<decltype(keyOf(Booking())), int> inStore;
        std::map<decltype(keyOf(Booking())), int> inFile;
        for (const Booking& booking : stored)
            ++inStore[keyOf(booking)];
        const std::vector<Resemblance> answers = match(stored, file);
        std::map<decltype(keyOf(Booking())), int> after = inStore;
        for (std::size_t i = 0; i < file.size(); ++i) {
            ++inFile[keyOf(file[i])];
            after[keyOf(file[i])] += answers[i].mark == Mark::known ? 0 : 1;
        }
        for (const auto& [key, count] : after)
            EXPECT_EQ(count, std::max(inStore[key], inFile[key])) << "seed " << seed << ", " << std::get<2>(key);
    }
}

} // namespace
