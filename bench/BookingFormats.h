// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// The made-up bookings as files of every format that dmimport reads. Each
/// function returns the whole file. All but the XML documents, which are UTF-8,
/// are Latin-1.
namespace BookingFormats {

std::string qif(std::uint32_t count);
/// The fixed layout of 21 columns.
std::string starMoney(std::uint32_t count);
/// A list of the accounts `first` to `first + count - 1`.
std::string accountList(std::uint32_t first, std::uint32_t count);
/// Bookings for one of those accounts.
std::string bookingList(std::uint32_t account, std::uint32_t count);

} // namespace BookingFormats
