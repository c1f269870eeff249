// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstdint>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "Bookings.h"
#include "csv/ImportModuleCSV.h"
#include "dmwrite/SmartDate.h"

namespace {

constexpr std::uint32_t kValues = 1000;

template <typename Make>
std::vector<std::string> texts(Make make) {
    std::vector<std::string> made;
    for (std::uint32_t number = 0; number < kValues; ++number)
        made.push_back(make(number));
    return made;
}

template <typename Read>
void readAll(benchmark::State& state, const std::vector<std::string>& texts, Read read) {
    for ([[maybe_unused]] auto iteration : state) {
        for (const std::string& text : texts)
            benchmark::DoNotOptimize(read(text.c_str()));
    }
    state.SetItemsProcessed(state.iterations() * std::int64_t{kValues});
}

void parseDates(benchmark::State& state) {
    SmartDate::sm_order = 0;
    readAll(state, texts(Bookings::date), [](const char* text) {
        SmartDate date;
        date.parse(text);
        return date.getDate();
    });
    SmartDate::sm_order = 0;
}
BENCHMARK(parseDates);

void readAmounts(benchmark::State& state) {
    const ImportModuleCSV module;
    readAll(state, texts(Bookings::amount), [&](const char* text) { return module.scanCurrency(text); });
}
BENCHMARK(readAmounts);

void convertTexts(benchmark::State& state) {
    const ImportModuleCSV module;
    readAll(state, texts(Bookings::line),
            [&](const char* text) { return module.convertStringToDataType("Verwendungszweck", text).kind(); });
}
BENCHMARK(convertTexts);

} // namespace
