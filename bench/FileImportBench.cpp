// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstdint>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include "BookingFormats.h"
#include "Bookings.h"
#include "datamodel/DataManager.h"
#include "ImportableFile.h"
#include "Rates.h"
#include "Sizes.h"

namespace {

struct ImportFormat {
    const char* fileName;
    std::string (*bytes)(std::uint32_t count);
};

constexpr ImportFormat kCsv = {"bookings.csv", Bookings::file};
constexpr ImportFormat kQif = {"bookings.qif", BookingFormats::qif};
constexpr ImportFormat kStarMoney = {"bookings.ssx", BookingFormats::starMoney};

constexpr bool kReal = false;
constexpr bool kSimulated = true;

/// Front door, file and a fresh model; making and dropping the model is not timed.
void importFiles(benchmark::State& state, const ImportFormat& format, bool simulate) {
    const auto count = static_cast<std::uint32_t>(state.range(0));
    const ImportableFile file(format.fileName, format.bytes(count), count);
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming();
        auto model = std::make_unique<DataManager>();
        auto frontDoor = std::make_unique<ImportExternData>();
        state.ResumeTiming();

        const bool complete = file.importInto(model->root(), *frontDoor, simulate);

        state.PauseTiming();
        if (!complete) {
            state.SkipWithError("not every booking was imported");
            break;
        }
        frontDoor.reset();
        model.reset();
        state.ResumeTiming();
    }
    Rates::set(state, file.count(), file.size());
}

BENCHMARK_CAPTURE(importFiles, csv, kCsv, kReal)->Name("csv_import/real")->Apply(Sizes::growing);
BENCHMARK_CAPTURE(importFiles, csvSimulated, kCsv, kSimulated)->Name("csv_import/simulated")->Apply(Sizes::growing);
BENCHMARK_CAPTURE(importFiles, qif, kQif, kReal)->Name("qif_import/real")->Apply(Sizes::growing);
BENCHMARK_CAPTURE(importFiles, qifSimulated, kQif, kSimulated)->Name("qif_import/simulated")->Apply(Sizes::growing);
BENCHMARK_CAPTURE(importFiles, ssx, kStarMoney, kReal)->Name("starmoney_import/real")->Apply(Sizes::growing);
BENCHMARK_CAPTURE(importFiles, ssxSimulated, kStarMoney, kSimulated)
    ->Name("starmoney_import/simulated")
    ->Apply(Sizes::growing);

} // namespace
