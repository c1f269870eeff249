// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "framework/ImportRecordSetImpl.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"
#include "support/require.h"

// What a module does to the preview, operation by operation, beside the same
// table written down plainly.
namespace {

class PlainTable {
public:
    int addRow(int columns) {
        m_width = m_widths.empty() || m_width == 0 ? columns : std::max(m_width, columns);
        m_widths.push_back(m_width);
        return static_cast<int>(m_widths.size()) - 1;
    }
    bool setString(int row, int column, const std::string& text, bool header) {
        if (!has(row, column) || (header && row != 0))
            return false;
        m_header = m_header || header;
        m_cells[{row, column}] = text;
        return true;
    }
    std::string at(int row, int column) const {
        const auto found = m_cells.find({row, column});
        return found != m_cells.end() ? found->second : std::string();
    }
    bool has(int row, int column) const {
        return row >= 0 && row < rows() && column >= 0 && column < m_widths[static_cast<std::size_t>(row)];
    }
    bool hasHeader() const { return m_header; }
    int width() const { return m_width; }
    int rows() const { return static_cast<int>(m_widths.size()); }

private:
    int m_width = 0;
    bool m_header = false;
    std::vector<int> m_widths; ///< of each raw row
    std::map<std::pair<int, int>, std::string> m_cells;
};

void requireSame(const ImportRecordSetImpl& table, const PlainTable& plain) {
    const int header = plain.hasHeader() ? 1 : 0;
    require(table.hasHeader() == plain.hasHeader(), "the header is there where one was written");
    require(table.getColumnCount() == plain.width(), "as wide as the widest row");
    require(table.getRowCount() == plain.rows() - header, "data rows are counted");
    for (int row = -2; row < plain.rows() + 2; ++row) {
        for (int column = -1; column <= plain.width() + 1; ++column) {
            const bool data = row >= 0 && row < plain.rows() - header;
            require(table.getString(row, column) == (data ? plain.at(row + header, column) : std::string()),
                    "a cell holds what was stored last");
            require(table.getColumnHeader(column) == (header > 0 ? plain.at(0, column) : std::string()),
                    "and so does the header");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzInput input(bytes, size);
    ImportRecordSetImpl table;
    PlainTable plain;
    while (!input.empty()) {
        const unsigned operation = input.byte();
        if (operation % 3 == 0) {
            const int columns = static_cast<int>(input.byte()) % 24 - 2;
            require(table.addRow(columns) == plain.addRow(columns), "a new row tells its number");
        } else {
            const int row = static_cast<int>(input.byte()) % 24 - 2;
            const int column = static_cast<int>(input.byte()) % 26 - 2;
            const std::string text(input.bytes(operation % 7));
            const bool header = operation % 3 == 1;
            require(table.setString(row, column, text, header) == plain.setString(row, column, text, header),
                    "a cell is stored where there is room for it");
        }
    }
    requireSame(table, plain);
    return 0;
}
