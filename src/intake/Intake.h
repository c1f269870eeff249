// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "framework/E_SupportedImportFormats.h"
#include "intake/BalanceSeries.h"
#include "intake/Dates.h"
#include "intake/Encoding.h"
#include "intake/InspectionOptions.h"
#include "intake/IntakeMessage.h"
#include "intake/PhysicalLines.h"
#include "intake/PreparedFile.h"
#include "intake/Reason.h"
#include "intake/TablePlan.h"

/// What was found in a file, and the file made ready for the import library.
struct IntakeResult {
    /// The module that reads `prepared`. It can differ from what the file's name
    /// says: a StarMoney export of another layout is read as a delimited list.
    Import::E_SupportedImportFormats format = Import::eFormatCSV;
    Encoding encoding = Encoding::ascii;
    bool bom = false;
    LineEnds lineEnds = LineEnds::none;
    int preambleLines = 0;
    char delimiter = '\0'; ///< of delimited files
    bool header = false;
    std::vector<std::string> headerNames; ///< as they stand, UTF-8; none without a header
    /// Of the first table; nothing where no date or amount told.
    std::optional<DateOrder> dateOrder;
    std::optional<char> decimalMark;
    std::map<std::string, std::vector<int>> columns; ///< field to input columns (from 0)
    BalanceProof balance = BalanceProof::none;
    std::vector<BalanceOfDay> balances; ///< of a running balance that the file has
    double confidence = 0.0;
    std::vector<Reason> reasons;
    /// Set when nothing is imported, with what would decide it.
    std::optional<IntakeMessage> undecided;
    PreparedFile prepared;
    /// Written by this program itself: what has no date there never had one.
    bool ownExport = false;
    /// Records the file holds, where they span lines (QIF); otherwise one a line.
    std::optional<int> recordsFound;
};

namespace Intake {

/// The format of a file by its content, where its name says nothing: QIF by its
/// first section, otherwise a delimited list.
Import::E_SupportedImportFormats formatByContent(std::string_view bytes);

/// Inspects and prepares `bytes`, the whole file. Never fails: what cannot be
/// decided is in the result.
IntakeResult read(std::string_view bytes, Import::E_SupportedImportFormats format, const InspectionOptions& options);

/// A delimited list whose lines are all kept, in the host's encoding and with
/// line feeds; nothing is assigned to its columns. It has a header where its
/// first line with content is one.
IntakeResult readAsItStands(std::string_view bytes, const InspectionOptions& options);

} // namespace Intake
