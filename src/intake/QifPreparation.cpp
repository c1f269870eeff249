// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/QifPreparation.h"

#include <algorithm>
#include <optional>
#include <string>

#include "intake/DateOrderDecision.h"
#include "intake/DecimalMarkDecision.h"
#include "intake/LibraryReading.h"
#include "intake/QifFile.h"
#include "intake/TextTools.h"

namespace {

constexpr double kOrderByContextDoubt = 0.1;
constexpr double kUnknownSectionDoubt = 0.2;
constexpr double kUnreadableDoubt = 0.5;

class Preparer {
public:
    Preparer(const PhysicalLines& physical, const InspectionOptions& options)
        : m_physical(physical), m_options(options), m_qif(QifFile::read(physical.lines)) {
        m_out.assign(physical.lines.begin(), physical.lines.end());
        m_result.file.lines.assign(physical.lines.size(), LineUse::ignored);
    }

    PreparedQif run() {
        adoptUnknownSections();
        for (const QifFile::Record& record : m_qif.records) {
            if (kind(record) == QifFile::Kind::booking || kind(record) == QifFile::Kind::category)
                ++m_result.found;
        }
        if (!decideForms())
            return std::move(m_result);
        markLines();
        for (const QifFile::Record& record : m_qif.records)
            handle(record);
        finish();
        return std::move(m_result);
    }

private:
    QifFile::Kind kind(const QifFile::Record& record) const { return m_qif.sections[record.section].kind; }
    std::string_view line(int number) const {
        return TextTools::trim(m_physical.lines[static_cast<std::size_t>(number)]);
    }
    std::string& out(int number) { return m_out[static_cast<std::size_t>(number)]; }
    LineUse& use(int number) { return m_result.file.lines[static_cast<std::size_t>(number)]; }
    static bool isAmountLetter(char letter) { return letter == 'T' || letter == 'U'; }

    template <typename Action>
    void forEachLine(const QifFile::Record& record, Action action) const {
        for (int number = record.firstLine; number < record.firstLine + record.lineCount; ++number) {
            if (!line(number).empty())
                action(number, line(number).front(), line(number).substr(1));
        }
    }

    std::string_view value(const QifFile::Record& record, char letter) const {
        std::string_view found;
        forEachLine(record, [&](int, char l, std::string_view text) { found = l == letter ? text : found; });
        return TextTools::trim(found);
    }

    void say(int number, const char* code, bool refusal, const std::string& text) {
        m_result.file.messages.push_back(
            {number + 1, code, "Zeile " + std::to_string(number + 1) + ": " + text, refusal});
        m_result.file.refused += refusal ? 1 : 0;
    }

    /// A section of a name that nobody knows, whose records have date and amount, is an account.
    void adoptUnknownSections() {
        for (const QifFile::Record& record : m_qif.records) {
            QifFile::Section& section = m_qif.sections[record.section];
            if (section.kind != QifFile::Kind::unknown || !DateCells::read(value(record, 'D')) ||
                value(record, 'T').empty())
                continue;
            say(section.headerLine, "unknown-section", false,
                "Der Abschnitt „" + TextTools::toUtf8(section.header) +
                    "“ ist unbekannt; seine Buchungen werden wie die eines Bankkontos gelesen.");
            section.kind = QifFile::Kind::booking;
            section.header = "!Type:Bank";
            section.spelledRight = false;
            m_doubt += kUnknownSectionDoubt;
        }
    }

