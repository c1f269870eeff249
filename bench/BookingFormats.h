// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// The made-up bookings as files of every format that dmimport reads. Each
/// function returns the whole file. All are Latin-1 but the XML documents and
/// the statement, which are UTF-8.
namespace BookingFormats {

std::string qif(std::uint32_t count);
/// Date and amount of a booking as they stand there: mm/dd/yyyy and -1,234.56.
std::string qifDate(std::uint32_t number);
std::string qifAmount(std::uint32_t number);
/// The fixed layout of 21 columns.
std::string starMoney(std::uint32_t count);
/// A list as a bank's page hands it out, which nothing but the intake reads:
/// byte-order mark, lines above the table, names of its own, texts in quotes,
/// CRLF.
std::string statement(std::uint32_t count);
/// A list of the accounts `first` to `first + count - 1`.
std::string accountList(std::uint32_t first, std::uint32_t count);
/// Bookings for one of those accounts.
std::string bookingList(std::uint32_t account, std::uint32_t count);

} // namespace BookingFormats
