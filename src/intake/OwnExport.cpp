// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/OwnExport.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

#include "export/CsvLayout.h"
#include "intake/Dates.h"
#include "intake/LibraryReading.h"
#include "intake/MessageTexts.h"
#include "intake/Money.h"
#include "intake/PreparedLines.h"
#include "intake/StrictCells.h"
#include "intake/TextTools.h"

static_assert(OwnExport::kDecimalMark == CsvLayout::kDecimalMark);

namespace {

using Columns = std::span<const CsvLayout::Column>;

/// So much of each text is in a line that would be too long otherwise: five of
/// them, each of their characters doubled, leave room for date and amount.
constexpr std::size_t kShortText = 320;

bool isDate(std::string_view field) { return field == "Datum"; }
bool isAmount(std::string_view field) { return field == "Betrag"; }

std::optional<Columns> layoutOf(const std::vector<std::string>& header) {
    const auto fits = [&](Columns columns) {
        return std::equal(header.begin(), header.end(), columns.begin(), columns.end(),
                          [](const std::string& name, const CsvLayout::Column& column) { return name == column.name; });
    };
    for (const Columns columns : {Columns(CsvLayout::kRecordColumns), Columns(CsvLayout::kBookingColumns)}) {
        if (fits(columns))
            return columns;
    }
    return std::nullopt;
}

bool saysOtherwise(const InspectionOptions& options) {
    return options.delimiter || options.header || options.dateOrder || options.decimalMark || options.columns;
}

/// "-12,5": as it is written, and as the library reads any number of digits right.
bool isWrittenAmount(std::string_view cell) {
    if (!cell.empty() && cell.front() == '-')
        cell.remove_prefix(1);
    const std::size_t mark = std::min(cell.find(CsvLayout::kDecimalMark), cell.size());
    const auto isNumber = [](std::string_view digits) {
        return !digits.empty() && std::all_of(digits.begin(), digits.end(), TextTools::isDigit);
    };
    return isNumber(cell.substr(0, mark)) && (mark == cell.size() || isNumber(cell.substr(mark + 1)));
}

/// dd.mm.yyyy, of whatever year.
bool isWrittenDay(std::string_view cell) {
    if (cell.size() != 10 || cell[2] != '.' || cell[5] != '.')
        return false;
    const auto number = [&](std::size_t from, std::size_t count) {
        int value = 0;
        for (const char c : cell.substr(from, count)) {
            if (!TextTools::isDigit(c))
                return 0; // no day, no month and no year
            value = value * 10 + (c - '0');
        }
        return value;
    };
    return Day{number(6, 4), number(3, 2), number(0, 2)}.exists();
}

void appendCell(std::string& line, std::string_view text) {
    if (text.find(CsvLayout::kDelimiter) == std::string_view::npos && text.find('"') == std::string_view::npos) {
        line += text;
        return;
    }
    line += '"';
    for (const char c : text)
        line.append(c == '"' ? 2 : 1, c);
    line += '"';
}

class Preparer {
public:
    Preparer(const PhysicalLines& physical, Columns columns, const InspectionOptions& options)
        : m_columns(columns), m_options(options), m_lines(physical) {
        // The amount comes last: a record without one gets a line without that cell.
        for (const bool last : {false, true}) {
            for (std::size_t i = 0; i < columns.size(); ++i) {
                if (columns[i].field != nullptr && isAmount(columns[i].field) == last)
                    m_used.push_back(i);
            }
        }
        m_own.prepared.lines.assign(physical.lines.size(), LineUse::ignored);
    }

    OwnExport run(StrictCells& cells) {
        writeHeader();
        while (!m_own.undecided && cells.next()) {
            LineUse& use = m_own.prepared.lines[static_cast<std::size_t>(cells.firstLine())];
            if (cells.cells().size() == 1 && TextTools::trim(cells.cells().front()).empty()) {
                use = LineUse::blank;
            } else if (cells.cells().size() != m_columns.size()) {
                refuseFile(cells);
            } else {
                use = LineUse::record;
                writeRecord(cells);
            }
        }
        if (cells.isDamaged())
            refuseFile(cells);
        m_own.prepared.text = m_lines.text();
        return std::move(m_own);
    }

private:
    void writeHeader() {
        PreparedFile& prepared = m_own.prepared;
        prepared.delimiter = CsvLayout::kDelimiter;
        prepared.header = true;
        prepared.lines.front() = LineUse::header;
        std::string line;
        for (std::size_t i = 0; i < m_used.size(); ++i) {
            const CsvLayout::Column& column = m_columns[m_used[i]];
            prepared.columns.push_back({static_cast<int>(i), column.field});
            m_own.columns[column.field] = {static_cast<int>(m_used[i])};
            (i == 0 ? line : line += CsvLayout::kDelimiter) += column.name;
        }
        m_lines.write(0, std::move(line));
        for (const CsvLayout::Column& column : m_columns)
            m_own.headerNames.emplace_back(column.name);
    }

