// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ProfileFolder.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "cli/Descriptor.h"
#include "cli/FileBytes.h"
#include "cli/Suggestion.h"
#include "cli/SystemText.h"
#include "cli/UsageError.h"
#include "cli/UserFolder.h"

namespace {

constexpr const char* kExtension = ".profil";
constexpr std::size_t kLongestName = 100; // bytes

[[noreturn]] void cannotWrite(const std::filesystem::path& path, int error) {
    throw UsageError("Das Profil „" + path.string() + "“ lässt sich nicht schreiben: " + systemText(error) + ".");
}

} // namespace

namespace ProfileFolder {

std::filesystem::path path() {
    const std::filesystem::path config = UserFolder::config();
    return config.empty() ? config : config / "dmimport/profiles";
}

std::filesystem::path pathOf(const std::string& name) { return path() / (name + kExtension); }

std::vector<std::string> names() {
    std::vector<std::string> names;
    std::error_code error; // a folder that is not there holds no profiles
    for (const auto& entry : std::filesystem::directory_iterator(path(), error)) {
        if (entry.path().extension() == kExtension && entry.is_regular_file(error))
            names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

Profile load(const std::string& name) {
    const std::filesystem::path file = pathOf(name);
    std::string text;
    try {
        text = FileBytes::read(file.string());
    } catch (const std::system_error& error) {
        if (error.code().value() != ENOENT)
            throw UsageError("Das Profil „" + file.string() +
                             "“ lässt sich nicht lesen: " + systemText(error.code().value()) + ".");
        throw UsageError("Das Profil „" + name + "“ gibt es nicht." + Suggestion::question(name, names()) +
                         " „dmimport profiles“ zeigt die Profile.");
    }
    try {
        Profile profile = Profile::parse(name, text);
        static_cast<void>(profile.readingOptions()); // so that a wrong value is told with the profile's name
        return profile;
    } catch (const UsageError& error) {
        throw UsageError("Das Profil „" + file.string() + "“ lässt sich nicht verstehen: " + error.what());
    }
}

void save(const Profile& profile) {
    if (path().empty())
        throw UsageError("Es ist nicht bekannt, wo Ihre Einstellungen liegen (HOME fehlt); ein Profil lässt sich nicht "
                         "speichern.");
    UserFolder::make(path());
    const std::filesystem::path file = pathOf(profile.name);
    const std::string draft = file.string() + ".neu";
    {
        const Descriptor target(::open(draft.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, S_IRUSR | S_IWUSR));
        const std::string text = profile.text();
        if (!target.isOpen())
            cannotWrite(file, errno);
        const ssize_t written = ::write(target.number(), text.data(), text.size());
        if (written != static_cast<ssize_t>(text.size())) {
            const int error = written < 0 ? errno : ENOSPC;
            ::unlink(draft.c_str());
            cannotWrite(file, error);
        }
    }
    if (std::rename(draft.c_str(), file.c_str()) != 0)
        cannotWrite(file, errno);
}

void checkName(const std::string& option, const std::string& name) {
    const bool writable = !name.empty() && name.size() <= kLongestName && name.front() != '.' &&
                          std::none_of(name.begin(), name.end(),
                                       [](char c) { return c == '/' || (c >= '\0' && c < ' ') || c == '\x7F'; });
    if (!writable)
        throw UsageError(option + ": „" + name + "“ kann kein Profil heißen; schreiben Sie etwa " + option +
                         " girokonto.");
}

} // namespace ProfileFolder
