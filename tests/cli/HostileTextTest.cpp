// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <sys/stat.h>
#include <thread>

#include "cli/DmimportFixture.h"
#include "cli/HomeBankingTexts.h"
#include "store/Sql.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kEscapes = "\x1B]0;gekapert\x07\x1B[2J\x1B[31mrot\x9B\x33\x31m";
constexpr const char* kFormats = "%s%s%s%n%n%x {} {0} $(id) `id`";
constexpr const char* kSql = "'); DROP TABLE DataSets; --";
constexpr const char* kBidi = "\xE2\x80\xAE"
                              "fdp.exe\xE2\x80\xAC\xE2\x81\xA6"; // right-to-left override, isolate

/// Texts of a file or its name that would like to be more than texts.
class HostileTextTest : public DmimportTest {
protected:
    /// No control character but line ends, none of the sequences above, no mark that turns the direction of text.
    static void expectHarmless(const std::string& text, const std::string& where) {
        for (std::size_t i = 0; i < text.size(); ++i) {
            const auto byte = static_cast<unsigned char>(text[i]);
            EXPECT_TRUE(byte >= 0x20 || byte == '\n') << where << ": control character " << int{byte} << " at " << i;
            EXPECT_NE(byte, 0x7FU) << where;
            const bool isC1 = byte == 0xC2 && i + 1 < text.size() && static_cast<unsigned char>(text[i + 1]) < 0xA0;
            EXPECT_FALSE(isC1) << where << ": C1 control character at " << i;
        }
        for (const char* mark :
             {"\xE2\x80\xAA", "\xE2\x80\xAB", "\xE2\x80\xAC", "\xE2\x80\xAD", "\xE2\x80\xAE", "\xE2\x81\xA6",
              "\xE2\x81\xA7", "\xE2\x81\xA8", "\xE2\x81\xA9", "\xE2\x80\x8E", "\xE2\x80\x8F"})
            EXPECT_EQ(text.find(mark), std::string::npos) << where << ": mark of direction";
    }

    /// Runs it and looks at everything that it says.
    Result harmless(std::vector<std::string> arguments) const {
        const Result result = run(arguments);
        expectHarmless(result.output, arguments.front() + " to standard output");
        expectHarmless(result.messages, arguments.front() + " to standard error");
        return result;
    }

    void expectStoreIsThere(int records) const {
        EXPECT_EQ(Sql(path(kStore)).value("SELECT count(*) FROM DataSets"), std::to_string(records));
    }
};

TEST_F(HostileTextTest, OfADelimitedFile) {
    std::string text = "Buchungstag;Empfaenger;Verwendungszweck;Kategorie;Betrag\n";
    for (const char* hostile : {kEscapes, kFormats, kSql, kBidi})
        text += std::string("13.05.2004;\"") + hostile + "\";\"" + hostile + "\";\"" + hostile + "\";-1,00\n";
    text += std::string("31.02.2004;x;y;z;") + kEscapes + "\n"; // for the messages
    write("a.csv", text);
    harmless({"inspect", "a.csv"});
    harmless({"preview", "a.csv"});
    harmless({"import", "a.csv", "--store", kStore});
    harmless({"import", "a.csv", "--store", kStore, "--new-only"});
    harmless({"import", "a.csv", "--store", "b.db", "--verbatim", "--delimiter", ";", "--header", "--columns",
              "0=Datum,1=Empfaenger,2=Verwendungszweck,4=Betrag"});
    harmless({"show", "--store", kStore});
    harmless({"show", "--store", kStore, "--json"});
    harmless({"show", "sessions", "--store", kStore});
    expectStoreIsThere(4);
    EXPECT_EQ(show().at(2).at("Empfaenger"), kSql) << "it is kept as the text that it is";
}

TEST_F(HostileTextTest, OfAQifFile) {
    write("a.qif", std::string("!Type:Bank\nD13.5.2004\nT1.00\nP") + kEscapes + "\nM" + kSql + "\nL" + kFormats +
                       "\n^\n!Type:" + kEscapes + "\nD1\n^\n");
    harmless({"inspect", "a.qif"});
    harmless({"preview", "a.qif"});
    harmless({"import", "a.qif", "--store", kStore});
    harmless({"show", "--store", kStore});
    expectStoreIsThere(1);
}

