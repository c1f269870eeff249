// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "export/ExportBookingFields.h"

#include "export/FieldOf.h"

ExportBookingFields::ExportBookingFields(const RecordNode& account, const RecordSpec& spec)
    : m_account(account), m_bank(FieldOf::place(account.spec(), "BLZ")),
      m_number(FieldOf::place(account.spec(), "KtoNummer")), m_id(FieldOf::place(spec, "BuchungsID")),
      m_day(FieldOf::place(spec, "BuchungsDatum")), m_valueDay(FieldOf::place(spec, "ValutaDatum")),
      m_amount(FieldOf::place(spec, "Betrag")), m_payee(FieldOf::place(spec, "Empfaenger")),
      m_purpose(FieldOf::place(spec, "Verwendungszweck")), m_postingText(FieldOf::place(spec, "GVCode")),
      m_category(FieldOf::place(spec, "Kategorie")), m_note(FieldOf::place(spec, "Notiz")),
      m_tax(FieldOf::place(spec, "Steuerrelevant")), m_uniqueId(FieldOf::place(spec, "UniqueID")) {}

ExportRecord ExportBookingFields::of(const RecordNode& row) const {
    ExportRecord record;
    record.row = &row;
    record.day = FieldOf::day(row, m_day);
    record.amount = FieldOf::amount(row, m_amount);
    record.payee = FieldOf::text(row, m_payee);
    record.purpose = FieldOf::text(row, m_purpose);
    record.postingText = FieldOf::text(row, m_postingText);
    record.category = FieldOf::text(row, m_category);
    record.uniqueId = FieldOf::integer(row, m_uniqueId);
    record.booking = ExportBooking{&m_account,
                                   FieldOf::text(m_account, m_bank),
                                   FieldOf::text(m_account, m_number),
                                   FieldOf::text(row, m_id),
                                   FieldOf::day(row, m_valueDay),
                                   FieldOf::text(row, m_note),
                                   FieldOf::flag(row, m_tax)};
    return record;
}
