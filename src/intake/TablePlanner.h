// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "intake/BookingRow.h"
#include "intake/ColumnChooser.h"
#include "intake/ColumnLexicon.h"
#include "intake/ImportPlan.h"
#include "intake/InspectionOptions.h"
#include "intake/RecordTable.h"

/// Plans the tables of a file one after the other: columns, decimal mark, date
/// order, signs, in this order, since each rests on those before.
class TablePlanner {
public:
    /// What is found is added to `plan`; all arguments must outlive the planner.
    TablePlanner(const RecordTable& table, const InspectionOptions& options, const ColumnLexicon& lexicon,
                 ImportPlan& plan)
        : m_table(table), m_options(options), m_lexicon(lexicon), m_plan(plan) {}

    /// Adds the table's plan and reads its records; nothing where it holds no bookings.
    void add(const TableRegion& region);

    /// How sure the plan is, 0 to 1.
    double confidence() const;
    /// The records of each planned table.
    std::vector<std::vector<BookingRow>> takeRows() { return std::move(m_rows); }

private:
    int headerLine(const TablePlan& plan) const;
    void tell(int line, int column, std::string text);
    void undecided(IntakeMessage message);
    void tellColumns(const TablePlan& plan, const ColumnChoice& choice);
    bool decideMark(TablePlan& plan);
    void findLastDay(TablePlan& plan);
    bool decideOrder(TablePlan& plan);
    void settleRivals(TablePlan& plan, const ColumnChoice& choice);
    void doubtUnreadable(const std::vector<BookingRow>& rows);
    void tellCurrencies(const TablePlan& plan, const std::vector<BookingRow>& rows);

    const RecordTable& m_table;
    const InspectionOptions& m_options;
    const ColumnLexicon& m_lexicon;
    ImportPlan& m_plan;
    std::vector<std::vector<BookingRow>> m_rows;
    double m_doubt = 0.0;
    bool m_certified = false;
};
