// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/DelimitedPreparation.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>

#include "intake/BookingFields.h"
#include "intake/LibraryReading.h"
#include "intake/MessageTexts.h"
#include "intake/PreparedLines.h"
#include "intake/TextTools.h"

namespace {

using Kind = BookingRow::Kind;

/// What becomes of a record that is no booking.
struct Verdict {
    Kind kind;
    MessageId message;
    LineUse use;
};
constexpr std::array<Verdict, 12> kVerdicts = {{
    {Kind::badDate, MessageId::badDate, LineUse::record},
    {Kind::wordForDate, MessageId::wordForDate, LineUse::record},
    {Kind::noDate, MessageId::dateMissing, LineUse::record},
    {Kind::badAmount, MessageId::badAmount, LineUse::record},
    {Kind::noAmount, MessageId::amountMissing, LineUse::record},
    {Kind::noSign, MessageId::signUnknown, LineUse::record},
    {Kind::tooManyFields, MessageId::tooManyFields, LineUse::record},
    {Kind::pending, MessageId::pending, LineUse::ignored},
    {Kind::failed, MessageId::notBooked, LineUse::ignored},
    {Kind::balance, MessageId::balanceLine, LineUse::ignored},
    {Kind::continuation, MessageId::notABooking, LineUse::ignored},
    {Kind::other, MessageId::notABooking, LineUse::ignored},
}};

/// Behind the last booking these are the end of a statement and need no word.
bool isFooter(Kind kind, bool behindGap) {
    switch (kind) {
    case Kind::balance:
    case Kind::continuation:
    case Kind::other:
    case Kind::wordForDate:
        return true;
    case Kind::noDate:
    case Kind::noAmount:
        return behindGap; // right below the bookings it may be one of them
    default:
        return false;
    }
}

bool isRecord(Kind kind) {
    return kind == Kind::booking || kind == Kind::pending || kind == Kind::failed || kind == Kind::noSign;
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

class Preparer {
public:
    /// `anew`: lines hold the fields that are read, and no others.
    Preparer(const DelimitedFile& file, const PhysicalLines& physical, const InspectionOptions& options, bool anew)
        : m_file(file), m_table(file.table), m_options(options), m_anew(anew), m_lines(physical) {
        m_result.lines.assign(physical.lines.size(), LineUse::blank);
        m_result.delimiter = file.plan.delimiter;
        for (const TablePlan& plan : file.plan.tables) {
            const auto columns = BookingFields::carriers(plan.roles);
            for (std::size_t i = 0; i < kBookingFieldCount; ++i)
                m_used[i] = m_used[i] || columns[i] >= 0;
        }
    }

    /// Whether a line is longer than the library reads, and may be shorter written anew.
    bool tooLong() const { return m_tooLong; }

    PreparedFile run() {
        std::size_t next = 0;
        for (std::size_t i = 0; i < m_file.plan.tables.size(); ++i) {
            const TablePlan& plan = m_file.plan.tables[i];
            const std::size_t top = plan.region.header.value_or(plan.region.begin);
            for (; next < top; ++next)
                use(next, i == 0 ? LineUse::preamble : LineUse::footer);
            writeTable(plan, m_file.rows[i], i == 0);
            next = plan.region.end;
        }
        for (; next < m_table.size(); ++next)
            use(next, LineUse::footer);
        assign();
        m_result.text = m_lines.text();
        return std::move(m_result);
    }

private:
    struct Current {
        std::size_t record;
        const TablePlan* plan;
        const BookingRow* row;
        std::string furtherPurpose; ///< from the lines below
        int nextLine;               ///< where such a line would stand
    };

    int lineOf(std::size_t record) const { return m_table.record(record).firstLine; }

    void use(std::size_t record, LineUse use) {
        const auto& r = m_table.record(record);
        const auto first = static_cast<std::size_t>(r.firstLine);
        for (std::size_t i = 0; i < static_cast<std::size_t>(r.lineCount); ++i)
            m_result.lines[first + i] =
                r.blank ? LineUse::blank : (i == 0 || use != LineUse::record ? use : LineUse::ignored);
    }

    void say(std::size_t record, MessageId id, std::string_view argument = {}) {
        m_result.messages.push_back(Messages::make(id, lineOf(record) + 1, {argument}));
        m_result.refused += m_result.messages.back().refusal ? 1 : 0;
    }

    /// The cell that a verdict is about.
    std::string subject(std::size_t record, const TablePlan& plan, Kind kind) const {
        const ColumnRoles& roles = plan.roles;
        int column = -1;
        if (kind == Kind::badDate || kind == Kind::wordForDate)
            column = roles.date;
        else if (kind == Kind::failed)
            column = roles.status;
        else if (roles.amount >= 0)
            column = roles.amount;
        else
            column = TextTools::trim(m_table.cell(record, roles.debit)).empty() ? roles.credit : roles.debit;
        return TextTools::toUtf8(BookingFields::oneLine(m_table.cell(record, column)));
    }

    void writeTable(const TablePlan& plan, const std::vector<BookingRow>& rows, bool first) {
        const TableRegion& region = plan.region;
        if (region.header) {
            use(*region.header, LineUse::header);
            if (first)
                writeHeader(*region.header, plan);
        }
        std::size_t end = rows.size(); // one behind the last booking
        while (end > 0 && !isRecord(rows[end - 1].kind))
            --end;
        bool gap = false;
        auto repeated = region.repeatedHeaders.begin();
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const std::size_t record = region.begin + i;
            if (repeated != region.repeatedHeaders.end() && *repeated == record) {
                use(record, LineUse::header);
                ++repeated;
                continue;
            }
            gap = i >= end && (gap || rows[i].kind == Kind::blank);
            if (i >= end && isFooter(rows[i].kind, gap) && !continues(record, rows[i].kind))
                use(record, LineUse::footer);
            else
                handle(record, rows[i], plan);
        }
        flush();
    }

    void handle(std::size_t record, const BookingRow& row, const TablePlan& plan) {
        const bool undated = m_options.allowUndated && row.amount &&
                             (row.kind == Kind::badDate || row.kind == Kind::noDate || row.kind == Kind::wordForDate);
        if (row.kind == Kind::booking || undated) {
            flush();
            use(record, LineUse::record);
            const auto& r = m_table.record(record);
            m_current = Current{record, &plan, &row, {}, r.firstLine + r.lineCount};
            return;
        }
        if (row.kind == Kind::blank)
            return;
        if (continues(record, row.kind)) {
            use(record, LineUse::ignored);
            if (plan.roles.postingTextInPurpose)
                BookingFields::appendPart(m_current->furtherPurpose, m_table.cell(record, plan.roles.postingText));
            for (const int column : plan.roles.purpose)
                BookingFields::appendPart(m_current->furtherPurpose, m_table.cell(record, column));
            m_current->nextLine += m_table.record(record).lineCount;
            return;
        }
        flush();
        const auto* verdict =
            std::find_if(kVerdicts.begin(), kVerdicts.end(), [&](const Verdict& v) { return v.kind == row.kind; });
        use(record, verdict->use);
        say(record, verdict->message, subject(record, plan, row.kind));
    }

    /// A line of text continues the booking right above it, not one further up.
    bool continues(std::size_t record, Kind kind) const {
        return kind == Kind::continuation && m_current && lineOf(record) == m_current->nextLine;
    }

    void writeHeader(std::size_t record, const TablePlan& plan) {
        m_result.header = true;
        const int line = lineOf(record);
        std::string text;
        if (m_anew) {
            for (std::size_t i = 0; i < kBookingFieldCount; ++i) {
                if (m_used[i])
                    (text.empty() ? text : text += m_result.delimiter) += BookingFields::kNames[i];
            }
        } else if (canKeep(record)) {
            m_lines.keep(line);
            return;
        } else {
            const int width = std::min(plan.roles.width, LibraryReading::kMaxColumns);
            for (int column = 0; column < width; ++column) {
                if (column > 0)
                    text += m_result.delimiter;
                appendCell(text, BookingFields::oneLine(m_table.cell(record, column)), m_result.delimiter);
            }
        }
        m_lines.write(line, std::move(text));
    }

    /// Whether the library splits the line as we do, and reads all of it.
    bool canKeep(std::size_t record) const {
        const auto& r = m_table.record(record);
        return LibraryReading::splitsLine(r, m_lines.original(r.firstLine));
    }

    /// Writes the booking that was held back for lines that continue it.
    void flush() {
        if (!m_current)
            return;
        const Current current = *std::exchange(m_current, std::nullopt);
        const int line = lineOf(current.record);
        if (!m_anew && current.furtherPurpose.empty() && canKeep(current.record) &&
            BookingFields::readsRight(m_table, current.record, *current.row, *current.plan)) {
            m_lines.keep(line);
            return;
        }
        auto values = BookingFields::of(m_table, current.record, *current.row, *current.plan);
        BookingFields::appendPart(values[static_cast<std::size_t>(BookingField::purpose)], current.furtherPurpose);
        std::string text = m_anew ? lineAnew(values) : lineChanged(current, values);
        if (text.size() <= static_cast<std::size_t>(LibraryReading::kMaxLineLength)) {
            m_lines.write(line, std::move(text));
            return;
        }
        m_tooLong = true;
        if (m_anew)
            say(current.record, MessageId::bookingTooLong, std::to_string(LibraryReading::kMaxLineLength));
    }

    std::string lineAnew(const BookingFields::PerField<std::string>& values) const {
        std::string text;
        bool first = true;
        for (std::size_t i = 0; i < kBookingFieldCount; ++i) {
            if (!m_used[i])
                continue;
            if (!std::exchange(first, false))
                text += m_result.delimiter;
            appendCell(text, values[i], m_result.delimiter);
        }
        return text;
    }

    /// The fields of the line, those that are read replaced by their values.
    std::string lineChanged(const Current& booking, const BookingFields::PerField<std::string>& values) const {
        const ColumnRoles& roles = booking.plan->roles;
        const auto columns = BookingFields::carriers(roles);
        const int cellCount = m_table.record(booking.record).cellCount;
        const int width = std::min(std::max(roles.overflowIsPurpose ? std::min(cellCount, roles.width) : cellCount,
                                            *std::max_element(columns.begin(), columns.end()) + 1),
                                   LibraryReading::kMaxColumns);
        std::string text;
        for (int column = 0; column < width; ++column) {
            if (column > 0)
                text += m_result.delimiter;
            const auto* const at = std::find(columns.begin(), columns.end(), column);
            if (at != columns.end())
                appendCell(text, values[static_cast<std::size_t>(at - columns.begin())], m_result.delimiter);
            else if (!BookingFields::isUsedUp(roles, column))
                appendCell(text, BookingFields::oneLine(m_table.cell(booking.record, column)), m_result.delimiter);
        }
        return text;
    }

    void assign() {
        const auto columns = BookingFields::carriers(m_file.plan.tables.front().roles);
        int next = 0;
        for (std::size_t i = 0; i < kBookingFieldCount; ++i) {
            if (m_anew ? m_used[i] : columns[i] >= 0)
                m_result.columns.push_back({m_anew ? next++ : columns[i], BookingFields::kNames[i]});
        }
    }

    const DelimitedFile& m_file;
    const RecordTable& m_table;
    const InspectionOptions& m_options;
    bool m_anew;
    std::array<bool, kBookingFieldCount> m_used{};
    PreparedLines m_lines;
    PreparedFile m_result;
    std::optional<Current> m_current;
    bool m_tooLong = false;
};

/// Whether the fields must be written anew: tables of different layout, or a
/// column where the library does not look.
bool mustWriteAnew(const ImportPlan& plan) {
    if (plan.tables.size() > 1)
        return true;
    const auto columns = BookingFields::carriers(plan.tables.front().roles);
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
