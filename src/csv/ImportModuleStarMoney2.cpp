// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/ImportModuleStarMoney2.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <limits>
#include <string>
#include <string_view>

#include "csv/ImportModuleStarMoney.h"
#include "csv/stripQuotes.h"
#include "framework/AssertTypeSizes.h"

namespace {

struct KnownName {
    std::string_view name;
    Import::E_ColumnIndex column; ///< `eColNone`: known, and not imported
};

constexpr std::array<KnownName, 7> kKnownNames = {{
    {"BuchDatum", Import::eColDatum},
    {"AgName1", Import::eColEmpfaenger},
    {"Betrag", Import::eColBetrag},
    {"BtgWaehr", Import::eColNone},
    {"Kategorie", Import::eColKategorie},
    {"Unterkat", Import::eColUnterkategorie},
    {"Buchungstext", Import::eColBuchungstext},
}};

/// What a purpose column's name begins with; its number follows.
constexpr std::string_view kPurpose = "VWZ";

constexpr int kRowWidth = 7;

/// The number at the start of `text` as atoi reads it, but one too large for an
/// int is the largest int.
int leadingInteger(std::string_view text) {
    constexpr std::string_view kSpace = " \t\n\v\f\r";
    text.remove_prefix(std::min(text.find_first_not_of(kSpace), text.size()));
    if (text.starts_with("+-")) // behind one sign, another is no number
        return 0;
    if (text.starts_with('+'))
        text.remove_prefix(1);
    int number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    return result.ec == std::errc::result_out_of_range ? std::numeric_limits<int>::max() : number;
}

} // namespace

ImportModuleStarMoney2::ImportModuleStarMoney2() {
    m_delimiter = '|';
    m_headerAssignment.m_count = kNoAssignment;
    std::fill(std::begin(m_purposePart), std::end(m_purposePart), kNoPurpose);
}

ImportModuleStarMoney2::~ImportModuleStarMoney2() = default;

const char* ImportModuleStarMoney2::getFileExtension() const { return ImportModuleStarMoney::m_MyFileExtension; }

bool ImportModuleStarMoney2::setupColumnMapping(const UnknownRowInfo& header, int columnCount) {
    std::fill(std::begin(m_purposePart), std::end(m_purposePart), kNoPurpose);
    m_headerAssignment.m_count = 0;
    for (int column = 0; column < columnCount; ++column)
        mapColumn(column, stripQuotes(header.m_columns[column]).c_str());
    assignColumns(m_headerAssignment);
    return true;
}

void ImportModuleStarMoney2::mapColumn(int column, const char* name) {
    const std::string_view text(name);
    const auto* known = std::find_if(kKnownNames.begin(), kKnownNames.end(),
                                     [&](const KnownName& candidate) { return candidate.name == text; });
    if (known == kKnownNames.end()) {
        if (text.substr(0, kPurpose.size()) == kPurpose)
            m_purposePart[column] = leadingInteger(text.substr(kPurpose.size()));
        return;
    }
    if (known->column == Import::eColNone || m_headerAssignment.m_count == ColumnAssignment::kMaxPairs)
        return;
    m_headerAssignment.m_pairs[m_headerAssignment.m_count++] = {column, known->column};
}

bool ImportModuleStarMoney2::importRowIntoTable(const UnknownRowInfo& row, int columnCount, int rowIndex) {
    const bool header = rowIndex == 0;
    m_skipRow = header;
    const RowInserter inserter = startRow(kRowWidth, header);
    if (header)
        setupColumnMapping(row, columnCount);

    const std::string_view date = getColumnNameForIndex(Import::eColDatum);
    const std::string_view amount = getColumnNameForIndex(Import::eColBetrag);
    std::string purpose;
    bool stored = true;
    for (int column = 0; column < columnCount; ++column) {
        const char* text = row.m_columns[column];
        const char* name = getAssignedColumnNameForIndex(column);
        if (name == nullptr) {
            if (isPurposePart(column))
                purpose += stripQuotes(text); // in file order, whatever the numbers say
            continue;
        }
        std::string value = text;
        if (header || (name != date && name != amount))
            value = stripQuotes(text);
        stored = setColumnVal(inserter, name, value.c_str(), header) && stored;
    }
    const char* purposeName = getColumnNameForIndex(Import::eColVerwendungszweck);
    return setColumnVal(inserter, purposeName, purpose.c_str(), header) && stored;
}
