// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/DelimitedPreparation.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>

#include "intake/BookingRow.h"
#include "intake/LibraryReading.h"
#include "intake/TextTools.h"

namespace {

/// The fields of the data model that a delimited file feeds, in the order of a
/// line that is written anew.
enum Target { tDatum, tBetrag, tEmpfaenger, tVerwendungszweck, tBuchungstext, tKategorie, tUnterkategorie, tCount };
constexpr std::array<const char*, tCount> kFields = {"Datum",        "Betrag",    "Empfaenger",    "Verwendungszweck",
                                                     "Buchungstext", "Kategorie", "Unterkategorie"};

using Values = std::array<std::string, tCount>;

/// The column that carries each field; -1 for none.
std::array<int, tCount> carriers(const ColumnRoles& roles) {
    std::array<int, tCount> columns{};
    columns[tDatum] = roles.date;
    columns[tBetrag] = roles.amount >= 0 ? roles.amount : std::max(roles.debit, roles.credit);
    columns[tEmpfaenger] = roles.counterparty >= 0 ? roles.counterparty : roles.recipient;
    columns[tVerwendungszweck] = roles.purpose.empty() ? -1 : roles.purpose.front();
    columns[tBuchungstext] = roles.postingText;
    columns[tKategorie] = roles.category;
    columns[tUnterkategorie] = roles.subcategory;
    return columns;
}

void appendCell(std::string& line, std::string_view cell, char delimiter) {
    const bool quote = cell.find(delimiter) != std::string_view::npos || cell.find('"') != std::string_view::npos;
    if (!quote) {
        line += cell;
        return;
    }
    line += '"';
    for (const char c : cell) {
        if (c == '"')
            line += '"';
        line += c;
    }
    line += '"';
}

/// A field in one line, without a zero byte, which would end it.
std::string oneLine(std::string_view text) {
    std::string out(TextTools::trim(text));
    for (char& c : out) {
        if (c == '\n' || c == '\r' || c == '\0')
            c = ' ';
    }
    return out;
}

void appendPart(std::string& text, std::string_view part) {
    const std::string line = oneLine(part);
    if (line.empty())
        return;
    if (!text.empty())
        text += ' ';
    text += line;
}

struct Explanation {
    BookingRow::Kind kind;
    const char* code;
    bool refusal;
    const char* text;
};
constexpr std::array<Explanation, 7> kExplanations = {{
    {BookingRow::Kind::badDate, "bad-date", true,
     "Das Datum „%“ ist nicht lesbar. Bitte die Zeile in der Datei berichtigen oder mit --allow-undated ohne Datum "
     "übernehmen."},
    {BookingRow::Kind::badAmount, "bad-amount", true,
     "Der Betrag „%“ ist nicht lesbar. Bitte die Zeile in der Datei berichtigen."},
    {BookingRow::Kind::noAmount, "amount-missing", true,
     "Die Zeile hat ein Datum, aber keinen Betrag. Bitte den Betrag in der Datei ergänzen."},
    {BookingRow::Kind::noDate, "date-missing", true,
     "Die Zeile hat einen Betrag, aber kein Datum. Bitte das Datum in der Datei ergänzen oder mit --allow-undated "
     "übernehmen."},
    {BookingRow::Kind::noSign, "sign-unknown", true,
     "Ob der Betrag „%“ eine Einnahme oder eine Ausgabe ist, ergibt sich bei den übrigen Zeilen aus dem Saldo, bei der "
     "ältesten "
     "nicht. Bitte das Vorzeichen in der Datei ergänzen."},
    {BookingRow::Kind::pending, "pending", false,
     "Der Umsatz ist erst vorgemerkt und noch nicht gebucht; er wird übernommen, sobald die Bank ihn als gebucht "
     "führt."},
    {BookingRow::Kind::balance, "balance-line", false,
     "Die Zeile nennt einen Saldo oder eine Summe und ist keine Buchung."},
}};

class Preparer {
public:
    Preparer(const DelimitedFile& file, const PhysicalLines& physical, const InspectionOptions& options, bool anew)
        : m_file(file), m_table(file.table), m_physical(physical), m_options(options), m_anew(anew) {
        m_out.resize(physical.lines.size());
        m_result.lines.assign(physical.lines.size(), LineUse::blank);
        m_result.delimiter = file.plan.delimiter;
        for (const TablePlan& plan : file.plan.tables) {
            for (std::size_t i = 0; i < tCount; ++i)
                m_used[i] = m_used[i] || carriers(plan.roles)[i] >= 0;
        }
        m_used[tEmpfaenger] = m_used[tEmpfaenger];
    }

    /// Whether a line is longer than the library reads, and would be shorter written anew.
    bool tooLong() const { return m_tooLong; }

