// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstdint>
#include <string>

#include <benchmark/benchmark.h>

#include "Bookings.h"
#include "csv/ImportModuleCSV.h"
#include "dmwrite/SmartDate.h"
#include "Sizes.h"
#include "TextReading.h"

namespace {

std::string group(std::uint32_t number) { return Bookings::parts(number).group; }
std::string purpose(std::uint32_t number) { return Bookings::parts(number).purpose; }
std::string flag(std::uint32_t number) { return number % 7 == 0 ? "1" : "0"; }

/// The typed value of a text, by the column it is for: a number of either
/// catalogue, or the field's name.
template <typename Column>
void convertTexts(benchmark::State& state, std::string (*make)(std::uint32_t), Column column) {
    SmartDate::sm_order = 0;
    const ImportModuleCSV module;
    TextReading::time(state, make,
                      [&](const char* text) { return module.convertStringToDataType(column, text).kind(); });
    SmartDate::sm_order = 0;
}

BENCHMARK_CAPTURE(convertTexts, shortText, group, Import::eColKategorie)
    ->Name("conversion/short_text")
    ->Apply(Sizes::two);
BENCHMARK_CAPTURE(convertTexts, longText, purpose, Import::eColVerwendungszweck)
    ->Name("conversion/long_text")
    ->Apply(Sizes::two);
BENCHMARK_CAPTURE(convertTexts, date, Bookings::date, Import::eColDatum)->Name("conversion/date")->Apply(Sizes::two);
BENCHMARK_CAPTURE(convertTexts, amount, Bookings::amount, Import::eColBetrag)
    ->Name("conversion/amount")
    ->Apply(Sizes::two);
BENCHMARK_CAPTURE(convertTexts, flag, flag, Import::eHBSteuerrelevant)->Name("conversion/flag")->Apply(Sizes::two);
BENCHMARK_CAPTURE(convertTexts, byName, Bookings::amount, "Betrag")
    ->Name("conversion/amount_by_name")
    ->Apply(Sizes::two);

} // namespace
