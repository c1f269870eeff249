// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstdint>
#include <string>

#include <benchmark/benchmark.h>
#include <QtCore/QByteArray>
#include <QtXml/QDomDocument>

#include "BookingFormats.h"
#include "homebanking/BankingXML.h"

namespace {

QByteArray bookings(benchmark::State& state) {
    return QByteArray::fromStdString(BookingFormats::bookingList(1, static_cast<std::uint32_t>(state.range(0))));
}

template <typename Load>
void load(benchmark::State& state, Load loadInto) {
    const QByteArray bytes = bookings(state);
    for ([[maybe_unused]] auto iteration : state) {
        QDomDocument document;
        if (!loadInto(document, bytes))
            state.SkipWithError("the document was refused");
        state.PauseTiming(); // dropping the tree is not loading it
        document.clear();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// The tree alone.
void loadTree(benchmark::State& state) {
    load(state, [](QDomDocument& document, const QByteArray& bytes) { return document.setContent(bytes, true); });
}
BENCHMARK(loadTree)->Arg(1000)->Arg(20000)->Unit(benchmark::kMillisecond);

/// The tree as an import loads it, with the check for what a tree must not be built from.
void loadChecked(benchmark::State& state) {
    load(state,
         [](QDomDocument& document, const QByteArray& bytes) { return BankingXML().initXmldocument(document, bytes); });
}
BENCHMARK(loadChecked)->Arg(1000)->Arg(20000)->Unit(benchmark::kMillisecond);

} // namespace