    PreparedFile run() {
        std::size_t next = 0;
        bool first = true;
        for (const TablePlan& plan : m_file.plan.tables) {
            const std::size_t top = plan.region.header.value_or(plan.region.begin);
            markOutside(next, top, first ? LineUse::preamble : LineUse::footer);
            writeTable(plan, first);
            next = plan.region.end;
            first = false;
        }
        markOutside(next, m_table.size(), LineUse::footer);
        assign();
        join();
        return std::move(m_result);
    }

private:
    int lineOf(std::size_t record) const { return m_table.record(record).firstLine; }

    void use(std::size_t record, LineUse use) {
        const auto& r = m_table.record(record);
        for (int i = 0; i < r.lineCount; ++i)
            m_result.lines[static_cast<std::size_t>(r.firstLine + i)] =
                r.blank ? LineUse::blank : (i == 0 || use != LineUse::record ? use : LineUse::ignored);
    }

    void markOutside(std::size_t from, std::size_t to, LineUse as) {
        for (std::size_t i = from; i < to; ++i)
            use(i, as);
    }

    void say(std::size_t record, const char* code, bool refusal, std::string text) {
        const int line = lineOf(record) + 1;
        m_result.messages.push_back({line, code, "Zeile " + std::to_string(line) + ": " + std::move(text), refusal});
        m_result.refused += refusal ? 1 : 0;
    }

    void explain(std::size_t record, const TablePlan& plan, BookingRow::Kind kind) {
        const auto* row = std::find_if(kExplanations.begin(), kExplanations.end(),
                                       [&](const Explanation& e) { return e.kind == kind; });
        if (row == kExplanations.end())
            return;
        std::string text = row->text;
        if (const auto at = text.find('%'); at != std::string::npos) {
            const int column = kind == BookingRow::Kind::badDate ? plan.roles.date : badAmountColumn(record, plan);
            text.replace(at, 1, TextTools::toUtf8(oneLine(m_table.cell(record, column))));
        }
        say(record, row->code, row->refusal, std::move(text));
    }

    int badAmountColumn(std::size_t record, const TablePlan& plan) const {
        if (plan.roles.amount >= 0)
            return plan.roles.amount;
        return TextTools::trim(m_table.cell(record, plan.roles.debit)).empty() ? plan.roles.credit : plan.roles.debit;
    }

    void writeTable(const TablePlan& plan, bool first) {
        if (plan.region.header) {
            use(*plan.region.header, LineUse::header);
            if (first)
                writeHeader(*plan.region.header);
        }
        for (const std::size_t repeated : plan.region.repeatedHeaders)
            use(repeated, LineUse::header);

        std::size_t last = plan.region.begin;
        std::vector<BookingRow> rows;
        rows.reserve(plan.region.end - plan.region.begin);
        for (std::size_t i = plan.region.begin; i < plan.region.end; ++i) {
            rows.push_back(BookingRows::read(m_table, i, plan, m_options.centuryWindow));
            if (rows.back().kind == BookingRow::Kind::booking || rows.back().kind == BookingRow::Kind::pending)
                last = i;
        }
        if (plan.sign == SignRule::fromBalance)
            takeSignsFromBalance(rows, plan.newestFirst);
        for (std::size_t i = plan.region.begin; i < plan.region.end; ++i) {
            if (std::find(plan.region.repeatedHeaders.begin(), plan.region.repeatedHeaders.end(), i) ==
                plan.region.repeatedHeaders.end())
                handle(i, rows[i - plan.region.begin], plan, i > last);
        }
        flush();
    }

    void handle(std::size_t record, const BookingRow& row, const TablePlan& plan, bool behindLast) {
        using Kind = BookingRow::Kind;
        const bool undated = m_options.allowUndated && (row.kind == Kind::badDate || row.kind == Kind::noDate);
        if (row.kind == Kind::booking || undated) {
            flush();
            use(record, LineUse::record);
            m_current = Pending{record, &plan, row, valuesOf(record, row, plan)};
            return;
        }
        if (row.kind == Kind::continuation && m_current && !behindEnd(record)) {
            use(record, LineUse::ignored);
            const ColumnRoles& roles = plan.roles;
            if (roles.postingTextInPurpose)
                appendPart(m_current->values[tVerwendungszweck], m_table.cell(record, roles.postingText));
            for (const int column : roles.purpose)
                appendPart(m_current->values[tVerwendungszweck], m_table.cell(record, column));
            return;
        }
        if (row.kind == Kind::blank || (behindLast && row.kind != Kind::badAmount && row.kind != Kind::badDate)) {
            use(record, LineUse::footer);
            return;
        }
        flush();
        const bool refusal = row.kind == Kind::badDate || row.kind == Kind::badAmount || row.kind == Kind::noAmount ||
                             row.kind == Kind::noDate || row.kind == Kind::noSign;
        use(record, refusal ? LineUse::record : LineUse::ignored);
        if (row.kind == Kind::other || row.kind == Kind::continuation)
            say(record, "not-a-booking", false,
                "Die Zeile enthält weder ein Datum noch einen Betrag und wird übergangen.");
        else
            explain(record, plan, row.kind);
    }

