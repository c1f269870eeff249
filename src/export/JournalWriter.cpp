// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "export/JournalWriter.h"

#include "export/AmountDigits.h"
#include "export/DayText.h"
#include "export/FieldOf.h"
#include "export/FlatText.h"

namespace {

constexpr unsigned kFirstYear = 1400; // of the calendar that ledger counts in
constexpr int kMostDecimals = 60;     // more than 255 are refused by the one, fewer by the other

// One of the programs reads no line of more than 4,096 bytes.
constexpr std::size_t kLongestLine = 4000;
constexpr std::size_t kLongestAccount = 3800; // an amount has its place behind it

constexpr std::string_view kIndent = "    ";
constexpr std::string_view kBetween = "  "; // an account ends where two blanks stand
constexpr std::string_view kCommodity = " EUR";
constexpr std::string_view kBank = "Aktiva:Bank";
constexpr std::string_view kSpent = "Ausgaben";
constexpr std::string_view kEarned = "Einnahmen";
constexpr std::string_view kNoCategory = "Unkategorisiert";

// Two blanks end a text, and line breaks a line, wherever they stand. Brackets hold dates in notes.
constexpr FlatText::Rules kDescription = {";|", ",/", true};
constexpr FlatText::Rules kCode = {"()", "[]", true};
constexpr FlatText::Rules kNote = {"[]", "()", true};
constexpr FlatText::Rules kAccountPart = {":;", "-,", true};

} // namespace

void JournalWriter::begin(std::string& out) {
    out += "; Bestand von dmimport\n"
           "commodity EUR\n"
           "    format 1000.00 EUR\n";
}

void JournalWriter::add(const ExportRecord& record, std::string& out) {
    if (record.day.isZero()) {
        lose(Loss::undated, record);
        return;
    }
    if (record.day.year() < kFirstYear) {
        lose(Loss::dayOutside, record);
        return;
    }
    m_textChanged = false;
    m_textCut = false;
    out += '\n';
    appendHead(record, out);
    appendNotes(record, out);
    appendPostings(record, out);
    if (m_textChanged)
        lose(Loss::textChanged, record);
    if (m_textCut)
        lose(Loss::textCut, record);
}

void JournalWriter::end(std::string& /*out*/) {}

/// With a mark and a code before it, the description may begin with what would be either.
void JournalWriter::appendHead(const ExportRecord& record, std::string& out) {
    const std::size_t first = out.size();
    DayText::appendIso(out, record.day);
    out += " * (";
    if (record.booking && !record.booking->id.empty())
        m_textChanged = FlatText::append(out, record.booking->id, kCode) || m_textChanged;
    else if (record.uniqueId)
        out += std::to_string(*record.uniqueId);
    out += ')';
    std::string description;
    const bool hasPayee = appendText(description, record.payee);
    std::string purpose;
    if (appendText(purpose, record.purpose))
        description += (hasPayee ? " | " : "") + purpose;
    if (!description.empty())
        (out += ' ') += description;
    cut(out, first, kLongestLine);
    out += '\n';
}

void JournalWriter::appendNotes(const ExportRecord& record, std::string& out) {
    appendNote(out, record.booking ? "GVCode" : "Buchungstext", record.postingText);
    if (record.booking) {
        std::string valueDay;
        DayText::appendIso(valueDay, record.booking->valueDay);
        appendNote(out, "Valuta", valueDay);
        appendNote(out, "Notiz", record.booking->note);
        appendNote(out, "Steuerrelevant", record.booking->isTaxRelevant.value_or(false) ? "ja" : "");
    }
    appendNote(out, "Herkunft", fileOf(record));
    appendNote(out, "Zeile", record.line ? std::to_string(*record.line) : "");
    appendNote(out, "Sitzung", record.session ? std::to_string(*record.session) : "");
}

void JournalWriter::appendPostings(const ExportRecord& record, std::string& out) {
    if (!record.amount)
        lose(Loss::noAmount, record);
    const double amount = record.amount.value_or(0.0);
    std::string category;
    appendAccountPart(category, record.category);
    std::string subcategory;
    appendAccountPart(subcategory, record.subcategory);

    const std::size_t first = out.size();
    ((out += kIndent) += amount < 0.0 ? kSpent : kEarned) += category.empty() ? ":" : "";
    out += category.empty() ? kNoCategory : std::string_view(category);
    out += subcategory;
    cut(out, first, kLongestAccount);
    out += kBetween;
    bool isExact = AmountDigits::appendRounded(out, 0.0 - amount, '.', 2, kMostDecimals);
    out += kCommodity;

    out += '\n';
    const std::size_t second = out.size();
    (out += kIndent) += kBank;
    if (record.booking) {
        appendAccountPart(out, record.booking->bank);
        appendAccountPart(out, record.booking->number);
        cut(out, second, kLongestAccount);
    }
    out += kBetween;
    isExact = AmountDigits::appendRounded(out, amount + 0.0, '.', 2, kMostDecimals) && isExact;
    (out += kCommodity) += '\n';
    if (!isExact)
        lose(Loss::amountRounded, record);
}

/// Whether there is anything.
bool JournalWriter::appendText(std::string& out, std::string_view text) {
    m_textChanged = FlatText::append(out, text, kDescription) || m_textChanged;
    return !out.empty();
}

/// A tag for the one program, metadata for the other; nothing without a text.
void JournalWriter::appendNote(std::string& out, std::string_view tag, std::string_view text) {
    std::string value;
    m_textChanged = FlatText::append(value, text, kNote) || m_textChanged;
    if (value.empty())
        return;
    const std::size_t first = out.size();
    ((((out += kIndent) += "; ") += tag) += ": ") += value;
    cut(out, first, kLongestLine);
    out += '\n';
}

void JournalWriter::appendAccountPart(std::string& out, std::string_view text) {
    std::string part;
    m_textChanged = FlatText::append(part, text, kAccountPart) || m_textChanged;
    if (!part.empty())
        (out += ':') += part;
}

/// Leaves `longest` bytes from `first` on, of whole characters and no blank behind them.
void JournalWriter::cut(std::string& out, std::size_t first, std::size_t longest) {
    if (out.size() - first <= longest)
        return;
    m_textCut = true;
    std::size_t end = first + longest;
    while ((static_cast<unsigned char>(out[end]) & 0xC0U) == 0x80)
        --end;
    out.resize(end);
    while (out.back() == ' ' || out.back() == ':')
        out.pop_back();
}

std::string_view JournalWriter::fileOf(const ExportRecord& record) const {
    const auto session = record.session ? m_context.sessions.find(*record.session) : m_context.sessions.end();
    if (session == m_context.sessions.end())
        return {};
    return FieldOf::text(*session->second, FieldOf::place(session->second->spec(), "ImportFileName"));
}