    void refuseFile(const StrictCells& cells) {
        m_own.undecided = Messages::make(MessageId::ownExportDamaged, cells.firstLine() + 1);
    }

    void refuseRecord(const StrictCells& cells, MessageId id, std::string_view cell) {
        m_own.prepared.messages.push_back(Messages::make(id, cells.firstLine() + 1, {TextTools::toUtf8(cell)}));
        ++m_own.prepared.refused;
    }

    void writeRecord(const StrictCells& cells) {
        std::vector<std::string> values;
        for (const std::size_t column : m_used) {
            const char* field = m_columns[column].field;
            std::string value = cells.cells()[column];
            std::replace(value.begin(), value.end(), '\0', ' ');
            if (isDate(field) && !readDate(value)) {
                refuseRecord(cells, MessageId::badDate, value);
                return;
            }
            if (isAmount(field) && !readAmount(value)) {
                refuseRecord(cells, MessageId::badAmount, value);
                return;
            }
            if (!isDate(field) && !isAmount(field))
                value = CsvLayout::withoutGuard(value);
            values.push_back(std::move(value));
        }
        writeValues(cells.firstLine(), values);
    }

    /// An empty cell is no date. A person may have written another form than we do.
    bool readDate(std::string& value) const {
        if (isWrittenDay(value))
            return true;
        const auto cell = DateCells::read(value);
        std::optional<Day> day;
        for (const DateOrder order : {DateOrder::dayMonthYear, DateOrder::yearMonthDay})
            day = day || !cell ? day : cell->day(order, m_options.centuryWindow);
        if (!day && !m_options.allowUndated && !TextTools::trim(value).empty())
            return false;
        value = day ? day->germanText() : std::string();
        return true;
    }

    static bool readAmount(std::string& value) {
        if (isWrittenAmount(value))
            return true;
        if (TextTools::trim(value).empty()) {
            value.clear();
            return true;
        }
        const auto cell = AmountCells::read(value, CsvLayout::kDecimalMark);
        if (!cell)
            return false;
        value = cell->value().text();
        return true;
    }

    std::string lineOf(const std::vector<std::string>& values, std::size_t longestText) const {
        std::string line;
        for (std::size_t i = 0; i < values.size(); ++i) {
            if (i + 1 == values.size() && values[i].empty())
                break; // no amount
            if (i > 0)
                line += CsvLayout::kDelimiter;
            std::string text = values[i];
            if (isText(i)) {
                text.resize(std::min(text.size(), longestText));
                std::replace(text.begin(), text.end(), '\n', ' ');
            }
            appendCell(line, text);
        }
        return line;
    }

    bool isText(std::size_t used) const {
        const char* field = m_columns[m_used[used]].field;
        return !isDate(field) && !isAmount(field);
    }

    void writeValues(int number, std::vector<std::string>& values) {
        constexpr std::size_t kAll = std::string::npos;
        std::string line = lineOf(values, kAll);
        const bool tooLong = line.size() > static_cast<std::size_t>(LibraryReading::kMaxLineLength);
        if (tooLong)
            line = lineOf(values, kShortText);
        for (std::size_t i = 0; i < values.size(); ++i) {
            const bool isShortened = tooLong && values[i].size() > kShortText;
            if (isText(i) && (isShortened || values[i].find('\n') != std::string::npos))
                m_own.prepared.fullTexts.push_back({number + 1, m_columns[m_used[i]].field, std::move(values[i])});
        }
        m_lines.write(number, std::move(line));
    }

    Columns m_columns;
    const InspectionOptions& m_options;
    std::vector<std::size_t> m_used; ///< columns that feed a field, as they stand in the prepared lines
    PreparedLines m_lines;
    OwnExport m_own;
};

} // namespace

std::optional<OwnExport> OwnExport::read(std::string_view text, const PhysicalLines& physical,
                                         const InspectionOptions& options) {
    StrictCells cells(text, CsvLayout::kDelimiter);
    if (saysOtherwise(options) || !cells.next())
        return std::nullopt;
    const std::optional<Columns> columns = layoutOf(cells.cells());
    if (!columns)
        return std::nullopt;
    return Preparer(physical, *columns, options).run(cells);
}
