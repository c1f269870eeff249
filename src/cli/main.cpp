// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <csignal>
#include <cstdlib>
#ifdef DMIMPORT_MIMALLOC
#include <mimalloc.h>
#elif defined(__GLIBC__)
#include <malloc.h>
#endif

#include "cli/Program.h"
#include "store/SqliteRuntime.h"

int main(int count, char** arguments) {
#ifdef DMIMPORT_MIMALLOC
    // Pages of 2 MiB where the system has them to give: a large import touches tens of thousands of small ones.
    mi_option_enable(mi_option_large_os_pages);
#elif defined(__GLIBC__)
    // A run makes and frees tens of thousands of small blocks; kept apart for reuse they would be joined again at
    // great cost, a fifth of the time of a large document.
    mallopt(M_MXFAST, 0);
#endif
    SqliteRuntime::serveOneThread();
    std::signal(SIGXFSZ, SIG_IGN); // a limit of the file size is told like a full disk, and kills nobody
    return static_cast<int>(Program::run(count, arguments));
}
