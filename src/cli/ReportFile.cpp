// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ReportFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <system_error>
#include <unistd.h>

#include "cli/Descriptor.h"
#include "cli/SystemText.h"
#include "cli/UsageError.h"

namespace {

namespace fs = std::filesystem;

struct Ending {
    const char* text;
    ReportFile::Language language;
};

constexpr Ending kEndings[] = {
    {".html", ReportFile::Language::html},
    {".htm", ReportFile::Language::html},
    {".md", ReportFile::Language::markdown},
};

ReportFile::Language languageOf(const std::string& name) {
    std::string ending = fs::path(name).extension().string();
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    for (const Ending& entry : kEndings) {
        if (ending == entry.text)
            return entry.language;
    }
    throw UsageError("--report: „" + name + "“ endet weder auf .html (oder .htm) noch auf .md; schreiben Sie etwa " +
                     "--report bericht.html.");
}

[[noreturn]] void failWithErrno() { throw std::system_error(errno, std::generic_category()); }

/// A new file beside the wanted one, which is gone in the end unless it took its place.
class Draft {
public:
    /// Throws std::system_error.
    explicit Draft(const std::string& wanted)
        : m_path(wanted + ".XXXXXX"), m_file(::mkstemp(m_path.data())) { // for the user alone
        if (!m_file.isOpen())
            failWithErrno();
    }
    ~Draft() {
        if (!m_isKept)
            ::unlink(m_path.c_str());
    }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    void write(std::string_view text) const {
        while (!text.empty()) {
            const ssize_t count = ::write(m_file.number(), text.data(), text.size());
            if (count < 0 && errno == EINTR)
                continue;
            if (count < 0)
                failWithErrno();
            text.remove_prefix(static_cast<std::size_t>(count));
        }
        if (::fsync(m_file.number()) != 0)
            failWithErrno();
    }

    void moveTo(const std::string& wanted) {
        if (std::rename(m_path.c_str(), wanted.c_str()) != 0)
            failWithErrno();
        m_isKept = true;
    }

private:
    std::string m_path;
    Descriptor m_file;
    bool m_isKept = false;
};

void checkPlace(const std::string& name) {
    std::error_code error;
    const fs::file_status status = fs::status(name, error);
    if (fs::exists(status) && !fs::is_regular_file(status))
        throw UsageError("--report: „" + name + "“ ist keine Datei, die sich ersetzen ließe; nennen Sie eine andere.");
    try {
        const Draft attempt(name);
    } catch (const std::system_error& failure) {
        throw UsageError("--report: „" + name + "“ lässt sich nicht anlegen: " + systemText(failure.code().value()) +
                         ". Prüfen Sie den Ordner und seine Rechte.");
    }
}

bool isSame(const fs::path& a, const fs::path& b) {
    std::error_code error;
    if (fs::equivalent(a, b, error))
        return true;
    const fs::path first = fs::weakly_canonical(a, error);
    return !error && first == fs::weakly_canonical(b, error) && !error;
}

} // namespace

ReportFile::ReportFile(const std::string& name, const std::vector<fs::path>& others)
    : m_name(name), m_language(languageOf(name)) {
    checkPlace(name);
    for (const fs::path& other : others) {
        if (isSame(name, other))
            throw UsageError("--report: „" + name + "“ würde „" + other.string() +
                             "“ ersetzen; nennen Sie eine andere Datei.");
    }
}

void ReportFile::write(std::string_view text) const {
    Draft draft(m_name);
    draft.write(text);
    draft.moveTo(m_name);
}