    /// A line of text continues the booking right above it, not one further up.
    bool behindEnd(std::size_t record) const {
        const auto& booking = m_table.record(m_current->record);
        return lineOf(record) > booking.firstLine + booking.lineCount + m_continued++;
    }

    Values valuesOf(std::size_t record, const BookingRow& row, const TablePlan& plan) const {
        const ColumnRoles& roles = plan.roles;
        const auto cell = [&](int column) { return m_table.cell(record, column); };
        Values values;
        values[tDatum] = dateValue(TextTools::trim(cell(roles.date)), row);
        values[tBetrag] =
            amountValue(roles.amount >= 0 && plan.sign != SignRule::twoColumns ? TextTools::trim(cell(roles.amount))
                                                                               : std::string_view(),
                        *row.amount);
        values[tEmpfaenger] = oneLine(cell(payeeColumn(roles, *row.amount, record)));
        if (roles.postingTextInPurpose)
            appendPart(values[tVerwendungszweck], cell(roles.postingText));
        for (const int column : roles.purpose)
            appendPart(values[tVerwendungszweck], cell(column));
        if (roles.overflowIsPurpose) {
            for (int column = roles.width; column < m_table.record(record).cellCount; ++column)
                appendPart(values[tVerwendungszweck], cell(column));
        }
        values[tBuchungstext] = oneLine(cell(roles.postingText));
        values[tKategorie] = oneLine(cell(roles.category));
        values[tUnterkategorie] = oneLine(cell(roles.subcategory));
        return values;
    }

    std::string dateValue(std::string_view cell, const BookingRow& row) const {
        if (!row.day)
            return {};
        return LibraryReading::readsDate(cell, *row.day, m_options.centuryWindow) ? std::string(cell)
                                                                                  : row.day->germanText();
    }

    static std::string amountValue(std::string_view cell, const Money& amount) {
        return !cell.empty() && LibraryReading::readsAmount(cell, amount) ? oneLine(cell) : amount.text();
    }

    /// Of the two sides of a booking the other one: who got the money, or who sent it.
    int payeeColumn(const ColumnRoles& roles, const Money& amount, std::size_t record) const {
        const bool out = amount.isNegative();
        for (const int column :
             {out ? roles.recipient : roles.payer, roles.counterparty, out ? roles.payer : roles.recipient}) {
            if (!TextTools::trim(m_table.cell(record, column)).empty())
                return column;
        }
        return -1;
    }

    static void takeSignsFromBalance(std::vector<BookingRow>& rows, bool newestFirst) {
        std::optional<std::size_t> before;
        const auto step = [&](std::size_t older, std::size_t newer) {
            const Money change = *rows[newer].balance - *rows[older].balance;
            rows[newer].amount =
                change.isNegative() ? rows[newer].amount->magnitude().negated() : rows[newer].amount->magnitude();
        };
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (rows[i].kind != BookingRow::Kind::booking || !rows[i].balance)
                continue;
            if (before)
                newestFirst ? step(i, *before) : step(*before, i);
            before = i;
        }
        // What was there before the oldest booking is not in the file, so its sign is not either.
        const auto booked = [](const BookingRow& row) { return row.kind == BookingRow::Kind::booking && row.balance; };
        const auto mark = [](BookingRow& row) {
            row.kind = row.amount->isZero() ? row.kind : BookingRow::Kind::noSign;
        };
        if (const auto oldest = std::find_if(rows.begin(), rows.end(), booked); !newestFirst && oldest != rows.end())
            mark(*oldest);
        if (const auto oldest = std::find_if(rows.rbegin(), rows.rend(), booked); newestFirst && oldest != rows.rend())
            mark(*oldest);
    }

    void writeHeader(std::size_t record) {
        m_result.header = true;
        const auto line = static_cast<std::size_t>(lineOf(record));
        if (!m_anew && m_table.record(record).plain) {
            m_out[line] = m_physical.lines[line];
            return;
        }
        std::string text;
        if (m_anew) {
            for (std::size_t i = 0; i < tCount; ++i) {
                if (m_used[i])
                    (text.empty() ? text : text += m_result.delimiter) += kFields[i];
            }
        } else {
            for (const std::string_view cell : m_table.cells(record)) {
                if (cell.data() != m_table.cells(record).front().data() || !text.empty())
                    text += m_result.delimiter;
                appendCell(text, oneLine(cell), m_result.delimiter);
            }
        }
        m_out[line] = std::move(text);
    }

