// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ChildProgram.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace {

[[noreturn]] void fail() { throw std::system_error(errno, std::generic_category()); }

struct Pipe {
    int readEnd = -1;
    int writeEnd = -1;

    Pipe() {
        int ends[2];
        if (::pipe2(ends, O_CLOEXEC) != 0)
            fail();
        readEnd = ends[0];
        writeEnd = ends[1];
    }
    ~Pipe() {
        closeReadEnd();
        closeWriteEnd();
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    void closeReadEnd() { closeEnd(readEnd); }
    void closeWriteEnd() { closeEnd(writeEnd); }

private:
    static void closeEnd(int& end) {
        if (end >= 0)
            ::close(end);
        end = -1;
    }
};

/// False when the other side has nothing more to say.
bool readSome(int from, std::string& into) {
    std::array<char, 65536> block;
    const ssize_t count = ::read(from, block.data(), block.size());
    if (count > 0)
        into.append(block.data(), static_cast<std::size_t>(count));
    return count > 0;
}

/// Feeds the child and listens to it until it has closed its outputs.
void talk(Pipe& input, const std::string& text, int output, int messages, ChildProgram::Result& result) {
    std::size_t written = 0;
    bool outputOpen = true;
    bool messagesOpen = messages >= 0;
    while (outputOpen || messagesOpen) {
        if (written == text.size())
            input.closeWriteEnd();
        pollfd ends[] = {{input.writeEnd, POLLOUT, 0},
                         {outputOpen ? output : -1, POLLIN, 0},
                         {messagesOpen ? messages : -1, POLLIN, 0}};
        if (::poll(ends, 3, -1) < 0)
            fail();
        if ((ends[0].revents & (POLLOUT | POLLERR)) != 0) {
            const ssize_t count = ::write(input.writeEnd, text.data() + written, text.size() - written);
            written = count < 0 ? text.size() : written + static_cast<std::size_t>(count); // it may well not listen
        }
        if (ends[1].revents != 0)
            outputOpen = readSome(output, result.output);
        if (ends[2].revents != 0)
            messagesOpen = readSome(messages, result.messages);
    }
}

[[noreturn]] void become(const ChildProgram& program, int input, int output, int messages) {
    ::dup2(input, STDIN_FILENO);
    ::dup2(output, STDOUT_FILENO);
    ::dup2(messages, STDERR_FILENO);
    if (!program.workingDirectory.empty() && ::chdir(program.workingDirectory.c_str()) != 0)
        ::_exit(126);
    for (const auto& [name, value] : program.environment) {
        if (value)
            ::setenv(name.c_str(), value->c_str(), 1);
        else
            ::unsetenv(name.c_str());
    }
    if (program.before)
        program.before();
    std::vector<char*> arguments;
    for (const std::string& argument : program.arguments)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    ::execv(arguments[0], arguments.data());
    ::_exit(127);
}

int statusOf(pid_t child) {
    int status = 0;
    while (::waitpid(child, &status, 0) < 0) {
        if (errno != EINTR)
            fail();
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

} // namespace

ChildProgram::Result ChildProgram::run() const {
    ::signal(SIGPIPE, SIG_IGN); // a child that reads no input is no reason to die
    Pipe in;
    Pipe out;
    Pipe err;
    int terminal = -1;
    int terminalOfChild = -1;
    if (terminalColumns != 0) {
        const winsize size{24, static_cast<unsigned short>(terminalColumns), 0, 0};
        if (::openpty(&terminal, &terminalOfChild, nullptr, nullptr, &size) != 0)
            fail();
        ::fcntl(terminal, F_SETFD, FD_CLOEXEC);
    }
    const pid_t child = ::fork();
    if (child < 0)
        fail();
    if (child == 0) {
        ::signal(SIGPIPE, SIG_DFL);
        if (terminalColumns != 0)
            become(*this, in.readEnd, terminalOfChild, terminalOfChild);
        become(*this, in.readEnd, out.writeEnd, err.writeEnd);
    }
    in.closeReadEnd();
    out.closeWriteEnd();
    err.closeWriteEnd();
    Result result;
    if (terminalColumns != 0) {
        ::close(terminalOfChild);
        talk(in, input, terminal, -1, result);
        ::close(terminal);
    } else {
        talk(in, input, out.readEnd, err.readEnd, result);
    }
    result.status = statusOf(child);
    return result;
}
