// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstdint>
#include <optional>

#include <benchmark/benchmark.h>

#include "BookingsStore.h"
#include "Rates.h"

namespace {

/// Whether the row (from 1) can be read.
bool readRow(Node& records, unsigned short row) {
    const Node* record = records.getNodeNum(row);
    return record != nullptr && record->getNode(NDX("Verwendungszweck"))->getValue().kind() == DataType::eString;
}

/// Opens a store and asks for the first `rows` rows; closing it is not timed.
template <typename RowsOf>
void openAndRead(benchmark::State& state, RowsOf rowsOf) {
    const auto count = static_cast<unsigned short>(state.range(0));
    const BookingsStore bookings(count);
    const unsigned short rows = rowsOf(count);
    for ([[maybe_unused]] auto iteration : state) {
        std::optional<Store> store = bookings.open();
        Node* records = store->model().root()->getNode(NDX("DataSets"));
        unsigned read = 0;
        // from the last one: a store that had to pass all others would show it
        for (unsigned row = 0; row < rows; ++row)
            read += readRow(*records, static_cast<unsigned short>(count - row)) ? 1U : 0U;

        state.PauseTiming();
        if (read != rows) {
            state.SkipWithError("not every row could be read");
            break;
        }
        store.reset();
        state.ResumeTiming();
    }
    Rates::set(state, rows);
}

/// Should cost the same whatever the store holds.
void openForOneRow(benchmark::State& state) {
    openAndRead(state, [](unsigned short) -> unsigned short { return 1; });
}
BENCHMARK(openForOneRow)->Name("lazy_open/one_row")->Arg(1000)->Arg(10000)->Arg(60000);

void openForEveryRow(benchmark::State& state) {
    openAndRead(state, [](unsigned short count) { return count; });
}
BENCHMARK(openForEveryRow)->Name("lazy_open/every_row")->Arg(1000)->Arg(10000)->Arg(60000);

} // namespace
