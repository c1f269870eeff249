// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ProfileChoice.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "cli/ProfileFolder.h"
#include "cli/UsageError.h"

namespace {

/// A file that shares so much of its header with a profile is of that bank.
constexpr double kSameBank = 0.6;
constexpr std::size_t kFewestNames = 3;

bool contains(const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// Those of `names` that `others` lack: „A“, „B“.
std::string missingIn(const std::vector<std::string>& others, const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) {
        if (!contains(others, name))
            text += (text.empty() ? "„" : ", „") + name + "“";
    }
    return text.empty() ? "nichts" : text;
}

double likeness(const std::vector<std::string>& a, const std::vector<std::string>& b) {
    const auto common =
        std::count_if(a.begin(), a.end(), [&b](const std::string& name) { return !name.empty() && contains(b, name); });
    return static_cast<double>(common) / static_cast<double>(std::max<std::size_t>(1, std::max(a.size(), b.size())));
}

Message changed(const Profile& profile, const std::vector<std::string>& header) {
    return Message::of(Problem::profileChanged,
                       {profile.name, missingIn(profile.header, header), missingIn(header, profile.header)});
}

ProfileChoice named(const std::string& name, const std::vector<std::string>& header) {
    Profile profile = ProfileFolder::load(name);
    if (!profile.header.empty() && profile.header != header)
        return {std::nullopt, changed(profile, header)};
    return {std::move(profile), std::nullopt};
}

} // namespace

ProfileChoice ProfileChoice::of(const std::optional<std::string>& name, const std::vector<std::string>& header) {
    if (name)
        return named(*name, header);
    if (header.empty())
        return {};
    std::optional<Profile> likest;
    for (const std::string& candidate : ProfileFolder::names()) {
        Profile profile = ProfileFolder::load(candidate);
        if (profile.header == header) {
            Message found = Message::of(Problem::profileUsed, {profile.name});
            return {std::move(profile), std::move(found)};
        }
        if (profile.header.size() >= kFewestNames &&
            likeness(profile.header, header) > (likest ? likeness(likest->header, header) : kSameBank))
            likest = std::move(profile);
    }
    if (likest)
        return {std::nullopt, changed(*likest, header)};
    return {};
}
