// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "Bookings.h"
#include "framework/ImportRecordSetImpl.h"
#include "Rates.h"
#include "Sizes.h"

namespace {

/// The cells of a preview of made-up bookings.
class PreviewCells {
public:
    explicit PreviewCells(std::uint32_t count) {
        for (std::uint32_t number = 0; number < count; ++number) {
            const Bookings::Parts parts = Bookings::parts(number);
            m_rows.push_back({Bookings::date(number), parts.payee, parts.group, parts.kind, parts.purpose,
                              parts.posting, Bookings::amount(number)});
            for (const std::string& cell : m_rows.back())
                m_bytes += cell.size();
        }
    }

    std::size_t rows() const { return m_rows.size(); }
    std::size_t bytes() const { return m_bytes; }

    void fill(ImportRecordSetImpl& table) const {
        for (const auto& cells : m_rows) {
            const int row = table.addRow(kColumns);
            for (int column = 0; column < kColumns; ++column)
                table.setString(row, column, cells[static_cast<std::size_t>(column)], false);
        }
    }

private:
    static constexpr int kColumns = 7;

    std::vector<std::array<std::string, kColumns>> m_rows;
    std::size_t m_bytes = 0;
};

std::size_t readAllCells(const ImportRecordSet& table) {
    std::size_t bytes = 0;
    for (int row = 0; row < table.getRowCount(); ++row) {
        for (int column = 0; column < table.getColumnCount(); ++column)
            bytes += table.getString(row, column).size();
    }
    return bytes;
}

/// Dropping the table is not timed.
void fillPreview(benchmark::State& state) {
    const PreviewCells cells(static_cast<std::uint32_t>(state.range(0)));
    for ([[maybe_unused]] auto iteration : state) {
        auto table = std::make_unique<ImportRecordSetImpl>();
        cells.fill(*table);

        state.PauseTiming();
        if (readAllCells(*table) != cells.bytes()) {
            state.SkipWithError("not every cell was stored");
            break;
        }
        table.reset();
        state.ResumeTiming();
    }
    Rates::set(state, cells.rows(), cells.bytes());
}
BENCHMARK(fillPreview)->Name("preview_table/fill")->Apply(Sizes::growing);

void readPreview(benchmark::State& state) {
    const PreviewCells cells(static_cast<std::uint32_t>(state.range(0)));
    ImportRecordSetImpl table;
    cells.fill(table);
    for ([[maybe_unused]] auto iteration : state) {
        if (readAllCells(table) != cells.bytes()) {
            state.SkipWithError("not every cell was read");
            break;
        }
    }
    Rates::set(state, cells.rows(), cells.bytes());
}
BENCHMARK(readPreview)->Name("preview_table/read")->Apply(Sizes::growing);

} // namespace
