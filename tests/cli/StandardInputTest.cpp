// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "cli/DmimportFixture.h"

namespace {

const std::string kRows = "01.02.2004;A;1\n02.02.2004;B;2\n";

using StandardInputTest = DmimportTest;

TEST_F(StandardInputTest, DashReadsIt) {
    ChildProgram program = this->program({"import", "-", "--store", kStore, "--columns", "0=Datum,2=Betrag", "--json"});
    program.input = kRows;
    const Result result = program.run();
    EXPECT_EQ(result.status, 0) << result.messages;
    const Json file = Json::parse(result.output).at("files").at(0);
    EXPECT_EQ(file.at("file"), "-");
    EXPECT_EQ(file.at("importedCount"), 2);
    EXPECT_EQ(show("sessions").at(0).at("ImportFileName"), "-");
    EXPECT_EQ(leftovers(), std::vector<std::string>());
}

TEST_F(StandardInputTest, ItIsAPlainListUnlessSaidOtherwise) {
    ChildProgram program = this->program({"preview", "-", "--unassigned", "--json"});
    program.input = kRows;
    EXPECT_EQ(Json::parse(program.run().output).at("rowCount"), 2);
    program = this->program({"preview", "-", "--format", "tax", "--json"});
    program.input = "Miete;-650;01.03.2004;V;W;M;D\n";
    EXPECT_EQ(Json::parse(program.run().output).at("format"), 3);
}

TEST_F(StandardInputTest, NothingOnItIsAnEmptyFile) {
    const Result result = run({"preview", "-", "--json"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(Json::parse(result.output).at("rowCount"), 0);
}

TEST_F(StandardInputTest, ItIsReadOnceOnly) {
    const Result result = run({"import", "-", "-", "--store", kStore, "--columns", "0=Datum,2=Betrag"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.messages, Says("zweimal"));
}

TEST_F(StandardInputTest, PipeWithANameIsReadOnceToo) {
    ASSERT_EQ(::mkfifo(path("rohr.csv").c_str(), 0600), 0);
    std::thread writer([this] { write("rohr.csv", kRows); });
    const Json file = import({"rohr.csv", "--columns", "0=Datum,2=Betrag"}, 0);
    writer.join();
    EXPECT_EQ(file.at("importedCount"), 2);
    EXPECT_EQ(show("sessions").at(0).at("ImportFileName"), "rohr.csv");
}

TEST_F(StandardInputTest, SignalLeavesNoCopyBehind) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        ASSERT_EQ(::mkfifo(path("rohr.csv").c_str(), 0600), 0);
        pid_t child = 0;
        std::string name = path("rohr.csv");
        ChildProgram program = this->program({"preview", "rohr.csv"});
        // A helper of the child's writes half a line, waits for the copy to begin, and ends its parent.
        program.before = [&] {
            child = ::getpid();
            if (::fork() != 0)
                return;
            const int pipe = ::open(name.c_str(), O_WRONLY);
            static_cast<void>(!::write(pipe, "halb", 4));
            while (leftovers().empty())
                ::usleep(1000);
            ::kill(child, signal);
            ::_exit(0);
        };
        EXPECT_EQ(program.run().status, 128 + signal);
        EXPECT_EQ(leftovers(), std::vector<std::string>());
        ::unlink(name.c_str());
    }
}

} // namespace
