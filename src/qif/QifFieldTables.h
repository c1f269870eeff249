// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>

#include "qif/ImportModuleQIF.h"

/// What the first character of a record's line means. A letter that is in no
/// row is an unknown entry.
namespace QifFieldTables {

enum class Action {
    keepText,  ///< the rest of the line is the value of `text`; a later line wins
    readDate,  ///< the rest of the line is the record's date
    addBudget, ///< the rest of the line is one amount of a budget
    endRecord,
    ignore
};

constexpr char kEndOfRecord = '^';

struct Row {
    char letter = 0;
    Action action = Action::ignore;
    std::string ImportModuleQIF::ImportDataSet::*text = nullptr; ///< for `keepText`
};

using Record = ImportModuleQIF::ImportDataSet;

/// Every section but the list of categories.
inline constexpr std::array<Row, 19> kTransactionFields = {{
    {'D', Action::readDate},
    {'T', Action::keepText, &Record::m_amount},
    {'U', Action::keepText, &Record::m_amount}, // the amount once more, in newer files
    {'P', Action::keepText, &Record::m_payee},
    {'M', Action::keepText, &Record::m_memo},
    {'N', Action::keepText, &Record::m_number},
    {'L', Action::keepText, &Record::m_category},
    {'Y', Action::keepText, &Record::m_security},
    {'Q', Action::keepText, &Record::m_quantity},
    {'I', Action::keepText, &Record::m_price},
    {'O', Action::keepText, &Record::m_commission},
    {kEndOfRecord, Action::endRecord},
    {'A', Action::ignore}, // address
    {'C', Action::ignore}, // cleared flag
    {'F', Action::ignore}, // reimbursable flag
    {'S', Action::ignore}, // split category
    {'E', Action::ignore}, // split memo
    {'$', Action::ignore}, // split amount
    {'%', Action::ignore}, // split percentage
}};

/// The list of categories.
inline constexpr std::array<Row, 8> kCategoryFields = {{
    {'N', Action::keepText, &Record::m_category},
    {'D', Action::keepText, &Record::m_memo},
    {'B', Action::addBudget},
    {kEndOfRecord, Action::endRecord},
    {'T', Action::ignore}, // tax-related flag
    {'R', Action::ignore}, // tax schedule
    {'I', Action::ignore}, // income flag
    {'E', Action::ignore}, // expense flag
}};

} // namespace QifFieldTables
