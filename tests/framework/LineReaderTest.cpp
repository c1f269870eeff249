// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/LineReader.h"

#include <algorithm>
#include <cstddef>
#include <istream>
#include <random>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

constexpr std::size_t kRoom = 4095;

/// Hands out its bytes in pieces of that size, and then ends or fails.
class PiecewiseBuf : public std::streambuf {
public:
    PiecewiseBuf(std::string bytes, std::size_t piece, bool failsAtEnd = false)
        : m_bytes(std::move(bytes)), m_piece(piece), m_failsAtEnd(failsAtEnd) {}

protected:
    int_type underflow() override {
        if (m_at == m_bytes.size()) {
            if (m_failsAtEnd)
                throw std::runtime_error("the disk is gone");
            return traits_type::eof();
        }
        const std::size_t count = std::min(m_piece, m_bytes.size() - m_at);
        char* begin = m_bytes.data() + m_at;
        m_at += count;
        setg(begin, begin, begin + count);
        return traits_type::to_int_type(*begin);
    }

private:
    std::string m_bytes;
    std::size_t m_piece;
    std::size_t m_at = 0;
    bool m_failsAtEnd;
};

/// Every line, then "END" or "FAIL".
std::vector<std::string> linesOf(std::streambuf& input) {
    std::vector<std::string> lines;
    LineReader reader(input);
    std::vector<char> line(kRoom);
    for (;;) {
        const LineReader::Outcome outcome = reader.next(line.data(), line.size());
        if (outcome == LineReader::Outcome::unreadable) {
            lines.emplace_back("FAIL");
            return lines;
        }
        lines.emplace_back(line.data());
        if (outcome == LineReader::Outcome::lastLine) {
            lines.emplace_back("END");
            return lines;
        }
    }
}

/// The same by the standard library.
std::vector<std::string> linesByGetline(std::streambuf& input) {
    std::vector<std::string> lines;
    std::istream stream(&input);
    std::vector<char> line(kRoom);
    for (;;) {
        stream.getline(line.data(), static_cast<std::streamsize>(line.size()));
        if (stream.fail() && !stream.eof()) {
            lines.emplace_back("FAIL");
            return lines;
        }
        lines.emplace_back(line.data());
        if (stream.eof()) {
            lines.emplace_back("END");
            return lines;
        }
    }
}

using Lines = std::vector<std::string>;

Lines linesOf(const std::string& bytes, std::size_t piece = 32768) {
    PiecewiseBuf input(bytes, piece);
    return linesOf(input);
}

TEST(LineReader, EndsBehindTheLastLineFeed) {
    EXPECT_EQ(linesOf(""), Lines({"", "END"}));
    EXPECT_EQ(linesOf("a"), Lines({"a", "END"}));
    EXPECT_EQ(linesOf("a\n"), Lines({"a", "", "END"}));
    EXPECT_EQ(linesOf("a\n\nb\r\n"), Lines({"a", "", "b\r", "", "END"}));
}

TEST(LineReader, TakesWhatThereIsRoomForAndNotOneByteMore) {
    const std::string longest(kRoom - 1, 'x');
    EXPECT_EQ(linesOf(longest + "\nb"), Lines({longest, "b", "END"}));
    EXPECT_EQ(linesOf(longest), Lines({longest, "END"}));
    EXPECT_EQ(linesOf("a\n" + longest + "x\nb"), Lines({"a", "FAIL"}));
    EXPECT_EQ(linesOf("a\n" + longest + "x"), Lines({"a", "FAIL"}));
}

TEST(LineReader, LinesReadBeforeAFailureCount) {
    PiecewiseBuf input("a\nb\nc", 3, true);
    EXPECT_EQ(linesOf(input), Lines({"a", "b", "FAIL"}));
}

TEST(LineReader, DoesWhatGetlineDoes) {
    std::mt19937 random(20261122);
    const auto below = [&](std::size_t bound) { return random() % bound; };
    for (int round = 0; round < 300; ++round) {
        std::string bytes;
        for (std::size_t line = below(60); line > 0; --line) {
            const std::size_t longest = below(8) == 0 ? kRoom + 2 : 90;
            bytes += std::string(below(longest), static_cast<char>('a' + below(26)));
            if (below(20) == 0)
                bytes += '\0';
            if (below(30) != 0)
                bytes += '\n';
        }
        const std::size_t piece = 1 + below(round % 2 == 0 ? 7 : 40000);
        const bool fails = below(4) == 0;
        PiecewiseBuf ours(bytes, piece, fails);
        PiecewiseBuf standard(bytes, piece, fails);
        ASSERT_EQ(linesOf(ours), linesByGetline(standard)) << "round " << round;
    }
}

} // namespace
