// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ScratchFolder.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <system_error>
#include <unistd.h>

#include "cli/LeftScratch.h"
#include "datamodel/HostText.h"

namespace {

// What a signal handler may read: fixed arrays, filled before they count.
constexpr std::size_t kMostEntries = 8;
constexpr std::size_t kMostPath = 4096;
using Path = std::array<char, kMostPath>;
Path g_folder;
std::array<Path, kMostEntries> g_entries;
std::atomic<std::size_t> g_entryCount = 0;
std::atomic<bool> g_exists = false;

void fill(Path& path, const std::string& text) {
    if (text.size() >= path.size())
        throw std::system_error(ENAMETOOLONG, std::generic_category());
    std::memcpy(path.data(), text.c_str(), text.size() + 1);
}

/// Calls only what a signal handler may call.
void removeAll() {
    if (!g_exists.exchange(false))
        return;
    for (std::size_t i = g_entryCount; i > 0; --i)
        ::unlink(g_entries[i - 1].data());
    ::rmdir(g_folder.data());
}

extern "C" void removeAndEnd(int signal) {
    removeAll();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void watchSignals() {
    static const bool watched = [] {
        for (const int number : {SIGHUP, SIGINT, SIGTERM}) {
            struct sigaction action {};
            if (::sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_DFL)
                std::signal(number, removeAndEnd);
        }
        return true;
    }();
    static_cast<void>(watched);
}

} // namespace

std::string ScratchFolder::parent() {
    const char* named = std::getenv("TMPDIR");
    const bool usable = named != nullptr && *named != '\0' && HostText::utf8ToLatin1(named);
    return usable ? named : "/tmp";
}

ScratchFolder::ScratchFolder() {
    if (g_exists)
        throw std::logic_error("one temporary folder at a time");
    watchSignals();
    while (m_hold < 0) { // again where somebody took it for left behind before it was held
        m_path = parent() + "/" + LeftScratch::kPrefix + "XXXXXX";
        if (::mkdtemp(m_path.data()) == nullptr)
            throw std::system_error(errno, std::generic_category());
        m_hold = LeftScratch::hold(m_path.c_str());
        if (m_hold < 0 && ::rmdir(m_path.c_str()) == 0)
            throw std::system_error(EMFILE, std::generic_category()); // it was still there: there is no descriptor left
    }
    fill(g_folder, m_path);
    g_entryCount = 0;
    g_exists = true;
}

ScratchFolder::~ScratchFolder() {
    removeAll();
    ::close(m_hold);
}

std::string ScratchFolder::entry(std::string_view name) {
    std::string path = m_path + "/" + std::string(name);
    const std::size_t count = g_entryCount;
    if (count == kMostEntries)
        throw std::logic_error("too many entries in the temporary folder");
    fill(g_entries[count], path);
    g_entryCount = count + 1;
    return path;
}
