// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <csignal>

#include "cli/Program.h"

int main(int count, char** arguments) {
    std::signal(SIGXFSZ, SIG_IGN); // a limit of the file size is told like a full disk, and kills nobody
    return static_cast<int>(Program::run(count, arguments));
}
