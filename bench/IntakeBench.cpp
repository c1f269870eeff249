// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include <benchmark/benchmark.h>

#include "BookingFormats.h"
#include "intake/DelimitedInspector.h"
#include "intake/DelimitedPreparation.h"
#include "intake/HostTextReader.h"
#include "intake/Intake.h"
#include "intake/PhysicalLines.h"
#include "Rates.h"
#include "Sizes.h"

namespace {

std::size_t recordsOf(const PreparedFile& prepared) {
    return static_cast<std::size_t>(std::count(prepared.lines.begin(), prepared.lines.end(), LineUse::record)) -
           static_cast<std::size_t>(prepared.refused);
}

std::size_t recordsIn(benchmark::State& state) { return static_cast<std::size_t>(state.range(0)); }

std::string statement(benchmark::State& state) {
    return BookingFormats::statement(static_cast<std::uint32_t>(state.range(0)));
}

/// From the bytes of a file to lines in the host's encoding.
void decodeText(benchmark::State& state) {
    const std::string bytes = statement(state);
    for ([[maybe_unused]] auto iteration : state) {
        const HostFileText text = HostTextReader::read(bytes);
        const PhysicalLines physical = LineSplitting::split(text.text);
        if (physical.lines.size() <= recordsIn(state) || text.encoding != Encoding::utf8) {
            state.SkipWithError("the text was not understood");
            break;
        }
    }
    Rates::set(state, recordsIn(state), bytes.size());
}
BENCHMARK(decodeText)->Name("intake/text")->Apply(Sizes::growing);

/// What is where, and how it is written.
void inspectStatement(benchmark::State& state) {
    const std::string bytes = statement(state);
    const HostFileText text = HostTextReader::read(bytes);
    const PhysicalLines physical = LineSplitting::split(text.text);
    for ([[maybe_unused]] auto iteration : state) {
        const DelimitedFile file = DelimitedInspector::inspect(physical.lines, {});
        if (file.plan.undecided || file.rows.size() != 1 || file.rows.front().size() != recordsIn(state)) {
            state.SkipWithError("the table was not understood");
            break;
        }
    }
    Rates::set(state, recordsIn(state), text.text.size());
}
BENCHMARK(inspectStatement)->Name("intake/inspection")->Apply(Sizes::growing);

/// The file as the library reads it.
void prepareStatement(benchmark::State& state) {
    const std::string bytes = statement(state);
    const HostFileText text = HostTextReader::read(bytes);
    const PhysicalLines physical = LineSplitting::split(text.text);
    const DelimitedFile file = DelimitedInspector::inspect(physical.lines, {});
    for ([[maybe_unused]] auto iteration : state) {
        const PreparedFile prepared = DelimitedPreparation::prepare(file, physical, {});
        if (recordsOf(prepared) != recordsIn(state)) {
            state.SkipWithError("not every booking was prepared");
            break;
        }
    }
    Rates::set(state, recordsIn(state), text.text.size());
}
BENCHMARK(prepareStatement)->Name("intake/preparation")->Apply(Sizes::growing);

/// All of it, as a program calls it.
void readWhole(benchmark::State& state, std::string (*make)(std::uint32_t), Import::E_SupportedImportFormats format) {
    const std::string bytes = make(static_cast<std::uint32_t>(state.range(0)));
    for ([[maybe_unused]] auto iteration : state) {
        const IntakeResult result = Intake::read(bytes, format, {});
        if (result.undecided || result.format != format || recordsOf(result.prepared) != recordsIn(state)) {
            state.SkipWithError("the file was not understood");
            break;
        }
    }
    Rates::set(state, recordsIn(state), bytes.size());
}
BENCHMARK_CAPTURE(readWhole, csv, BookingFormats::statement, Import::eFormatCSV)
    ->Name("intake/csv")
    ->Apply(Sizes::growing);
BENCHMARK_CAPTURE(readWhole, ssx, BookingFormats::starMoney, Import::eFormatStarMoney)
    ->Name("intake/starmoney")
    ->Apply(Sizes::growing);

/// QIF marks more than one line for a record; the result says how many it found.
void readWholeQif(benchmark::State& state) {
    const std::string bytes = BookingFormats::qif(static_cast<std::uint32_t>(state.range(0)));
    for ([[maybe_unused]] auto iteration : state) {
        const IntakeResult result = Intake::read(bytes, Import::eFormatQIF, {});
        if (result.undecided || result.recordsFound != static_cast<int>(state.range(0)) ||
            result.prepared.refused != 0) {
            state.SkipWithError("the file was not understood");
            break;
        }
    }
    Rates::set(state, recordsIn(state), bytes.size());
}
BENCHMARK(readWholeQif)->Name("intake/qif")->Apply(Sizes::growing);

} // namespace
