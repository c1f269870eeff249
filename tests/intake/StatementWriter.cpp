// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/StatementWriter.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace {

struct Language {
    const char* date;
    const char* valueDate;
    const char* payee;
    const char* purpose;
    const char* amount;
    const char* debit;
    const char* credit;
    const char* sign;
    const char* out; ///< in the column of signs
    const char* in;
    const char* balance;
    const char* currency;
};
constexpr std::array<Language, StatementLayout::kLanguageCount> kLanguages = {{
    {"Buchungstag", "Wertstellung", "Empfänger/Auftraggeber", "Verwendungszweck", "Betrag", "Soll", "Haben",
     "Soll/Haben", "S", "H", "Saldo", "Währung"},
    {"Date", "Value date", "Payee", "Description", "Amount", "Debit", "Credit", "Debit/Credit", "D", "C", "Balance",
     "Currency"},
    {"Date opération", "Date valeur", "Tiers", "Libellé", "Montant", "Débit", "Crédit", "Sens", "Débit", "Crédit",
     "Solde", "Devise"},
    {"Data contabile", "Data valuta", "Controparte", "Descrizione", "Importo", "Addebiti", "Accrediti", "Segno", "Dare",
     "Avere", "Saldo", "Divisa"},
    {"Boekdatum", "Rentedatum", "Naam tegenpartij", "Omschrijving", "Bedrag", "Af", "Bij", "Af Bij", "Af", "Bij",
     "Saldo na mutatie", "Munt"},
    {"Fecha", "Fecha valor", "Beneficiario", "Concepto", "Importe", "Cargo", "Abono", "Cargo/Abono", "Cargo", "Abono",
     "Saldo", "Divisa"},
    {"Data operacji", "Data waluty", "Nazwa kontrahenta", "Opis operacji", "Kwota", "Obciążenia", "Uznania", "Typ",
     "Obciążenie", "Uznanie", "Saldo po operacji", "Waluta"},
    {"Bokföringsdag", "Valutadag", "Namn", "Beskrivning", "Belopp", "Uttag", "Insättning", "Typ", "Ut", "In", "Saldo",
     "Valuta"},
}};

constexpr std::array<const char*, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                 "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

struct DateForm {
    const char* format; ///< d, D, m, M, b, y, Y for the numbers, anything else as it stands
    bool monthFirst;
};
constexpr std::array<DateForm, StatementLayout::kDateFormCount> kDateForms = {{
    {"D.M.Y", false},
    {"d.m.Y", false},
    {"D.M.y", false},
    {"D/M/Y", false},
    {"D/M/y", false},
    {"D-M-Y", false},
    {"Y-M-D", false},
    {"YMD", false},
    {"Y/M/D", false},
    {"D b Y", false},
    {"Y-M-DT10:11:12", false},
    {"M/D/Y", true},
    {"m/d/y", true},
}};

struct NumberForm {
    char mark;
    const char* group;
    bool trimmed; ///< no zeros behind the mark
};
constexpr std::array<NumberForm, StatementLayout::kNumberFormCount> kNumberForms = {{
    {',', "", false},
    {',', ".", false},
    {',', " ", false},
    {'.', "", false},
    {'.', ",", false},
    {'.', "'", false},
    {'.', "", true},
}};

std::string padded(int number, int width) {
    std::string text = std::to_string(number);
    return std::string(static_cast<std::size_t>(std::max(0, width - static_cast<int>(text.size()))), '0') + text;
}

std::string dateText(const WrittenBooking& booking, int daysLater, int form) {
    std::string text;
    const int day = std::min(booking.day + daysLater, 28);
    for (const char* c = kDateForms[static_cast<std::size_t>(form)].format; *c != '\0'; ++c) {
        switch (*c) {
        case 'd':
            text += std::to_string(day);
            break;
        case 'D':
            text += padded(day, 2);
            break;
        case 'm':
            text += std::to_string(booking.month);
            break;
        case 'M':
            text += padded(booking.month, 2);
            break;
        case 'b':
            text += kMonths[static_cast<std::size_t>(booking.month - 1)];
            break;
        case 'y':
            text += padded(booking.year % 100, 2);
            break;
        case 'Y':
            text += std::to_string(booking.year);
            break;
        default:
            text += *c;
        }
    }
    return text;
}

/// Without a sign.
std::string numberText(long cents, char mark, const std::string& group, bool trimmed) {
    const long size = std::labs(cents);
    std::string whole = std::to_string(size / 100);
    for (std::size_t at = whole.size(); at > 3 && !group.empty();) {
        at -= 3;
        whole.insert(at, group);
    }
    std::string decimals = padded(static_cast<int>(size % 100), 2);
    if (trimmed) {
        while (!decimals.empty() && decimals.back() == '0')
            decimals.pop_back();
    }
    return decimals.empty() ? whole : whole + mark + decimals;
}

std::string cell(const std::string& text, const StatementLayout& layout) {
    const bool quote = layout.quoteAll || text.find(layout.delimiter) != std::string::npos;
    return quote ? '"' + text + '"' : text;
}

class Writer {
public:
    explicit Writer(const StatementLayout& layout)
        : m_layout(layout), m_language(kLanguages[static_cast<std::size_t>(layout.language)]) {}

