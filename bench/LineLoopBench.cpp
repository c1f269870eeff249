// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <string>

#include <benchmark/benchmark.h>

#include "Bookings.h"
#include "datamodel/DataManager.h"
#include "framework/ImportFileBase.h"
#include "Rates.h"
#include "Sizes.h"
#include "support/TemporaryFile.h"

namespace {

/// A module that does no more with a line than to count it.
class LineCounter : public ImportFileBase {
public:
    std::size_t lines() const { return m_lines; }

    const char* getFileExtension() const override { return ""; }
    bool processLine(char* /*line*/, Node* /*target*/) override {
        ++m_lines;
        return true;
    }

private:
    std::size_t m_lines = 0;
};

/// What reading costs before a module has looked at a line.
void readLines(benchmark::State& state, bool fromFile) {
    const auto count = static_cast<std::uint32_t>(state.range(0));
    const std::string bytes = Bookings::file(count);
    const TemporaryFile file(bytes);
    const DataManager model;
    ImportInputParams params;
    params.m_targetNode = model.root();
    if (fromFile)
        params.m_fileName = file.path();
    else
        params.setInputFileBuffer(bytes.data(), bytes.size());
    constexpr std::size_t kHeaderLines = 1;
    for ([[maybe_unused]] auto iteration : state) {
        LineCounter counter;
        if (counter.importFile(params) == 0 || counter.lines() != count + kHeaderLines) {
            state.SkipWithError("not every line was read");
            break;
        }
    }
    Rates::set(state, count + kHeaderLines, bytes.size());
}
BENCHMARK_CAPTURE(readLines, memory, false)->Name("line_loop/memory")->Apply(Sizes::growing);
BENCHMARK_CAPTURE(readLines, file, true)->Name("line_loop/file")->Apply(Sizes::growing);

} // namespace
