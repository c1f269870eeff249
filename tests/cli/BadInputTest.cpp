// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "cli/DmimportFixture.h"

namespace {

using namespace std::string_literals;

const std::vector<std::string> kReading = {"--verbatim", "--columns", "0=Datum,1=Empfaenger,2=Betrag", "--delimiter",
                                           ";"};

/// Each bad file meets a store that holds something already, and must leave it
/// as it was, byte by byte, unless the test says otherwise.
class BadInputTest : public DmimportTest {
protected:
    BadInputTest() {
        write("gut.csv", "01.01.2004;Vorher;1\n");
        import(with({"gut.csv"}), 0);
        m_store = read(kStore);
    }

    static std::vector<std::string> with(std::vector<std::string> arguments) {
        arguments.insert(arguments.end(), kReading.begin(), kReading.end());
        return arguments;
    }

    /// The same columns, and all else found in the file.
    static std::vector<std::string> inspected(std::vector<std::string> arguments) {
        arguments.insert(arguments.end(), kReading.begin() + 1, kReading.end());
        return arguments;
    }

    /// The file is refused as a whole, with that code (and line) and those words.
    void expectRefused(const std::string& file, const std::string& code, const char* words,
                       const std::function<void()>& before = {}) const {
        for (const bool json : {true, false}) {
            std::vector<std::string> arguments = with({"import", file, "--store", kStore});
            if (json)
                arguments.emplace_back("--json");
            ChildProgram program = this->program(arguments);
            program.before = before;
            const Result result = program.run();
            EXPECT_EQ(result.status, 1) << result.messages;
            EXPECT_THAT(result.messages, Says("[" + code.substr(0, code.find(':')) + "]"));
            EXPECT_THAT(result.messages, Says(words));
            EXPECT_THAT(result.messages, Says("Hinweis: "));
            if (json) {
                const Json report = Json::parse(result.output).at("files").at(0);
                EXPECT_EQ(messages(report), code);
                EXPECT_EQ(report.at("committed"), false);
            } else {
                EXPECT_EQ(result.output, file + ": nicht übernommen; der Bestand ist unverändert.\n");
            }
            EXPECT_EQ(read(kStore), m_store);
            EXPECT_EQ(leftovers(), std::vector<std::string>());
        }
    }

    std::string m_store;
};

TEST_F(BadInputTest, MissingFile) {
    expectRefused("fehlt.csv", "file-missing:-", "Die Datei „fehlt.csv“ gibt es nicht.");
}

TEST_F(BadInputTest, MissingFileHasTheLibrarysText) {
    EXPECT_EQ(import(with({"fehlt.csv"}), 1).at("errorText"), "Die Importdatei konnte nicht geöffnet werden.");
}

TEST_F(BadInputTest, EmptyName) {
    const Result result = run(with({"import", "", "--store", kStore}));
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.messages, Says("[file-missing]"));
}

TEST_F(BadInputTest, Directory) {
    std::filesystem::create_directory(path("ordner.csv"));
    expectRefused("ordner.csv", "file-is-directory:-", "„ordner.csv“ ist ein Ordner und keine Datei.");
}

TEST_F(BadInputTest, UnreadableFile) {
    write("geheim.csv", "01.02.2004;A;1\n");
    std::filesystem::permissions(path("geheim.csv"), std::filesystem::perms::none);
    expectRefused("geheim.csv", "file-unreadable:-", "lässt sich nicht lesen: die Rechte erlauben es nicht",
                  obeyPermissions);
}

TEST_F(BadInputTest, FileInAnUnreadableFolder) {
    std::filesystem::create_directory(path("geheim"));
    write("geheim/a.csv", "01.02.2004;A;1\n");
    std::filesystem::permissions(path("geheim"), std::filesystem::perms::none);
    expectRefused("geheim/a.csv", "file-unreadable:-", "die Rechte erlauben es nicht", obeyPermissions);
    std::filesystem::permissions(path("geheim"), std::filesystem::perms::owner_all);
}

TEST_F(BadInputTest, LinkThatLeadsNowhereOrInACircle) {
    std::filesystem::create_symlink("nirgends", path("lose.csv"));
    expectRefused("lose.csv", "file-missing:-", "gibt es nicht");
    std::filesystem::create_symlink("kreis.csv", path("kreis.csv"));
    expectRefused("kreis.csv", "file-unreadable:-", "die Verweise darauf führen im Kreis");
}

TEST_F(BadInputTest, NameBelowAFile) {
    expectRefused("gut.csv/x.csv", "file-unreadable:-", "ein Teil des Pfades ist kein Ordner");
}

