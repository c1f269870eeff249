// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FileReports.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "cli/StoreErrorJson.h"
#include "cli/UsageError.h"

ExitStatus FileReports::collect(const std::function<void()>& work, ImportReport* page) {
    std::optional<StoreError> failure;
    try {
        work();
    } catch (const StoreError& error) {
        failure = error;
    }
    Json document = {{"files", std::move(m_files)}};
    if (page != nullptr && page->isWanted())
        writePage(*page, document);
    if (failure)
        document["error"] = StoreErrorJson::of(*failure);
    if (m_console.json())
        m_console.write(JsonText::of(document) + "\n");
    if (failure) {
        m_console.report(*failure);
        return ExitStatus::store;
    }
    return m_clean ? ExitStatus::done : ExitStatus::refused;
}

void FileReports::add(const std::string& file, const std::function<Json()>& json, const std::string& summary,
                      const std::vector<Message>& messages) {
    m_clean = m_clean &&
              std::none_of(messages.begin(), messages.end(), [](const Message& message) { return message.isError(); });
    if (m_console.json())
        m_files.push_back(json());
    else
        m_console.summary(summary);
    m_console.report(file, messages);
}

void FileReports::writePage(ImportReport& page, Json& document) {
    const std::optional<Message> problem = page.write();
    document["report"] = {{"file", page.name()}, {"written", !problem}};
    if (problem) {
        m_console.report(page.name(), {*problem});
        m_clean = false;
    }
}

void checkFiles(const std::vector<std::string>& files) {
    if (std::count(files.begin(), files.end(), "-") > 1)
        throw UsageError("„-“ steht zweimal da; die Standardeingabe lässt sich nur einmal lesen.");
}
