// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
//
// A program with a book of its own imports a file into it, without the data model
// that comes with the library.
#include <cstdlib>
#include <iostream>

#include "Book.h"
#include "BookNodes.h"
#include "framework/ImportExternData.h"
#include "Texts.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: own-model FILE\n";
        return 2;
    }
    Book book;
    book.bookings.push_back({{2024, 2, 29}, -70000, "Hausverwaltung Grün", "Miete", 1, 0});
    book.nextBooking = 2;

    BookTree tree(book);
    const std::string fileName = latin1FromUtf8(argv[1]);
    ImportInputParams input;
    input.m_fileName = fileName.c_str();
    input.m_targetNode = tree.root();
    input.m_firstLineIsHeader = 1;
    ColumnAssignment columns = {{{0, Import::eColDatum},
                                 {1, Import::eColEmpfaenger},
                                 {2, Import::eColVerwendungszweck},
                                 {3, Import::eColBetrag}},
                                4};
    ImportExternData frontDoor;
    const int result = frontDoor.importFile(input, ';', &columns);

    for (const Booking& booking : book.bookings) {
        const long long cents = std::llabs(booking.cents);
        std::cout << "no. " << booking.number << ", import " << booking.import << ": " << booking.day.day << '/'
                  << booking.day.month << '/' << booking.day.year << ", " << booking.payee << ", " << booking.purpose
                  << ", " << (booking.cents < 0 ? "-" : "") << cents / 100 << '.' << cents % 100 / 10 << cents % 10
                  << " EUR\n";
    }
    if (const char* text = frontDoor.getErrorMsg(); text != nullptr && *text != '\0')
        std::cout << utf8FromLatin1(text) << '\n';
    return result == 0 ? 1 : 0;
}
