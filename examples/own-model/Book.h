// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <list>
#include <string>

// What this program kept before it could import anything: nothing here knows the
// import library. Texts are UTF-8, amounts are cents.

struct Day {
    unsigned year = 0; ///< all three 0: no day
    unsigned month = 0;
    unsigned day = 0;
};

struct Booking {
    Day day;
    long long cents = 0;
    std::string payee;
    std::string purpose;
    int number = 0; ///< unique in the book
    int import = 0; ///< number of the import that brought it
};

struct ImportNote {
    Day day;
    std::string file;
    std::string remark;
    int format = 0;
    int number = 0;
};

struct Book {
    std::list<Booking> bookings;
    std::list<ImportNote> imports;
    int nextBooking = 1;
    int nextImport = 1;
    Day lastImport;
    bool hasNews = false;
};
