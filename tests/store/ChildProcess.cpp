// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/ChildProcess.h"

#include <fcntl.h>

namespace {

constexpr int kThrew = 99;

void makePipe(int (&ends)[2]) {
    if (pipe2(ends, O_CLOEXEC) != 0)
        throw std::runtime_error("pipe");
}

bool readByte(int descriptor) {
    char byte = 0;
    return read(descriptor, &byte, 1) == 1;
}

void writeByte(int descriptor) {
    if (write(descriptor, "x", 1) != 1)
        throw std::runtime_error("the other process is gone");
}

} // namespace

void ChildProcess::Parent::ready() const { writeByte(m_toParent); }

void ChildProcess::Parent::waitForParent() const { readByte(m_fromParent); }

ChildProcess::ChildProcess(const std::function<int(const Parent&)>& work) {
    int toParent[2];
    int toChild[2];
    makePipe(toParent);
    makePipe(toChild);
    m_id = fork();
    if (m_id < 0)
        throw std::runtime_error("fork");
    if (m_id == 0) {
        close(toParent[0]);
        close(toChild[1]);
        Parent parent;
        parent.m_toParent = toParent[1];
        parent.m_fromParent = toChild[0];
        int result = kThrew;
        try {
            result = work(parent);
        } catch (...) {
        }
        _exit(result); // nothing of the test program is to run in the child
    }
    close(toParent[1]);
    close(toChild[0]);
    m_fromChild = toParent[0];
    m_toChild = toChild[1];
}

ChildProcess::~ChildProcess() {
    if (m_id > 0) {
        kill(m_id, SIGKILL);
        wait();
    }
    close(m_fromChild);
    close(m_toChild);
}

bool ChildProcess::waitUntilReady() const { return readByte(m_fromChild); }

void ChildProcess::release() const { writeByte(m_toChild); }

int ChildProcess::wait() {
    int status = 0;
    if (waitpid(m_id, &status, 0) != m_id)
        throw std::runtime_error("waitpid");
    m_id = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}
