// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "export/ExportRecordFields.h"

#include "export/FieldOf.h"

ExportRecordFields::ExportRecordFields(const RecordSpec& spec)
    : m_day(FieldOf::place(spec, "Datum")), m_amount(FieldOf::place(spec, "Betrag")),
      m_payee(FieldOf::place(spec, "Empfaenger")), m_purpose(FieldOf::place(spec, "Verwendungszweck")),
      m_postingText(FieldOf::place(spec, "Buchungstext")), m_category(FieldOf::place(spec, "Kategorie")),
      m_subcategory(FieldOf::place(spec, "Unterkategorie")), m_uniqueId(FieldOf::place(spec, "UniqueID")),
      m_session(FieldOf::place(spec, "ImportID")), m_line(FieldOf::place(spec, "Zeile")) {}

ExportRecord ExportRecordFields::of(const RecordNode& row) const {
    ExportRecord record;
    record.row = &row;
    record.day = FieldOf::day(row, m_day);
    record.amount = FieldOf::amount(row, m_amount);
    record.payee = FieldOf::text(row, m_payee);
    record.purpose = FieldOf::text(row, m_purpose);
    record.postingText = FieldOf::text(row, m_postingText);
    record.category = FieldOf::text(row, m_category);
    record.subcategory = FieldOf::text(row, m_subcategory);
    record.uniqueId = FieldOf::integer(row, m_uniqueId);
    record.session = FieldOf::integer(row, m_session);
    record.line = FieldOf::integer(row, m_line);
    return record;
}
