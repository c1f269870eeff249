// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/DmimportFixture.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <linux/capability.h>
#include <sys/prctl.h>

DmimportTest::DmimportTest() { std::filesystem::create_directory(path("tmp")); }

std::string DmimportTest::write(const std::string& name, std::string_view bytes) const {
    std::ofstream file(path(name), std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file.flush())
        throw std::runtime_error("cannot be written: " + name);
    return name;
}

std::string DmimportTest::read(const std::string& name) const {
    std::ifstream file(path(name), std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot be read: " + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool DmimportTest::exists(const std::string& name) const { return std::filesystem::exists(path(name)); }

std::vector<std::string> DmimportTest::leftovers() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path("tmp")))
        names.push_back(entry.path().filename().string());
    return names;
}

ChildProgram DmimportTest::program(std::vector<std::string> arguments) const {
    ChildProgram program;
    program.arguments = {DMIMPORT_PROGRAM};
    program.arguments.insert(program.arguments.end(), arguments.begin(), arguments.end());
    program.workingDirectory = m_folder.path().string();
    program.environment = {{"HOME", path("home")},
                           {"XDG_DATA_HOME", std::nullopt},
                           {"TMPDIR", path("tmp")},
                           {"NO_COLOR", std::nullopt},
                           {"COLUMNS", std::nullopt}};
    return program;
}

Json DmimportTest::import(std::vector<std::string> arguments, int status) const {
    arguments.insert(arguments.begin(), "import");
    arguments.insert(arguments.end(), {"--again", "--store", kStore, "--json"});
    const Result result = run(arguments);
    EXPECT_EQ(result.status, status) << result.output << result.messages;
    const Json document = Json::parse(result.output);
    EXPECT_EQ(document.at("files").size(), 1U);
    return document.at("files").at(0);
}

Json DmimportTest::preview(std::vector<std::string> arguments, int status) const {
    arguments.insert(arguments.begin(), "preview");
    arguments.emplace_back("--json");
    const Result result = run(arguments);
    EXPECT_EQ(result.status, status) << result.output << result.messages;
    return Json::parse(result.output);
}

Json DmimportTest::show(const std::string& table) const {
    const Result result = run({"show", table, "--store", kStore, "--json"});
    EXPECT_EQ(result.status, 0) << result.messages;
    EXPECT_EQ(result.messages, "");
    return Json::parse(result.output).front();
}

Json DmimportTest::dump() const {
    Json all;
    for (const char* table : {"data-sets", "sessions", "accounts", "bookings", "counters"})
        all[table] = show(table);
    return all;
}

std::string DmimportTest::messages(const Json& file) {
    std::string list;
    for (const Json& message : file.at("messages")) {
        list += (list.empty() ? "" : " ") + message.at("code").get<std::string>() + ":" +
                (message.at("line").is_null() ? "-" : message.at("line").dump());
    }
    return list;
}

void obeyPermissions() {
    // Does nothing, and is not needed, for anybody but root.
    ::prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE, 0, 0, 0);
    ::prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH, 0, 0, 0);
}
