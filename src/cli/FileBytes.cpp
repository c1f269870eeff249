// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FileBytes.h"

#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "cli/Descriptor.h"

namespace {

constexpr std::size_t kBlock = 1 << 16;

/// A guess only: the file may grow meanwhile, or not know its size.
std::size_t expectedSize(int file) {
    struct stat status {};
    return ::fstat(file, &status) == 0 && status.st_size > 0 ? static_cast<std::size_t>(status.st_size) : 0;
}

} // namespace

std::string FileBytes::read(const std::string& path) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file.isOpen())
        throw std::system_error(errno, std::generic_category());
    std::string bytes;
    std::size_t size = 0;
    bytes.resize(expectedSize(file.number()) + 1); // with room to see the end
    for (;;) {
        if (size == bytes.size())
            bytes.resize(size + size / 2 + kBlock);
        const ssize_t count = ::read(file.number(), bytes.data() + size, bytes.size() - size);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            throw std::system_error(errno, std::generic_category());
        if (count == 0)
            break;
        size += static_cast<std::size_t>(count);
    }
    bytes.resize(size);
    return bytes;
}
