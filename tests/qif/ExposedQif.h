// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "qif/ImportModuleQIF.h"

/// The module with its inner operations within reach, as if a section of the
/// given kind had just been opened.
class ExposedQif : public ImportModuleQIF {
public:
    ExposedQif() = default;
    explicit ExposedQif(E_AccountType type) {
        m_accountType = type;
        m_currentDataSet.m_sectionLabel = "Label";
    }

    using ImportModuleQIF::addHeaderInfo;
    using ImportModuleQIF::m_accountType;
    using ImportModuleQIF::m_atRecordStart;
    using ImportModuleQIF::m_currentDataSet;
    using ImportModuleQIF::m_dataSets;
    using ImportModuleQIF::m_headerMap;
    using ImportModuleQIF::m_lineNo;
    using ImportModuleQIF::parseAcountItem;
    using ImportModuleQIF::parseHeader;
    using ImportModuleQIF::processDataSet;

    /// False as soon as a line is rejected.
    bool read(const std::vector<const char*>& lines) {
        for (const char* line : lines) {
            if (!parseAcountItem(line))
                return false;
        }
        return true;
    }
};

using QifRecord = ImportModuleQIF::ImportDataSet;

/// A text field of a record, with the name that a failing expectation shows.
struct QifText {
    const char* name;
    std::string QifRecord::*text;
};

inline constexpr QifText kQifTexts[] = {
    {"m_sectionLabel", &QifRecord::m_sectionLabel},
    {"m_memo", &QifRecord::m_memo},
    {"m_amount", &QifRecord::m_amount},
    {"m_payee", &QifRecord::m_payee},
    {"m_number", &QifRecord::m_number},
    {"m_category", &QifRecord::m_category},
    {"m_quantity", &QifRecord::m_quantity},
    {"m_price", &QifRecord::m_price},
    {"m_commission", &QifRecord::m_commission},
    {"m_security", &QifRecord::m_security},
};
