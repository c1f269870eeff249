// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <string>

#include <benchmark/benchmark.h>
#include <QtCore/QByteArray>
#include <QtXml/QDomDocument>

#include "BookingFormats.h"
#include "homebanking/BankingXML.h"
#include "Rates.h"
#include "Sizes.h"

namespace {

template <typename Load>
void load(benchmark::State& state, Load loadInto) {
    const auto count = static_cast<std::uint32_t>(state.range(0));
    const QByteArray bytes = QByteArray::fromStdString(BookingFormats::bookingList(1, count));
    for ([[maybe_unused]] auto iteration : state) {
        QDomDocument document;
        const bool loaded = loadInto(document, bytes);

        state.PauseTiming(); // dropping the tree is not loading it
        if (!loaded) {
            state.SkipWithError("the document was refused");
            break;
        }
        document.clear();
        state.ResumeTiming();
    }
    Rates::set(state, count, static_cast<std::size_t>(bytes.size()));
}

/// The tree alone.
void loadTree(benchmark::State& state) {
    load(state, [](QDomDocument& document, const QByteArray& bytes) { return document.setContent(bytes, true); });
}
BENCHMARK(loadTree)->Name("xml_load/tree")->Apply(Sizes::growing);

/// The tree as an import loads it, with the check for what a tree must not be built from.
void loadChecked(benchmark::State& state) {
    load(state,
         [](QDomDocument& document, const QByteArray& bytes) { return BankingXML().initXmldocument(document, bytes); });
}
BENCHMARK(loadChecked)->Name("xml_load/checked")->Apply(Sizes::growing);

} // namespace
