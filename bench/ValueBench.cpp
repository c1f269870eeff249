// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstdint>
#include <string>

#include <benchmark/benchmark.h>

#include "BookingFormats.h"
#include "Bookings.h"
#include "csv/ImportModuleCSV.h"
#include "dmwrite/SmartDate.h"
#include "Sizes.h"
#include "TextReading.h"

namespace {

using MakeText = std::string (*)(std::uint32_t number);

void parseDates(benchmark::State& state, MakeText make) {
    SmartDate::sm_order = 0;
    TextReading::time(state, make, [](const char* text) {
        SmartDate date;
        date.parse(text);
        return date.getDate();
    });
    SmartDate::sm_order = 0;
}
BENCHMARK_CAPTURE(parseDates, german, Bookings::date)->Name("dates/day_first")->Apply(Sizes::two);
BENCHMARK_CAPTURE(parseDates, english, BookingFormats::qifDate)->Name("dates/month_first")->Apply(Sizes::two);

void readAmounts(benchmark::State& state, MakeText make) {
    const ImportModuleCSV module;
    TextReading::time(state, make, [&](const char* text) { return module.scanCurrency(text); });
}
BENCHMARK_CAPTURE(readAmounts, german, Bookings::amount)->Name("amounts/german")->Apply(Sizes::two);
BENCHMARK_CAPTURE(readAmounts, english, BookingFormats::qifAmount)->Name("amounts/english")->Apply(Sizes::two);

} // namespace
