// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/QifPreparation.h"

#include <algorithm>
#include <optional>
#include <string>

#include "intake/LibraryReading.h"
#include "intake/MessageTexts.h"
#include "intake/PreparedLines.h"
#include "intake/QifFields.h"
#include "intake/QifFile.h"
#include "intake/QifForms.h"
#include "intake/TextTools.h"

namespace {

constexpr double kOrderByContextDoubt = 0.1;
constexpr double kUnknownSectionDoubt = 0.2;
constexpr double kUnreadableDoubt = 0.5; // times the share of records

using Kind = QifFile::Kind;

bool isAmountLetter(char letter) { return letter == 'T' || letter == 'U'; }

/// Letters whose line the library takes from the record's last one of them.
bool isTaken(char letter) { return std::string_view("DTUPMNLYQIO").find(letter) != std::string_view::npos; }

class Preparer {
public:
    Preparer(const PhysicalLines& physical, const InspectionOptions& options)
        : m_physical(physical), m_options(options), m_qif(QifFile::read(physical.lines)), m_lines(physical) {
        m_result.file.lines.assign(physical.lines.size(), LineUse::ignored);
    }

    PreparedQif run() {
        adoptUnknownSections();
        for (const QifFile::Record& record : m_qif.records)
            m_result.found += isWanted(record) ? 1 : 0;
        m_forms.emplace(m_qif, m_physical, m_options);
        m_result.reasons = m_forms->reasons();
        m_result.undecided = m_forms->undecided();
        if (m_result.undecided)
            return std::move(m_result);
        m_doubt += m_forms->orderIsGuessed() ? kOrderByContextDoubt : 0.0;
        markLines();
        for (const QifFile::Record& record : m_qif.records)
            handle(record);
        finish();
        return std::move(m_result);
    }

private:
    static bool isWanted(Kind kind) { return kind == Kind::booking || kind == Kind::category; }

    /// The library keeps a category for its budget alone.
    bool isWanted(const QifFile::Record& record) const {
        const Kind kind = m_qif.kindOf(record);
        return kind == Kind::category ? QifFields(m_physical, record).first('B') != nullptr : isWanted(kind);
    }

    LineUse& use(int line) { return m_result.file.lines[static_cast<std::size_t>(line)]; }
    std::string_view content(int line) const { return TextTools::trim(m_lines.original(line)); }

    void say(MessageId id, int line, std::initializer_list<std::string_view> arguments = {}) {
        m_result.file.messages.push_back(Messages::make(id, line + 1, arguments));
        m_result.file.refused += m_result.file.messages.back().refusal ? 1 : 0;
    }

    /// A section of a name that nobody knows, whose records have date and amount, is an account.
    void adoptUnknownSections() {
        for (const QifFile::Record& record : m_qif.records) {
            QifFile::Section& section = m_qif.sections[record.section];
            if (section.kind != Kind::unknown)
                continue;
            const QifFields fields(m_physical, record);
            const QifField* date = fields.first('D');
            const QifField* amount = fields.first('T');
            if (date == nullptr || amount == nullptr || !DateCells::read(date->text) || amount->text.empty())
                continue;
            say(MessageId::qifAdoptedSection, section.headerLine, {TextTools::toUtf8(section.header)});
            section.kind = Kind::booking;
            section.header = "!Type:Bank";
            section.spelledRight = false;
            m_doubt += kUnknownSectionDoubt;
        }
    }

    void markLines() {
        for (int line = 0; line < m_lines.count(); ++line) {
            if (content(line).empty())
                use(line) = LineUse::blank;
            else if (line < m_qif.linesBeforeFirstSection)
                use(line) = LineUse::preamble;
        }
        for (const QifFile::Section& section : m_qif.sections) {
            use(section.headerLine) = isWanted(section.kind) ? LineUse::header : LineUse::ignored;
            if (section.kind == Kind::unknown)
                say(MessageId::qifUnknownSection, section.headerLine, {TextTools::toUtf8(section.header)});
            if (!isWanted(section.kind))
                continue;
            if (section.spelledRight &&
                LibraryReading::strippedLine(m_lines.original(section.headerLine)) == section.header)
                m_lines.keep(section.headerLine);
            else
                m_lines.write(section.headerLine, section.header);
        }
    }

    void handle(const QifFile::Record& record) {
        if (!isWanted(record))
            return;
        for (int line = record.firstLine; line < record.firstLine + record.lineCount; ++line) {
            if (use(line) != LineUse::blank)
                use(line) = LineUse::record;
        }
        const QifFields fields(m_physical, record);
        if (!check(record, fields))
            return;
        for (const QifField& field : fields)
            write(field, fields, m_qif.kindOf(record));
        if (!record.closed)
            close(record);
    }

