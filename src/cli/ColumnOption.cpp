// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ColumnOption.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

#include "cli/Suggestion.h"
#include "cli/UsageError.h"

namespace {

constexpr int kColumnsRead = 49;

/// In the order of `Import::E_ColumnIndex`.
constexpr const char* kFields[] = {"Empfaenger",   "Kategorie", "Unterkategorie", "Verwendungszweck",
                                   "Buchungstext", "Datum",     "Betrag"};
static_assert(std::size(kFields) == ColumnAssignment::kMaxPairs &&
              Import::eColBetrag == ColumnAssignment::kMaxPairs - 1);

std::vector<std::string> fieldNames() { return {std::begin(kFields), std::end(kFields)}; }

[[noreturn]] void refuse(const std::string& why) {
    std::string fields;
    for (const char* field : kFields)
        fields += std::string(fields.empty() ? "" : ", ") + field;
    throw UsageError("--columns: " + why +
                     "\nSchreiben Sie je Feld die Spalte (ab 0) und das Feld, etwa: --columns \"0=Datum,3=Betrag\"" +
                     "\nFelder: " + fields);
}

std::string inMarks(std::string_view text) { return "„" + std::string(text) + "“"; }

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

int columnNumber(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc::result_out_of_range || (error == std::errc() && number >= kColumnsRead))
        refuse(inMarks(text) + " ist zu groß; gelesen werden die Spalten 0 bis " + std::to_string(kColumnsRead - 1) +
               ".");
    if (text.empty() || error != std::errc() || end != text.data() + text.size() || number < 0)
        refuse(inMarks(text) + " ist keine Spaltennummer.");
    return number;
}

Import::E_ColumnIndex namedField(std::string_view name) {
    const std::optional<Import::E_ColumnIndex> field = ColumnOption::fieldIndex(name);
    if (!field)
        refuse("Das Feld " + inMarks(name) + " gibt es nicht." + Suggestion::question(name, fieldNames()));
    return *field;
}

void add(ColumnAssignment& assignment, std::string_view pair) {
    const std::size_t equals = pair.find('=');
    if (equals == std::string_view::npos)
        refuse("In " + inMarks(pair) + " fehlt das „=“.");
    const int column = columnNumber(trimmed(pair.substr(0, equals)));
    const Import::E_ColumnIndex field = namedField(trimmed(pair.substr(equals + 1)));
    for (int i = 0; i < assignment.m_count; ++i) {
        if (assignment.m_pairs[i].m_inputColumn == column)
            refuse("Die Spalte " + std::to_string(column) + " ist zweimal genannt; sie kann nur ein Feld füllen.");
        if (assignment.m_pairs[i].m_column == field)
            refuse("Das Feld " + inMarks(kFields[field]) + " ist zweimal genannt; es kann nur eine Spalte haben.");
    }
    assignment.m_pairs[assignment.m_count++] = {column, field}; // as many fields as pairs, each once
}

} // namespace

namespace ColumnOption {

ColumnAssignment parse(std::string_view text) {
    ColumnAssignment assignment{};
    for (;;) {
        const std::size_t comma = text.find(',');
        add(assignment, trimmed(text.substr(0, comma)));
        if (comma == std::string_view::npos)
            return assignment;
        text.remove_prefix(comma + 1);
    }
}

std::optional<Import::E_ColumnIndex> fieldIndex(std::string_view name) {
    const auto* found = std::find(std::begin(kFields), std::end(kFields), name);
    if (found == std::end(kFields))
        return std::nullopt;
    return static_cast<Import::E_ColumnIndex>(found - std::begin(kFields));
}

const char* fieldName(Import::E_ColumnIndex column) { return kFields[column]; }

} // namespace ColumnOption
