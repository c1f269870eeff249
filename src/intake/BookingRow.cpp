// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/BookingRow.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "intake/SignWords.h"
#include "intake/TextTools.h"

namespace {

std::string_view cellText(const RecordTable& table, std::size_t record, int column) {
    return TextTools::trim(table.cell(record, column));
}

constexpr std::array<std::string_view, 19> kBalanceWords = {
    "saldo",     "anfangssaldo",    "endsaldo",         "kontostand",       "balance",
    "solde",     "opening balance", "anfangsstand",     "closing balance",  "summe",
    "gesamt",    "total",           "totale",           "gesamtsumme",      "endstand",
    "uebertrag", "zwischensumme",   "neuer kontostand", "alter kontostand",
};

/// The whole cell names a balance of the account.
bool isBalanceName(std::string_view cell) {
    constexpr std::array<std::string_view, 18> kNames = {
        "anfangssaldo",      "endsaldo",       "kontostand",      "neuer kontostand",
        "alter kontostand",  "saldovortrag",   "opening balance", "closing balance",
        "starting balance",  "ending balance", "uebertrag",       "saldo",
        "solde initial",     "solde final",    "saldo iniziale",  "saldo finale",
        "beginning balance", "schlusssaldo",
    };
    const std::string_view text = TextTools::trim(cell);
    return text.size() <= 30 && std::find(kNames.begin(), kNames.end(), TextTools::fold(text)) != kNames.end();
}

/// The year that puts a date without one closest to the day beside it.
std::optional<Day> withYearOf(const DateCell& date, DateOrder order, const Day& beside) {
    std::optional<Day> best;
    for (const int year : {beside.year, beside.year - 1, beside.year + 1}) {
        const auto day = date.day(order, 0, year);
        const auto distance = [&](const Day& d) { return std::abs(d.number() - beside.number()); };
        if (day && (!best || distance(*day) < distance(*best)))
            best = day;
    }
    return best;
}

struct AmountReading {
    bool filled = false;
    std::optional<Money> value;
};

AmountReading readAmount(const RecordTable& table, std::size_t record, const TablePlan& plan) {
    const ColumnRoles& roles = plan.roles;
    AmountReading reading;
    const auto read = [&](int column) {
        const std::string_view text = cellText(table, record, column);
        reading.filled = reading.filled || !text.empty();
        return text.empty() ? std::nullopt : AmountCells::read(text, plan.decimalMark);
    };
    if (plan.sign == SignRule::twoColumns) {
        const auto debit = read(roles.debit);
        const auto credit = read(roles.credit);
        const bool useDebit = debit && (!credit || credit->magnitude.isZero());
        if (useDebit)
            reading.value = plan.debitIsNegative ? debit->value() : debit->value().negated();
        else if (credit && (!debit || debit->magnitude.isZero()))
            reading.value = credit->value();
        return reading;
    }
    const auto amount = read(roles.amount);
    if (!amount)
        return reading;
    switch (plan.sign) {
    case SignRule::signColumn:
        if (const auto sign = SignWords::read(cellText(table, record, roles.sign)))
            reading.value = *sign == AmountCell::Sign::minus ? amount->value().negated() : amount->value();
        break;
    case SignRule::inverted:
        reading.value = amount->value().negated();
        break;
    case SignRule::asWritten:
    case SignRule::twoColumns:
    case SignRule::fromBalance:
        reading.value = amount->value();
        break;
    }
    return reading;
}

bool saysPending(std::string_view cell) {
    constexpr std::array<std::string_view, 8> kWords = {"vorgemerkt", "vormerk", "pending",    "nicht gebucht",
                                                        "not booked", "offen",   "ausstehend", "en attente"};
    const std::string status = TextTools::fold(cell);
    return std::any_of(kWords.begin(), kWords.end(),
                       [&](std::string_view word) { return status.find(word) != std::string::npos; });
}

/// Text in the columns of texts and nothing in those of date and amount.
bool continuesText(const RecordTable& table, std::size_t record, const ColumnRoles& roles) {
    const auto hasText = [&](int column) { return !cellText(table, record, column).empty(); };
    const bool any = std::any_of(roles.purpose.begin(), roles.purpose.end(), hasText) || hasText(roles.postingText);
    return any && table.record(record).cellCount > roles.date && table.record(record).cellCount * 2 >= roles.width;
}

/// "Endsaldo" where a currency or a reference should be, and nobody paid and for
/// nothing: a balance in the clothes of a booking.
bool isBalanceLine(const RecordTable& table, std::size_t record, const ColumnRoles& roles) {
    constexpr std::size_t kCurrencyCode = 3;
    const auto named = [&](int column) {
        const std::string_view text = cellText(table, record, column);
        return column >= 0 && text.size() > kCurrencyCode && !isBalanceName(text);
    };
    if (named(roles.counterparty) || named(roles.recipient) || named(roles.payer) ||
        std::any_of(roles.purpose.begin(), roles.purpose.end(), named))
        return false;
    const auto cells = table.cells(record);
    return std::any_of(cells.begin(), cells.end(), isBalanceName);
}

} // namespace

