// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/commands/Commands.h"
#include "cli/Console.h"
#include "cli/JsonText.h"
#include "cli/ProfileFolder.h"
#include "cli/SafeText.h"
#include "cli/TableWriter.h"

namespace {

/// What a profile fixes, on one line: the lines of its file without remarks.
std::string contentOf(const Profile& profile) {
    std::string content;
    const std::string text = profile.text();
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = text.find('\n', begin);
        const std::string line = text.substr(begin, end - begin);
        if (line.front() != '#' && !line.starts_with("header-names"))
            content += (content.empty() ? "" : ", ") + line;
        begin = end + 1;
    }
    return content;
}

ExitStatus run(const Options&, Console& console) {
    std::vector<Profile> profiles;
    for (const std::string& name : ProfileFolder::names())
        profiles.push_back(ProfileFolder::load(name));
    if (console.json()) {
        Json list = Json::array();
        for (const Profile& profile : profiles)
            list.push_back({{"name", profile.name},
                            {"file", ProfileFolder::pathOf(profile.name).string()},
                            {"headerNames", profile.header},
                            {"content", contentOf(profile)}});
        console.write(JsonText::of({{"profiles", list}}) + "\n");
        return ExitStatus::done;
    }
    TableWriter table(
        console,
        {{"Name", TableColumn::Kind::fixed}, {"Inhalt", TableColumn::Kind::text}, {"Datei", TableColumn::Kind::text}});
    const auto cells = [](const Profile& profile) {
        return std::vector<std::string>{SafeText::printable(profile.name), SafeText::printable(contentOf(profile)),
                                        SafeText::printable(ProfileFolder::pathOf(profile.name).string())};
    };
    if (!profiles.empty()) {
        for (const Profile& profile : profiles)
            table.measure(cells(profile));
        table.begin();
        for (const Profile& profile : profiles)
            table.write(cells(profile));
    }
    console.summary(std::to_string(profiles.size()) + (profiles.size() == 1 ? " Profil" : " Profile"));
    return ExitStatus::done;
}

} // namespace

const Command kProfilesCommand = {"profiles", "gespeicherte Zuordnungen", {nullptr, false, false}, {}, run};
