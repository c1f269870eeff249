// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/BookingFields.h"

#include <algorithm>

#include "intake/LibraryReading.h"
#include "intake/TextTools.h"

namespace {

constexpr std::size_t at(BookingField field) { return static_cast<std::size_t>(field); }

/// Of the two sides of a booking the other one: who got the money, or who sent it.
int payeeColumn(const RecordTable& table, std::size_t record, const Money& amount, const ColumnRoles& roles) {
    const bool out = amount.isNegative();
    for (const int column :
         {out ? roles.recipient : roles.payer, roles.counterparty, out ? roles.payer : roles.recipient}) {
        if (!TextTools::trim(table.cell(record, column)).empty())
            return column;
    }
    return -1;
}

bool isPadded(std::string_view cell) { return TextTools::trim(cell).size() != cell.size(); }

bool isEmpty(std::string_view cell) { return TextTools::trim(cell).empty(); }

} // namespace

namespace BookingFields {

PerField<int> carriers(const ColumnRoles& roles) {
    PerField<int> columns{};
    columns[at(BookingField::date)] = roles.date;
    columns[at(BookingField::amount)] = roles.amount >= 0 ? roles.amount : std::max(roles.debit, roles.credit);
    columns[at(BookingField::payee)] = roles.counterparty >= 0 ? roles.counterparty : roles.recipient;
    columns[at(BookingField::purpose)] = roles.purpose.empty() ? -1 : roles.purpose.front();
    columns[at(BookingField::postingText)] = roles.postingText;
    columns[at(BookingField::category)] = roles.category;
    columns[at(BookingField::subcategory)] = roles.subcategory;
    return columns;
}

bool readsRight(const RecordTable& table, std::size_t record, const BookingRow& row, const TablePlan& plan) {
    const ColumnRoles& roles = plan.roles;
    const auto cell = [&](int column) { return table.cell(record, column); };
    const auto columns = carriers(roles);
    if (!row.day || !LibraryReading::readsDate(cell(roles.date), *row.day, plan.centuryWindow) ||
        !LibraryReading::readsAmount(cell(columns[at(BookingField::amount)]), *row.amount))
        return false;
    const auto texts = {BookingField::payee, BookingField::purpose, BookingField::postingText, BookingField::category,
                        BookingField::subcategory};
    if (std::any_of(texts.begin(), texts.end(), [&](BookingField field) { return isPadded(cell(columns[at(field)])); }))
        return false;
    const int payee = columns[at(BookingField::payee)];
    if (roles.recipient >= 0 || roles.payer >= 0) {
        const int shown = payeeColumn(table, record, *row.amount, roles);
        if (shown != payee && shown >= 0 && cell(shown) != cell(payee))
            return false;
    }
    for (std::size_t i = 1; i < roles.purpose.size(); ++i) {
        if (!isEmpty(cell(roles.purpose[i])))
            return false;
    }
    if (roles.postingTextInPurpose && !isEmpty(cell(roles.postingText)))
        return false;
    return !roles.overflowIsPurpose || table.record(record).cellCount <= roles.width;
}

PerField<std::string> of(const RecordTable& table, std::size_t record, const BookingRow& row, const TablePlan& plan) {
    const ColumnRoles& roles = plan.roles;
    const auto cell = [&](int column) { return table.cell(record, column); };
    PerField<std::string> values;

    const std::string_view date = TextTools::trim(cell(roles.date));
    if (row.day)
        values[at(BookingField::date)] =
            LibraryReading::readsDate(date, *row.day, plan.centuryWindow) ? std::string(date) : row.day->germanText();
    const std::string_view amount =
        plan.sign == SignRule::twoColumns ? std::string_view() : TextTools::trim(cell(roles.amount));
    values[at(BookingField::amount)] =
        !amount.empty() && LibraryReading::readsAmount(amount, *row.amount) ? oneLine(amount) : row.amount->text();
    values[at(BookingField::payee)] = oneLine(cell(payeeColumn(table, record, *row.amount, roles)));

    std::string& purpose = values[at(BookingField::purpose)];
    if (roles.postingTextInPurpose)
        appendPart(purpose, cell(roles.postingText));
    for (const int column : roles.purpose)
        appendPart(purpose, cell(column));
    if (roles.overflowIsPurpose) {
        for (int column = roles.width; column < table.record(record).cellCount; ++column)
            appendPart(purpose, cell(column));
    }
    values[at(BookingField::postingText)] = oneLine(cell(roles.postingText));
    values[at(BookingField::category)] = oneLine(cell(roles.category));
    values[at(BookingField::subcategory)] = oneLine(cell(roles.subcategory));
    return values;
}

bool isUsedUp(const ColumnRoles& roles, int column) {
    const bool isPurpose = std::find(roles.purpose.begin(), roles.purpose.end(), column) != roles.purpose.end();
    const bool isAmount = roles.amount < 0 && (column == roles.debit || column == roles.credit);
    const bool isSign = column == roles.sign && column != roles.kind;
    return isPurpose || isAmount || isSign || (roles.overflowIsPurpose && column >= roles.width);
}

std::string oneLine(std::string_view text) {
    std::string out(TextTools::trim(text));
    for (char& c : out) {
        if (c == '\n' || c == '\r')
            c = ' ';
    }
    return out;
}

void appendPart(std::string& text, std::string_view part) {
    const std::string line = oneLine(part);
    if (line.empty())
        return;
    if (!text.empty())
        text += ' ';
    text += line;
}

} // namespace BookingFields
