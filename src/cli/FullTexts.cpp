// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FullTexts.h"

#include <algorithm>
#include <stdexcept>

#include "cli/ModelTables.h"

void FullTexts::restore(const NewRecords& added, const std::vector<std::size_t>& lines, const IntakeResult* intake) {
    if (intake == nullptr || intake->prepared.fullTexts.empty())
        return;
    const std::vector<RecordNode*> rows = added.rows();
    if (rows.size() != lines.size())
        throw std::logic_error("records whose lines are not known");
    for (const PreparedFile::FullText& full : intake->prepared.fullTexts) {
        const auto line = std::lower_bound(lines.begin(), lines.end(), static_cast<std::size_t>(full.line));
        if (line == lines.end() || *line != static_cast<std::size_t>(full.line))
            continue; // the record was refused
        DataType text;
        text = full.text.c_str();
        ModelTables::field(*rows[static_cast<std::size_t>(line - lines.begin())], full.field).setValue(text, NDX(), 0);
    }
}
