// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT

// usage: make_bookings COUNT FILE     writes COUNT made-up bookings as delimited text
//        make_bookings --columns      prints the column assignment that fits them

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>
#include <system_error>

#include "Bookings.h"

int main(int argc, char** argv) {
    if (argc == 2 && std::strcmp(argv[1], "--columns") == 0) {
        std::puts(Bookings::kColumns);
        return 0;
    }
    std::uint32_t count = 0;
    const char* const end = argc == 3 ? argv[1] + std::strlen(argv[1]) : nullptr;
    if (argc != 3 || std::from_chars(argv[1], end, count).ptr != end) {
        std::fputs("usage: make_bookings COUNT FILE | --columns\n", stderr);
        return 2;
    }
    std::ofstream file(argv[2], std::ios::binary);
    file << Bookings::file(count);
    if (!file.flush()) {
        std::fprintf(stderr, "make_bookings: cannot write %s\n", argv[2]);
        return 1;
    }
    return 0;
}
