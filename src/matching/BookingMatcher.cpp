// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "matching/BookingMatcher.h"

#include <cstddef>
#include <functional>
#include <unordered_map>

#include "matching/TextLikeness.h"

namespace {

// Of bookings that only may be the same no more than these are looked at, so that a
// file of 65,000 equal amounts takes little longer than another.
constexpr std::size_t kMostCandidates = 16;

std::uint64_t mix(std::uint64_t seed, std::uint64_t value) {
    constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15U;
    return (seed ^ value) * kOdd + (seed >> 29U);
}

template <typename Value>
std::uint64_t hashOf(const Value& value) {
    return std::hash<Value>()(value);
}

std::uint64_t hashOf(const std::optional<std::chrono::sys_days>& day) {
    return day ? hashOf(day->time_since_epoch().count()) : ~std::uint64_t{0};
}

std::uint64_t hashOf(const std::optional<double>& amount) { return amount ? hashOf(*amount) : ~std::uint64_t{0}; }

/// 0 is kept for "nothing to look for".
std::uint64_t notZero(std::uint64_t hash) { return hash != 0 ? hash : 1; }

std::uint64_t exactHash(const BookingFacts& facts, std::uint64_t key) {
    std::uint64_t hash = mix(mix(key, hashOf(facts.payee)), hashOf(facts.purpose));
    for (const std::string_view detail : facts.details)
        hash = mix(hash, hashOf(detail));
    return notZero(mix(hash, hashOf(facts.number)));
}

} // namespace

BookingMatcher::Item::Item(const BookingFacts& facts)
    : key(facts), day(facts.day), amount(facts.amount), number(facts.number), exact(exactHash(facts, key.hash())),
      dayAmount(day && amount ? notZero(mix(hashOf(day), hashOf(amount))) : 0),
      payeeAmount(day && amount && !key.payee().empty() ? notZero(mix(hashOf(key.payee()), hashOf(amount))) : 0) {}

// In this order: what is certain first, and of equal bookings the one that is equal to the last letter.
const BookingMatcher::Step BookingMatcher::kSteps[] = {
    {Resemblance::Mark::known, Resemblance::Reason::sameNumber,
     [](const Item& item) { return item.number.empty() ? 0 : notZero(hashOf(item.number)); },
     [](const Item& file, const Item& stored) {
         return file.number == stored.number && file.hasSameDayAndAmount(stored);
     }},
    {Resemblance::Mark::known, Resemblance::Reason::sameContent, [](const Item& item) { return item.exact; },
     [](const Item& file, const Item& stored) { return file.key == stored.key && !file.differsInNumber(stored); }},
    {Resemblance::Mark::known, Resemblance::Reason::sameContent,
     [](const Item& item) { return notZero(item.key.hash()); },
     [](const Item& file, const Item& stored) { return file.key == stored.key && !file.differsInNumber(stored); }},
    {Resemblance::Mark::doubtful, Resemblance::Reason::numberReused,
     [](const Item& item) { return item.number.empty() ? 0 : notZero(hashOf(item.number)); },
     [](const Item& file, const Item& stored) { return file.number == stored.number; }},
    {Resemblance::Mark::doubtful, Resemblance::Reason::renumbered,
     [](const Item& item) { return item.number.empty() ? 0 : notZero(item.key.hash()); },
     [](const Item& file, const Item& stored) { return file.key == stored.key; }},
    {Resemblance::Mark::doubtful, Resemblance::Reason::otherText, [](const Item& item) { return item.dayAmount; },
     [](const Item& file, const Item& stored) {
         return file.hasSameDayAndAmount(stored) && !file.differsInNumber(stored) &&
                TextLikeness::isLikely(file.key.payee(), stored.key.payee()) &&
                TextLikeness::isLikely(file.key.purpose(), stored.key.purpose());
     }},
    {Resemblance::Mark::doubtful, Resemblance::Reason::otherDay, [](const Item& item) { return item.payeeAmount; },
     [](const Item& file, const Item& stored) {
         const auto apart = *file.day - *stored.day;
         return file.amount == stored.amount && file.key.payee() == stored.key.payee() &&
                !file.differsInNumber(stored) && std::chrono::abs(apart) <= std::chrono::days(kDaysApart) &&
                TextLikeness::isLikely(file.key.purpose(), stored.key.purpose());
     }},
};

void BookingMatcher::addStored(const BookingFacts& facts) { m_stored.emplace_back(facts); }

std::vector<Resemblance> BookingMatcher::match(std::span<const BookingFacts> file) {
    std::vector<Resemblance> answers(file.size());
    if (m_stored.empty())
        return answers;
    m_taken.assign(m_stored.size(), false);
    std::vector<Item> items(file.begin(), file.end());
    dropRepeatedNumbers(items);
    for (const Step& step : kSteps)
        run(step, items, answers);
    return answers;
}

/// A number that a file gives to several bookings tells none of them from the others.
void BookingMatcher::dropRepeatedNumbers(std::vector<Item>& file) {
    std::unordered_map<std::string, std::size_t> uses;
    for (const Item& item : file) {
        if (!item.number.empty())
            ++uses[item.number];
    }
    for (Item& item : file) {
        if (!item.number.empty() && uses[item.number] > 1)
            item.number.clear();
    }
}

void BookingMatcher::run(const Step& step, const std::vector<Item>& file, std::vector<Resemblance>& answers) {
    const auto isWanted = [&](std::size_t i) {
        return answers[i].mark == Resemblance::Mark::fresh && step.hash(file[i]) != 0;
    };
    std::size_t first = 0;
    while (first < file.size() && !isWanted(first))
        ++first;
    if (first == file.size())
        return;
    HashGroups groups;
    for (std::size_t stored = 0; stored < m_stored.size(); ++stored) {
        const std::uint64_t hash = m_taken[stored] ? 0 : step.hash(m_stored[stored]);
        if (hash != 0)
            groups.add(hash, stored);
    }
    groups.sort();
    for (std::size_t i = first; i < file.size(); ++i) {
        if (!isWanted(i))
            continue;
        const std::size_t found = groups.find(
            step.hash(file[i]), kMostCandidates, [this](std::size_t stored) { return m_taken[stored]; },
            [&](std::size_t stored) { return step.accepts(file[i], m_stored[stored]); });
        if (found == HashGroups::kNone)
            continue;
        m_taken[found] = true;
        answers[i] = {step.mark, step.reason, found, 0};
        if (step.reason == Resemblance::Reason::otherDay)
            answers[i].daysLater = static_cast<int>((*file[i].day - *m_stored[found].day).count());
    }
}
