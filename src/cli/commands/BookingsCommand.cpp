// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/commands/Commands.h"
#include "cli/HomeBankingCommand.h"

namespace {

const char* const kOptions[] = {"--store", "--verbatim", "--again", "--new-only", "--keep-partial", "--report"};

ExitStatus run(const Options& options, Console& console) {
    return importHomeBanking(HomeBankingDocument::bookingList(), options, console);
}

} // namespace

const Command kBookingsCommand = {"bookings", "Buchungsliste (XML) importieren", {"DATEI", true, true}, kOptions, run};