    std::string write(const std::vector<WrittenBooking>& bookings) {
        writePreamble();
        if (m_layout.header)
            writeRow(header());
        std::vector<std::vector<std::string>> rows;
        long balance = 100000;
        for (const WrittenBooking& booking : bookings) {
            balance += booking.cents;
            rows.push_back(row(booking, balance));
        }
        if (m_layout.newestFirst)
            std::reverse(rows.begin(), rows.end());
        for (const auto& row : rows)
            writeRow(row);
        return m_text;
    }

private:
    using Signs = StatementLayout::Signs;

    std::string number(long cents) const {
        const NumberForm& form = kNumberForms[static_cast<std::size_t>(m_layout.numberForm)];
        return numberText(cents, form.mark, form.group, form.trimmed);
    }
    std::string withMinus(long cents) const { return (cents < 0 ? "-" : "") + number(cents); }

    /// The columns of the amount, one or two.
    std::vector<std::string> amount(long cents) const {
        const bool out = cents < 0;
        switch (m_layout.signs) {
        case Signs::trailingMinus:
            return {number(cents) + (out ? "-" : "")};
        case Signs::plusAndMinus:
            return {(out ? "-" : "+") + number(cents)};
        case Signs::brackets:
            return {out ? "(" + number(cents) + ")" : number(cents)};
        case Signs::letterBehind:
            return {number(cents) + (out ? " S" : " H")};
        case Signs::column:
            return {number(cents), out ? m_language.out : m_language.in};
        case Signs::twoColumns:
            return {out ? number(cents) : "", out ? "" : number(cents)};
        case Signs::twoColumnsNegativeDebits:
            return {out ? withMinus(cents) : "", out ? "" : number(cents)};
        case Signs::twoColumnsWithZeros:
            return {number(out ? cents : 0), number(out ? 0 : cents)};
        case Signs::balanceOnly:
            return {number(cents)};
        case Signs::minus:
        case Signs::count:
            break;
        }
        return {withMinus(cents)};
    }

    std::vector<std::string> amountNames() const {
        switch (m_layout.signs) {
        case Signs::column:
            return {m_language.amount, m_language.sign};
        case Signs::twoColumns:
        case Signs::twoColumnsNegativeDebits:
        case Signs::twoColumnsWithZeros:
            return {m_language.debit, m_language.credit};
        default:
            return {m_language.amount};
        }
    }

    std::vector<std::string> arranged(const std::string& date, const std::string& valueDate, const std::string& payee,
                                      const std::string& purpose, const std::string& reference,
                                      const std::vector<std::string>& amounts, const std::string& currency,
                                      const std::string& balance) const {
        std::vector<std::string> cells = {date};
        const auto addAmounts = [&] {
            cells.insert(cells.end(), amounts.begin(), amounts.end());
            if (m_layout.currency)
                cells.push_back(currency);
            if (m_layout.balance)
                cells.push_back(balance);
        };
        if (m_layout.valueDate)
            cells.push_back(valueDate);
        if (m_layout.amountFirst)
            addAmounts();
        cells.push_back(payee);
        cells.push_back(purpose);
        if (m_layout.reference)
            cells.push_back(reference);
        if (!m_layout.amountFirst)
            addAmounts();
        return cells;
    }

    std::vector<std::string> header() const {
        return arranged(m_language.date, m_language.valueDate, m_language.payee, m_language.purpose, "IBAN",
                        amountNames(), m_language.currency, m_language.balance);
    }

    std::vector<std::string> row(const WrittenBooking& booking, long balance) const {
        return arranged(dateText(booking, 0, m_layout.dateForm), dateText(booking, 1, m_layout.dateForm), booking.payee,
                        booking.purpose, "DE0012345678901234" + std::to_string(booking.day), amount(booking.cents),
                        "EUR", withMinus(balance));
    }

    void writePreamble() {
        const std::string d(1, m_layout.delimiter);
        switch (m_layout.preamble) {
        case 1:
            writeLine("IBAN" + d + "DE00 1234 5678 9012 3456 78");
            writeLine("");
            break;
        case 2:
            writeLine("Konto 1234567 Max Mustermann");
            writeLine(d + d);
            writeLine("Export" + d + "EUR");
            break;
        case 3:
            for (int i = 0; i < 11; ++i)
                writeLine(i % 3 == 2 ? "" : "Info " + std::to_string(i) + d + "x");
            break;
        default:
            break;
        }
    }

    void writeRow(const std::vector<std::string>& cells) {
        std::string line;
        for (const std::string& text : cells)
            line += (line.empty() ? "" : std::string(1, m_layout.delimiter)) + cell(text, m_layout);
        writeLine(line);
    }
    void writeLine(const std::string& line) { m_text += line + m_layout.lineEnd; }

    const StatementLayout& m_layout;
    const Language& m_language;
    std::string m_text;
};

} // namespace

std::string WrittenBooking::shown() const {
    return padded(day, 2) + '.' + padded(month, 2) + '.' + std::to_string(year) + ' ' + (cents < 0 ? "-" : "") +
           numberText(cents, ',', ".", false);
}

bool StatementLayout::monthFirst() const { return kDateForms[static_cast<std::size_t>(dateForm)].monthFirst; }

bool StatementLayout::decimalComma() const { return kNumberForms[static_cast<std::size_t>(numberForm)].mark == ','; }

std::string StatementLayout::describe() const {
    return "language " + std::to_string(language) + ", dates " + kDateForms[static_cast<std::size_t>(dateForm)].format +
           ", numbers " + std::to_string(numberForm) + ", signs " + std::to_string(static_cast<int>(signs));
}

std::string writeStatement(const std::vector<WrittenBooking>& bookings, const StatementLayout& layout) {
    return Writer(layout).write(bookings);
}
