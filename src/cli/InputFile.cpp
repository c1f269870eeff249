// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/InputFile.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "cli/Descriptor.h"
#include "cli/FormatTable.h"
#include "cli/SystemText.h"
#include "datamodel/HostText.h"

namespace {

constexpr const char* kStandardInput = "-";

int openForReading(const std::string& path) { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC); }

bool writeAll(int target, const char* bytes, std::size_t size) {
    while (size > 0) {
        const ssize_t written = ::write(target, bytes, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

/// A new file. Throws std::system_error.
int create(const std::string& path) {
    const int number = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (number < 0)
        throw std::system_error(errno, std::generic_category());
    return number;
}

Problem problemOf(int error) { return error == ENOENT ? Problem::fileMissing : Problem::fileUnreadable; }

} // namespace

InputFile::InputFile(const std::string& argument) : m_argument(argument), m_path(argument), m_originalPath(argument) {
    try {
        look();
    } catch (const std::system_error& error) {
        m_problem = Message::of(Problem::tempUnusable, {ScratchFolder::parent(), systemText(error.code().value())});
    }
}

void InputFile::look() {
    if (m_argument == kStandardInput) {
        copy(STDIN_FILENO);
        return;
    }
    struct stat status {};
    if (::stat(m_path.c_str(), &status) != 0) {
        m_problem = Message::of(problemOf(errno), {m_argument, systemText(errno)});
        m_mayBeAsked = true;
        return;
    }
    if (S_ISDIR(status.st_mode)) {
        m_problem = Message::of(Problem::fileIsDirectory, {m_argument});
        m_mayBeAsked = true;
        return;
    }
    if (!S_ISREG(status.st_mode) && !S_ISFIFO(status.st_mode)) {
        m_problem = Message::of(Problem::fileIsDevice, {m_argument}); // may well have no end
        return;
    }
    const Descriptor source(openForReading(m_path));
    if (!source.isOpen()) {
        m_problem = Message::of(problemOf(errno), {m_argument, systemText(errno)});
        m_mayBeAsked = S_ISREG(status.st_mode);
        return;
    }
    if (S_ISFIFO(status.st_mode))
        copy(source.number());
    else
        m_mayBeAsked = true;
}

void InputFile::copy(int source) {
    const std::string path = folder().entry("copy");
    const Descriptor target(create(path));
    std::array<char, 1 << 16> block{};
    for (;;) {
        const ssize_t count = ::read(source, block.data(), block.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0) {
            m_problem = Message::of(Problem::fileUnreadable, {m_argument, systemText(errno)});
            return;
        }
        if (count == 0)
            break;
        if (!writeAll(target.number(), block.data(), static_cast<std::size_t>(count)))
            throw std::system_error(errno, std::generic_category());
    }
    m_path = path;
    m_originalPath = path;
    m_mayBeAsked = true;
}

ScratchFolder& InputFile::folder() {
    if (m_folder == nullptr)
        m_folder = std::make_unique<ScratchFolder>();
    return *m_folder;
}

std::string InputFile::libraryName(Import::E_SupportedImportFormats format) {
    const std::optional<std::string> name = HostText::utf8ToLatin1(m_path);
    if (name && FormatTable::ofFileName(*name) == format)
        return *name;
    const std::string link = folder().entry("import." + FormatTable::extensionOf(format));
    const std::string target = std::filesystem::absolute(m_path).string();
    if (::symlink(target.c_str(), link.c_str()) != 0 && errno != EEXIST)
        throw std::system_error(errno, std::generic_category());
    return *HostText::utf8ToLatin1(link);
}

std::string InputFile::nameOfPrepared(std::string_view bytes, Import::E_SupportedImportFormats format) {
    m_path = folder().entry("prepared." + FormatTable::extensionOf(format));
    const Descriptor target(create(m_path));
    if (!writeAll(target.number(), bytes.data(), bytes.size()))
        throw std::system_error(errno, std::generic_category());
    return *HostText::utf8ToLatin1(m_path);
}
