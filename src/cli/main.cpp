// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <csignal>
#include <cstdlib>
#include <functional>
#if !defined(DMIMPORT_MIMALLOC) && defined(__GLIBC__)
#include <malloc.h>
#endif

#include "cli/Allocator.h"
#include "cli/Program.h"
#include "store/SqliteRuntime.h"

int main(int count, char** arguments) {
    std::function<void()> expectMuch;
#ifdef DMIMPORT_MIMALLOC
    Allocator::keepAll();
    expectMuch = Allocator::useLargePages;
#elif defined(__GLIBC__)
    // A run makes and frees tens of thousands of small blocks; kept apart for reuse they would be joined again at
    // great cost, a fifth of the time of a large document.
    mallopt(M_MXFAST, 0);
#endif
    SqliteRuntime::serveOneThread();
    std::signal(SIGXFSZ, SIG_IGN); // a limit of the file size is told like a full disk, and kills nobody
    return static_cast<int>(Program::run(count, arguments, expectMuch));
}
