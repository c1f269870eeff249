// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "cli/DmimportFixture.h"

namespace {

/// A name of a file on disk, and how the store and JSON show it.
struct NameCase {
    const char* name;
    const char* stored;
    const char* why;
};

constexpr NameCase kNames[] = {
    {"umsätze.csv", "umsätze.csv", "Latin-1: handed over as it is"},
    {"Größe ÄÖÜß é.csv", "Größe ÄÖÜß é.csv", "Latin-1 with blanks"},
    {"konto€.csv", "konto€.csv", "in Windows-1252 alone: reached by a link"},
    {"„zitat“ – x.csv", "„zitat“ – x.csv", "typographic signs of Windows-1252"},
    {"čeština łódź.csv", "ceština lódz.csv", "letters that lose their mark"},
    {"umsa\xCC\x88tze.csv", "umsätze.csv", "a letter and its mark apart"},
    {"日本.csv", "??.csv", "no letters for it"},
    {"kaputt\xFF.csv", "kaputt?.csv", "no UTF-8"},
    {"umsatz", "umsatz", "no extension: a delimited list"},
    {"[a,b]", "[a,b]", "brackets are no list"},
    {"show", "show", "named like a command"},
    {"import", "import", "named like its own command"},
    {"a b'c\"d\\e.csv", "a b'c\"d\\e.csv", "marks of the shell"},
};

using FileNameTest = DmimportTest;

TEST_F(FileNameTest, AnyNameIsReadAndKept) {
    for (const NameCase& name : kNames) {
        SCOPED_TRACE(name.why);
        write(name.name, "01.02.2004;A;1\n");
        const Json file = import({name.name, "--columns", "0=Datum,2=Betrag", "--delimiter", ";"}, 0);
        EXPECT_EQ(file.at("importedCount"), 1);
        EXPECT_EQ(show("sessions").back().at("ImportFileName"), name.stored);
        EXPECT_EQ(preview({name.name, "--unassigned"}).at("rowCount"), 1);
        EXPECT_EQ(leftovers(), std::vector<std::string>());
    }
}

TEST_F(FileNameTest, FolderMayHaveAnyName) {
    std::filesystem::create_directory(path("ordner€.qif"));
    write("ordner€.qif/a", "01.02.2004;A;1\n");
    EXPECT_EQ(import({"ordner€.qif/a", "--columns", "0=Datum,2=Betrag", "--delimiter", ";"}, 0).at("format"), 1);
    EXPECT_EQ(show("sessions").back().at("ImportFileName"), "ordner€.qif/a");
}

TEST_F(FileNameTest, AbsolutePathIsKeptAsGiven) {
    write("a.csv", "01.02.2004;A;1\n");
    import({path("a.csv"), "--columns", "0=Datum,2=Betrag", "--delimiter", ";"}, 0);
    EXPECT_EQ(show("sessions").back().at("ImportFileName"), path("a.csv"));
}

TEST_F(FileNameTest, NameThatIsNoUtf8IsShownAndWrittenSafely) {
    const Result result = run({"import", "fehlt\xFF\033[1m.csv", "--store", kStore, "--columns", "0=Datum,1=Betrag"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.messages, Says("fehlt\\xff␛[1m.csv: Fehler: "));
    const Result json =
        run({"import", "fehlt\xFF\033[1m.csv", "--store", kStore, "--columns", "0=Datum,1=Betrag", "--json"});
    EXPECT_EQ(Json::parse(json.output).at("files").at(0).at("file"), "fehlt\uFFFD\033[1m.csv");
}

TEST_F(FileNameTest, FolderForTemporaryFilesMayHaveAnyName) {
    std::filesystem::create_directory(path("tmp€"));
    write("a€.csv", "01.02.2004;A;1\n");
    ChildProgram program = this->program({"preview", "a€.csv", "--unassigned"});
    program.environment["TMPDIR"] = path("tmp€");
    EXPECT_EQ(program.run().status, 0);
}

TEST_F(FileNameTest, WordsBehindTwoDashesAreFiles) {
    write("--json", "01.02.2004;A;1\n");
    const Result result = run({"preview", "--quiet", "--unassigned", "--", "--json"});
    EXPECT_EQ(result.status, 0) << result.messages;
    EXPECT_EQ(result.output, "0           1  2\n01.02.2004  A  1\n");
}

} // namespace
