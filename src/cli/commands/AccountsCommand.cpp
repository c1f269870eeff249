// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/commands/Commands.h"
#include "cli/HomeBankingCommand.h"

namespace {

const char* const kOptions[] = {"--store", "--verbatim"};

ExitStatus run(const Options& options, Console& console) {
    return importHomeBanking(HomeBankingDocument::accountList(), options, console);
}

} // namespace

const Command kAccountsCommand = {"accounts", "Kontenliste (XML) abgleichen", {"DATEI", true, false}, kOptions, run};
