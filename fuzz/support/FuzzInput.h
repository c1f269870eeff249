// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// An input as a target takes it apart: choices first, one byte each, then the
/// text. Whoever writes a seed by hand uses letters for the choices: only their
/// low bits count.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* bytes, std::size_t size)
        : m_rest(reinterpret_cast<const char*>(bytes), size) {} // the bytes of a text

    /// 0 behind the end.
    unsigned byte() {
        if (m_rest.empty())
            return 0;
        const unsigned value = static_cast<unsigned char>(m_rest.front());
        m_rest.remove_prefix(1);
        return value;
    }
    /// A number below `count`, at most 256.
    unsigned choice(unsigned count) { return byte() % count; }

    bool empty() const { return m_rest.empty(); }
    /// At most `size` bytes.
    std::string_view bytes(std::size_t size) {
        const std::string_view taken = m_rest.substr(0, size);
        m_rest.remove_prefix(taken.size());
        return taken;
    }
    std::string_view rest() const { return m_rest; }

    /// The rest up to its first zero byte, as functions for C texts see it.
    std::string text() const { return std::string(m_rest.substr(0, m_rest.find('\0'))); }

    /// The rest, cut at line feeds and, within a line, at a zero byte.
    std::vector<std::string> lines() const {
        std::vector<std::string> lines;
        for (std::string_view left = m_rest;;) {
            const std::size_t end = left.find('\n');
            const std::string_view line = left.substr(0, end);
            lines.emplace_back(line.substr(0, line.find('\0')));
            if (end == std::string_view::npos)
                return lines;
            left.remove_prefix(end + 1);
        }
    }

private:
    std::string_view m_rest;
};
