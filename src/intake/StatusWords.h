// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

/// What a column of states says about a booking.
enum class BookingStatus {
    booked,
    pending, ///< will be booked
    failed   ///< was declined, taken back or cancelled, and never booked
};

namespace StatusWords {

/// Nothing for a text that is no known state.
std::optional<BookingStatus> read(std::string_view cell);

} // namespace StatusWords
