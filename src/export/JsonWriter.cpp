// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "export/JsonWriter.h"

#include <algorithm>
#include <span>

#include "datamodel/HostText.h"
#include "export/AmountDigits.h"
#include "export/DayText.h"
#include "export/HostControls.h"

namespace {

// Which fields come first; those that the schema has beside them follow.
constexpr const char* kRecordFields[] = {"Datum",        "Betrag",    "Empfaenger",     "Verwendungszweck",
                                         "Buchungstext", "Kategorie", "Unterkategorie", "ImportID",
                                         "UniqueID"};
constexpr const char* kBookingFields[] = {"BuchungsDatum", "ValutaDatum", "Betrag", "Empfaenger", "Verwendungszweck"};
constexpr const char* kSessionFields[] = {"ImportID",    "ImportDatum",     "ImportTyp", "ImportFileName", "ImportInfo",
                                          "Datensaetze", "Abgelehnt",       "Bekannt",   "Summe",          "ErsterTag",
                                          "LetzterTag",  "Zurueckgenommen", "Pruefsumme"};
constexpr const char* kAccountFields[] = {"BLZ", "KtoNummer", "Bezeichnung"};

std::vector<std::size_t> orderOf(const RecordSpec& spec, std::span<const char* const> first) {
    std::vector<std::size_t> order;
    for (const char* name : first)
        order.push_back(spec.fieldIndex(name).value());
    for (std::size_t field = 0; field < spec.fields().size(); ++field) {
        if (std::find(order.begin(), order.end(), field) == order.end())
            order.push_back(field);
    }
    return order;
}

void appendEscape(std::string& out, char c) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    const auto byte = static_cast<unsigned char>(c);
    out += "\\u00";
    out += kDigits[byte >> 4U];
    out += kDigits[byte & 0xFU];
}

void appendText(std::string& out, std::string_view text) {
    out += '"';
    while (!text.empty()) {
        const auto* const stop = std::find_if(
            text.begin(), text.end(), [](char c) { return c == '"' || c == '\\' || HostControls::isControl(c); });
        const auto plain = static_cast<std::size_t>(stop - text.begin());
        HostText::appendUtf8(out, text.substr(0, plain));
        text.remove_prefix(plain);
        if (text.empty())
            break;
        if (text.front() == '"' || text.front() == '\\')
            (out += '\\') += text.front();
        else
            appendEscape(out, text.front());
        text.remove_prefix(1);
    }
    out += '"';
}

void appendDay(std::string& out, const DMDate& day) {
    if (day.isZero()) {
        out += "null";
        return;
    }
    out += '"';
    DayText::appendIso(out, day);
    out += '"';
}

void appendField(std::string& out, const FieldNode& field, const FieldSpec& spec) {
    switch (field.kind()) {
    case DataType::eInteger:
        out += std::to_string(field.integer());
        return;
    case DataType::eCurrency:
        AmountDigits::append(out, field.amount(), '.', 1);
        return;
    case DataType::eDate:
        appendDay(out, field.date());
        return;
    case DataType::eBoolean:
        out += field.flag() ? "true" : "false";
        return;
    case DataType::eString:
        appendText(out, field.text());
        return;
    case DataType::eEmpty:
        out += spec.kind == DataType::eString ? "\"\"" : "null";
        return;
    }
}

void appendMember(std::string& out, const RecordNode& row, std::size_t field) {
    const FieldSpec& spec = row.spec().fields()[field];
    if (out.back() != '{')
        out += ',';
    appendText(out, spec.name);
    out += ':';
    appendField(out, row.fields()[field], spec);
}

void appendObject(std::string& out, const RecordNode& row, std::span<const std::size_t> order) {
    out += '{';
    for (const std::size_t field : order)
        appendMember(out, row, field);
    out += '}';
}

} // namespace

void JsonWriter::begin(std::string& out) {
    out += m_context.content == ExportContent::bookings ? "{\"bookings\":[" : "{\"dataSets\":[";
}

void JsonWriter::add(const ExportRecord& record, std::string& out) {
    if (m_order.empty())
        m_order =
            record.booking ? orderOf(record.row->spec(), kBookingFields) : orderOf(record.row->spec(), kRecordFields);
    out += m_first ? "\n" : ",\n";
    m_first = false;
    out += '{';
    if (record.booking) {
        const RecordNode& account = *record.booking->account;
        for (const char* name : {"BLZ", "KtoNummer"})
            appendMember(out, account, account.spec().fieldIndex(name).value());
    }
    for (const std::size_t field : m_order)
        appendMember(out, *record.row, field);
    out += '}';
    if (record.session)
        m_sessions.insert(*record.session);
}

void JsonWriter::end(std::string& out) {
    out += m_first ? "]" : "\n]";
    if (m_context.content == ExportContent::bookings) {
        out += ",\"accounts\":[";
        if (m_context.account != nullptr) {
            out += '\n';
            appendObject(out, *m_context.account, orderOf(m_context.account->spec(), kAccountFields));
            out += '\n';
        }
        out += "]}\n";
        return;
    }
    out += ",\"sessions\":[";
    bool first = true;
    for (const std::int32_t number : m_sessions) {
        const auto session = m_context.sessions.find(number);
        if (session == m_context.sessions.end())
            continue;
        out += first ? "\n" : ",\n";
        first = false;
        appendObject(out, *session->second, orderOf(session->second->spec(), kSessionFields));
    }
    out += first ? "]}\n" : "\n]}\n";
}
