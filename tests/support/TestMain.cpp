// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <locale>
#include <sstream>
#include <string>
#include <string_view>

#include <gmock/gmock.h>

namespace {

class DecimalComma : public std::numpunct<char> {
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

bool cWritesCommas() { return *std::localeconv()->decimal_point == ','; }

/// The C++ locale always; the C locale where one with a decimal comma is installed.
bool installDecimalComma() {
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "de_AT.UTF-8", "fr_FR.UTF-8"}) {
        if (std::setlocale(LC_ALL, name) != nullptr && cWritesCommas())
            break;
    }
    if (!cWritesCommas())
        std::fputs("note: no C locale with a decimal comma is installed; only the C++ locale has one\n", stderr);

    std::locale::global(std::locale(std::locale::classic(), new DecimalComma)); // unnamed: leaves the C locale
    std::ostringstream probe;
    probe << 1234.5;
    return probe.str() == "1.234,5";
}

} // namespace

int main(int argc, char** argv) {
    if (const char* wanted = std::getenv("IMPORT_MODULE_TEST_LOCALE")) {
        if (std::string_view(wanted) != "comma" || !installDecimalComma()) {
            std::fprintf(stderr, "IMPORT_MODULE_TEST_LOCALE=%s: no such locale could be set up\n", wanted);
            return 2;
        }
    }
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
