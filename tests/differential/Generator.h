// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <string>
#include <string_view>

/// Chance, the same in every run.
class Generator {
public:
    explicit Generator(std::uint64_t seed) : m_state(seed) {}

    /// How many inputs a test looks at: `ordinary`, or what the environment says.
    static int count(int ordinary) {
        const char* wanted = std::getenv("IMPORT_MODULE_GENERATED");
        return wanted != nullptr ? std::atoi(wanted) : ordinary;
    }

    std::size_t below(std::size_t limit) {
        // splitmix64
        m_state += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = m_state;
        mixed = (mixed ^ mixed >> 30U) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ mixed >> 27U) * 0x94D049BB133111EBU;
        return static_cast<std::size_t>((mixed ^ mixed >> 31U) % limit);
    }
    bool onceIn(std::size_t times) { return below(times) == 0; }

    std::string_view oneOf(std::initializer_list<std::string_view> choices) {
        return *(choices.begin() + below(choices.size()));
    }
    char oneOf(std::string_view characters) { return characters[below(characters.size())]; }

    /// At most `longest` characters of an alphabet.
    std::string text(std::string_view alphabet, std::size_t longest) {
        std::string text(below(longest + 1), ' ');
        for (char& c : text)
            c = oneOf(alphabet);
        return text;
    }
    std::string digits(std::size_t longest) { return text("0123456789", longest); }
    /// Any byte but zero.
    std::string bytes(std::size_t longest) {
        std::string text(below(longest + 1), ' ');
        for (char& c : text)
            c = static_cast<char>(1 + below(255));
        return text;
    }

private:
    std::uint64_t m_state;
};
