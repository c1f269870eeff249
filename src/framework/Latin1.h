// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

/// Texts of the host are Latin-1; sources are UTF-8. `"geöffnet"_latin1` is the
/// zero-terminated Latin-1 text, converted when compiling. A character outside
/// Latin-1 does not compile.
namespace latin1_detail {

template <std::size_t N>
struct Utf8Literal {
    // NOLINTNEXTLINE(google-explicit-constructor): a literal operator's parameter converts implicitly
    consteval Utf8Literal(const char (&literal)[N]) {
        for (std::size_t i = 0; i < N; ++i)
            bytes[i] = literal[i];
    }
    char bytes[N] = {};
};

template <Utf8Literal literal>
struct Latin1Text {
    static constexpr auto convert() {
        std::array<char, sizeof(literal.bytes)> out{};
        std::size_t length = 0;
        for (std::size_t i = 0; i + 1 < sizeof(literal.bytes); ++i) {
            const auto byte = static_cast<unsigned char>(literal.bytes[i]);
            if (byte < 0x80) {
                out[length++] = static_cast<char>(byte);
            } else if (byte == 0xC2 || byte == 0xC3) {
                const auto next = static_cast<unsigned char>(literal.bytes[++i]);
                out[length++] = static_cast<char>(static_cast<unsigned char>((byte & 0x03U) << 6U | (next & 0x3FU)));
            } else {
                throw "character outside Latin-1"; // reached only while compiling, as an error
            }
        }
        return out;
    }
    static constexpr auto kText = convert();
};

} // namespace latin1_detail

template <latin1_detail::Utf8Literal literal>
consteval const char* operator""_latin1() {
    return latin1_detail::Latin1Text<literal>::kText.data();
}
