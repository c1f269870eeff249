// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "intake/InspectionOptions.h"
#include "intake/IntakeMessage.h"
#include "intake/PhysicalLines.h"
#include "intake/PreparedFile.h"

/// A delimited list that this program wrote itself (export/CsvLayout.h): nothing
/// about it has to be found out, and nothing of it is lost.
struct OwnExport {
    static constexpr char kDecimalMark = ',';

    PreparedFile prepared;
    std::map<std::string, std::vector<int>> columns; ///< field to input columns (from 0)
    std::vector<std::string> headerNames;
    std::optional<IntakeMessage> undecided; ///< the file is damaged, and where

    /// Nothing where the text (host bytes, `physical` its lines) does not begin
    /// with the header of such a list, or `options` say how it is to be read.
    static std::optional<OwnExport> read(std::string_view text, const PhysicalLines& physical,
                                         const InspectionOptions& options);
};