    /// Writes the booking that was held back for lines that continue it.
    void flush() {
        if (!m_current)
            return;
        const auto current = std::exchange(m_current, std::nullopt);
        m_continued = 0;
        std::string text = m_anew ? lineAnew(*current) : lineChanged(*current);
        if (text.size() > static_cast<std::size_t>(LibraryReading::kMaxLineLength)) {
            m_tooLong = true;
            if (m_anew)
                say(current->record, "line-too-long", true,
                    "Die Buchung ist länger als " + std::to_string(LibraryReading::kMaxLineLength) +
                        " Zeichen. Bitte ihren Text in der Datei kürzen.");
            return;
        }
        m_out[static_cast<std::size_t>(lineOf(current->record))] = std::move(text);
    }

    struct Pending {
        std::size_t record;
        const TablePlan* plan;
        BookingRow row;
        Values values;
    };

    std::string lineAnew(const Pending& booking) const {
        std::string text;
        bool first = true;
        for (std::size_t i = 0; i < tCount; ++i) {
            if (!m_used[i])
                continue;
            if (!std::exchange(first, false))
                text += m_result.delimiter;
            appendCell(text, booking.values[i], m_result.delimiter);
        }
        return text;
    }

    /// The line as it is where no field that is read changes; otherwise its
    /// fields, the changed ones replaced.
    std::string lineChanged(const Pending& booking) const {
        const auto columns = carriers(booking.plan->roles);
        const auto& record = m_table.record(booking.record);
        bool same = record.plain && record.cellCount <= LibraryReading::kMaxColumns;
        for (std::size_t i = 0; i < tCount && same; ++i) {
            if (columns[i] >= 0)
                same = i == tVerwendungszweck || i == tEmpfaenger || i >= tBuchungstext
                           ? TextTools::trim(m_table.cell(booking.record, columns[i])) == booking.values[i]
                           : m_table.cell(booking.record, columns[i]) == booking.values[i];
        }
        if (same)
            return std::string(m_physical.lines[static_cast<std::size_t>(record.firstLine)]);

        std::string text;
        const int width = std::min(std::max(record.cellCount, *std::max_element(columns.begin(), columns.end()) + 1),
                                   LibraryReading::kMaxColumns);
        for (int column = 0; column < width; ++column) {
            if (column > 0)
                text += m_result.delimiter;
            const auto at = std::find(columns.begin(), columns.end(), column);
            if (at != columns.end())
                appendCell(text, booking.values[static_cast<std::size_t>(at - columns.begin())], m_result.delimiter);
            else
                appendCell(text, oneLine(m_table.cell(booking.record, column)), m_result.delimiter);
        }
        return text;
    }

    void assign() {
        const auto columns = carriers(m_file.plan.tables.front().roles);
        int next = 0;
        for (std::size_t i = 0; i < tCount; ++i) {
            if (m_anew ? m_used[i] : columns[i] >= 0)
                m_result.columns.push_back({m_anew ? next++ : columns[i], kFields[i]});
        }
    }

    void join() {
        std::size_t size = 0;
        for (const std::string& line : m_out)
            size += line.size() + 1;
        m_result.text.reserve(size);
        for (std::size_t i = 0; i < m_out.size(); ++i) {
            m_result.text += m_out[i];
            if (i + 1 < m_out.size() || m_physical.endsWithNewline)
                m_result.text += '\n';
        }
    }

    const DelimitedFile& m_file;
    const RecordTable& m_table;
    const PhysicalLines& m_physical;
    const InspectionOptions& m_options;
    bool m_anew; ///< lines hold the fields that are read, and no others
    std::array<bool, tCount> m_used{};
    std::vector<std::string> m_out;
    PreparedFile m_result;
    std::optional<Pending> m_current;
    mutable int m_continued = 0;
    bool m_tooLong = false;
};

/// Whether the fields must be written anew: tables of different layout, or a
/// column where the library does not look.
bool mustWriteAnew(const ImportPlan& plan) {
    if (plan.tables.size() > 1)
        return true;
    const auto columns = carriers(plan.tables.front().roles);
    return *std::max_element(columns.begin(), columns.end()) >= LibraryReading::kMaxColumns;
}

} // namespace

namespace DelimitedPreparation {

PreparedFile prepare(const DelimitedFile& file, const PhysicalLines& physical, const InspectionOptions& options) {
    if (file.plan.tables.empty()) {
        PreparedFile nothing;
        nothing.lines.assign(physical.lines.size(), LineUse::ignored);
        return nothing;
    }
    const bool anew = mustWriteAnew(file.plan);
    Preparer preparer(file, physical, options, anew);
    PreparedFile prepared = preparer.run();
    if (!anew && preparer.tooLong())
        return Preparer(file, physical, options, true).run();
    return prepared;
}

} // namespace DelimitedPreparation
