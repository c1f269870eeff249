// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/SessionBook.h"

#include <cmath>
#include <tuple>

#include "cli/FieldText.h"
#include "cli/ModelTables.h"
#include "datamodel/DataModel.h"
#include "report/CentSum.h"

namespace {

constexpr double kHundredths = 100.0;

void set(RecordNode& record, const char* field, const DataType& value) {
    ModelTables::field(record, field).setValue(value, NDX(), 0);
}

DataType number(std::size_t value) { return DataType::makeInteger(static_cast<std::int32_t>(value)); }

template <typename Value>
DataType valueOf(const Value& value) {
    DataType data;
    data = value;
    return data;
}

bool isBefore(const DMDate& a, const DMDate& b) {
    return std::tuple(a.year(), a.month(), a.day()) < std::tuple(b.year(), b.month(), b.day());
}

class Totals {
public:
    explicit Totals(const RecordSpec& spec) : m_amount(*spec.fieldIndex("Betrag")), m_date(*spec.fieldIndex("Datum")) {}

    void add(RecordNode& record) {
        const FieldNode& amount = record.fields()[m_amount];
        if (amount.kind() == DataType::eCurrency)
            m_sum += CentSum(std::llround(amount.getValue().getCurrency() * kHundredths));
        const FieldNode& date = record.fields()[m_date];
        if (date.kind() != DataType::eDate)
            return;
        const DMDate day = date.getValue().getDate();
        if (day.isZero())
            return;
        if (m_first.isZero() || isBefore(day, m_first))
            m_first = day;
        if (m_last.isZero() || isBefore(m_last, day))
            m_last = day;
    }

    double sum() const { return m_sum.inUnits(); }
    const DMDate& first() const { return m_first; }
    const DMDate& last() const { return m_last; }

private:
    std::size_t m_amount; // places of the fields
    std::size_t m_date;
    CentSum m_sum;
    DMDate m_first;
    DMDate m_last;
};

} // namespace

namespace SessionBook {

std::optional<Session> find(Store& store, const std::string& checksum) {
    std::optional<Session> found;
    store.visitMatches("Importsessions", "Pruefsumme", checksum, [&found](RecordNode& session) {
        if (!ModelTables::field(session, "Zurueckgenommen").getValue().getBoolean())
            found = {ModelTables::field(session, "ImportID").getValue().getInt(),
                     FieldText::display(ModelTables::field(session, "ImportDatum")),
                     FieldText::display(ModelTables::field(session, "ImportFileName"))};
    });
    return found;
}

void keepLines(const NewRecords& added, const std::vector<std::size_t>& lines) {
    const std::vector<RecordNode*> rows = added.rows();
    if (rows.empty())
        return;
    const std::size_t field = *rows.front()->spec().fieldIndex("Zeile");
    for (std::size_t i = 0; i < rows.size() && i < lines.size(); ++i)
        rows[i]->fields()[field].setValue(number(lines[i]), NDX(), 0);
}

void keepSession(const NewRecords& added, const Facts& facts) {
    RecordNode* session = added.session();
    if (session == nullptr)
        return;
    const std::vector<RecordNode*> rows = added.rows();
    if (rows.empty())
        return; // a session is written with its first record
    Totals totals(rows.front()->spec());
    for (RecordNode* row : rows)
        totals.add(*row);
    set(*session, "Pruefsumme", valueOf(facts.checksum.c_str()));
    set(*session, "Datensaetze", number(rows.size()));
    set(*session, "Abgelehnt", number(facts.refused));
    set(*session, "Bekannt", number(facts.known));
    set(*session, "Summe", DataType::makeCurrency(totals.sum()));
    if (!totals.first().isZero()) {
        set(*session, "ErsterTag", valueOf(totals.first()));
        set(*session, "LetzterTag", valueOf(totals.last()));
    }
}

} // namespace SessionBook
