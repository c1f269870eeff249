// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FileLines.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

#include "cli/Descriptor.h"

namespace {

constexpr std::size_t kBlock = 1 << 16;

/// Hands the bytes to the sink in pieces; returns whether a line is unfinished.
bool splitBlock(std::string_view bytes, bool unfinished, const FileLines::Sink& sink) {
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        sink(bytes.substr(0, end), end != std::string_view::npos);
        if (end == std::string_view::npos)
            return true;
        unfinished = false;
        bytes.remove_prefix(end + 1);
    }
    return unfinished;
}

} // namespace

namespace FileLines {

void readBlocks(const std::string& path, const std::function<void(std::string_view block)>& sink) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file.isOpen())
        throw std::system_error(errno, std::generic_category());
    std::vector<char> block(kBlock);
    for (;;) {
        const ssize_t count = ::read(file.number(), block.data(), block.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            throw std::system_error(errno, std::generic_category());
        if (count == 0)
            return;
        sink({block.data(), static_cast<std::size_t>(count)});
    }
}

void scan(const std::string& path, const Sink& sink) {
    bool unfinished = false;
    readBlocks(path, [&](std::string_view block) { unfinished = splitBlock(block, unfinished, sink); });
    if (unfinished)
        sink({}, true);
}

std::vector<std::string> read(const std::string& path, const std::vector<std::size_t>& numbers, std::size_t most) {
    std::vector<std::string> lines(numbers.size());
    std::size_t number = 1;
    std::size_t wanted = 0;
    scan(path, [&](std::string_view piece, bool last) {
        if (wanted < numbers.size() && numbers[wanted] == number) {
            std::string& line = lines[wanted];
            line.append(piece.substr(0, most - std::min(most, line.size())));
            if (last)
                ++wanted;
        }
        if (last)
            ++number;
    });
    return lines;
}

} // namespace FileLines
