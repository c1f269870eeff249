// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/QifForms.h"

#include <algorithm>
#include <string>

#include "intake/DateOrderDecision.h"
#include "intake/DecimalMarkDecision.h"
#include "intake/MessageTexts.h"
#include "intake/QifFields.h"
#include "intake/RecordTable.h"
#include "intake/TextTools.h"

/// Dates, amounts and texts as a table of four columns, so that the same rules decide
/// as for any other file.
struct QifForms::Samples {
    std::vector<std::string> rows;
    std::vector<std::string_view> views;
    std::vector<int> lineOfRow; ///< from 1
    RecordTable table;
    TablePlan plan;

    Samples(const QifFile& qif, const PhysicalLines& file, const InspectionOptions& options) {
        for (const QifFile::Record& record : qif.records) {
            if (qif.kindOf(record) != QifFile::Kind::booking)
                continue;
            const QifFields fields(file, record);
            const QifField* date = fields.first('D');
            const QifField* amount = fields.amount();
            std::string row(date != nullptr ? date->text : std::string_view());
            row += '\t';
            row += amount != nullptr ? amount->text : std::string_view();
            for (const char letter : {'P', 'M'}) {
                const QifField* text = fields.first(letter);
                row += '\t';
                row += text != nullptr ? text->text : std::string_view();
            }
            rows.push_back(std::move(row));
            lineOfRow.push_back(record.firstLine + 1);
        }
        views.assign(rows.begin(), rows.end());
        table = RecordTable::read(views, '\t', views.size());
        plan.region.end = table.size();
        plan.roles.date = 0;
        plan.roles.amount = 1;
        plan.roles.counterparty = 2;
        plan.roles.purpose = {3};
        plan.roles.width = 4;
        plan.centuryWindow = options.centuryWindow;
    }

    int line(int row) const { return row > 0 ? lineOfRow[static_cast<std::size_t>(row) - 1] : 0; }
    Reason placed(Reason reason) const { return {line(reason.line), -1, std::move(reason.text)}; }
};

QifForms::QifForms(const QifFile& qif, const PhysicalLines& file, const InspectionOptions& options)
    : m_options(options) {
    Samples samples(qif, file, options);
    if (!decideMark(samples))
        return;
    samples.plan.decimalMark = m_mark;
    samples.plan.markIsProven = m_markIsProven;
    if (decideOrder(samples))
        findMonthFirst(samples);
}

bool QifForms::decideMark(const Samples& samples) {
    if (m_options.decimalMark) {
        m_mark = *m_options.decimalMark;
        m_markIsProven = true;
        return true;
    }
    const DecimalMarkDecision decision = DecimalMarks::decide(samples.table, samples.plan);
    if (decision.mark) {
        m_mark = *decision.mark;
        m_thousandths = decision.thousandths;
        m_markIsProven = decision.reason.line > 0;
        m_reasons.push_back(samples.placed(decision.reason));
    } else if (!decision.example.empty()) {
        m_undecided = Messages::make(MessageId::decimalMarkAmbiguous, samples.line(decision.exampleLine),
                                     {TextTools::toUtf8(decision.example)});
    }
    return !m_undecided;
}

bool QifForms::decideOrder(const Samples& samples) {
    if (m_options.dateOrder) {
        m_order = m_options.dateOrder;
        return true;
    }
    const DateOrderDecision decision = DateOrders::decide(samples.table, samples.plan);
    m_order = decision.order;
    if (decision.order) {
        m_reasons.push_back(samples.placed(decision.reason));
        m_orderIsGuessed = !decision.proven;
    } else if (!decision.example.empty()) {
        m_undecided = Messages::make(MessageId::dateOrderAmbiguous, samples.line(decision.exampleLine),
                                     {TextTools::toUtf8(decision.example)});
    }
    return !m_undecided;
}

void QifForms::findMonthFirst(const Samples& samples) {
    bool proven = false;
    for (std::size_t i = 0; i < samples.table.size() && m_order == DateOrder::monthDayYear; ++i) {
        const auto date = DateCells::read(samples.table.cell(i, 0));
        if (!date)
            continue;
        if (date->form != DateCell::Form::numbers || date->time || date->numbers[0] > 12)
            return;
        proven = proven || date->numbers[1] > 12;
    }
    m_libraryLearnsMonthFirst = proven;
}

std::optional<Day> QifForms::day(std::string_view text) const {
    const auto date = DateCells::read(text);
    return date && m_order ? date->day(*m_order, m_options.centuryWindow) : std::nullopt;
}

std::optional<Money> QifForms::amount(std::string_view text) const {
    auto amount = AmountCells::read(text, m_mark);
    // Sections may come from different programs: "129.90" among commas can be read in one way only.
    if (!amount)
        amount = AmountCells::read(text, m_mark == ',' ? '.' : ',');
    if (!amount || (amount->thousand && !m_options.decimalMark && !m_thousandths))
        return std::nullopt;
    return amount->value();
}

bool QifForms::libraryReadsDate(std::string_view text) const {
    if (m_libraryLearnsMonthFirst)
        return true;
    const auto date = DateCells::read(text);
    return date && m_order == DateOrder::dayMonthYear && date->form == DateCell::Form::numbers && !date->time;
}
