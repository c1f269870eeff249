// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/DelimitedInspector.h"

#include <string>

#include "intake/DelimiterChoice.h"
#include "intake/MessageTexts.h"
#include "intake/TableFinder.h"
#include "intake/TablePlanner.h"

namespace {

std::string delimiterText(char delimiter) { return delimiter == '\t' ? "Tabulator" : std::string(1, delimiter); }

} // namespace

namespace DelimitedInspector {

DelimitedFile inspect(std::span<const std::string_view> lines, const InspectionOptions& options,
                      const ColumnLexicon& lexicon) {
    DelimitedFile file;
    ImportPlan& plan = file.plan;
    plan.delimiter = options.delimiter ? *options.delimiter : DelimiterChoice::choose(lines, options.header, lexicon);
    plan.reasons.push_back({0, -1, "Trennzeichen: " + delimiterText(plan.delimiter) + "."});
    file.table = RecordTable::read(lines, plan.delimiter, lines.size());

    TablePlanner planner(file.table, options, lexicon, plan);
    for (const TableRegion& region : TableFinder::find(file.table, lexicon, options.header))
        planner.add(region);
    file.rows = planner.takeRows();
    if (plan.tables.empty()) {
        plan.reasons.clear();
        if (!plan.undecided)
            plan.undecided = Messages::make(MessageId::noTable, 0);
        return file;
    }
    plan.confidence = planner.confidence();
    return file;
}

} // namespace DelimitedInspector
