// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "BookingFormats.h"
#include "Bookings.h"
#include "csv/DelimiterFinder.h"
#include "Rates.h"

namespace {

using Lines = std::vector<std::string>;

/// Delimiters in quotes as well: what is left soon is the decimal comma.
Lines withQuotes(std::uint32_t count) {
    Lines lines;
    for (std::uint32_t number = 0; number < count; ++number)
        lines.push_back(Bookings::line(number));
    return lines;
}

/// The delimiter alone is left, and is counted to the end.
Lines withoutQuotes(std::uint32_t count) {
    Lines lines;
    std::istringstream file(BookingFormats::starMoney(count));
    std::string line;
    for (std::getline(file, line); std::getline(file, line);) // without the header
        lines.push_back(line);
    return lines;
}

/// The dearest file: every character of the line is left to the end.
Lines allAlike(std::uint32_t count) { return Lines(count, Bookings::line(0)); }

void findDelimiter(benchmark::State& state, Lines (*make)(std::uint32_t count)) {
    const Lines lines = make(static_cast<std::uint32_t>(state.range(0)));
    std::size_t bytes = 0;
    for (const std::string& line : lines)
        bytes += line.size();
    for ([[maybe_unused]] auto iteration : state) {
        DelimiterFinder finder;
        for (const std::string& line : lines)
            finder.scanLine(line.c_str());
        finder.endScan();
        if (finder.getBestDelimiter() == '\0') {
            state.SkipWithError("no delimiter was found");
            break;
        }
    }
    Rates::set(state, lines.size(), bytes);
}

void lineCounts(benchmark::internal::Benchmark* run) { run->Arg(10)->Arg(1000)->Arg(10000)->Arg(65000); }

BENCHMARK_CAPTURE(findDelimiter, quoted, withQuotes)->Name("delimiter/quoted")->Apply(lineCounts);
BENCHMARK_CAPTURE(findDelimiter, plain, withoutQuotes)->Name("delimiter/plain")->Apply(lineCounts);
BENCHMARK_CAPTURE(findDelimiter, allAlike, allAlike)->Name("delimiter/all_alike")->Apply(lineCounts);

} // namespace
