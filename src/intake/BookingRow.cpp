// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/BookingRow.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "intake/BalanceNames.h"
#include "intake/Dates.h"
#include "intake/SignWords.h"
#include "intake/StatusWords.h"
#include "intake/TextTools.h"

namespace {

/// A cell that was to hold an amount.
struct AmountReading {
    bool filled = false;
    std::optional<Money> value;
};

class RowReader {
public:
    RowReader(const RecordTable& table, const TablePlan& plan) : m_table(table), m_plan(plan), m_roles(plan.roles) {}

    BookingRow read(std::size_t record) {
        m_record = record;
        BookingRow row;
        if (m_table.record(record).blank) {
            row.kind = BookingRow::Kind::blank;
            return row;
        }
        const std::string_view dateText = cell(m_roles.date);
        const AmountReading amount = readAmount();
        row.day = readDay(dateText);
        row.amount = amount.value;
        if (m_roles.balance >= 0)
            row.balance = readMoney(cell(m_roles.balance));
        row.kind = kindOf(row, amount.filled, dateText);
        return row;
    }

private:
    using Kind = BookingRow::Kind;

    std::string_view cell(int column) const { return TextTools::trim(m_table.cell(m_record, column)); }

    std::optional<Day> readDay(std::string_view text) const {
        const auto date = text.empty() ? std::nullopt : DateCells::read(text);
        if (!date)
            return std::nullopt;
        if (date->form != DateCell::Form::dayMonth)
            return date->day(m_plan.dateOrder, m_plan.centuryWindow);
        const auto beside = DateCells::read(cell(m_roles.yearSource));
        if (const auto day = beside ? beside->day(m_plan.dateOrder, m_plan.centuryWindow) : std::nullopt)
            return closestTo(*date, *day);
        return m_plan.lastDay ? lastUpTo(*date, *m_plan.lastDay) : std::nullopt;
    }

    /// In the year that puts it closest to the day beside it.
    std::optional<Day> closestTo(const DateCell& date, const Day& beside) const {
        std::optional<Day> best;
        const auto distance = [&](const Day& d) { return std::abs(d.number() - beside.number()); };
        for (const int year : {beside.year, beside.year - 1, beside.year + 1}) {
            const auto day = date.day(m_plan.dateOrder, m_plan.centuryWindow, year);
            if (day && (!best || distance(*day) < distance(*best)))
                best = day;
        }
        return best;
    }

    /// In the year before the statement ended.
    std::optional<Day> lastUpTo(const DateCell& date, const Day& end) const {
        for (const int year : {end.year, end.year - 1}) {
            const auto day = date.day(m_plan.dateOrder, m_plan.centuryWindow, year);
            if (day && *day <= end)
                return day;
        }
        return std::nullopt;
    }

    std::optional<Money> readMoney(std::string_view text) const {
        const auto amount = text.empty() ? std::nullopt : AmountCells::read(text, m_plan.decimalMark);
        // "1.234" in a column of "1.5": a thousand, or a slip. Hardly anybody counts in thousandths.
        if (!amount || (amount->thousand && !m_plan.markByUser && !m_plan.thousandths))
            return std::nullopt;
        return amount->value();
    }

    AmountReading readAmount() const {
        AmountReading reading;
        const auto read = [&](int column) {
            const std::string_view text = cell(column);
            reading.filled = reading.filled || !text.empty();
            return readMoney(text);
        };
        if (m_plan.sign == SignRule::twoColumns) {
            const auto debit = read(m_roles.debit);
            const auto credit = read(m_roles.credit);
            if (debit && (!credit || credit->isZero()) && readableOrEmpty(m_roles.credit, credit))
                reading.value = m_plan.debitIsNegative ? *debit : debit->negated();
            else if (credit && (!debit || debit->isZero()) && readableOrEmpty(m_roles.debit, debit))
                reading.value = m_plan.creditIsNegative ? credit->negated() : *credit;
            return reading;
        }
        reading.value = read(m_roles.amount);
        if (reading.value && (m_plan.sign == SignRule::signColumn || m_plan.sign == SignRule::kindOfBooking)) {
            const std::string_view word = cell(m_roles.sign);
            const auto sign = m_plan.sign == SignRule::signColumn ? SignWords::read(word) : SignWords::ofKind(word);
            if (!sign)
                reading.value.reset();
            else if (*sign == AmountCell::Sign::minus)
                reading.value = reading.value->negated();
        }
        return reading;
    }

    bool readableOrEmpty(int column, const std::optional<Money>& value) const { return value || cell(column).empty(); }

