// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>

#include "BookingFormats.h"
#include "Bookings.h"

namespace {

constexpr const char* kUsage = "usage: make_bookings FORMAT COUNT FILE [ACCOUNT]\n"
                               "       make_bookings --columns\n"
                               "\n"
                               "Writes COUNT made-up bookings. FORMAT is csv, qif, ssx, bookings (a home-banking\n"
                               "document of one account) or accounts (a list of COUNT accounts, the first of them\n"
                               "ACCOUNT). ACCOUNT is a number from 1, the default.\n"
                               "--columns prints the column assignment that fits csv.\n";

struct Format {
    std::string_view name;
    std::string (*file)(std::uint32_t count, std::uint32_t account);
};

constexpr Format kFormats[] = {
    {"csv", [](std::uint32_t count, std::uint32_t) { return Bookings::file(count); }},
    {"qif", [](std::uint32_t count, std::uint32_t) { return BookingFormats::qif(count); }},
    {"ssx", [](std::uint32_t count, std::uint32_t) { return BookingFormats::starMoney(count); }},
    {"bookings",
     [](std::uint32_t count, std::uint32_t account) { return BookingFormats::bookingList(account, count); }},
    {"accounts",
     [](std::uint32_t count, std::uint32_t account) { return BookingFormats::accountList(account, count); }},
};

bool readNumber(std::string_view text, std::uint32_t& number) {
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    return read.ec == std::errc() && read.ptr == end;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::strcmp(argv[1], "--columns") == 0) {
        std::puts(Bookings::kColumns);
        return 0;
    }
    const auto* const format = std::find_if(std::begin(kFormats), std::end(kFormats), [&](const Format& candidate) {
        return argc > 1 && candidate.name == argv[1];
    });
    std::uint32_t count = 0;
    std::uint32_t account = 1;
    const bool understood = (argc == 4 || argc == 5) && format != std::end(kFormats) && readNumber(argv[2], count) &&
                            (argc == 4 || readNumber(argv[4], account));
    if (!understood) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    std::ofstream file(argv[3], std::ios::binary);
    file << format->file(count, account);
    if (!file.flush()) {
        std::fprintf(stderr, "make_bookings: cannot write %s\n", argv[3]);
        return 1;
    }
    return 0;
}
