// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

/// What can go wrong with a file or a record. Each has a stable code, a German
/// text and a hint in the table of ProblemTexts.cpp. (What can go wrong with a
/// store is the store's own list.)
enum class Problem {
    fileMissing,
    fileIsDirectory,
    fileIsDevice,
    fileUnreadable,
    tempUnusable,
    formatUnsupported,
    lineTooLong,
    nulByte,
    unbalancedQuote,
    recordOpen,
    badDate,
    badAmount,
    valueRefused,
    recordRefused,
    tableFull,
    noDate,
    bookkeepingRefused,
    importFailed,
    documentRefused,
    listMissing,
    accountsMissing,
    accountsFull,
    accountUnknown,
    accountNumberMissing,
    accountFull,
    bookingRefused,
    listEnded,
    importedBefore,
    sessionUnknown,
    sessionUndone,
    recordChanged,
    optionIgnored,
    profileChanged,
    profileUsed,
    profileSaved,
    profileNotSaved,
    outputFailed,
    unexpected,
};