TEST_F(BadInputTest, NameThatIsTooLong) {
    expectRefused(std::string(300, 'x') + ".csv", "file-unreadable:-", "der Name ist zu lang");
}

TEST_F(BadInputTest, Device) { expectRefused("/dev/zero", "file-is-device:-", "ist ein Gerät"); }

TEST_F(BadInputTest, Socket) {
    const int number = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string name = path("s.csv");
    ASSERT_LT(name.size(), sizeof address.sun_path);
    name.copy(address.sun_path, name.size());
    ASSERT_EQ(::bind(number, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    expectRefused("s.csv", "file-is-device:-", "ist ein Gerät");
    ::close(number);
}

TEST_F(BadInputTest, LineOf5000Bytes) {
    write("lang.csv", "01.02.2004;A;1\n02.02.2004;" + std::string(4987, 'x') + ";2\n03.02.2004;C;3\n");
    expectRefused("lang.csv", "line-too-long:2", "Die Zeile ist 5000 Byte lang; höchstens 4094 lassen sich lesen.");
    const Json file = import(with({"lang.csv"}), 1);
    EXPECT_EQ(file.at("errorText"), "(Zeile   2):Fehler beim Analysieren der Daten aus der XML-Datei.\n");
    EXPECT_EQ(file.at("lines"),
              Json::parse(R"({"read":3,"records":0,"header":0,"preamble":0,"footer":0,"blank":0,"ignored":3})"));
}

TEST_F(BadInputTest, LongestLineThatFitsIsRead) {
    write("passt.csv", "01.02.2004;" + std::string(4094 - 13, 'x') + ";1\n");
    EXPECT_EQ(import(with({"passt.csv"}), 0).at("importedCount"), 1);
}

TEST_F(BadInputTest, EndlessLineNeedsNoMemory) {
    std::filesystem::resize_file(path(write("null.csv", "")), 200U << 20); // a hole: zero bytes, no line feed
    const Json file = import({"null.csv", "--verbatim"}, 1);
    EXPECT_EQ(messages(file), "nul-byte:1 line-too-long:1");
    EXPECT_EQ(read(kStore), m_store);
}

TEST_F(BadInputTest, NulBytes) {
    write("nul.csv", "01.02.2004;A;1\n02.02.2004;B\0C;2\n03.02.2004;C;3\n"s);
    EXPECT_EQ(messages(import(with({"nul.csv"}), 0)), "nul-byte:2");
    EXPECT_EQ(show().at(2).at("Empfaenger"), "B") << "what the library makes of it";
    const Json file = import(inspected({"nul.csv"}), 0);
    EXPECT_EQ(messages(file), "zero-bytes:-");
    EXPECT_EQ(show().at(5).at("Empfaenger"), "B C");
    EXPECT_EQ(show().at(5).at("Betrag"), 2.0);
}

TEST_F(BadInputTest, UnbalancedQuote) {
    write("offen.csv", "01.02.2004;A;1\n02.02.2004;\"B;2\n\n03.02.2004;5\" Rohr;3\n");
    const Json verbatim = import(with({"offen.csv"}), 0);
    EXPECT_EQ(messages(verbatim), "unbalanced-quote:2 unbalanced-quote:4") << "told, and read as it is";
    const std::size_t before = show().size();
    EXPECT_EQ(import(inspected({"offen.csv"}), 0).at("importedCount"), 3);
    const Json rows = show();
    EXPECT_EQ(rows.at(before + 1).at("Empfaenger"), "B");
    EXPECT_EQ(rows.at(before + 1).at("Betrag"), 2.0);
    EXPECT_EQ(rows.at(before + 2).at("Empfaenger"), "5\" Rohr");
}

TEST_F(BadInputTest, RefusedAmount) {
    write("betrag.csv",
          "Tag;Wer;Was\n01.02.2004;A;1\n\n02.02.2004;B;10.000.000.000.000,00\n03.02.2004;C;9.999.999.999.999,99\n");
    std::vector<std::string> arguments = with({"betrag.csv", "--header"});
    const Json file = import(arguments, 1);
    EXPECT_EQ(messages(file), "bad-amount:4");
    EXPECT_THAT(file.at("messages").at(0).at("text").get<std::string>(),
                Says("„10.000.000.000.000,00“ ist kein möglicher Betrag"));
    EXPECT_EQ(file.at("importedCount"), 2);
    EXPECT_EQ(file.at("refusedCount"), 1);
    EXPECT_EQ(file.at("lines").at("records"), 3);
    EXPECT_EQ(show().size(), 3U);
    EXPECT_EQ(show().back().at("Betrag"), 9999999999999.99);
}

TEST_F(BadInputTest, BadDate) {
    write("datum.csv", "01.02.2004;A;1\n31.02.2004;B;2\n");
    const Result result = run(with({"import", "datum.csv", "--store", kStore}));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.messages,
              "datum.csv:2: Fehler: „31.02.2004“ ist kein Datum, oder Tag und Monat stehen anders als in den "
              "übrigen Zeilen. [bad-date]\n"
              "    31.02.2004;B;2\n"
              "    ^^^^^^^^^^\n"
              "  Hinweis: Berichtigen Sie die Zeile, oder übernehmen Sie solche Datensätze mit --allow-undated ohne "
              "Datum.\n");
    EXPECT_EQ(show().size(), 2U);
}

TEST_F(BadInputTest, FileOfRefusedRecordsAlone) {
    write("alles.csv", "31.02.2004;A;1\n01.02.2004;B;99999999999999\n");
    expectRefused("alles.csv", "bad-date:1 bad-amount:2", "ist kein Datum");
}

TEST_F(BadInputTest, DateThatContradictsTheOthers) {
    write("us.csv", "12/31/2004;A;1\n31/12/2004;B;2\n");
    EXPECT_EQ(messages(import(with({"us.csv"}), 1)), "bad-date:2");
}

TEST_F(BadInputTest, RowsBehindTheTablesEnd) {
    std::string rows;
    for (int row = 0; row < 65536; ++row)
        rows += "01.02.2004;A;1\n";
    write("viele.csv", rows);
    const Json file = import(with({"viele.csv"}), 1);
    EXPECT_EQ(file.at("importedCount"), 65534) << "one row is in the store already";
    EXPECT_EQ(file.at("refusedCount"), 2);
    EXPECT_EQ(file.at("committed"), true) << "what has a place is not lost";
    EXPECT_EQ(messages(file), "table-full:65535 table-full:65536");
    EXPECT_EQ(show().size(), 65535U);
    const std::string full = read(kStore);

    write("noch.csv", "01.02.2004;A;1\n\n02.02.2004;B;2\n03.02.2004;C;3\n");
    const Result result = run(with({"import", "noch.csv", "--store", kStore}));
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.messages,
                Says("noch.csv:1: Fehler: Der Bestand ist voll: Er fasst 65.535 Datensätze. [table-full]"));
    EXPECT_THAT(result.messages, Says("noch.csv:3-4: Fehler: ")) << "equal messages of successive lines are one";
    EXPECT_EQ(read(kStore), full);
}

