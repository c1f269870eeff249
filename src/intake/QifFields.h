// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "intake/PhysicalLines.h"
#include "intake/QifFile.h"

/// One line of a QIF record.
struct QifField {
    int line; ///< from 0
    char letter;
    std::string_view text; ///< behind the letter, trimmed
};

/// The lines of one QIF record that are not empty, its "^" included.
class QifFields {
public:
    QifFields(const PhysicalLines& file, const QifFile::Record& record);

    auto begin() const { return m_fields.begin(); }
    auto end() const { return m_fields.end(); }
    /// The record's own field: the first of its letter, since those of a split follow behind.
    const QifField* first(char letter) const;
    /// What moves the account: the "T" line, or "U" where there is none.
    const QifField* amount() const;

private:
    std::vector<QifField> m_fields;
};
