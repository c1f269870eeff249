// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cli/Console.h"
#include "cli/ExitStatus.h"
#include "cli/ImportReport.h"
#include "cli/JsonText.h"

/// Tells what became of the files of a call, each as soon as that is known.
class FileReports {
public:
    explicit FileReports(Console& console) : m_console(console) {}

    /// Does `work`, which adds the report of each file, and ends the document. A
    /// StoreError of it becomes part of the document, and the status. The page,
    /// if one is given, is written whatever the work came to.
    ExitStatus collect(const std::function<void()>& work, ImportReport* page = nullptr);

    /// What is to be said of a file (the shell's bytes): to the machine, who is not always
    /// there, in a line to a person, and of its problems to both.
    void add(const std::string& file, const std::function<Json()>& json, const std::string& summary,
             const std::vector<Message>& messages);

private:
    void writePage(ImportReport& page, Json& document);

    Console& m_console;
    Json m_files = Json::array();
    bool m_clean = true;
};

/// Standard input can be read once. Throws UsageError where it is named twice.
void checkFiles(const std::vector<std::string>& files);
