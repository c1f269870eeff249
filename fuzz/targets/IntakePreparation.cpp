// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string_view>

#include <gtest/gtest.h>

#include "intake/FileReading.h"
#include "support/chosenOptions.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"

// The first byte chooses the format (by content, list, QIF, StarMoney) and whether
// two bytes with what the user fixed follow; the rest is a file that goes through
// the intake and then through the library. What the tests demand of every file is
// demanded here.
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
    const unsigned way = input.byte();
    InspectionOptions options;
    if ((way & 4U) != 0)
        options = chosenOptions(input);
    options.encoding.reset(); // the lines are counted in the encoding that the bytes tell
    const std::string_view file = input.rest();
    const FileReading reading(file, formatOf(way & 3U, file), options);
    return 0;
}
