// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string_view>

#include <gtest/gtest.h>

#include "intake/FileReading.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"

// The first byte chooses the format (by content, list, QIF, StarMoney), the rest
// is a file that goes through the intake and then through the library; what its
// tests demand of every file is demanded here.
namespace {

Import::E_SupportedImportFormats formatOf(unsigned choice, std::string_view file) {
    constexpr Import::E_SupportedImportFormats kFormats[] = {Import::eFormatCSV, Import::eFormatQIF,
                                                             Import::eFormatStarMoney};
    return choice == 0 ? Intake::formatByContent(file) : kFormats[choice - 1];
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    // An expectation that fails ends the program with its text.
    testing::GTEST_FLAG(throw_on_failure) = true;
    FuzzInput input(bytes, size);
    const unsigned choice = input.choice(4);
    const std::string_view file = input.rest();
    const FileReading reading(file, formatOf(choice, file));
    return 0;
}
