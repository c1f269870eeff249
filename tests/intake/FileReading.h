// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "framework/E_SupportedImportFormats.h"
#include "intake/Intake.h"
#include "support/FinanceModel.h"
#include "support/ImportedRecord.h"

/// A file on its whole way: through the intake, and what that prepared through
/// the import library into a model. Whatever a test is about, each reading
/// fails the running test unless every line and every record is accounted for.
class FileReading {
public:
    explicit FileReading(std::string_view bytes, Import::E_SupportedImportFormats format = Import::eFormatCSV,
                         const InspectionOptions& options = {});

    /// One text a record, UTF-8: "31.12.2024 -12,50 payee | purpose".
    std::vector<std::string> bookings() const;
    /// The same without texts: "31.12.2024 -12,50".
    std::vector<std::string> datesAndAmounts() const;
    const std::vector<ImportedRecord>& records() const { return m_records; } ///< Windows-1252

    /// "code" or "code@line" of every message, in their order.
    std::vector<std::string> messages() const;
    /// One letter a line: R(ecord), H(eader), P(reamble), F(ooter), B(lank), I(gnored).
    std::string lines() const;
    /// The code of what keeps the file from being imported; empty where nothing does.
    std::string undecided() const { return m_intake.undecided ? m_intake.undecided->code : std::string(); }
    bool untouched() const { return m_intake.prepared.untouched; }
    int refused() const { return m_intake.prepared.refused; }
    const std::string& preparedText() const { return m_intake.prepared.text; }
    const IntakeResult& intake() const { return m_intake; }

private:
    void import();
    void importDelimited(const FinanceModel& model);
    void expectLinesAccounted(std::string_view bytes) const;
    void expectRecordsAccounted() const;
    void expectIgnoredLinesExplained() const;

    IntakeResult m_intake;
    std::vector<ImportedRecord> m_records;
};

inline FileReading qif(std::string_view bytes, const InspectionOptions& options = {}) {
    return FileReading(bytes, Import::eFormatQIF, options);
}

inline FileReading starMoney(std::string_view bytes) { return FileReading(bytes, Import::eFormatStarMoney); }
