// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/QifFile.h"

#include <algorithm>
#include <optional>

#include "intake/TextTools.h"
#include "qif/QifHeaderTable.h"

namespace {

/// Letters and digits of a header, without regard to case and blanks: "!type: bank " is "!Type:Bank".
std::string key(std::string_view header) {
    std::string out;
    for (const char c : header) {
        if (c >= 'A' && c <= 'Z')
            out += static_cast<char>(c - 'A' + 'a');
        else if (!TextTools::isBlank(c))
            out += c;
    }
    return out;
}

QifFile::Kind kindOf(ImportModuleQIF::E_AccountType type) {
    if (type == ImportModuleQIF::Ignored)
        return QifFile::Kind::skipped;
    return type == ImportModuleQIF::Category ? QifFile::Kind::category : QifFile::Kind::booking;
}

QifFile::Section sectionOf(std::string_view line, int number) {
    QifFile::Section section;
    section.headerLine = number;
    section.header = TextTools::trim(line);
    for (const QifHeaderTable::Row& row : QifHeaderTable::kRows) {
        if (key(row.header) != key(line))
            continue;
        section.kind = kindOf(row.type);
        section.spelledRight = section.header == row.header;
        section.header = row.header;
    }
    return section;
}

} // namespace

QifFile QifFile::read(std::span<const std::string_view> lines) {
    QifFile file;
    std::optional<Record> open;
    const auto finish = [&](int end, bool closed) {
        if (!open)
            return;
        open->lineCount = end - open->firstLine;
        open->closed = closed;
        file.records.push_back(*open);
        open.reset();
    };
    int lastFilled = -1;
    for (int number = 0; number < static_cast<int>(lines.size()); ++number) {
        const std::string_view line = TextTools::trim(lines[static_cast<std::size_t>(number)]);
        if (line.empty())
            continue;
        // A header stands where a record could begin; a "!" inside a record is text.
        if (line.front() == '!' && (!open || key(line).starts_with("!type:") || key(line) == "!account")) {
            finish(lastFilled + 1, false);
            file.sections.push_back(sectionOf(line, number));
        } else if (file.sections.empty()) {
            file.linesBeforeFirstSection = number + 1;
        } else if (line.front() == '^') {
            if (open)
                finish(number + 1, true);
            else
                file.strayEnds.push_back(number);
        } else if (!open) {
            open = Record{file.sections.size() - 1, number, 0, false};
        }
        lastFilled = number;
    }
    finish(lastFilled + 1, false);
    return file;
}