namespace BookingRows {

bool mentionsBalance(const RecordTable& table, std::size_t record) {
    for (const std::string_view cell : table.cells(record)) {
        if (cell.size() > 60)
            continue;
        const std::string folded = TextTools::fold(cell);
        for (const std::string_view word : kBalanceWords) {
            if (folded == word ||
                (folded.starts_with(word) && folded.size() > word.size() && folded[word.size()] == ' '))
                return true;
        }
    }
    return false;
}

BookingRow read(const RecordTable& table, std::size_t record, const TablePlan& plan, int centuryWindow) {
    using Kind = BookingRow::Kind;
    const ColumnRoles& roles = plan.roles;
    BookingRow row;
    if (table.record(record).blank) {
        row.kind = Kind::blank;
        return row;
    }
    const std::string_view dateText = cellText(table, record, roles.date);
    const auto date = dateText.empty() ? std::nullopt : DateCells::read(dateText);
    if (date && date->form == DateCell::Form::dayMonth) {
        const auto beside = DateCells::read(cellText(table, record, roles.yearSource));
        if (const auto day = beside ? beside->day(plan.dateOrder, centuryWindow) : std::nullopt)
            row.day = withYearOf(*date, plan.dateOrder, *day);
    } else if (date) {
        row.day = date->day(plan.dateOrder, centuryWindow);
    }
    const AmountReading amount = readAmount(table, record, plan);
    row.amount = amount.value;
    if (const auto balance = AmountCells::read(cellText(table, record, roles.balance), plan.decimalMark))
        row.balance = balance->value();

    if (row.day && row.amount && isBalanceLine(table, record, roles)) {
        row.kind = Kind::balance;
    } else if (row.day && row.amount) {
        row.kind = saysPending(cellText(table, record, roles.status)) ? Kind::pending : Kind::booking;
    } else if (row.day) {
        if (mentionsBalance(table, record))
            row.kind = Kind::balance;
        else
            row.kind = amount.filled ? Kind::badAmount : Kind::noAmount;
    } else if (row.amount || amount.filled) {
        const bool hasDigits = std::any_of(dateText.begin(), dateText.end(), TextTools::isDigit);
        if (row.amount && !hasDigits && saysPending(dateText))
            row.kind = Kind::pending; // "offen" where the day will be
        else if (mentionsBalance(table, record) || (!dateText.empty() && !hasDigits))
            row.kind = Kind::balance;
        else if (!row.amount)
            row.kind = Kind::other;
        else
            row.kind = dateText.empty() ? Kind::noDate : Kind::badDate;
    } else if (dateText.empty() && continuesText(table, record, roles)) {
        row.kind = Kind::continuation;
    }
    return row;
}

} // namespace BookingRows
