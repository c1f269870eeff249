// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "cli/Console.h"
#include "cli/JsonText.h"
#include "cli/Message.h"

/// Which of a file's lines are what; every line is in exactly one bucket.
struct LineCounts {
    std::size_t read = 0; ///< the sum of the others
    std::size_t records = 0;
    std::size_t header = 0;
    std::size_t preamble = 0;
    std::size_t footer = 0;
    std::size_t blank = 0;
    std::size_t ignored = 0;
};

/// Where records span lines, they are counted beside the lines.
struct RecordCounts {
    std::size_t found = 0;
    std::size_t imported = 0;
    std::size_t refused = 0;
    std::optional<std::size_t> known; ///< left out because the store has them; none where nobody asked
};

/// What became of one file of an import.
struct FileReport {
    std::string file; ///< the shell's bytes
    int format = 0;
    int result = 0; ///< the library's
    int importedCount = 0;
    std::size_t refusedCount = 0;
    std::optional<std::size_t> knownCount; ///< left out because the store has them; none where nobody asked
    std::size_t undatedCount = 0;
    int sessionId = 0;     ///< 0 where the store keeps no session of this import
    std::string errorText; ///< the library's, UTF-8
    bool committed = false;
    bool balanceFits = false; ///< balances in the file confirm how it was read
    LineCounts lines;
    std::optional<RecordCounts> records;
    std::vector<Message> messages;
};

namespace FileReportText {

Json json(const LineCounts& lines);
Json json(const RecordCounts& records);
Json json(const FileReport& report);
/// `[{"line":7,"code":"bad-amount","text":"…"}]`
Json json(const std::vector<Message>& messages);
/// What is said of an import that found everything in the store already.
std::string nothingNew(std::size_t known, std::size_t refused);
/// One line for a person.
std::string summary(const FileReport& report);

} // namespace FileReportText
