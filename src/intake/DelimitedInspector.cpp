// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/DelimitedInspector.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "intake/DelimiterChoice.h"
#include "intake/MessageTexts.h"
#include "intake/TableFinder.h"
#include "intake/TablePlanner.h"

namespace {

std::string delimiterText(char delimiter) { return delimiter == '\t' ? "Tabulator" : std::string(1, delimiter); }

/// A column of the user's that no line has.
std::optional<IntakeMessage> columnOutside(const RecordTable& table, const ImportPlan& plan,
                                           const InspectionOptions& options) {
    if (!options.columns)
        return std::nullopt;
    int width = 0;
    for (std::size_t i = 0; i < table.size(); ++i)
        width = std::max(width, table.record(i).cellCount);
    for (const auto& [field, column] : *options.columns) {
        if (column >= width)
            return Messages::make(MessageId::columnOutside, 0,
                                  {std::to_string(column), field, delimiterText(plan.delimiter)});
    }
    return std::nullopt;
}

} // namespace

namespace DelimitedInspector {

DelimitedFile inspect(std::span<const std::string_view> lines, const InspectionOptions& options,
                      const ColumnLexicon& lexicon) {
    DelimitedFile file;
    ImportPlan& plan = file.plan;
    plan.delimiter = options.delimiter ? *options.delimiter : DelimiterChoice::choose(lines, options, lexicon);
    plan.reasons.push_back({0, -1, "Trennzeichen: " + delimiterText(plan.delimiter) + "."});
    file.table = RecordTable::read(lines, plan.delimiter, lines.size());

    TablePlanner planner(file.table, options, lexicon, plan);
    for (const TableRegion& region : TableFinder::find(file.table, lexicon, options.header)) {
        planner.add(region);
        if (!plan.header && (!plan.tables.empty() || plan.undecided))
            plan.header = region.header;
    }
    file.rows = planner.takeRows();
    if (auto outside = columnOutside(file.table, plan, options))
        plan.undecided = std::move(outside);
    if (plan.tables.empty()) {
        plan.reasons.clear();
        if (!plan.undecided && options.columns)
            plan.undecided = Messages::make(MessageId::columnsEmpty, 0, {delimiterText(plan.delimiter)});
        else if (!plan.undecided)
            plan.undecided = Messages::make(MessageId::noTable, 0);
        return file;
    }
    plan.confidence = planner.confidence();
    return file;
}

} // namespace DelimitedInspector
