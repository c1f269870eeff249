// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "intake/IntakeMessage.h"

/// Everything the intake has to say, one element a text. Several texts may
/// share a code, which scripts rely on.
enum class MessageId {
    // Nothing of the file is imported.
    noTable,
    columnsEmpty,
    columnOutside,
    noQifRecords,
    decimalMarkAmbiguous,
    dateOrderAmbiguous,
    amountColumnAmbiguous,
    signAmbiguous,
    ownExportDamaged,
    // A record is not taken.
    badDate,
    wordForDate,
    dateMissing,
    badAmount,
    amountMissing,
    signUnknown,
    tooManyFields,
    bookingTooLong,
    qifBadDate,
    qifBadAmount,
    qifLineTooLong,
    qifNotClosed,
    // A record that is none, or not yet.
    pending,
    notBooked,
    balanceLine,
    notABooking,
    // What was changed on the way, or looks odd.
    balanceBreak,
    mixedCurrencies,
    characterReplaced,
    encodingBroken,
    zeroBytes,
    qifClosed,
    qifFieldRepeated,
    qifUnknownSection,
    qifAdoptedSection,
    count
};

namespace Messages {

struct Text {
    MessageId id;
    std::string_view code;
    bool refusal;          ///< a record is not taken because of this
    std::string_view text; ///< UTF-8; "%1", "%2" and "%3" stand for what the place adds
};

/// All of them, in the order of `MessageId`.
std::span<const Text> table();

/// The message about `line` (from 1; 0 for the file), its text begun with the
/// number of the line. `arguments` are UTF-8.
IntakeMessage make(MessageId id, int line, std::initializer_list<std::string_view> arguments = {});

} // namespace Messages
