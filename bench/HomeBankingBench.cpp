// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstdint>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include "BookingFormats.h"
#include "datamodel/DataManager.h"
#include "dmwrite/SmartDate.h"
#include "framework/datamodel_api/NodeTable.h"
#include "homebanking/ImportHomeBankingData.h"
#include "homebanking/XmlImportData.h"
#include "Rates.h"
#include "Sizes.h"

namespace {

constexpr std::uint32_t kAccount = 1;

XmlImportData input(const std::string& document, const DataManager& model) {
    XmlImportData data;
    data.setXmlContent(document.data(), document.size());
    data.setImportTargetNode(model.root());
    return data;
}

Node* accounts(const DataManager& model) { return model.root()->getNode(NDX("HomeBankingImport")); }

/// A model that knows the account of the booking list.
std::unique_ptr<DataManager> modelWithAccount() {
    static const std::string list = BookingFormats::accountList(kAccount, 1);
    auto model = std::make_unique<DataManager>();
    ImportHomeBankingData().updateAccountList(input(list, *model));
    return model;
}

/// Front door, document in memory and a fresh model; making and dropping the model is not timed.
void importBookingList(benchmark::State& state) {
    const auto count = static_cast<std::uint32_t>(state.range(0));
    const std::string document = BookingFormats::bookingList(kAccount, count);
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming();
        SmartDate::sm_order = 0;
        std::unique_ptr<DataManager> model = modelWithAccount();
        state.ResumeTiming();

        const bool taken = ImportHomeBankingData().importAccountingEntries(input(document, *model));

        state.PauseTiming();
        if (!taken || accounts(*model)->getNodeNum(1)->getNode(NDX("DataSets"))->getNodeCount() != count) {
            state.SkipWithError("not every booking was imported");
            break;
        }
        model.reset();
        state.ResumeTiming();
    }
    Rates::set(state, count, document.size());
}
BENCHMARK(importBookingList)->Name("xml_import/bookings")->Apply(Sizes::growing);

/// A list of accounts that are all new.
void importAccountList(benchmark::State& state) {
    const auto count = static_cast<std::uint32_t>(state.range(0));
    const std::string document = BookingFormats::accountList(kAccount, count);
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming();
        auto model = std::make_unique<DataManager>();
        state.ResumeTiming();

        const bool taken = ImportHomeBankingData().updateAccountList(input(document, *model));

        state.PauseTiming();
        if (!taken || accounts(*model)->getNodeCount() != count) {
            state.SkipWithError("not every account was made");
            break;
        }
        model.reset();
        state.ResumeTiming();
    }
    Rates::set(state, count, document.size());
}
BENCHMARK(importAccountList)->Name("xml_import/accounts")->Apply(Sizes::growing);

} // namespace