    /// Date order and decimal mark, found as in any other table: one line a record.
    bool decideForms() {
        std::vector<std::string> rows;
        std::vector<int> lineOfRow;
        for (const QifFile::Record& record : m_qif.records) {
            if (kind(record) != QifFile::Kind::booking)
                continue;
            const std::string_view amount = value(record, 'T').empty() ? value(record, 'U') : value(record, 'T');
            rows.push_back(std::string(value(record, 'D')) + '\t' + std::string(amount));
            lineOfRow.push_back(record.firstLine + 1);
        }
        const std::vector<std::string_view> views(rows.begin(), rows.end());
        const RecordTable table = RecordTable::read(views, '\t', views.size());
        TablePlan plan;
        plan.region.end = table.size();
        plan.roles.date = 0;
        plan.roles.amount = 1;
        plan.roles.width = 2;

        const DecimalMarkDecision mark = DecimalMarks::decide(table, plan);
        m_mark = m_options.decimalMark ? m_options.decimalMark : mark.mark;
        if (!m_mark && !mark.example.empty())
            return undecided(
                lineOfRow[static_cast<std::size_t>(mark.exampleLine) - 1], "decimal-mark-ambiguous",
                "Der Betrag „" + TextTools::toUtf8(mark.example) +
                    "“ lässt sich auf zwei Arten lesen. Bitte mit --decimal , oder --decimal . festlegen.");
        plan.decimalMark = m_mark.value_or('.');
        if (mark.mark && !m_options.decimalMark)
            tell(mark.reason, lineOfRow);

        const DateOrderDecision order = DateOrders::decide(table, plan, m_options.centuryWindow);
        m_order = m_options.dateOrder ? m_options.dateOrder : order.order;
        if (!m_order && !order.example.empty())
            return undecided(
                lineOfRow[static_cast<std::size_t>(order.exampleLine) - 1], "date-order-ambiguous",
                "Beim Datum „" + TextTools::toUtf8(order.example) +
                    "“ ist nicht zu erkennen, ob Tag oder Monat vorn steht. Bitte mit --date-order dmy, mdy "
                    "oder ymd festlegen.");
        if (order.order && !m_options.dateOrder) {
            tell(order.reason, lineOfRow);
            m_doubt += order.proven ? 0.0 : kOrderByContextDoubt;
        }
        m_libraryLearnsOrder = order.proven && m_order == DateOrder::monthDayYear && provesMonthFirst(table);
        return true;
    }

    void tell(Reason reason, const std::vector<int>& lineOfRow) {
        if (reason.line > 0)
            reason.line = lineOfRow[static_cast<std::size_t>(reason.line) - 1];
        reason.column = -1;
        m_result.reasons.push_back(std::move(reason));
    }

    bool undecided(int number, const char* code, const std::string& text) {
        m_result.undecided = IntakeMessage{number, code, "Zeile " + std::to_string(number) + ": " + text, false};
        return false;
    }

    /// Whether the library finds out by itself that the month comes first: every
    /// date is in the one form, and one of them has a day above twelve.
    bool provesMonthFirst(const RecordTable& table) const {
        bool proven = false;
        for (std::size_t i = 0; i < table.size(); ++i) {
            const auto date = DateCells::read(table.cell(i, 0));
            if (!date)
                continue;
            if (date->form != DateCell::Form::numbers || date->time || date->numbers[0] > 12)
                return false;
            proven = proven || date->numbers[1] > 12;
        }
        return proven;
    }

    void markLines() {
        for (int i = 0; i < static_cast<int>(m_out.size()); ++i) {
            if (line(i).empty())
                use(i) = LineUse::blank;
            else if (i < m_qif.linesBeforeFirstSection)
                use(i) = LineUse::preamble;
            if (use(i) == LineUse::preamble)
                out(i).clear();
        }
        for (const QifFile::Section& section : m_qif.sections) {
            const bool wanted = section.kind == QifFile::Kind::booking || section.kind == QifFile::Kind::category;
            use(section.headerLine) = wanted ? LineUse::header : LineUse::ignored;
            if (!wanted)
                out(section.headerLine).clear();
            else if (!section.spelledRight)
                out(section.headerLine) = section.header;
            if (section.kind == QifFile::Kind::unknown)
                say(section.headerLine, "unknown-section", false,
                    "Der Abschnitt „" + TextTools::toUtf8(section.header) + "“ ist unbekannt und wird übergangen.");
        }
        for (const int stray : m_qif.strayEnds)
            out(stray).clear();
    }

    void clear(const QifFile::Record& record) {
        for (int i = record.firstLine; i < record.firstLine + record.lineCount; ++i)
            out(i).clear();
    }

    void handle(const QifFile::Record& record) {
        if (kind(record) == QifFile::Kind::skipped || kind(record) == QifFile::Kind::unknown) {
            clear(record);
            return;
        }
        use(record.firstLine) = LineUse::record;
        if (!check(record)) {
            clear(record);
            return;
        }
        forEachLine(record, [&](int number, char letter, std::string_view text) {
            if (kind(record) == QifFile::Kind::booking && letter == 'D')
                rewriteDate(number, TextTools::trim(text));
            else if (isAmountLetter(letter) ? kind(record) == QifFile::Kind::booking : letter == 'B')
                rewriteAmount(number, letter, TextTools::trim(text));
            std::replace(out(number).begin(), out(number).end(), '\0', ' ');
        });
        if (!record.closed)
            close(record);
    }

