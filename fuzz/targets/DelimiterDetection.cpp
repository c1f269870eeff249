// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cctype>
#include <string>
#include <vector>

#include "csv/DelimiterFinder.h"
#include "differential/PlainLines.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"
#include "support/require.h"

// The lines of a file.
namespace {

char find(DelimiterFinder& finder, const std::vector<std::string>& lines) {
    finder.clear();
    for (const std::string& line : lines)
        finder.scanLine(line.c_str());
    finder.endScan();
    return finder.getBestDelimiter();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::vector<std::string> lines = FuzzInput(bytes, size).lines();
    DelimiterFinder finder;
    const char found = find(finder, lines);
    require(found == PlainLines::bestDelimiter(lines), "the delimiter is found by the rules");
    require(found >= 0 && found < 127 && std::isalnum(found) == 0, "letters, digits and other bytes are none");
    require(find(finder, lines) == found, "a cleared finder finds the same");
    return 0;
}
