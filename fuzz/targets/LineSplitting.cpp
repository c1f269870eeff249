// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <string>
#include <vector>

#include "csv/BlockStringBuf.h"
#include "csv/SplittingModule.h"
#include "csv/stripQuotes.h"
#include "differential/PlainLines.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"
#include "support/require.h"

// The first byte is the delimiter, the rest a line.
namespace {

using Fields = std::vector<std::string>;

void requirePackedAsSplit(const UnknownRowInfo& row, const Fields& fields) {
    const BlockStringBuf packed(row, static_cast<int>(fields.size()));
    BlockStringBuf copy(packed);
    int count = 0;
    char** columns = copy.restore(count);
    require(Fields(columns, columns + count) == fields, "a packed row holds what was split");
}

/// Lines of exactly the width, and no others.
void requireFixedWidth(const std::string& line, char delimiter) {
    SplittingModule<ImportDataSetStartMoney> module;
    module.m_delimiter = delimiter;
    const auto expected = PlainLines::splitFixedWidth(line, delimiter, ImportDataSetStartMoney::kColumns);
    require(module.split(line) == expected.fields, "a line of the right width is split, any other refused");
    const std::string& error = module.m_errorMsg;
    require(error.empty() == expected.error.empty() && error.ends_with(expected.error), "its width is told");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzInput input(bytes, size);
    const char delimiter = static_cast<char>(input.byte());
    const std::string line = input.text();

    SplittingModule<UnknownRowInfo> module;
    module.m_delimiter = delimiter;
    const Fields fields = module.split(line);
    require(module.m_errorMsg.empty(), "a line of any width is taken");
    // A quote that is the delimiter, and a zero byte, have no rule of their own.
    if (delimiter != '"' && delimiter != '\0') {
        require(fields == PlainLines::splitAnyWidth(line, delimiter).fields, "lines are split by the rules");
        requireFixedWidth(line, delimiter);
    }

    std::string copy = line; // split in place
    const int count = module.extractColumns(copy.data());
    require(count == static_cast<int>(fields.size()), "a line splits alike twice");
    requirePackedAsSplit(module.m_row, fields);

    const std::string stripped = stripQuotes(line.c_str());
    const bool quoted = !line.empty() && line.front() == '"' && line.back() == '"';
    require(stripped.size() == (quoted ? line.size() - std::min<std::size_t>(line.size(), 2) : line.size()),
            "quotes go at both ends or at none");
    return 0;
}
