// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "report/TextPlot.h"

#include <algorithm>
#include <optional>

#include "report/GermanText.h"

namespace {

constexpr std::int64_t kColumns = 64;
constexpr std::int64_t kRowsPerTick = 2;

/// The value that holds in each column: the last one of its days, else that of the column before.
std::vector<std::int64_t> valuesByColumn(const LinePlot& plot) {
    std::vector<std::optional<std::int64_t>> last(static_cast<std::size_t>(kColumns));
    for (const DayValue& value : plot.values)
        last[static_cast<std::size_t>(plot.across(value, kColumns - 1))] = value.cents;
    std::vector<std::int64_t> values;
    values.reserve(last.size());
    for (const std::optional<std::int64_t>& value : last)
        values.push_back(value ? *value : values.back());
    return values;
}

std::string padded(const std::string& text, std::size_t width) {
    return std::string(width - std::min(width, text.size()), ' ') + text;
}

} // namespace

std::string TextPlot::of(const LinePlot& plot) {
    const std::int64_t rows = static_cast<std::int64_t>(plot.ticks.size() - 1) * kRowsPerTick;
    std::size_t width = 0;
    for (const std::int64_t tick : plot.ticks)
        width = std::max(width, plot.label(tick).size());
    const std::vector<std::int64_t> values = valuesByColumn(plot);

    std::string text;
    for (std::int64_t row = rows; row >= 0; --row) {
        const bool isTick = row % kRowsPerTick == 0;
        const std::int64_t tick = plot.ticks[static_cast<std::size_t>(row / kRowsPerTick)];
        std::string line = padded(isTick ? plot.label(tick) : "", width) + (isTick ? " ┤" : " │");
        std::size_t length = line.size();
        for (const std::int64_t value : values) {
            const bool isHere = plot.up(value, rows) == row;
            line += isHere ? "•" : (isTick && tick == 0 ? "·" : " ");
            if (isHere || (isTick && tick == 0))
                length = line.size();
        }
        text += line.substr(0, length) + "\n";
    }
    const std::string first = GermanText::date(plot.values.front().day);
    const std::string last = GermanText::date(plot.values.back().day);
    text += std::string(width + 2, ' ') + first +
            padded(last, static_cast<std::size_t>(kColumns) - std::min<std::size_t>(first.size(), kColumns)) + "\n";
    return text;
}