    /// Whether the library can take the record; says why where it cannot.
    bool check(const QifFile::Record& record, const QifFields& fields) {
        const std::string first = std::to_string(record.firstLine + 1);
        const auto refuse = [&](MessageId id, int line, const std::string& what) {
            say(id, line, {what, first});
            return false;
        };
        for (const QifField& field : fields) {
            if (m_lines.original(field.line).size() > static_cast<std::size_t>(LibraryReading::kMaxLineLength))
                return refuse(MessageId::qifLineTooLong, field.line, std::to_string(LibraryReading::kMaxLineLength));
            if (m_qif.kindOf(record) != Kind::booking || fields.first(field.letter) != &field)
                continue;
            if (field.letter == 'D' && !m_forms->day(field.text))
                return refuse(MessageId::qifBadDate, field.line, TextTools::toUtf8(field.text));
            if (isAmountLetter(field.letter) && !field.text.empty() && !m_forms->amount(field.text))
                return refuse(MessageId::qifBadAmount, field.line, TextTools::toUtf8(field.text));
        }
        return record.closed || canClose(record) || refuse(MessageId::qifNotClosed, record.firstLine, {});
    }

    void write(const QifField& field, const QifFields& fields, Kind kind) {
        std::string line;
        if (kind == Kind::booking && isTaken(field.letter)) {
            if (isRepeated(field, fields))
                return;
            line = rewritten(field, fields);
        } else if (kind == Kind::category && field.letter == 'B') {
            line = amountLine(field);
        }
        if (line.empty() && !beginsWithLetter(field))
            line = field.letter + std::string(field.text);
        if (line.empty())
            m_lines.keep(field.line);
        else
            m_lines.write(field.line, std::move(line));
    }

    /// Whether the library sees the letter, too: it strips less from a line's ends.
    bool beginsWithLetter(const QifField& field) const {
        const std::string_view line = m_lines.original(field.line);
        return line.front() == field.letter || LibraryReading::strippedLine(line).front() == field.letter;
    }

    /// The library takes the last of several lines of a letter; the record's own
    /// is the first, or the "T" line beside a "U" line. Texts go on in it.
    bool isRepeated(const QifField& field, const QifFields& fields) {
        const QifField* own = isAmountLetter(field.letter) ? fields.amount() : fields.first(field.letter);
        if (own == nullptr || own == &field)
            return false;
        if (own->text != field.text && !isJoined(field.letter))
            say(MessageId::qifFieldRepeated, field.line, {std::string_view(&field.letter, 1)});
        return own->text != field.text || isJoined(field.letter);
    }

    static bool isJoined(char letter) { return letter == 'M' || letter == 'P'; }

    /// The line as the library reads it right; empty where it does as it stands.
    std::string rewritten(const QifField& field, const QifFields& fields) const {
        if (field.letter == 'D')
            return m_forms->libraryReadsDate(field.text) ? "" : "D" + m_forms->day(field.text)->germanText();
        if (isAmountLetter(field.letter))
            return amountLine(field);
        if (!isJoined(field.letter))
            return {};
        std::string text(field.text);
        bool joined = false;
        for (const QifField& other : fields) {
            if (other.letter != field.letter || &other == &field || other.text.empty())
                continue;
            text += ' ';
            text += other.text;
            joined = true;
        }
        return joined && text.size() < static_cast<std::size_t>(LibraryReading::kMaxLineLength) ? field.letter + text
                                                                                                : std::string();
    }

    std::string amountLine(const QifField& field) const {
        const auto amount = m_forms->amount(field.text);
        return amount && !LibraryReading::readsAmount(field.text, *amount) ? field.letter + amount->text()
                                                                           : std::string();
    }

    /// The last record of the file can get its "^" behind it; one in the middle
    /// only where an empty line follows.
    bool canClose(const QifFile::Record& record) const {
        const int next = record.firstLine + record.lineCount;
        return next >= static_cast<int>(m_physical.lines.size()) || content(next).empty();
    }

    void close(const QifFile::Record& record) {
        const int next = record.firstLine + record.lineCount;
        if (next < static_cast<int>(m_physical.lines.size()))
            m_lines.write(next, "^");
        else
            m_lines.append("^");
        say(MessageId::qifClosed, record.firstLine);
    }

    void finish() {
        m_result.file.text = m_lines.text();
        if (m_result.found > 0)
            m_doubt += kUnreadableDoubt * m_result.file.refused / m_result.found;
        m_result.confidence = m_result.found > 0 ? std::max(0.0, 1.0 - m_doubt) : 0.0;
    }

    const PhysicalLines& m_physical;
    const InspectionOptions& m_options;
    QifFile m_qif;
    PreparedLines m_lines;
    std::optional<QifForms> m_forms;
    PreparedQif m_result;
    double m_doubt = 0.0;
};

} // namespace

namespace QifPreparation {

PreparedQif prepare(const PhysicalLines& physical, const InspectionOptions& options) {
    return Preparer(physical, options).run();
}

} // namespace QifPreparation
