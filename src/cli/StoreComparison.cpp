// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/StoreComparison.h"

#include <algorithm>
#include <functional>
#include <string>
#include <utility>

#include "cli/RecordFacts.h"
#include "datamodel/HostText.h"
#include "matching/BookingMatcher.h"

namespace {

DMDate dateOf(std::chrono::sys_days day) {
    const std::chrono::year_month_day date(day);
    return {static_cast<unsigned>(date.day()), static_cast<unsigned>(date.month()),
            static_cast<unsigned>(static_cast<int>(date.year()))};
}

/// The days and numbers of which `facts` tell.
StoredDays questionOf(const std::vector<BookingFacts>& facts) {
    StoredDays days;
    std::optional<std::chrono::sys_days> first;
    std::optional<std::chrono::sys_days> last;
    for (const BookingFacts& booking : facts) {
        if (!booking.number.empty())
            days.numbers.emplace_back(booking.number);
        if (!booking.day) {
            days.undated = true;
            continue;
        }
        first = first ? std::min(*first, *booking.day) : *booking.day;
        last = last ? std::max(*last, *booking.day) : *booking.day;
    }
    if (first) {
        days.first = dateOf(*first);
        days.last = dateOf(*last);
    }
    return days;
}

using Visit = std::function<void(const StoredDays&, const RowVisitor&)>;

std::vector<RecordMark> compare(const std::vector<RecordNode*>& made, const Visit& visit) {
    if (made.empty())
        return {};
    const RecordFacts factsOf(made.front()->spec());
    std::vector<BookingFacts> facts;
    facts.reserve(made.size());
    for (const RecordNode* record : made)
        facts.push_back(factsOf.of(*record));

    BookingMatcher matcher;
    std::vector<RecordMark> places; // of the stored ones
    visit(questionOf(facts), [&](RecordNode& stored) {
        const BookingFacts booking = factsOf.of(stored);
        matcher.addStored(booking);
        places.push_back({{},
                          factsOf.uniqueId(stored),
                          factsOf.session(stored),
                          factsOf.line(stored),
                          booking.number.empty() ? std::string() : HostText::toUtf8(booking.number)});
    });

    std::vector<RecordMark> marks;
    marks.reserve(made.size());
    for (const Resemblance& resemblance : matcher.match(facts)) {
        RecordMark mark;
        if (resemblance.mark != Resemblance::Mark::fresh)
            mark = places[resemblance.stored];
        mark.resemblance = resemblance;
        marks.push_back(std::move(mark));
    }
    return marks;
}

} // namespace

namespace StoreComparison {

std::vector<RecordMark> ofRecords(Store& store, const std::vector<RecordNode*>& made) {
    return compare(made, [&store](const StoredDays& days, const RowVisitor& use) { store.visitRecords(days, use); });
}

std::vector<RecordMark> ofBookings(Store& store, const RecordNode& account, const std::vector<RecordNode*>& made) {
    return compare(made,
                   [&](const StoredDays& days, const RowVisitor& use) { store.visitBookings(account, days, use); });
}

} // namespace StoreComparison
