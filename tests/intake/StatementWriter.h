// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// A booking as a statement is written from it.
struct WrittenBooking {
    int year;
    int month;
    int day;
    long cents;        ///< negative for expenses
    std::string payee; ///< UTF-8, like all texts here
    std::string purpose;

    /// As the library shows it: "31.12.2024 -1.234,50".
    std::string shown() const;
};

/// How a bank writes its statements. Numbers choose from the tables of the
/// implementation; the counts say how many there are.
struct StatementLayout {
    static constexpr int kLanguageCount = 8;
    static constexpr int kDateFormCount = 13;
    static constexpr int kNumberFormCount = 7;
    static constexpr int kPreambleCount = 4;

    /// Where the sign stands.
    enum class Signs {
        minus,
        trailingMinus,
        plusAndMinus,
        brackets,
        letterBehind,
        column,
        twoColumns,
        twoColumnsNegativeDebits,
        twoColumnsWithZeros,
        balanceOnly,
        count
    };

    int language = 0;
    int dateForm = 0;
    int numberForm = 0;
    int preamble = 0;
    Signs signs = Signs::minus;
    char delimiter = ';';
    bool header = true;
    bool quoteAll = false;
    bool newestFirst = false;
    bool balance = false;
    bool valueDate = false;
    bool currency = false;
    bool reference = false; ///< a column of account numbers
    bool amountFirst = false;
    const char* lineEnd = "\n";

    bool monthFirst() const;
    bool decimalComma() const;
    /// For a failing test.
    std::string describe() const;
};

/// The statement of these bookings (oldest first), UTF-8.
std::string writeStatement(const std::vector<WrittenBooking>& bookings, const StatementLayout& layout);
