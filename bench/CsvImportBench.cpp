// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>

#include <benchmark/benchmark.h>
#include <unistd.h>

#include "Bookings.h"
#include "datamodel/DataManager.h"
#include "framework/ImportExternData.h"

namespace {

/// A file of bookings, removed with this object.
class BookingsFile {
public:
    explicit BookingsFile(std::uint32_t count)
        : m_path((std::filesystem::temp_directory_path() / ("import_bench_" + std::to_string(::getpid()) + ".csv"))
                     .string()) {
        std::ofstream file(m_path, std::ios::binary);
        file << Bookings::file(count);
        if (!file.flush())
            throw std::runtime_error("cannot write " + m_path);
    }
    ~BookingsFile() {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    BookingsFile(const BookingsFile&) = delete;
    BookingsFile& operator=(const BookingsFile&) = delete;

    const char* path() const { return m_path.c_str(); }

private:
    std::string m_path;
};

ColumnAssignment assignment() {
    using namespace Import;
    return {{{0, eColDatum},
             {1, eColEmpfaenger},
             {2, eColKategorie},
             {3, eColUnterkategorie},
             {4, eColVerwendungszweck},
             {5, eColBuchungstext},
             {6, eColBetrag}},
            7};
}

/// Front door, file and a fresh model; making and dropping the model is not timed.
void importCsv(benchmark::State& state, bool simulate) {
    const auto count = static_cast<std::uint32_t>(state.range(0));
    const BookingsFile file(count);
    ColumnAssignment columns = assignment();
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming();
        auto model = std::make_unique<DataManager>();
        auto frontDoor = std::make_unique<ImportExternData>();
        ImportInputParams params;
        params.m_fileName = file.path();
        params.m_targetNode = model->root();
        params.m_firstLineIsHeader = 1;
        params.m_simulate = simulate ? 1 : 0;
        state.ResumeTiming();

        frontDoor->importFile(params, Bookings::kDelimiter, &columns);

        state.PauseTiming();
        if (frontDoor->getLastImportedDataSetsCount() != static_cast<int>(count))
            state.SkipWithError("not every booking was imported");
        frontDoor.reset();
        model.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * std::int64_t{count});
}

void importCsvIntoModel(benchmark::State& state) { importCsv(state, false); }
BENCHMARK(importCsvIntoModel)->Arg(1000)->Arg(10000)->Arg(65000)->Unit(benchmark::kMillisecond);

void previewCsv(benchmark::State& state) { importCsv(state, true); }
BENCHMARK(previewCsv)->Arg(1000)->Arg(10000)->Arg(65000)->Unit(benchmark::kMillisecond);

} // namespace
