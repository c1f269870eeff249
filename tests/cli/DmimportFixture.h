// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "cli/ChildProgram.h"
#include "support/TemporaryFile.h"

using Json = nlohmann::ordered_json;

/// The German words on which tests agree: a text holds each of them.
MATCHER_P(Says, words, "says \"" + std::string(words) + "\"") {
    return std::string_view(arg).find(words) != std::string_view::npos;
}

/// Runs the program in a folder of its own, which is also its working
/// directory, its home and its place for temporary files.
class DmimportTest : public ::testing::Test {
protected:
    using Result = ChildProgram::Result;

    /// The store that the commands below use.
    static constexpr const char* kStore = "bestand.db";

    DmimportTest();

    /// Writes a file into the folder and returns its name.
    std::string write(const std::string& name, std::string_view bytes) const;
    std::string read(const std::string& name) const;
    std::string path(const std::string& name) const { return (m_folder.path() / name).string(); }
    bool exists(const std::string& name) const;
    /// Names of what lies in the folder for temporary files.
    std::vector<std::string> leftovers() const;

    /// A run with these arguments; to be changed before it is started.
    ChildProgram program(std::vector<std::string> arguments) const;
    Result run(std::vector<std::string> arguments) const { return program(std::move(arguments)).run(); }

    /// `import … --again --store bestand.db --json`, and its document's one file.
    Json import(std::vector<std::string> arguments, int status) const;
    /// `preview … --json`.
    Json preview(std::vector<std::string> arguments, int status = 0) const;
    /// `show TABLE --store bestand.db --json`, and the rows of its document.
    Json show(const std::string& table = "data-sets") const;
    /// Everything that the store shows.
    Json dump() const;

    /// Codes and lines of a file's messages: `bad-date:7 table-full:-`.
    static std::string messages(const Json& file);

private:
    TemporaryFolder m_folder;
};

/// Takes from a child what lets root pass by the permissions of files.
void obeyPermissions();
