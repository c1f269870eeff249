// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include <benchmark/benchmark.h>

#include "Bookings.h"
#include "csv/BlockStringBuf.h"
#include "csv/ImportCSVBase.h"
#include "Rates.h"
#include "Sizes.h"

namespace {

/// Opens the splitting of lines, which modules keep to themselves.
class Splitter : public ImportCSVBase<UnknownRowInfo> {
public:
    Splitter() { m_delimiter = Bookings::kDelimiter; }

    int split(char* line) { return extractColumns(line); }
    const UnknownRowInfo& row() const { return m_row; }

    const char* getFileExtension() const override { return ""; }
    bool importRowIntoTable(const UnknownRowInfo& /*row*/, int /*count*/, int /*index*/) override { return true; }
};

/// The lines one after the other, each zero-terminated, ready to be copied and split.
std::string zeroTerminatedLines(std::uint32_t count) {
    std::string lines;
    for (std::uint32_t number = 0; number < count; ++number)
        lines.append(Bookings::line(number)).push_back('\0');
    return lines;
}

template <typename Use>
void splitAll(benchmark::State& state, Use use) {
    const auto count = static_cast<std::uint32_t>(state.range(0));
    const std::string lines = zeroTerminatedLines(count);
    std::string work;
    Splitter splitter;
    for ([[maybe_unused]] auto iteration : state) {
        work = lines; // splitting is in place
        char* line = work.data();
        for (std::uint32_t number = 0; number < count; ++number) {
            const std::size_t length = std::strlen(line);
            use(splitter, splitter.split(line));
            line += length + 1;
        }
    }
    Rates::set(state, count, lines.size());
}

void splitLines(benchmark::State& state) {
    splitAll(state, [](const Splitter&, int fields) { benchmark::DoNotOptimize(fields); });
}
BENCHMARK(splitLines)->Name("splitting/fields")->Apply(Sizes::two);

void splitAndBufferLines(benchmark::State& state) {
    splitAll(state, [](const Splitter& splitter, int fields) {
        const BlockStringBuf row(splitter.row(), fields);
        benchmark::DoNotOptimize(&row);
    });
}
BENCHMARK(splitAndBufferLines)->Name("splitting/buffered")->Apply(Sizes::two);

} // namespace