TEST_F(BadInputTest, ManyMessagesNameAllLinesAndSpareTheReader) {
    std::string rows = "01.02.2004;A;1\n";
    for (int row = 2; row <= 60; ++row)
        rows += row % 10 == 0 ? "02.02.2004;B;2\n" : "x" + std::to_string(row) + ";B;2\n";
    write("viele.csv", rows);
    const Result result = run(with({"import", "viele.csv", "--store", kStore}));
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.messages, Says("viele.csv:23: Fehler: „x23“"));
    EXPECT_THAT(result.messages, Says("viele.csv: Fehler: ebenso die Zeilen 24-29, 31-39, 41-49, 51-59 [bad-date]\n"));
    EXPECT_EQ(import(with({"viele.csv"}), 1).at("messages").size(), 53U) << "a machine gets them all";
}

TEST_F(BadInputTest, ControlCharactersReachNoTerminal) {
    write("boese.csv", "01.02.2004;\033[31mRot\007;1\n\033]0;x\007;B\r;2\n");
    const Result result = run(with({"import", "boese.csv", "--store", kStore}));
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.messages, Says("„␛]0“"));
    const Result shown = run({"show", "--store", kStore});
    EXPECT_THAT(shown.output, Says("␛[31mRot␇"));
    EXPECT_THAT(run(with({"preview", "boese.csv"})).output, Says("␛"));
    for (const std::string& text :
         {result.output, result.messages, shown.output, run({"show", "--store", kStore, "--json"}).output}) {
        EXPECT_EQ(text.find('\033'), std::string::npos);
        EXPECT_EQ(text.find('\007'), std::string::npos);
    }
    EXPECT_EQ(show().back().at("Empfaenger"), "\033[31mRot\007") << "a machine gets it as it is, escaped";
}

TEST_F(BadInputTest, TemporaryFolderThatCannotBeMade) {
    write("x€.csv", "01.02.2004;A;1\n");
    ChildProgram program = this->program(with({"import", "x€.csv", "--store", kStore}));
    program.environment["TMPDIR"] = path("gibt/es/nicht");
    const Result result = program.run();
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.messages, Says("[temp-unusable]"));
    EXPECT_EQ(read(kStore), m_store);
}

} // namespace
