// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "Rates.h"

/// Cases that read one made-up text after the other.
namespace TextReading {

/// Times `read(const char*)` over the texts that `make(number)` yields, as many as the case's size.
template <typename Make, typename Read>
void time(benchmark::State& state, Make make, Read read) {
    const auto count = static_cast<std::uint32_t>(state.range(0));
    std::vector<std::string> texts;
    std::size_t bytes = 0;
    for (std::uint32_t number = 0; number < count; ++number)
        bytes += texts.emplace_back(make(number)).size();
    for ([[maybe_unused]] auto iteration : state) {
        for (const std::string& text : texts)
            benchmark::DoNotOptimize(read(text.c_str()));
    }
    Rates::set(state, count, bytes);
}

} // namespace TextReading
