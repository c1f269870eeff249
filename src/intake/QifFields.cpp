// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/QifFields.h"

#include <algorithm>

#include "intake/TextTools.h"

QifFields::QifFields(const PhysicalLines& file, const QifFile::Record& record) {
    m_fields.reserve(static_cast<std::size_t>(record.lineCount));
    for (int line = record.firstLine; line < record.firstLine + record.lineCount; ++line) {
        const std::string_view text = TextTools::trim(file.lines[static_cast<std::size_t>(line)]);
        if (!text.empty())
            m_fields.push_back({line, text.front(), TextTools::trim(text.substr(1))});
    }
}

const QifField* QifFields::first(char letter) const {
    const auto at =
        std::find_if(m_fields.begin(), m_fields.end(), [&](const QifField& field) { return field.letter == letter; });
    return at == m_fields.end() ? nullptr : &*at;
}

const QifField* QifFields::amount() const {
    const QifField* total = first('T');
    return total != nullptr && !total->text.empty() ? total : first('U');
}
