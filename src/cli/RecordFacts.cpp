// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/RecordFacts.h"

namespace {

std::optional<std::chrono::sys_days> dayOf(const FieldNode& field) {
    if (field.kind() != DataType::eDate || field.date().isZero())
        return std::nullopt;
    const DMDate date = field.date();
    return std::chrono::sys_days(std::chrono::year(static_cast<int>(date.year())) / std::chrono::month(date.month()) /
                                 std::chrono::day(date.day()));
}

} // namespace

RecordFacts::RecordFacts(const RecordSpec& spec)
    : m_day(spec.fieldIndex("Datum")), m_amount(spec.fieldIndex("Betrag")), m_payee(spec.fieldIndex("Empfaenger")),
      m_purpose(spec.fieldIndex("Verwendungszweck")), m_details{spec.fieldIndex("Kategorie"),
                                                                spec.fieldIndex("Unterkategorie"),
                                                                spec.fieldIndex("Buchungstext")},
      m_number(spec.fieldIndex("BuchungsID")), m_uniqueId(spec.fieldIndex("UniqueID")),
      m_session(spec.fieldIndex("ImportID")), m_line(spec.fieldIndex("Zeile")) {
    if (!m_day)
        m_day = spec.fieldIndex("BuchungsDatum");
}

BookingFacts RecordFacts::of(const RecordNode& record) const {
    BookingFacts facts;
    facts.day = dayOf(record.fields()[*m_day]);
    const FieldNode& amount = record.fields()[*m_amount];
    if (amount.kind() == DataType::eCurrency)
        facts.amount = amount.amount();
    facts.payee = text(record, m_payee);
    facts.purpose = text(record, m_purpose);
    for (std::size_t i = 0; i < facts.details.size(); ++i)
        facts.details[i] = text(record, m_details[i]);
    facts.number = text(record, m_number);
    return facts;
}

std::optional<int> RecordFacts::number(const RecordNode& record, Place place) {
    if (!place || record.fields()[*place].kind() != DataType::eInteger)
        return std::nullopt;
    return record.fields()[*place].integer();
}

std::string_view RecordFacts::text(const RecordNode& record, Place place) {
    return place ? record.fields()[*place].text() : std::string_view();
}
