// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstdint>
#include <vector>

#include <benchmark/benchmark.h>

#include "Bookings.h"
#include "csv/ImportModuleCSV.h"
#include "dmwrite/SmartDate.h"
#include "Rates.h"
#include "Sizes.h"

namespace {

/// The text that a preview shows for a typed value.
void showValues(benchmark::State& state, std::string (*make)(std::uint32_t), Import::E_ColumnIndex column) {
    SmartDate::sm_order = 0;
    const ImportModuleCSV module;
    const auto count = static_cast<std::uint32_t>(state.range(0));
    std::vector<DataType> values;
    for (std::uint32_t number = 0; number < count; ++number)
        values.push_back(module.convertStringToDataType(column, make(number).c_str()));
    for ([[maybe_unused]] auto iteration : state) {
        for (const DataType& value : values)
            benchmark::DoNotOptimize(value.asString(true, 2).size());
    }
    Rates::set(state, count);
    SmartDate::sm_order = 0;
}

std::string shownPurpose(std::uint32_t number) { return Bookings::parts(number).purpose; }

BENCHMARK_CAPTURE(showValues, text, shownPurpose, Import::eColVerwendungszweck)
    ->Name("display_text/text")
    ->Apply(Sizes::two);
BENCHMARK_CAPTURE(showValues, date, Bookings::date, Import::eColDatum)->Name("display_text/date")->Apply(Sizes::two);
BENCHMARK_CAPTURE(showValues, amount, Bookings::amount, Import::eColBetrag)
    ->Name("display_text/amount")
    ->Apply(Sizes::two);

} // namespace
