// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

#include <gmock/gmock.h>

#include "cli/CommandTable.h"
#include "cli/OptionTable.h"
#include "cli/UsageError.h"

namespace {

CommandLine parse(std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "dmimport");
    return CommandLine::parse(static_cast<int>(arguments.size()), arguments.data());
}

TEST(CommandLine, EveryOptionReachesItsPlace) {
    const CommandLine line = parse({"import",
                                    "a",
                                    "--store",
                                    "s",
                                    "--columns",
                                    "c",
                                    "--delimiter",
                                    "d",
                                    "--header",
                                    "--no-header",
                                    "--format",
                                    "f",
                                    "--verbatim",
                                    "--info",
                                    "i",
                                    "--allow-undated",
                                    "--keep-partial",
                                    "--json",
                                    "--quiet",
                                    "--color",
                                    "x",
                                    "b"});
    EXPECT_STREQ(line.command->name, "import");
    EXPECT_EQ(line.options.operands, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(line.options.store, "s");
    EXPECT_EQ(line.options.columns, "c");
    EXPECT_EQ(line.options.delimiter, "d");
    EXPECT_EQ(line.options.format, "f");
    EXPECT_EQ(line.options.info, "i");
    EXPECT_EQ(line.options.color, "x");
    EXPECT_TRUE(line.options.header && line.options.noHeader && line.options.verbatim && line.options.allowUndated &&
                line.options.keepPartial && line.options.json && line.options.quiet);
    EXPECT_FALSE(line.options.unassigned);
    EXPECT_FALSE(line.options.limit);

    const CommandLine other = parse({"preview", "a", "--unassigned", "--limit", "3"});
    EXPECT_TRUE(other.options.unassigned);
    EXPECT_EQ(other.options.limit, "3");
}

TEST(CommandLine, OptionsOfTheCommandsAreAllInTheTable) {
    for (const Command* command : CommandTable::all()) {
        for (const char* option : command->options)
            EXPECT_STREQ(OptionTable::byName(option).name, option) << command->name;
    }
    EXPECT_THROW(OptionTable::byName("--nie"), std::logic_error);
}

TEST(CommandLine, ExamplesOfTheOptionsAreWrittenRight) {
    for (const OptionSpec& option : OptionTable::all())
        EXPECT_THAT(option.example, testing::StartsWith(option.name));
}

TEST(CommandLine, HelpAndVersionAreAnswers) {
    EXPECT_EQ(parse({"--help"}).command, nullptr);
    EXPECT_THAT(parse({"show", "--help"}).answer, testing::HasSubstr("TABELLE"));
    EXPECT_THAT(parse({"--version"}).answer, testing::StartsWith("dmimport "));
}

TEST(CommandLine, FilesMayLookLikeAnything) {
    EXPECT_EQ(parse({"import", "[a,b]", "show", "-", "ä=b"}).options.operands,
              (std::vector<std::string>{"[a,b]", "show", "-", "ä=b"}));
    EXPECT_EQ(parse({"import", "a", "--", "--json", "-x", "--"}).options.operands,
              (std::vector<std::string>{"a", "--json", "-x", "--"}));
    EXPECT_FALSE(parse({"import", "--", "--json"}).options.json);
}

} // namespace