    Kind kindOf(const BookingRow& row, bool amountFilled, std::string_view dateText) const {
        if (row.day && row.amount)
            return kindOfBooking();
        if (row.day) {
            if (BalanceNames::mentionedIn(m_table, m_record))
                return Kind::balance;
            return amountFilled ? Kind::badAmount : Kind::noAmount;
        }
        if (amountFilled) {
            const bool hasDigits = std::any_of(dateText.begin(), dateText.end(), TextTools::isDigit);
            if (row.amount && !hasDigits && StatusWords::read(dateText) == BookingStatus::pending)
                return Kind::pending; // "offen" where the day will be
            if (BalanceNames::mentionedIn(m_table, m_record))
                return Kind::balance;
            if (!row.amount)
                return Kind::other;
            return dateText.empty() ? Kind::noDate : hasDigits ? Kind::badDate : Kind::wordForDate;
        }
        return dateText.empty() && continuesText() ? Kind::continuation : Kind::other;
    }

    Kind kindOfBooking() const {
        if (hasTooManyFields())
            return Kind::tooManyFields;
        const auto status = m_roles.status >= 0 ? StatusWords::read(cell(m_roles.status)) : std::nullopt;
        if (status == BookingStatus::pending)
            return Kind::pending;
        if (status == BookingStatus::failed)
            return Kind::failed;
        return isBalanceLine() ? Kind::balance : Kind::booking;
    }

    /// Fields behind the last one, where a value that counts stands behind a text.
    bool hasTooManyFields() const {
        const int count = m_table.record(m_record).cellCount;
        if (m_roles.fullWidth <= 0 || count <= m_roles.fullWidth || m_roles.firstText < 0)
            return false;
        const int lastValue = std::max({m_roles.date, m_roles.amount, m_roles.debit, m_roles.credit, m_roles.sign});
        if (lastValue < m_roles.firstText)
            return false;
        for (int column = m_roles.fullWidth; column < count; ++column) {
            if (!cell(column).empty())
                return true;
        }
        return false;
    }

    /// "Endsaldo" where a currency or a reference should be, and nobody paid and for
    /// nothing: a balance in the clothes of a booking.
    bool isBalanceLine() const {
        constexpr std::size_t kCurrencyCode = 3;
        const auto named = [&](int column) {
            const std::string_view text = cell(column);
            return column >= 0 && text.size() > kCurrencyCode && !BalanceNames::read(text);
        };
        if (named(m_roles.counterparty) || named(m_roles.recipient) || named(m_roles.payer) ||
            std::any_of(m_roles.purpose.begin(), m_roles.purpose.end(), named))
            return false;
        const auto cells = m_table.cells(m_record);
        return std::any_of(cells.begin(), cells.end(), [](auto text) { return BalanceNames::read(text).has_value(); });
    }

    /// Text in the columns of texts and nothing in those of date and amount.
    bool continuesText() const {
        const auto hasText = [&](int column) { return !cell(column).empty(); };
        const bool any =
            std::any_of(m_roles.purpose.begin(), m_roles.purpose.end(), hasText) || hasText(m_roles.postingText);
        const int count = m_table.record(m_record).cellCount;
        return any && count > m_roles.date && count * 2 >= m_roles.width;
    }

    const RecordTable& m_table;
    const TablePlan& m_plan;
    const ColumnRoles& m_roles;
    std::size_t m_record = 0;
};

/// Whether any field holds more than numbers, codes and a currency.
bool hasWords(const RecordTable& table, std::size_t record) {
    constexpr std::ptrdiff_t kLettersOfAWord = 4;
    const auto cells = table.cells(record);
    return std::any_of(cells.begin(), cells.end(), [](std::string_view cell) {
        return std::count_if(cell.begin(), cell.end(), TextTools::isAsciiLetter) >= kLettersOfAWord &&
               !DateCells::read(cell);
    });
}

/// Without a header nothing names a closing balance: a last (or first) line that is
/// about nothing, where every other one is about something.
void findNamelessBalance(const RecordTable& table, const TablePlan& plan, std::vector<BookingRow>& rows) {
    constexpr std::size_t kBookingsThatTell = 3;
    std::vector<std::size_t> bookings;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].kind == BookingRow::Kind::booking)
            bookings.push_back(i);
    }
    if (bookings.size() <= kBookingsThatTell)
        return;
    std::optional<std::size_t> wordless;
    for (const std::size_t i : bookings) {
        if (hasWords(table, plan.region.begin + i))
            continue;
        if (wordless)
            return;
        wordless = i;
    }
    if (wordless && (*wordless == bookings.front() || *wordless == bookings.back()))
        rows[*wordless].kind = BookingRow::Kind::balance;
}

} // namespace

namespace BookingRows {

std::vector<BookingRow> read(const RecordTable& table, const TablePlan& plan) {
    std::vector<BookingRow> rows;
    rows.reserve(plan.region.end - plan.region.begin);
    RowReader reader(table, plan);
    for (std::size_t record = plan.region.begin; record < plan.region.end; ++record)
        rows.push_back(reader.read(record));
    if (!plan.region.header)
        findNamelessBalance(table, plan, rows);
    return rows;
}

} // namespace BookingRows
