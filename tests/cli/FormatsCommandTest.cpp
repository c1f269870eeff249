// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstdio>
#include <cstdlib>

#include "cli/DmimportFixture.h"

namespace {

using FormatsCommandTest = DmimportTest;

TEST_F(FormatsCommandTest, JsonListsTheLibrarysFormatsInTheirOrder) {
    const Result result = run({"formats", "--json"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(result.output, R"([{"format":0,"label":"Star Money","extension":"ssx"},)"
                             R"({"format":1,"label":"Komma getrennte Liste","extension":"csv"},)"
                             R"({"format":2,"label":"Quicken Interchange Format","extension":"qif"},)"
                             R"({"format":3,"label":"Steuer Daten Import","extension":"sdi"},)"
                             R"({"format":5,"label":"Zasterhof Money Import","extension":"zhof"}])"
                             "\n");
}

TEST_F(FormatsCommandTest, TableNamesOptionExtensionAndLabel) {
    const Result result = run({"formats"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, Says("zasterhof   .zhof   Zasterhof Money Import           5\n"));
}

TEST_F(FormatsCommandTest, OptionsOfAllCommandsMayStandBeforeTheCommand) {
    EXPECT_EQ(run({"--json", "formats"}).output, run({"formats", "--json"}).output);
}

TEST_F(FormatsCommandTest, OutputThatCannotBeWrittenIsTold) {
    ChildProgram program = this->program({"formats"});
    program.before = [] {
        if (std::freopen("/dev/full", "w", stdout) == nullptr)
            std::abort();
    };
    const Result result = program.run();
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.messages, Says("[output-failed]"));
}

} // namespace
