// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "Bookings.h"
#include "datamodel/DataManager.h"
#include "framework/datamodel_api/NodeTable.h"
#include "Rates.h"
#include "Sizes.h"

namespace {

DataType textOf(const std::string& bytes) {
    DataType value;
    value = bytes.c_str();
    return value;
}

/// A field of a record and the values that go into it.
struct FieldCase {
    const char* field;
    DataType (*value)(std::uint32_t number);
};

const FieldCase kShortText = {"Kategorie", [](std::uint32_t number) { return textOf(Bookings::parts(number).group); }};
const FieldCase kRepeatedText = {"Empfaenger",
                                 [](std::uint32_t number) { return textOf(Bookings::parts(number).payee); }};
const FieldCase kLongText = {"Verwendungszweck",
                             [](std::uint32_t number) { return textOf(Bookings::parts(number).purpose); }};
const FieldCase kDate = {"Datum", [](std::uint32_t number) {
                             DataType value;
                             value = DMDate(1 + number % 28, 1 + number % 12, 2015 + number % 10);
                             return value;
                         }};
const FieldCase kAmount = {"Betrag", [](std::uint32_t number) { return DataType::makeCurrency(number / -100.0); }};
const FieldCase kInteger = {"UniqueID",
                            [](std::uint32_t number) { return DataType::makeInteger(static_cast<int>(number)); }};
const FieldCase kFlag = {"Geaendert", [](std::uint32_t number) { return DataType::makeBoolean(number % 2 == 0); }};

std::vector<Node*> appendRows(Node* root, std::size_t count) {
    auto& table = dynamic_cast<NodeTable&>(*root->getNode(NDX("DataSets")));
    std::vector<Node*> rows;
    for (std::size_t number = 1; number <= count; ++number) {
        const auto row = static_cast<unsigned short>(number);
        table.create(row);
        rows.push_back(table.getNodeNum(row));
    }
    return rows;
}

/// Finds a field by its name and assigns it, in new records: making them is not timed.
void assignFields(benchmark::State& state, const FieldCase& field) {
    const auto count = static_cast<std::uint32_t>(state.range(0));
    std::vector<DataType> values;
    for (std::uint32_t number = 0; number < count; ++number)
        values.push_back(field.value(number));
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming();
        auto model = std::make_unique<DataManager>();
        const std::vector<Node*> rows = appendRows(model->root(), count);
        std::size_t taken = 0;
        state.ResumeTiming();

        for (std::size_t row = 0; row < rows.size(); ++row)
            taken += rows[row]->getNode(NDX(field.field))->setValue(values[row], NDX(), 0) ? 1U : 0U;

        state.PauseTiming();
        if (taken != count || rows.back()->getNode(NDX(field.field))->getValue().kind() != values.back().kind()) {
            state.SkipWithError("not every value was taken");
            break;
        }
        model.reset();
        state.ResumeTiming();
    }
    Rates::set(state, count);
}

BENCHMARK_CAPTURE(assignFields, shortText, kShortText)->Name("field_assignment/short_text")->Apply(Sizes::two);
BENCHMARK_CAPTURE(assignFields, repeated, kRepeatedText)->Name("field_assignment/repeated_text")->Apply(Sizes::two);
BENCHMARK_CAPTURE(assignFields, longText, kLongText)->Name("field_assignment/long_text")->Apply(Sizes::growing);
BENCHMARK_CAPTURE(assignFields, date, kDate)->Name("field_assignment/date")->Apply(Sizes::two);
BENCHMARK_CAPTURE(assignFields, amount, kAmount)->Name("field_assignment/amount")->Apply(Sizes::two);
BENCHMARK_CAPTURE(assignFields, integer, kInteger)->Name("field_assignment/integer")->Apply(Sizes::two);
BENCHMARK_CAPTURE(assignFields, flag, kFlag)->Name("field_assignment/flag")->Apply(Sizes::two);

} // namespace
