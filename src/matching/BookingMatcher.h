// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "matching/BookingFacts.h"
#include "matching/BookingKey.h"
#include "matching/HashGroups.h"
#include "matching/Resemblance.h"

/// Finds out which bookings of a file a store has already.
///
/// Every stored booking stands for at most one of the file, so that of three
/// equal ones in the file and two in the store one is fresh: real twins stay.
/// Certain matches come before uncertain ones over the whole file.
///
/// "Doubtful" takes a stored booking from the file's own period that nothing in the file
/// matches, and that a booking of the file may be in another wording.
class BookingMatcher {
public:
    /// Bookings some days apart may be one that the bank has moved.
    static constexpr int kDaysApart = 5;

    /// One of the store's; nothing of `facts` is kept.
    void addStored(const BookingFacts& facts);

    /// To be called once. One answer per booking of the file, in order.
    std::vector<Resemblance> match(std::span<const BookingFacts> file);

private:
    struct Item {
        explicit Item(const BookingFacts& facts);

        BookingKey key;
        std::optional<std::chrono::sys_days> day;
        std::optional<double> amount;
        std::string number;
        std::uint64_t exact;     ///< of all texts as they are
        std::uint64_t dayAmount; ///< of these two
        std::uint64_t payeeAmount;

        bool hasSameDayAndAmount(const Item& other) const { return day == other.day && amount == other.amount; }
        bool differsInNumber(const Item& other) const {
            return !number.empty() && !other.number.empty() && number != other.number;
        }
    };

    /// One way to find the booking of the store that one of the file may be.
    struct Step {
        Resemblance::Mark mark;
        Resemblance::Reason reason;
        std::uint64_t (*hash)(const Item& item); ///< 0: not to be looked for
        bool (*accepts)(const Item& file, const Item& stored);
    };
    static const Step kSteps[];

    static void dropRepeatedNumbers(std::vector<Item>& file);
    void run(const Step& step, const std::vector<Item>& file, std::vector<Resemblance>& answers);

    std::vector<Item> m_stored;
    std::vector<bool> m_taken;
};
