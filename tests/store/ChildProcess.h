// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <stdexcept>

/// Another process that runs a function of the test and ends with its result.
class ChildProcess {
public:
    /// What the function does with its parent: `ready` wakes it from `waitUntilReady`,
    /// `waitForParent` sleeps until it calls `release`.
    class Parent {
    public:
        void ready() const;
        void waitForParent() const;

    private:
        friend class ChildProcess;
        int m_toParent = -1;
        int m_fromParent = -1;
    };

    explicit ChildProcess(const std::function<int(const Parent&)>& work);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    pid_t id() const { return m_id; }
    /// False when the child ended without being ready.
    bool waitUntilReady() const;
    void release() const;
    /// The exit status, or minus the signal that ended it.
    int wait();

private:
    pid_t m_id = -1;
    int m_fromChild = -1;
    int m_toChild = -1;
};
