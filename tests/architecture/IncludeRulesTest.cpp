// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "architecture/IncludeRules.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "architecture/SourceTree.h"

namespace {

using SourceTree::Include;
using SourceTree::SourceFile;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr bool kMay = true;
constexpr bool kMayNot = false;

struct Case {
    const char* path;
    const char* line;
    bool allowed;
    const char* why;
};

constexpr Case kCases[] = {
    {"framework/datamodel_api/Node.h", "#include <string>", kMay, "the contract stands on the standard library"},
    {"framework/datamodel_api/Node.h", "#include \"framework/datamodel_api/NDX.h\"", kMay, "and on itself"},
    {"framework/datamodel_api/Node.h", "#include \"framework/ImportModuleApi.h\"", kMayNot, "not on the library"},
    {"framework/datamodel_api/Node.h", "#include \"datamodel/RecordNode.h\"", kMayNot, "not on one of its models"},
    {"framework/datamodel_api/Node.h", "#include <QtCore/QString>", kMayNot, "a host need not have Qt"},

    {"dmwrite/SmartDate.cpp", "#include \"framework/datamodel_api/DMDate.h\"", kMay, "the contract"},
    {"dmwrite/SmartDate.cpp", "#include \"framework/AssertTypeSizes.h\"", kMay, "every source tells its sizes"},
    {"dmwrite/SmartDate.cpp", "#include \"framework/ImportFileBase.h\"", kMayNot, "the chain of classes goes up"},
    {"dmwrite/SmartDate.cpp", "#include \"csv/ImportModuleCSV.h\"", kMayNot, "no format below the pipeline"},
    {"dmwrite/SmartDate.cpp", "#include <QtCore/QDateTime>", kMayNot, "only the clock asks Qt for the date"},
    {"dmwrite/UtcClock.cpp", "#include <QtCore/QDateTime>", kMay, "the clock"},
    {"dmwrite/UtcClock.cpp", "#include <QtCore/QFile>", kMayNot, "the clock reads no file"},
    {"dmwrite/UtcClock.h", "#include <QtCore/QDateTime>", kMayNot, "hidden from whoever asks the time"},

    {"framework/ImportFileBase.cpp", "#include \"dmwrite/SeesionInfo.h\"", kMay, "the pipeline writes sessions"},
    {"framework/ImportFileBase.cpp", "#include \"csv/ImportModuleCSV.h\"", kMayNot, "the pipeline knows no format"},
    {"framework/ImportExternData.cpp", "#include \"csv/ImportModuleCSV.h\"", kMay, "the factory makes it"},
    {"framework/ImportExternData.cpp", "#include \"qif/ImportModuleQIF.h\"", kMay, "the factory makes it"},
    {"framework/ImportExternData.cpp", "#include \"homebanking/BankingXML.h\"", kMayNot, "two paths, two doors"},
    {"framework/ImportExternData.h", "#include \"csv/ImportModuleCSV.h\"", kMayNot, "hosts see no module"},
    {"framework/ImportExternData.cpp", "#include \"datamodel/DataModel.h\"", kMayNot, "any host's model will do"},
    {"framework/ImportFileBase.cpp", "#include <QtCore/QFile>", kMayNot, "text is read without Qt"},

    {"csv/ImportModuleCSV.cpp", "#include \"csv/DelimiterFinder.h\"", kMay, "its own room"},
    {"csv/ImportModuleCSV.cpp", "#include \"dmwrite/SmartDate.h\"", kMay, "the chain of classes"},
    {"csv/ImportModuleCSV.cpp", "#include \"qif/ImportModuleQIF.h\"", kMayNot, "formats do not know each other"},
    {"csv/ImportModuleCSV.cpp", "#include \"DelimiterFinder.h\"", kMayNot, "paths start at src/"},
    {"csv/ImportModuleCSV.cpp", "#include <string.h>", kMayNot, "the C++ names of the C library"},
    {"csv/ImportModuleCSV.cpp", "#include <unistd.h>", kMayNot, "the library is portable"},
    {"csv/ImportModuleCSV.cpp", "#include <sqlite3.h>", kMayNot, "only the store keeps data"},
    {"csv/ImportModuleCSV.cpp", "#include \"intake/Plan.h\"", kMayNot, "the intake stands before the library"},
    {"csv/ImportModuleCSV.cpp", "#include \"cli/main.h\"", kMayNot, "programs use the library"},
    {"qif/ImportModuleQIF.cpp", "#include \"framework/ImportFileBase.h\"", kMay, "the chain of classes"},
    {"qif/ImportModuleQIF.cpp", "#include \"csv/stripQuotes.h\"", kMayNot, "formats do not know each other"},
    {"homebanking/BankingXML.cpp", "#include <QtXml/QDomDocument>", kMay, "XML is read by Qt"},
    {"homebanking/BankingXML.cpp", "#include <QtCore/QFile>", kMay, "XML is read by Qt"},
    {"homebanking/BankingXML.cpp", "#include <QtWidgets/QDialog>", kMayNot, "the library opens no window"},
    {"homebanking/BankingXML.cpp", "#include \"dmwrite/ImportIntoDMHelper.h\"", kMay, "the chain of classes"},
    {"homebanking/BankingXML.cpp", "#include \"csv/stripQuotes.h\"", kMayNot, "two paths, two doors"},

    {"datamodel/FieldNode.cpp", "#include \"framework/datamodel_api/Node.h\"", kMay, "it serves the contract"},
    {"datamodel/FieldNode.cpp", "#include \"framework/ImportModuleApi.h\"", kMayNot, "it knows no library"},
    {"datamodel/FieldNode.cpp", "#include \"store/Store.h\"", kMayNot, "whoever keeps it is not its business"},
    {"store/Store.cpp", "#include <sqlite3.h>", kMay, "the store's own dependency"},
    {"store/Store.cpp", "#include \"datamodel/DataModel.h\"", kMay, "what it keeps"},
    {"store/Store.cpp", "#include \"framework/datamodel_api/DataType.h\"", kMay, "the model's values"},
    {"store/Store.cpp", "#include \"framework/ImportExternData.h\"", kMayNot, "it keeps a model, imports nothing"},
    {"store/Store.cpp", "#include <nlohmann/json.hpp>", kMayNot, "JSON is for people"},
    {"intake/Plan.cpp", "#include \"framework/ImportExternData.h\"", kMay, "dry runs"},
    {"intake/Plan.cpp", "#include \"datamodel/DataModel.h\"", kMayNot, "it knows files, no model"},
    {"intake/Plan.cpp", "#include <unicode/translit.h>", kMay, "characters that have no place are transliterated"},
    {"intake/ColumnLexicon.cpp", "#include \"column-names.txt.h\"", kMay, "the table that it reads"},
    {"intake/Plan.cpp", "#include \"column-names.txt.h\"", kMayNot, "one reader of the table"},
    {"csv/stripQuotes.cpp", "#include <unicode/translit.h>", kMayNot, "the library passes bytes on"},
    {"intake/Plan.cpp", "#include <CLI/CLI.hpp>", kMayNot, "whoever asks is not its business"},
    {"report/PageText.cpp", "#include \"report/PageWriter.h\"", kMay, "its own room"},
    {"report/PageText.cpp", "#include \"cli/FileReport.h\"", kMayNot, "it knows what it tells, not who imported"},
    {"report/PageText.cpp", "#include \"datamodel/RecordNode.h\"", kMayNot, "nor where records come from"},
    {"report/PageText.cpp", "#include \"page.css.h\"", kMayNot, "one user of the style"},
    {"report/HtmlPage.cpp", "#include \"page.css.h\"", kMay, "the style that it writes"},
    {"cli/main.cpp", "#include <CLI/CLI.hpp>", kMay, "the command line"},
    {"cli/main.cpp", "#include <nlohmann/json.hpp>", kMay, "machine-readable answers"},
    {"cli/main.cpp", "#include \"store/Store.h\"", kMay, "where it imports to"},
    {"cli/main.cpp", "#include \"framework/ImportExternData.h\"", kMay, "the front door"},
    {"cli/main.cpp", "#include \"framework/ImportFileBase.h\"", kMayNot, "only the front door"},
    {"cli/main.cpp", "#include \"csv/DelimiterFinder.h\"", kMayNot, "only the front door"},
    {"cli/main.cpp", "#include <sqlite3.h>", kMayNot, "the store hides its database"},
    {"cli/main.cpp", "#include <QtCore/QString>", kMayNot, "no Qt in programs for the terminal"},

    {"cellar/Wine.cpp", "#include <vector>", kMayNot, "a room that the table does not know"},
    {"csv/ImportModuleCSV.cpp", "#include WHAT", kMayNot, "a macro hides what it includes"},
    {"csv/ImportModuleCSV.cpp", "#include_next <vector>", kMayNot, "and so does what one compiler alone knows"},
    {"csv/ImportModuleCSV.cpp", "  #  include \"cli/main.h\" // x", kMayNot, "spelt with blanks and a comment"},
};

TEST(IncludeRules, AllowAndForbidByRoom) {
    for (const Case& c : kCases) {
        const SourceFile file{c.path, {c.line}};
        ASSERT_EQ(SourceTree::includesOf(file).size(), 1U) << c.line;
        EXPECT_EQ(IncludeRules::objections(file).empty(), c.allowed) << c.path << ": " << c.line << " - " << c.why;
    }
}

TEST(IncludeRules, ObjectionNamesFileLineAndInclude) {
    const SourceFile file{"csv/Some.cpp", {"// text", "#include <string>", "#include <sqlite3.h>"}};

    EXPECT_THAT(IncludeRules::objections(file),
                ElementsAre("src/csv/Some.cpp:3: the room may not include <sqlite3.h>"));
}

TEST(IncludeRules, OnlyDirectivesAreRead) {
    const SourceFile file{"csv/Some.cpp", {"// see #include <sqlite3.h>", "includes(\"cli/main.h\");", "#pragma once"}};

    EXPECT_THAT(SourceTree::includesOf(file), IsEmpty());
}

TEST(SourceTree, IsReadWhole) {
    std::vector<std::string> paths;
    for (const SourceFile& file : SourceTree::files())
        paths.push_back(file.path);

    EXPECT_THAT(paths,
                ::testing::IsSupersetOf({"framework/datamodel_api/DataModelApi.h", "framework/ImportExternData.cpp",
                                         "dmwrite/SmartDate.h", "csv/ImportModuleCSV.cpp", "datamodel/FieldNode.cpp"}));
}

TEST(SourceTree, EveryRoomIncludesOnlyWhatItMay) {
    for (const SourceFile& file : SourceTree::files())
        EXPECT_THAT(IncludeRules::objections(file), IsEmpty());
}

TEST(SourceTree, QuotedIncludesNameAFileBelowTheIncludeRoot) {
    for (const SourceFile& file : SourceTree::files()) {
        for (const Include& include : SourceTree::includesOf(file)) {
            if (!include.quoted || include.name.find('/') == std::string::npos)
                continue; // in no room: made while building, if the rules allow it
            const bool exists = std::any_of(SourceTree::files().begin(), SourceTree::files().end(),
                                            [&](const SourceFile& other) { return other.path == include.name; });
            EXPECT_TRUE(exists) << file.path << ":" << include.line << ": \"" << include.name << "\"";
        }
    }
}

} // namespace
