// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/TablePlanner.h"

#include <algorithm>
#include <set>

#include "intake/AmountByBalance.h"
#include "intake/DateOrderDecision.h"
#include "intake/DatesInText.h"
#include "intake/DecimalMarkDecision.h"
#include "intake/MessageTexts.h"
#include "intake/SignDecision.h"
#include "intake/TextTools.h"

namespace {

/// What speaks against a plan, taken off its confidence.
constexpr double kDateWithoutName = 0.05;
constexpr double kAmountWithoutName = 0.1;
constexpr double kUnknownHeader = 0.1;
constexpr double kRivalAmounts = 0.35;
constexpr double kOrderByContext = 0.1;
constexpr double kYearFromPeriod = 0.1;
constexpr double kMixedCurrencies = 0.1;
constexpr double kUnreadableRecords = 0.5; // times their share
/// What a certified reading is worth at least, whatever else speaks against it.
constexpr double kCertified = 0.95;

/// What the user said about columns overrules what their names say.
void applyColumns(ColumnRoles& roles, const InspectionOptions& options) {
    const std::map<std::string, int>& columns = *options.columns;
    const auto column = [&](const char* field) {
        const auto at = columns.find(field);
        return at == columns.end() ? -1 : at->second;
    };
    ColumnRoles fixed;
    fixed.width = roles.width;
    fixed.fullWidth = roles.fullWidth;
    fixed.firstText = roles.firstText;
    fixed.date = column("Datum");
    fixed.amount = column("Betrag");
    fixed.counterparty = column("Empfaenger");
    if (const int purpose = column("Verwendungszweck"); purpose >= 0)
        fixed.purpose = {purpose};
    fixed.purpose.insert(fixed.purpose.end(), options.furtherPurpose.begin(), options.furtherPurpose.end());
    fixed.postingText = column("Buchungstext");
    fixed.category = column("Kategorie");
    fixed.subcategory = column("Unterkategorie");
    fixed.sign = fixed.amount == roles.amount ? roles.sign : -1;
    fixed.balance = roles.balance == fixed.amount ? -1 : roles.balance;
    fixed.currency = fixed.amount == roles.amount ? roles.currency : -1;
    fixed.status = roles.status;
    fixed.yearSource = fixed.date == roles.date ? roles.yearSource : -1;
    roles = fixed;
}

} // namespace

void TablePlanner::add(const TableRegion& region) {
    TablePlan plan;
    plan.region = region;
    plan.centuryWindow = m_options.centuryWindow;
    ColumnChoice choice = ColumnChooser::choose(m_table, region, m_lexicon);
    plan.roles = choice.roles;
    if (m_options.columns)
        applyColumns(plan.roles, m_options);
    if (!plan.roles.complete())
        return;
    tellColumns(plan, choice);
    if (!decideMark(plan))
        return;
    findLastDay(plan);
    if (!decideOrder(plan))
        return;
    settleRivals(plan, choice);
    Signs::adoptColumns(plan, choice);
    std::vector<BookingRow> rows = BookingRows::read(m_table, plan);
    SignDecision signs = Signs::decide(m_table, choice, m_options.columns.has_value(), plan, rows);
    for (Reason& reason : signs.reasons)
        m_plan.reasons.push_back(std::move(reason));
    m_doubt += signs.doubt;
    m_certified = m_certified || signs.certified;
    if (signs.undecided)
        undecided(std::move(*signs.undecided));
    doubtUnreadable(rows);
    tellCurrencies(plan, rows);
    m_plan.tables.push_back(std::move(plan));
    m_rows.push_back(std::move(rows));
}

double TablePlanner::confidence() const {
    return std::clamp(m_certified ? std::max(1.0 - m_doubt, kCertified) : 1.0 - m_doubt, 0.0, 1.0);
}

int TablePlanner::headerLine(const TablePlan& plan) const {
    return plan.region.header ? m_table.record(*plan.region.header).firstLine + 1 : 0;
}

void TablePlanner::tell(int line, int column, std::string text) {
    m_plan.reasons.push_back({line, column, std::move(text)});
}

void TablePlanner::undecided(IntakeMessage message) {
    if (!m_plan.undecided)
        m_plan.undecided = std::move(message);
}

void TablePlanner::tellColumns(const TablePlan& plan, const ColumnChoice& choice) {
    if (plan.region.namesKnown)
        tell(headerLine(plan), -1, "Kopfzeile mit bekannten Spaltennamen.");
    else if (plan.region.header)
        tell(headerLine(plan), -1, "Kopfzeile mit unbekannten Spaltennamen; die Werte zeigen, was die Spalten sind.");
    else
        tell(m_table.record(plan.region.begin).firstLine + 1, -1,
             "Keine Kopfzeile; die Werte zeigen, was die Spalten sind.");
    if (m_options.columns)
        return;
    m_doubt += choice.dateByName ? 0.0 : kDateWithoutName;
    m_doubt += choice.amountByName ? 0.0 : kAmountWithoutName;
    m_doubt += plan.region.header && !plan.region.namesKnown ? kUnknownHeader : 0.0;
}

