// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstdint>
#include <memory>
#include <optional>

#include <benchmark/benchmark.h>

#include "BookingsStore.h"
#include "framework/ImportExternData.h"
#include "ImportableFile.h"
#include "Rates.h"
#include "Sizes.h"

namespace {

/// A store in a folder of its own, closed and removed without being timed.
struct FreshStore {
    TemporaryFolder folder;
    Store store = BookingsStore::openNew(folder);
};

/// One transaction: what a commit writes once the bookings are in the model.
void commitImport(benchmark::State& state) {
    const ImportableFile file(static_cast<std::uint32_t>(state.range(0)));
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming();
        auto fresh = std::make_unique<FreshStore>();
        ImportExternData frontDoor;
        if (!file.importInto(fresh->store.model().root(), frontDoor)) {
            state.SkipWithError("not every booking was imported");
            break;
        }
        state.ResumeTiming();

        fresh->store.commit();

        state.PauseTiming();
        fresh.reset();
        state.ResumeTiming();
    }
    Rates::set(state, file.count());
}
BENCHMARK(commitImport)->Name("store_write/commit")->Apply(Sizes::growing);

/// From the file of bookings to the file of the store.
void importAndCommit(benchmark::State& state) {
    const ImportableFile file(static_cast<std::uint32_t>(state.range(0)));
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming();
        auto folder = std::make_unique<TemporaryFolder>();
        auto frontDoor = std::make_unique<ImportExternData>();
        state.ResumeTiming();

        std::optional<Store> store = BookingsStore::openNew(*folder);
        const bool complete = file.importInto(store->model().root(), *frontDoor);
        store->commit();

        state.PauseTiming();
        if (!complete) {
            state.SkipWithError("not every booking was imported");
            break;
        }
        store.reset();
        frontDoor.reset();
        folder.reset();
        state.ResumeTiming();
    }
    Rates::set(state, file.count(), file.size());
}
BENCHMARK(importAndCommit)->Name("store_write/import_and_commit")->Apply(Sizes::growing);

} // namespace
