// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/DelimiterFinder.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "framework/AssertTypeSizes.h"

namespace {

/// The usual separators, the likelier first: it wins a tie.
constexpr std::string_view kCandidates = ",;|\t#/:\\";

bool isLetterOrDigit(int code) {
    return (code >= '0' && code <= '9') || (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z');
}

} // namespace

DelimiterFinder::DelimiterFinder() { clear(); }

void DelimiterFinder::clear() {
    m_lineCount = 0;
    std::fill(std::begin(m_firstLineCount), std::end(m_firstLineCount), 0);
    std::fill(std::begin(m_balance), std::end(m_balance), 0);
    m_sign = 0;
}

void DelimiterFinder::scanLine(const char* line) {
    if (line == nullptr || *line == '\0')
        return;
    m_sign = m_lineCount % 2 == 0 ? 1 : -1;
    for (; *line != '\0'; ++line) {
        const auto code = static_cast<unsigned char>(*line);
        if (code >= kCodes)
            continue;
        m_balance[code] += m_sign;
        if (m_lineCount == 0)
            ++m_firstLineCount[code];
    }
    if (m_sign < 0) {
        // The balance is never reset and does not need to be: it is 0 behind
        // every pair, or the character is out for good.
        for (int code = 0; code < kCodes; ++code) {
            if (m_balance[code] != 0)
                m_firstLineCount[code] = 0;
        }
    }
    ++m_lineCount;
}

void DelimiterFinder::endScan() {
    if (m_sign != 1)
        return;
    for (int code = 0; code < kCodes; ++code) {
        if (m_balance[code] != m_firstLineCount[code])
            m_firstLineCount[code] = 0;
    }
}

char DelimiterFinder::getBestDelimiter() const {
    if (m_lineCount == 0)
        return 0;
    int best = 0;
    int bestCount = 0;
    const auto consider = [&](int code) {
        if (m_firstLineCount[code] > bestCount) {
            best = code;
            bestCount = m_firstLineCount[code];
        }
    };
    for (const char candidate : kCandidates)
        consider(candidate);
    if (bestCount == 0) {
        for (int code = 0; code < kCodes; ++code) {
            if (!isLetterOrDigit(code))
                consider(code);
        }
    }
    return static_cast<char>(best);
}
