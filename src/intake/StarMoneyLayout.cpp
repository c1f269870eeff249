// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/StarMoneyLayout.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "intake/Dates.h"
#include "intake/LibraryReading.h"
#include "intake/TextTools.h"

namespace {

constexpr int kColumns = 21;
constexpr int kDate = 0;
constexpr int kAmount = 2;
constexpr int kFirstPurpose = 4;
constexpr int kLastPurpose = 17;
constexpr char kDelimiter = '|';
constexpr std::size_t kSample = 400; // lines

} // namespace

namespace StarMoneyLayout {

bool isIn(std::span<const std::string_view> lines) {
    const auto sample = lines.subspan(0, std::min(lines.size(), kSample));
    const RecordTable table = RecordTable::read(sample, kDelimiter, sample.size());
    bool header = true;
    std::size_t sound = 0;
    std::size_t others = 0;
    for (std::size_t i = 0; i < table.size(); ++i) {
        const auto& record = table.record(i);
        if (record.blank && record.cellCount == 1)
            continue;
        const bool dated = DateCells::read(table.cell(i, kDate)).has_value();
        if (std::exchange(header, false)) {
            if (record.cellCount != kColumns || dated)
                return false;
            continue;
        }
        ++(record.cellCount == kColumns && dated ? sound : others);
    }
    return sound > others;
}

InspectionOptions narrowed(const InspectionOptions& options) {
    InspectionOptions fixed = options;
    fixed.delimiter = kDelimiter;
    fixed.header = true;
    fixed.columns.emplace();
    for (const auto& [field, inputs] : columns())
        (*fixed.columns)[field] = inputs.front();
    fixed.furtherPurpose.clear();
    for (int column = kFirstPurpose + 1; column <= kLastPurpose; ++column)
        fixed.furtherPurpose.push_back(column);
    return fixed;
}

bool isReadRight(const DelimitedFile& file, const PhysicalLines& physical) {
    const RecordTable& table = file.table;
    if (file.plan.tables.size() != 1 || file.plan.delimiter != kDelimiter)
        return false;
    const TablePlan& plan = file.plan.tables.front();
    if (plan.region.header != std::size_t{0} || plan.sign != SignRule::asWritten || plan.roles.date != kDate ||
        plan.roles.amount != kAmount)
        return false;
    const auto fits = [&](std::size_t i) {
        const auto& record = table.record(i);
        const std::string_view line = physical.lines[static_cast<std::size_t>(record.firstLine)];
        if (LibraryReading::skipsLine(line))
            return true;
        if (record.cellCount != kColumns || !LibraryReading::splitsLine(record, line))
            return false;
        if (i < plan.region.begin)
            return true;
        const BookingRow& row = file.rows.front()[i - plan.region.begin];
        return row.kind == BookingRow::Kind::booking &&
               LibraryReading::readsDate(TextTools::trim(table.cell(i, kDate)), *row.day, plan.centuryWindow) &&
               LibraryReading::readsAmount(table.cell(i, kAmount), *row.amount);
    };
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (!fits(i))
            return false;
    }
    return true;
}

void prepareFixed(const PhysicalLines& physical, PreparedFile& prepared) {
    prepared.delimiter = kDelimiter;
    bool header = true;
    for (std::size_t i = 0; i < physical.lines.size(); ++i) {
        const bool blank = TextTools::trim(physical.lines[i]).empty();
        prepared.text += physical.lines[i];
        if (i + 1 < physical.lines.size() || physical.endsWithNewline)
            prepared.text += '\n';
        prepared.lines.push_back(blank ? LineUse::blank : (header ? LineUse::header : LineUse::record));
        header = header && blank;
    }
}

std::map<std::string, std::vector<int>> columns() {
    std::map<std::string, std::vector<int>> fields = {{"Datum", {0}},      {"Empfaenger", {1}},
                                                      {"Betrag", {2}},     {"Buchungstext", {18}},
                                                      {"Kategorie", {19}}, {"Unterkategorie", {20}}};
    for (int column = kFirstPurpose; column <= kLastPurpose; ++column)
        fields["Verwendungszweck"].push_back(column);
    return fields;
}

} // namespace StarMoneyLayout
