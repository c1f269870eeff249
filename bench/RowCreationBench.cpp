// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <memory>

#include <benchmark/benchmark.h>

#include "datamodel/DataManager.h"
#include "framework/datamodel_api/NodeTable.h"
#include "Rates.h"
#include "Sizes.h"

namespace {

/// Empty records, one behind the other; making and dropping the model is not timed.
void createRows(benchmark::State& state) {
    const auto count = static_cast<unsigned short>(state.range(0));
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming();
        auto model = std::make_unique<DataManager>();
        auto& table = dynamic_cast<NodeTable&>(*model->root()->getNode(NDX("DataSets")));
        state.ResumeTiming();

        for (unsigned short row = 0; row < count; ++row)
            table.create(static_cast<unsigned short>(row + 1));

        state.PauseTiming();
        if (table.getNodeCount() != count) {
            state.SkipWithError("not every row was made");
            break;
        }
        model.reset();
        state.ResumeTiming();
    }
    Rates::set(state, count);
}
BENCHMARK(createRows)->Name("row_creation/create")->Apply(Sizes::growing);

} // namespace
