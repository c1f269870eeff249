// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// A QIF file cut into sections and records, nothing interpreted.
struct QifFile {
    enum class Kind {
        booking,  ///< records with date and amount
        category, ///< the list of categories, with budgets
        skipped,  ///< accounts, classes and the like: nothing to import
        unknown
    };

    struct Record {
        std::size_t section;
        int firstLine; ///< from 0
        int lineCount; ///< its "^" included
        bool closed;   ///< ends with "^"
    };

    struct Section {
        Kind kind = Kind::unknown;
        int headerLine = 0;        ///< from 0
        std::string header;        ///< spelt as the library knows it
        bool spelledRight = false; ///< the line is already spelt so
    };

    int linesBeforeFirstSection = 0;
    std::vector<Section> sections;
    std::vector<Record> records;
    std::vector<int> strayEnds; ///< lines with a "^" that ends nothing

    Kind kindOf(const Record& record) const { return sections[record.section].kind; }

    static QifFile read(std::span<const std::string_view> lines);
};
