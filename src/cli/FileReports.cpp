// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FileReports.h"

#include <algorithm>

#include "cli/StoreErrorJson.h"
#include "cli/UsageError.h"

ExitStatus FileReports::collect(const std::function<void()>& work) {
    try {
        work();
    } catch (const StoreError& error) {
        end(StoreErrorJson::of(error));
        m_console.report(error);
        return ExitStatus::store;
    }
    end(nullptr);
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

void FileReports::end(const Json& error) {
    if (!m_console.json())
        return;
    Json document = {{"files", m_files}};
    if (!error.is_null())
        document["error"] = error;
    m_console.write(JsonText::of(document) + "\n");
}

void checkFiles(const std::vector<std::string>& files) {
    if (std::count(files.begin(), files.end(), "-") > 1)
        throw UsageError("„-“ steht zweimal da; die Standardeingabe lässt sich nur einmal lesen.");
}
