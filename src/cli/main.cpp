// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/Program.h"

int main(int count, char** arguments) { return static_cast<int>(Program::run(count, arguments)); }
