// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstdint>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "Bookings.h"
#include "csv/DelimiterFinder.h"

namespace {

void findDelimiter(benchmark::State& state) {
    const auto count = static_cast<std::uint32_t>(state.range(0));
    std::vector<std::string> lines;
    std::int64_t bytes = 0;
    for (std::uint32_t number = 0; number < count; ++number) {
        lines.push_back(Bookings::line(number));
        bytes += static_cast<std::int64_t>(lines.back().size());
    }
    for ([[maybe_unused]] auto iteration : state) {
        DelimiterFinder finder;
        for (const std::string& line : lines)
            finder.scanLine(line.c_str());
        finder.endScan();
        benchmark::DoNotOptimize(finder.getBestDelimiter());
    }
    state.SetItemsProcessed(state.iterations() * std::int64_t{count});
    state.SetBytesProcessed(state.iterations() * bytes);
}
BENCHMARK(findDelimiter)->Arg(10)->Arg(1000)->Arg(65000);

} // namespace