    /// Whether the library can take the record; says why where it cannot.
    bool check(const QifFile::Record& record) {
        bool good = true;
        const auto refuse = [&](int number, const char* code, const std::string& text) {
            if (good)
                say(number, code, true,
                    text + " Der Datensatz ab Zeile " + std::to_string(record.firstLine + 1) +
                        " wird nicht übernommen.");
            good = false;
        };
        forEachLine(record, [&](int number, char letter, std::string_view raw) {
            const std::string_view text = TextTools::trim(raw);
            if (raw.size() + 1 > static_cast<std::size_t>(LibraryReading::kMaxLineLength))
                refuse(number, "line-too-long",
                       "Die Zeile ist länger als " + std::to_string(LibraryReading::kMaxLineLength) + " Zeichen.");
            if (kind(record) != QifFile::Kind::booking)
                return;
            if (letter == 'D' && !dayOf(text))
                refuse(number, "bad-date", "Das Datum „" + TextTools::toUtf8(text) + "“ ist nicht lesbar.");
            if (isAmountLetter(letter) && !text.empty() && !AmountCells::read(text, m_mark.value_or('.')))
                refuse(number, "bad-amount", "Der Betrag „" + TextTools::toUtf8(text) + "“ ist nicht lesbar.");
        });
        if (good && !record.closed && !canClose(record))
            refuse(record.firstLine, "record-not-closed", "Dem Datensatz fehlt die Endzeile „^“.");
        return good;
    }

    std::optional<Day> dayOf(std::string_view text) const {
        const auto date = DateCells::read(text);
        return date && m_order ? date->day(*m_order, m_options.centuryWindow) : std::nullopt;
    }

    void rewriteDate(int number, std::string_view text) {
        const auto date = DateCells::read(text);
        const Day day = *dayOf(text);
        const bool dayFirst =
            m_order == DateOrder::dayMonthYear && date->form == DateCell::Form::numbers && !date->time;
        if (!dayFirst && !m_libraryLearnsOrder)
            out(number) = "D" + day.germanText();
    }

    void rewriteAmount(int number, char letter, std::string_view text) {
        const auto amount = AmountCells::read(text, m_mark.value_or('.'));
        if (amount && !LibraryReading::readsAmount(text, amount->value()))
            out(number) = letter + amount->value().text();
    }

    /// The last record of the file can get its "^" behind it; one in the middle
    /// only where an empty line follows.
    bool canClose(const QifFile::Record& record) const {
        const int next = record.firstLine + record.lineCount;
        return next >= static_cast<int>(m_out.size()) || line(next).empty();
    }

    void close(const QifFile::Record& record) {
        const int next = record.firstLine + record.lineCount;
        if (next < static_cast<int>(m_out.size()))
            out(next) = "^";
        else
            m_closingLine = true;
        say(record.firstLine, "record-closed", false,
            "Dem letzten Datensatz fehlte die Endzeile „^“; er wird trotzdem übernommen.");
    }

    void finish() {
        std::string& text = m_result.file.text;
        for (std::size_t i = 0; i < m_out.size(); ++i) {
            text += m_out[i];
            if (i + 1 < m_out.size() || m_physical.endsWithNewline || m_closingLine)
                text += '\n';
        }
        if (m_closingLine)
            text += "^\n";
        if (m_result.found > 0)
            m_doubt += kUnreadableDoubt * m_result.file.refused / m_result.found;
        m_result.confidence = m_result.found > 0 ? std::max(0.0, 1.0 - m_doubt) : 0.0;
        std::stable_sort(m_result.file.messages.begin(), m_result.file.messages.end(),
                         [](const IntakeMessage& a, const IntakeMessage& b) { return a.line < b.line; });
    }

    const PhysicalLines& m_physical;
    const InspectionOptions& m_options;
    QifFile m_qif;
    std::vector<std::string> m_out;
    PreparedQif m_result;
    std::optional<char> m_mark;
    std::optional<DateOrder> m_order;
    bool m_libraryLearnsOrder = false;
    bool m_closingLine = false;
    double m_doubt = 0.0;
};

} // namespace

namespace QifPreparation {

PreparedQif prepare(const PhysicalLines& physical, const InspectionOptions& options) {
    return Preparer(physical, options).run();
}

} // namespace QifPreparation
