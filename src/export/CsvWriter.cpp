// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "export/CsvWriter.h"

#include <algorithm>

#include "datamodel/HostText.h"
#include "export/AmountDigits.h"
#include "export/CsvLayout.h"
#include "export/DayText.h"

namespace {

/// Whether a reader could take the text for something else, or for less.
bool needsQuotes(std::string_view text) {
    if (text.empty())
        return false;
    return text.front() == ' ' || text.back() == ' ' || std::any_of(text.begin(), text.end(), [](char c) {
               return c == CsvLayout::kDelimiter || c == '"' || (c >= '\0' && c < ' ');
           });
}

void appendQuoted(std::string& out, std::string_view text) {
    for (;;) {
        const std::size_t quote = text.find('"');
        HostText::appendUtf8(out, text.substr(0, quote));
        if (quote == std::string_view::npos)
            return;
        out += "\"\"";
        text.remove_prefix(quote + 1);
    }
}

/// The cells of one line, one after the other.
class Cells {
public:
    explicit Cells(std::string& out) : m_out(out) {}

    void text(std::string_view text) {
        next();
        const bool quoted = needsQuotes(text);
        if (quoted)
            m_out += '"';
        if (CsvLayout::needsGuard(text))
            m_out += CsvLayout::kGuard;
        appendQuoted(m_out, text);
        if (quoted)
            m_out += '"';
    }
    void day(const DMDate& day) {
        next();
        DayText::appendGerman(m_out, day);
    }
    void amount(std::optional<double> amount) {
        next();
        if (amount)
            AmountDigits::append(m_out, *amount, CsvLayout::kDecimalMark);
    }
    void number(std::optional<std::int32_t> number) {
        next();
        if (number)
            m_out += std::to_string(*number);
    }
    void flag(std::optional<bool> flag) {
        next();
        if (flag)
            m_out += *flag ? "1" : "0";
    }
    void end() { m_out += '\n'; }

private:
    void next() {
        if (!m_first)
            m_out += CsvLayout::kDelimiter;
        m_first = false;
    }

    std::string& m_out;
    bool m_first = true;
};

template <std::size_t size>
void appendHeader(std::string& out, const std::array<CsvLayout::Column, size>& columns) {
    Cells cells(out);
    for (const CsvLayout::Column& column : columns)
        cells.text(column.name);
    cells.end();
}

/// In the order of kRecordColumns.
void appendRecord(std::string& out, const ExportRecord& record) {
    Cells cells(out);
    cells.day(record.day);
    cells.amount(record.amount);
    for (const std::string_view text :
         {record.payee, record.purpose, record.postingText, record.category, record.subcategory})
        cells.text(text);
    cells.number(record.session);
    cells.number(record.uniqueId);
    cells.number(record.line);
    cells.end();
}

/// In the order of kBookingColumns.
void appendBooking(std::string& out, const ExportRecord& record) {
    const ExportBooking& booking = *record.booking;
    Cells cells(out);
    cells.day(record.day);
    cells.day(booking.valueDay);
    cells.amount(record.amount);
    for (const std::string_view text :
         {record.payee, record.purpose, record.postingText, record.category, booking.note})
        cells.text(text);
    cells.flag(booking.isTaxRelevant);
    for (const std::string_view text : {booking.bank, booking.number, booking.id})
        cells.text(text);
    cells.number(record.uniqueId);
    cells.end();
}

} // namespace

void CsvWriter::begin(std::string& out) {
    out += CsvLayout::kByteOrderMark;
    if (m_content == ExportContent::bookings)
        appendHeader(out, CsvLayout::kBookingColumns);
    else
        appendHeader(out, CsvLayout::kRecordColumns);
}

void CsvWriter::add(const ExportRecord& record, std::string& out) {
    if (m_content == ExportContent::bookings)
        appendBooking(out, record);
    else
        appendRecord(out, record);
}

void CsvWriter::end(std::string& /*out*/) {}
