// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/ImportModuleStarMoney.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "csv/stripQuotes.h"
#include "framework/AssertTypeSizes.h"

namespace {

enum class Quotes { strip, keep };

/// A data-model column and the file columns (from 0) that are joined into it.
struct Source {
    Import::E_ColumnIndex column;
    int first;
    int last;
    Quotes quotes;
};

// In the order in which a row is written. Column 3 is not imported.
constexpr std::array<Source, 7> kLayout = {{
    {Import::eColEmpfaenger, 1, 1, Quotes::strip},
    {Import::eColKategorie, 19, 19, Quotes::strip},
    {Import::eColUnterkategorie, 20, 20, Quotes::strip},
    {Import::eColVerwendungszweck, 4, 17, Quotes::strip},
    {Import::eColBuchungstext, 18, 18, Quotes::strip},
    {Import::eColDatum, 0, 0, Quotes::keep},
    {Import::eColBetrag, 2, 2, Quotes::keep},
}};

constexpr int kRowWidth = static_cast<int>(kLayout.size());

void readInto(std::string& value, const Source& source, const ImportDataSetStartMoney& row) {
    value.clear();
    for (int column = source.first; column <= source.last; ++column) {
        if (*row.m_columns[column] == '\0')
            continue;
        const std::string_view text = row.m_columns[column];
        value += source.quotes == Quotes::strip ? withoutQuotes(text) : text;
    }
}

} // namespace

const char* const ImportModuleStarMoney::m_MyFileExtension = "ssx";

ImportModuleStarMoney::ImportModuleStarMoney() { m_delimiter = '|'; }

ImportModuleStarMoney::~ImportModuleStarMoney() = default;

const char* ImportModuleStarMoney::getFileExtension() const { return m_MyFileExtension; }

bool ImportModuleStarMoney::importRowIntoTable(const ImportDataSetStartMoney& row, int /*columnCount*/, int rowIndex) {
    const bool header = rowIndex == 0;
    const RowInserter inserter = startRow(kRowWidth, header);
    std::string value; // one for all: most rows then need memory for one text
    return std::all_of(kLayout.begin(), kLayout.end(), [&](const Source& source) {
        readInto(value, source, row);
        return setColumnVal(inserter, getColumnNameForIndex(source.column), value.c_str(), header);
    });
}
