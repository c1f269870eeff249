// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "architecture/IncludeRules.h"

#include <algorithm>
#include <string_view>

namespace {

using Prefixes = std::vector<std::string_view>;

struct Rule {
    std::string_view where; ///< start of a path below src/; the longest that fits holds
    Prefixes rooms;         ///< starts of what may be included in quotes
    Prefixes systems;       ///< starts of what may be included in brackets beside the standard library
};

const Prefixes kPosix = {"unistd.h", "dirent.h", "fcntl.h", "poll.h", "signal.h", "termios.h", "sys/"};

Prefixes operator+(Prefixes left, const Prefixes& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

/// What programs may know of the library: the front doors and what passes
/// through them.
const Prefixes kFrontDoors = {"dmwrite/E_ColumnIndex.h",
                              "framework/ColumnAssignment.h",
                              "framework/E_SupportedImportFormats.h",
                              "framework/ImportExternData.h",
                              "framework/ImportInputParams.h",
                              "framework/ImportRecordSet.h",
                              "homebanking/ImportHomeBankingData.h",
                              "homebanking/XmlImportData.h"};

const Prefixes kContract = {"framework/datamodel_api/"};

/// The whole chain of classes below a format's module.
const Prefixes kModuleBase = kContract + Prefixes{"dmwrite/", "framework/"};

/// The library, lowest room first; then the host.
const std::vector<Rule> kRules = {
    {"framework/datamodel_api/", kContract, {}},
    {"dmwrite/",
     kContract +
         Prefixes{"dmwrite/", "framework/AssertTypeSizes.h", "framework/ImportModuleApi.h", "framework/Latin1.h"},
     {}},
    // The one clock: the date that stamps an import.
    {"dmwrite/UtcClock.cpp", kContract + Prefixes{"dmwrite/", "framework/AssertTypeSizes.h"}, {"QtCore/QDateTime"}},
    {"framework/", kModuleBase, {}},
    // The factory, alone in its room, knows the modules that it makes.
    {"framework/ImportExternData.cpp", kModuleBase + Prefixes{"csv/", "qif/"}, {}},
    {"csv/", kModuleBase + Prefixes{"csv/"}, {}},
    {"qif/", kModuleBase + Prefixes{"qif/"}, {}},
    {"homebanking/", kModuleBase + Prefixes{"homebanking/"}, {"QtCore/", "QtXml/"}},

    {"datamodel/", kContract + Prefixes{"datamodel/"}, {}},
    {"store/", kContract + Prefixes{"datamodel/", "store/"}, kPosix + Prefixes{"sqlite3.h"}},
    {"export/", kContract + Prefixes{"datamodel/", "export/"}, {}},
    {"intake/", kContract + kFrontDoors + Prefixes{"intake/"}, {"unicode/"}},
    {"intake/ColumnLexicon.cpp", {"intake/", "column-names.txt.h"}, {}}, // its table, a text made into a header
    {"intake/OwnExport.cpp", {"export/CsvLayout.h", "intake/"}, {}},     // the one description of our own lists
    // Its dry runs, and the one list of a QIF file's sections.
    {"intake/LibraryReading.cpp", {"dmwrite/ImportIntoDMHelper.h", "framework/ImportFileBase.h", "intake/"}, {}},
    {"intake/QifFile.cpp", {"intake/", "qif/QifHeaderTable.h"}, {}},
    {"matching/", {"matching/"}, {}},
    // A page about an import knows what it tells, not who imported.
    {"report/", {"report/"}, {}},
    {"report/HtmlPage.cpp", {"report/", "page.css.h"}, {}}, // its style, a text made into a header
    {"cli/",
     kContract + kFrontDoors + Prefixes{"cli/", "datamodel/", "export/", "intake/", "matching/", "report/", "store/"},
     kPosix + Prefixes{"CLI/", "nlohmann/", "openssl/"}},
    // What suits the whole process.
    {"cli/main.cpp", kContract + kFrontDoors + Prefixes{"cli/", "datamodel/", "export/", "intake/", "store/"},
     kPosix + Prefixes{"CLI/", "malloc.h", "nlohmann/"}},
    {"cli/Allocator.cpp", {"cli/"}, kPosix + Prefixes{"mimalloc.h"}},
};

bool startsWith(std::string_view text, std::string_view start) { return text.substr(0, start.size()) == start; }

bool startsWithAny(std::string_view text, const Prefixes& starts) {
    return std::any_of(starts.begin(), starts.end(), [&](std::string_view start) { return startsWith(text, start); });
}

/// <vector>, <cstdio>: the C++ library alone names its headers in lower case
/// and without a dot.
bool isStandardHeader(std::string_view name) {
    return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
        return c == '_' || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
    });
}

const Rule* ruleFor(std::string_view path) {
    const Rule* found = nullptr;
    for (const Rule& rule : kRules) {
        if (startsWith(path, rule.where) && (found == nullptr || rule.where.size() > found->where.size()))
            found = &rule;
    }
    return found;
}

} // namespace

namespace IncludeRules {

std::string objection(const std::string& path, const SourceTree::Include& include) {
    const Rule* rule = ruleFor(path);
    if (rule == nullptr)
        return "the file lies in no known room";
    if (include.name.empty())
        return "the name of an include must be readable where it stands";
    if (include.quoted)
        return startsWithAny(include.name, rule->rooms) ? "" : "the room may not include \"" + include.name + "\"";
    if (isStandardHeader(include.name) || startsWithAny(include.name, rule->systems))
        return "";
    return "the room may not include <" + include.name + ">";
}

std::vector<std::string> objections(const SourceTree::SourceFile& file) {
    std::vector<std::string> found;
    for (const SourceTree::Include& include : SourceTree::includesOf(file)) {
        const std::string why = objection(file.path, include);
        if (!why.empty())
            found.push_back("src/" + file.path + ":" + std::to_string(include.line) + ": " + why);
    }
    return found;
}

} // namespace IncludeRules