TEST_F(HostileTextTest, OfAHomeBankingDocument) {
    write("konto.xml", HomeBankingTexts::accountList(HomeBankingTexts::account("100", "0815", kSql)));
    write("b.xml", HomeBankingTexts::bookingList(HomeBankingTexts::booking("&#x9b;31m%n", "01.02.2004", "1,00",
                                                                           std::string("<empfaenger>") + kBidi +
                                                                               "&#x85;" + kSql + "</empfaenger>") +
                                                 "<\xE2\x80\xAEhcubn/>"));
    harmless({"accounts", "konto.xml", "--store", kStore});
    harmless({"bookings", "b.xml", "--store", kStore, "--keep-partial"});
    harmless({"show", "accounts", "--store", kStore});
    harmless({"show", "bookings", "--store", kStore});
    EXPECT_EQ(Sql(path(kStore)).value("SELECT Bezeichnung FROM HomeBankingImport"), kSql);
}

TEST_F(HostileTextTest, OfNamesOfFiles) {
    for (const char* hostile : {kEscapes, kFormats, kSql, kBidi}) {
        std::string name = std::string(hostile) + ".csv";
        std::replace(name.begin(), name.end(), '/', '_');
        write(name, "Buchungstag;Empfaenger;Verwendungszweck;Betrag\n13.05.2004;A;B;-1,00\n14.05.2004;A;" +
                        std::string(hostile) + ";-2,00\n");
        harmless({"inspect", name});
        harmless({"import", name, "--store", kStore});
        harmless({"import", name, "--store", kStore}); // names the session of before
        harmless({"import", name + "-fehlt", "--store", kStore});
        harmless({"show", "--store", name + "-fehlt.db"});
    }
    harmless({"show", "sessions", "--store", kStore});
    harmless({kEscapes});
    harmless({"show", kEscapes});
    harmless({"preview", "a.csv", std::string("--") + kEscapes});
}

/// The program says what it means in colours of its own, and only there.
TEST_F(HostileTextTest, OnATerminal) {
    write("a.csv", std::string("Buchungstag;Empfaenger;Verwendungszweck;Betrag\n13.05.2004;\"") + kEscapes +
                       "\";Miete;1,00\n14.05.2004;B;C;2,00\n");
    ChildProgram child = program({"preview", "a.csv", "--color", "never"});
    child.terminalColumns = 80;
    std::string output = child.run().output;
    std::erase(output, '\r'); // the terminal's own
    expectHarmless(output, "a terminal");
}

TEST_F(HostileTextTest, WhatIsMadeIsForTheUserAlone) {
    write("a.csv", "Buchungstag;Empfaenger;Verwendungszweck;Betrag\n13.05.2004;A;B;-1,00\n14.05.2004;A;C;-2,00\n");
    ChildProgram child = program({"import", "a.csv", "--store", kStore, "--save-profile", "bank", "--quiet"});
    child.before = [] { ::umask(0); };
    child.environment["XDG_CONFIG_HOME"] = path("einstellungen");
    EXPECT_EQ(child.run().status, 0);
    constexpr auto kUserOnly = fs::perms::owner_read | fs::perms::owner_write;
    EXPECT_EQ(fs::status(path(kStore)).permissions(), kUserOnly);
    int files = 0;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path("einstellungen"))) {
        EXPECT_EQ(entry.status().permissions() & (fs::perms::group_all | fs::perms::others_all), fs::perms::none)
            << entry.path();
        ++files;
    }
    EXPECT_GE(files, 2) << "a folder and the profile";
}

TEST_F(HostileTextTest, LinksAndPipes) {
    write("a.csv", "Buchungstag;Empfaenger;Verwendungszweck;Betrag\n13.05.2004;A;B;-1,00\n14.05.2004;A;C;-2,00\n");
    fs::create_symlink("a.csv", path("link.csv"));
    EXPECT_EQ(run({"import", "link.csv", "--store", kStore}).status, 0) << "a link is the file that it leads to";
    fs::create_symlink("im kreis.csv", path("im kreis.csv"));
    EXPECT_EQ(run({"import", "im kreis.csv", "--store", kStore}).status, 1);
    fs::create_symlink(kStore, path("link.db"));
    EXPECT_EQ(run({"import", "a.csv", "--store", "link.db", "--again"}).status, 0);
    expectStoreIsThere(4);

    ASSERT_EQ(::mkfifo(path("rohr.csv").c_str(), 0600), 0);
    std::thread writer([this] { write("rohr.csv", read("a.csv")); });
    EXPECT_EQ(run({"import", "rohr.csv", "--store", kStore, "--again"}).status, 0) << "a pipe is read to its end";
    writer.join();
    expectStoreIsThere(6);
    ASSERT_EQ(::mkfifo(path("rohr.db").c_str(), 0600), 0);
    EXPECT_EQ(run({"import", "a.csv", "--store", "rohr.db"}).status, 3) << "and is no store";
    EXPECT_EQ(run({"import", "/dev/zero", "--store", kStore}).status, 1) << "without end";
}

} // namespace
