// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/AsciiText.h"

#include <string>

#include <gtest/gtest.h>

namespace {

constexpr std::size_t kLongest = 40; // several words and every rest

TEST(AsciiText, OneByteAbove127AnywhereIsFound) {
    for (std::size_t size = 1; size <= kLongest; ++size) {
        for (std::size_t at = 0; at < size; ++at) {
            std::string text(size, 'a');
            text[at] = '\x80';
            EXPECT_FALSE(AsciiText::isAscii(text)) << size << " " << at;
        }
    }
}

TEST(AsciiText, NothingBehindTheTextCounts) {
    for (std::size_t size = 0; size <= kLongest; ++size) {
        const std::string text = std::string(size, '\x7F') + "\xFF";
        EXPECT_TRUE(AsciiText::isAscii(std::string_view(text).substr(0, size))) << size;
    }
}

} // namespace
