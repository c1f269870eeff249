// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

#include <benchmark/benchmark.h>

/// What a case tells beside its time.
namespace Rates {

/// `items` and `bytes` are what one iteration handled; 0 bytes are not shown.
inline void set(benchmark::State& state, std::size_t items, std::size_t bytes = 0) {
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(items));
    if (bytes != 0)
        state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}

} // namespace Rates
