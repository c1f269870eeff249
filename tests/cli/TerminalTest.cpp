// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <sstream>

#include "cli/DmimportFixture.h"
#include "cli/TextWidth.h"

namespace {

const char* const kColumns = "0=Datum,1=Empfaenger,2=Betrag,3=Verwendungszweck";

class TerminalTest : public DmimportTest {
protected:
    TerminalTest() {
        write("a.csv", "01.02.2004;M\xFCller und S\xF6hne Hausverwaltung;-650,00;" + std::string(120, 'm') + "\n");
        import({"a.csv", "--delimiter", ";", "--columns", kColumns}, 0);
    }
    ChildProgram showing(int columns) const {
        ChildProgram program = this->program({"show", "--store", kStore});
        program.terminalColumns = columns;
        return program;
    }
    /// What is seen: the lines without the colours.
    static std::vector<std::string> lines(const std::string& output) {
        std::vector<std::string> lines;
        std::istringstream text(output);
        for (std::string line; std::getline(text, line);) {
            std::string seen;
            for (std::size_t at = 0; at < line.size(); ++at) {
                if (line[at] == '\033')
                    at = line.find('m', at);
                else if (line[at] != '\r')
                    seen += line[at];
            }
            lines.push_back(seen);
        }
        return lines;
    }
};

TEST_F(TerminalTest, TableFitsTheWidth) {
    for (const int width : {200, 120, 80, 60, 40, 20}) {
        const Result result = showing(width).run();
        EXPECT_EQ(result.status, 0);
        for (const std::string& line : lines(result.output))
            EXPECT_LE(TextWidth::of(line), static_cast<std::size_t>(width)) << line;
        EXPECT_THAT(result.output, Says("…")) << width;
    }
}

TEST_F(TerminalTest, DatesAndAmountsAreCutLast) {
    const Result result = showing(80).run();
    EXPECT_THAT(result.output, Says("01.02.2004"));
    EXPECT_THAT(result.output, Says("-650,00"));
}

TEST_F(TerminalTest, WideTerminalCutsNothing) { EXPECT_THAT(showing(400).run().output, Says(std::string(120, 'm'))); }

TEST_F(TerminalTest, ColorsAreForTerminals) {
    constexpr const char* kRed = "\033[31m-650,00\033[0m";
    EXPECT_THAT(showing(80).run().output, Says(kRed));
    EXPECT_EQ(run({"show", "--store", kStore}).output.find('\033'), std::string::npos);
    EXPECT_THAT(run({"show", "--store", kStore, "--color", "always"}).output, Says(kRed));
}

TEST_F(TerminalTest, NoColorIsHonoured) {
    ChildProgram program = showing(80);
    program.environment["NO_COLOR"] = "1";
    EXPECT_EQ(program.run().output.find('\033'), std::string::npos);
    program.environment["NO_COLOR"] = "";
    EXPECT_NE(program.run().output.find('\033'), std::string::npos) << "empty does not count";
    program.environment["NO_COLOR"] = "1";
    program.arguments.insert(program.arguments.end(), {"--color", "always"});
    EXPECT_NE(program.run().output.find('\033'), std::string::npos) << "the command line says more";
    program.environment["NO_COLOR"] = std::nullopt;
    program.arguments.back() = "never";
    EXPECT_EQ(program.run().output.find('\033'), std::string::npos);
}

TEST_F(TerminalTest, MessagesAreColoredAndMarked) {
    ChildProgram program = this->program({"preview", "fehlt.csv"});
    program.terminalColumns = 80;
    EXPECT_THAT(program.run().output, Says("fehlt.csv: \033[31mFehler:\033[0m Die Datei"));
    EXPECT_THAT(run({"preview", "fehlt.csv", "--color", "always"}).messages, Says("\033[31mFehler:\033[0m"));
}

TEST_F(TerminalTest, JsonHasNoColorsAnywhere) {
    ChildProgram program = showing(80);
    program.arguments.emplace_back("--json");
    EXPECT_EQ(program.run().output.find('\033'), std::string::npos);
}

TEST_F(TerminalTest, ManyColumnsOfAPreviewAreCutOff) {
    std::string row;
    for (int column = 0; column < 49; ++column)
        row += (column == 0 ? "" : ";") + std::string("wert") + std::to_string(column);
    write("breit.csv", row + "\n");
    ChildProgram program = this->program({"preview", "breit.csv", "--unassigned"});
    program.terminalColumns = 80;
    for (const std::string& line : lines(program.run().output))
        EXPECT_LE(TextWidth::of(line), 80U) << line;
}

} // namespace
