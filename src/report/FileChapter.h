// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "report/DayValue.h"
#include "report/Finding.h"
#include "report/LinesLeftOut.h"
#include "report/LineTally.h"
#include "report/PageFact.h"
#include "report/RecordDigest.h"
#include "report/RecordTally.h"

/// What became of one file of an import. All texts are printable UTF-8: nothing
/// that steers a terminal or turns the direction of writing, on one line.
struct FileChapter {
    std::string name;
    bool taken = false;                             ///< something of it is in the store
    bool balanceFits = false;                       ///< balances in the file confirm how it was read
    int session = 0;                                ///< 0 where the store keeps none of it
    std::optional<std::chrono::year_month_day> day; ///< of the import, UTC
    std::vector<PageFact> origin;                   ///< where it comes from: size, checksum
    std::vector<PageFact> reading;                  ///< how it was read
    std::vector<std::string> reasons;               ///< why so
    LineTally lines;
    RecordTally records;
    RecordDigest digest;             ///< of the records that are in the store
    std::vector<DayValue> balances;  ///< as the file has them, ascending; empty where it has none
    std::vector<LinesLeftOut> known; ///< records that the store has already, each with the one that it is
    std::vector<LinesLeftOut> leftOut;
    std::vector<std::string> advice; ///< what to do about the lines left out
    std::vector<Finding> findings;   ///< everything that was said and is no reason of a line left out
};
