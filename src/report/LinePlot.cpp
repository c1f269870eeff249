// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "report/LinePlot.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "report/CentSum.h"
#include "report/GermanText.h"

namespace {

constexpr std::int64_t kInWhole = 100;
constexpr std::int64_t kMostSteps = 6;

std::int64_t floorTo(std::int64_t value, std::int64_t step) {
    const std::int64_t rest = value % step;
    return value - (rest < 0 ? rest + step : rest);
}

/// The smallest of 1, 2, 5, 10, 20 ... that covers the range in a few steps.
std::int64_t stepFor(std::int64_t range) {
    std::int64_t power = 1;
    for (;;) {
        for (const std::int64_t factor : {1, 2, 5}) {
            if (factor * power >= (range + kMostSteps - 1) / kMostSteps)
                return factor * power;
        }
        power *= 10;
    }
}

std::vector<std::int64_t> ticksFor(std::int64_t low, std::int64_t high, bool fromZero) {
    // Nothing is a good place to begin where it does not flatten the line.
    const std::int64_t range = high - low;
    if (low > 0 && (fromZero || low <= range))
        low = 0;
    if (high < 0 && (fromZero || -high <= range))
        high = 0;
    const std::int64_t step = stepFor(high - low);
    std::vector<std::int64_t> ticks = {floorTo(low, step)};
    do {
        ticks.push_back(ticks.back() + step);
    } while (ticks.back() < high);
    return ticks;
}

/// Steps of `size` in the share `part` of `whole`; a drawing may round.
std::int64_t scaled(std::int64_t part, std::int64_t whole, std::int64_t size) {
    return std::llround(static_cast<double>(part) * static_cast<double>(size) / static_cast<double>(whole));
}

std::int64_t daysBetween(const DayValue& from, const DayValue& to) {
    return (std::chrono::sys_days(to.day) - std::chrono::sys_days(from.day)).count();
}

} // namespace

std::optional<LinePlot> LinePlot::of(std::string title, std::vector<DayValue> values, Scale scale) {
    if (values.size() < 2)
        return std::nullopt;
    const auto [low, high] = std::minmax_element(
        values.begin(), values.end(), [](const DayValue& a, const DayValue& b) { return a.cents < b.cents; });
    const auto told = [](const DayValue& value) {
        return CentSum(value.cents).text() + " am " + GermanText::date(value.day);
    };
    LinePlot plot;
    plot.title = std::move(title);
    plot.description = "Von " + told(values.front()) + " bis " + told(values.back()) + "; am niedrigsten " +
                       told(*low) + ", am höchsten " + told(*high) + ".";
    plot.ticks = ticksFor(low->cents, high->cents, scale == Scale::fromZero);
    plot.values = std::move(values);
    return plot;
}

std::int64_t LinePlot::days() const { return daysBetween(values.front(), values.back()); }

std::int64_t LinePlot::across(const DayValue& value, std::int64_t width) const {
    return scaled(daysBetween(values.front(), value), days(), width);
}

std::int64_t LinePlot::up(std::int64_t cents, std::int64_t height) const {
    return scaled(cents - ticks.front(), ticks.back() - ticks.front(), height);
}

std::string LinePlot::label(std::int64_t tick) const {
    const std::string text = CentSum(tick).text();
    const bool whole = std::all_of(ticks.begin(), ticks.end(), [](std::int64_t t) { return t % kInWhole == 0; });
    return whole ? text.substr(0, text.find(',')) : text;
}
