// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

/// Numbers of records that cases run with, for `Apply`.
namespace Sizes {

inline void two(benchmark::internal::Benchmark* run) { run->Arg(1000)->Arg(10000); }

/// Where a cost that rises with the number of records would show.
inline void growing(benchmark::internal::Benchmark* run) {
    run->Unit(benchmark::kMillisecond);
    two(run);
    run->Arg(65000);
}

} // namespace Sizes
