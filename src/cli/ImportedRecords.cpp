// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ImportedRecords.h"

#include <cmath>
#include <cstdint>

#include "cli/FieldText.h"
#include "cli/ModelTables.h"
#include "cli/Utf8.h"
#include "datamodel/DataModel.h"

namespace {

constexpr double kHundredths = 100.0;
constexpr std::size_t kMostText = 200; // characters of a purpose on the page

std::optional<std::chrono::year_month_day> dayOf(const FieldNode& field) {
    if (field.kind() != DataType::eDate)
        return std::nullopt;
    const DMDate date = field.getValue().getDate();
    if (date.isZero())
        return std::nullopt;
    return std::chrono::year_month_day(std::chrono::year(static_cast<int>(date.year())),
                                       std::chrono::month(date.month()), std::chrono::day(date.day()));
}

/// The model keeps numbers; what its writers meant is the nearest hundredth.
void readAmount(const FieldNode& field, ReportedRecord& record) {
    if (field.kind() != DataType::eCurrency)
        return;
    constexpr double kCrumb = 0.001; // what is left of calculating with numbers
    const double amount = field.getValue().getCurrency();
    record.cents = std::llround(amount * kHundredths);
    const auto cents = static_cast<double>(record.cents);
    record.isRounded = cents / kHundredths != amount && std::fabs(amount * kHundredths - cents) > kCrumb;
}

/// Where a table of the model keeps what a page tells; -1 for what it has not.
class Reader {
public:
    Reader(const RecordSpec& spec, const char* day) : m_spec(spec), m_day(index(day)) {}

    ReportedRecord read(RecordNode& row, bool withTexts) const {
        const std::span<FieldNode> fields = row.fields();
        ReportedRecord record;
        record.day = dayOf(fields[m_day]);
        readAmount(fields[m_amount], record);
        record.category = FieldText::display(fields[m_category]);
        if (m_subcategory) {
            const std::string part = FieldText::display(fields[*m_subcategory]);
            record.category += (record.category.empty() || part.empty() ? "" : ": ") + part;
        }
        if (!withTexts)
            return record;
        record.payee = Utf8::shortened(FieldText::display(fields[m_payee]), kMostText);
        record.purpose = Utf8::shortened(FieldText::display(fields[m_purpose]), kMostText);
        if (m_line && fields[*m_line].kind() == DataType::eInteger)
            record.line = static_cast<std::size_t>(fields[*m_line].getValue().getInt());
        return record;
    }

private:
    std::size_t index(const char* name) const { return *m_spec.fieldIndex(name); }

    const RecordSpec& m_spec;
    std::size_t m_day;
    std::size_t m_amount = index("Betrag");
    std::size_t m_payee = index("Empfaenger");
    std::size_t m_purpose = index("Verwendungszweck");
    std::size_t m_category = index("Kategorie");
    std::optional<std::size_t> m_subcategory = m_spec.fieldIndex("Unterkategorie");
    std::optional<std::size_t> m_line = m_spec.fieldIndex("Zeile");
};

/// Whether a page shows the record of that index, from 0.
bool isShown(std::size_t index, std::size_t count) {
    return index < RecordDigest::kShown || index + RecordDigest::kShown >= count;
}

RecordDigest digestOf(const std::vector<RecordNode*>& rows, const char* day) {
    RecordDigest digest;
    if (rows.empty())
        return digest;
    const Reader reader(rows.front()->spec(), day);
    for (std::size_t i = 0; i < rows.size(); ++i)
        digest.add(reader.read(*rows[i], isShown(i, rows.size())));
    return digest;
}

} // namespace

ImportedRecords ImportedRecords::of(const NewRecords& added) {
    ImportedRecords records;
    records.digest = digestOf(added.rows(), "Datum");
    if (RecordNode* session = added.session())
        records.day = dayOf(ModelTables::field(*session, "ImportDatum"));
    return records;
}

ImportedRecords ImportedRecords::ofBookings(const HomeBankingRows::Bookings& bookings) {
    ImportedRecords records;
    RecordNode* account = bookings.account();
    if (account == nullptr)
        return records;
    records.digest = digestOf(bookings.rows(), "BuchungsDatum");
    records.day = dayOf(ModelTables::field(*account, "LetztesImportDatum"));
    records.account = FieldText::display(ModelTables::field(*account, "KtoNummer")) + ", BLZ " +
                      FieldText::display(ModelTables::field(*account, "BLZ"));
    const std::string name = FieldText::display(ModelTables::field(*account, "Bezeichnung"));
    if (!name.empty())
        records.account = name + " (" + records.account + ")";
    return records;
}
