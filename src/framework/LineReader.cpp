// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/LineReader.h"

#include <algorithm>
#include <cstring>

#include "framework/AssertTypeSizes.h"

LineReader::Outcome LineReader::next(char* line, std::size_t size) {
    std::size_t searched = 0;
    const char* feed = nullptr;
    for (;;) {
        feed = static_cast<const char*>(std::memchr(m_next + searched, '\n', left() - searched));
        if (feed != nullptr || m_isAtEnd || left() >= size)
            break;
        searched = left();
        try {
            refill();
        } catch (...) { // whatever a stream's buffer throws: a stream takes it for a failure, too
            return Outcome::unreadable;
        }
    }
    const std::size_t length = feed != nullptr ? static_cast<std::size_t>(feed - m_next) : left();
    if (length >= size)
        return Outcome::unreadable;
    std::memcpy(line, m_next, length);
    line[length] = '\0';
    m_next += length + (feed != nullptr ? 1 : 0);
    return feed != nullptr ? Outcome::line : Outcome::lastLine;
}

/// Moves the beginning of a line to the front and puts behind it what the stream has at hand, but no more: what was
/// read before a failure counts.
void LineReader::refill() {
    const std::size_t begun = left();
    std::memmove(m_bytes.data(), m_next, begun);
    m_next = m_bytes.data();
    m_end = m_next + begun;
    m_isAtEnd = m_input.sgetc() == std::streambuf::traits_type::eof();
    if (!m_isAtEnd)
        m_end += m_input.sgetn(m_end,
                               std::min<std::streamsize>(m_input.in_avail(), m_bytes.data() + m_bytes.size() - m_end));
}
