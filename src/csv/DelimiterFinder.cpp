// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/DelimiterFinder.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string_view>

#include "framework/AssertTypeSizes.h"

namespace {

/// The usual separators, the likelier first: it wins a tie.
constexpr std::string_view kCandidates = ",;|\t#/:\\";

bool isLetterOrDigit(int code) {
    return (code >= '0' && code <= '9') || (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z');
}

int occurrences(std::string_view text, char wanted) {
    int found = 0;
    while (!text.empty()) {
        // Counted in a byte, whose additions the compiler does many at a time.
        const std::string_view part = text.substr(0, std::numeric_limits<std::uint8_t>::max());
        std::uint8_t inPart = 0;
        for (const char c : part)
            inPart = static_cast<std::uint8_t>(inPart + (c == wanted ? 1 : 0));
        found += inPart;
        text.remove_prefix(part.size());
    }
    return found;
}

} // namespace

DelimiterFinder::DelimiterFinder() { clear(); }

void DelimiterFinder::clear() {
    m_lineCount = 0;
    std::fill(std::begin(m_firstLineCount), std::end(m_firstLineCount), 0);
    std::fill(std::begin(m_balance), std::end(m_balance), 0);
    m_sign = 0;
    m_leftCount = kMany;
}

void DelimiterFinder::scanLine(const char* line) {
    if (line == nullptr || *line == '\0')
        return;
    m_sign = m_lineCount % 2 == 0 ? 1 : -1;
    if (m_leftCount == kMany)
        countAll(line);
    else
        countLeft(line);
    if (m_sign < 0)
        disqualify();
    ++m_lineCount;
}

void DelimiterFinder::countAll(const char* line) {
    for (; *line != '\0'; ++line) {
        const auto code = static_cast<unsigned char>(*line);
        if (code >= kCodes)
            continue;
        m_balance[code] += m_sign;
        if (m_lineCount == 0)
            ++m_firstLineCount[code];
    }
}

void DelimiterFinder::countLeft(const char* line) {
    const std::string_view text(line);
    for (int i = 0; i < m_leftCount; ++i)
        m_balance[static_cast<unsigned char>(m_left[i])] += m_sign * occurrences(text, m_left[i]);
}

// The balance is never reset and does not need to be: it is 0 behind every pair
// of lines, or the character is out for good.
void DelimiterFinder::disqualify() {
    const auto qualifies = [this](int code) {
        if (m_balance[code] != 0)
            m_firstLineCount[code] = 0;
        return m_firstLineCount[code] != 0;
    };
    if (m_leftCount != kMany) {
        const auto isOut = [&](char c) { return !qualifies(static_cast<unsigned char>(c)); };
        m_leftCount = static_cast<int>(std::remove_if(m_left, m_left + m_leftCount, isOut) - m_left);
        return;
    }
    int left = 0;
    for (int code = 0; code < kCodes; ++code) {
        if (!qualifies(code))
            continue;
        if (left < kFew)
            m_left[left] = static_cast<char>(code);
        ++left;
    }
    m_leftCount = left <= kFew ? left : kMany;
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