bool TablePlanner::decideMark(TablePlan& plan) {
    if (m_options.decimalMark) {
        plan.decimalMark = *m_options.decimalMark;
        plan.markByUser = true;
        plan.markIsProven = true;
        return true;
    }
    const DecimalMarkDecision decision = DecimalMarks::decide(m_table, plan);
    if (!decision.mark) {
        if (!decision.example.empty()) // otherwise no amounts at all: no table of bookings
            undecided(Messages::make(MessageId::decimalMarkAmbiguous, decision.exampleLine,
                                     {TextTools::toUtf8(decision.example)}));
        return false;
    }
    plan.decimalMark = *decision.mark;
    plan.thousandths = decision.thousandths;
    plan.markIsProven = decision.reason.line > 0;
    m_plan.reasons.push_back(decision.reason);
    return true;
}

/// Where no column of dates has a year, the latest date above the table has one.
void TablePlanner::findLastDay(TablePlan& plan) {
    if (plan.roles.yearSource >= 0)
        return;
    bool withoutYear = false;
    for (std::size_t i = plan.region.begin; i < plan.region.end && !withoutYear; ++i) {
        const auto date = DateCells::read(m_table.cell(i, plan.roles.date));
        withoutYear = date && date->form == DateCell::Form::dayMonth;
    }
    if (!withoutYear)
        return;
    int line = 0;
    for (std::size_t i = 0; i < plan.region.header.value_or(plan.region.begin); ++i) {
        for (const Day& day : DatesInText::find(m_table.cells(i), plan.centuryWindow)) {
            if (!plan.lastDay || *plan.lastDay < day) {
                plan.lastDay = day;
                line = m_table.record(i).firstLine + 1;
            }
        }
    }
    if (plan.lastDay) {
        m_doubt += kYearFromPeriod;
        tell(line, -1,
             "Die Daten haben kein Jahr; es ergibt sich aus dem Zeitraum über der Tabelle, der am " +
                 plan.lastDay->germanText() + " endet.");
    }
}

bool TablePlanner::decideOrder(TablePlan& plan) {
    if (m_options.dateOrder) {
        plan.dateOrder = *m_options.dateOrder;
        return true;
    }
    const DateOrderDecision decision = DateOrders::decide(m_table, plan);
    if (!decision.order) {
        if (!decision.example.empty())
            undecided(Messages::make(MessageId::dateOrderAmbiguous, decision.exampleLine,
                                     {TextTools::toUtf8(decision.example)}));
        return false;
    }
    plan.dateOrder = *decision.order;
    m_plan.reasons.push_back(decision.reason);
    m_doubt += decision.proven ? 0.0 : kOrderByContext;
    return true;
}

/// Of several columns that could be the amount, the one that a balance follows.
void TablePlanner::settleRivals(TablePlan& plan, const ColumnChoice& choice) {
    if (choice.rivalAmounts.empty() || m_options.columns)
        return;
    const int first = plan.roles.amount;
    if (AmountByBalance::settle(m_table, choice, plan)) {
        tell(headerLine(plan), plan.roles.balance,
             "Diese Spalte ist der Saldo: Von Zeile zu Zeile ändert sie sich um den Betrag.");
        return;
    }
    m_doubt += kRivalAmounts;
    undecided(Messages::make(
        MessageId::amountColumnAmbiguous, headerLine(plan),
        {std::to_string(plan.roles.date), std::to_string(first), std::to_string(choice.rivalAmounts.front())}));
}

void TablePlanner::doubtUnreadable(const std::vector<BookingRow>& rows) {
    using Kind = BookingRow::Kind;
    const auto countOf = [&](std::initializer_list<Kind> kinds) {
        return std::count_if(rows.begin(), rows.end(), [&](const BookingRow& row) {
            return std::find(kinds.begin(), kinds.end(), row.kind) != kinds.end();
        });
    };
    const auto bad = countOf({Kind::badDate, Kind::badAmount, Kind::wordForDate, Kind::tooManyFields});
    if (bad > 0) {
        const auto good = countOf({Kind::booking, Kind::pending});
        m_doubt += kUnreadableRecords * static_cast<double>(bad) / static_cast<double>(good + bad);
    }
}

void TablePlanner::tellCurrencies(const TablePlan& plan, const std::vector<BookingRow>& rows) {
    if (plan.roles.currency < 0)
        return;
    std::set<std::string_view> currencies;
    int line = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::string_view cell = TextTools::trim(m_table.cell(plan.region.begin + i, plan.roles.currency));
        if (rows[i].kind != BookingRow::Kind::booking || cell.empty())
            continue;
        if (currencies.insert(cell).second && currencies.size() == 2)
            line = m_table.record(plan.region.begin + i).firstLine + 1;
    }
    if (currencies.size() < 2)
        return;
    std::string names;
    for (const std::string_view currency : currencies)
        names += (names.empty() ? "" : ", ") + TextTools::toUtf8(currency);
    m_doubt += kMixedCurrencies;
    m_plan.remarks.push_back(Messages::make(MessageId::mixedCurrencies, line, {names}));
}
