// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// The rules for dates as one would tell them, in place of SmartDate.
class PlainDate {
public:
    /// What all dates of an import share.
    struct Shared {
        int order = 0; ///< 0 not known, 1 day first, 2 month first
        bool qif = false;
        int window = 30;
    };

    explicit PlainDate(Shared& shared) : m_shared(shared) {}

    bool parse(const std::string& text);
    void clear();
    bool isValid() const;
    /// Day, month, year; three zeros when not valid.
    std::string date() const;
    std::string asString() const;

private:
    void take(int place, const std::string& digits);

    Shared& m_shared;
    int m_numbers[3] = {0, 0, 0};
    bool m_apostrophe = false;
    bool m_valid = true;
};
