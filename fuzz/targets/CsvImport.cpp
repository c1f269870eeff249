// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <array>
#include <memory>
#include <string>

#include "framework/ImportExternData.h"
#include "support/FileImport.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"
#include "support/require.h"
#include "support/ScratchFile.h"

// A delimited file through the front door. The first bytes are flags (header,
// no assignment, format), the delimiter, the number of assigned pairs and the
// pairs (file column, data-model column); the rest is the file.
namespace {

constexpr const char* kExtensions[] = {"csv", "sdi", "zhof", "txt"};

/// Counts and columns are taken as they come, negative and beyond the array too.
ColumnAssignment readAssignment(FuzzInput& input) {
    ColumnAssignment assignment{};
    assignment.m_count = static_cast<int>(input.byte()) - '0';
    for (int i = 0; i < assignment.m_count && i < ColumnAssignment::kMaxPairs; ++i) {
        const int column = static_cast<int>(input.byte()) - 'a';
        assignment.m_pairs[i] = {column, static_cast<Import::E_ColumnIndex>(input.byte() - '0')};
    }
    return assignment;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const std::array<ScratchFile, 4> files = {ScratchFile(kExtensions[0]), ScratchFile(kExtensions[1]),
                                                     ScratchFile(kExtensions[2]), ScratchFile(kExtensions[3])};
    FuzzInput input(bytes, size);
    const unsigned flags = input.byte();
    const char delimiter = static_cast<char>(input.byte());
    ColumnAssignment assignment = readAssignment(input);
    ColumnAssignment* const given = (flags & 2U) != 0 ? nullptr : &assignment;
    const unsigned extension = flags >> 2U & 3U;
    const bool fixedLayout = extension == 1 || extension == 2;
    // A count of -1 stands for no assignment, whoever writes it.
    const bool assigned = fixedLayout || (given != nullptr && given->m_count != -1);

    ImportInputParams params;
    params.m_fileName = files[extension].write(input.rest()).c_str();
    params.m_firstLineIsHeader = (flags & 1U) != 0 ? 1 : 0;
    ImportExternData door;
    const auto run = [&](bool simulate) {
        return FileImport::run(door, params, simulate, [&](const ImportInputParams& filled) {
            return door.importFile(filled, delimiter, given);
        });
    };

    const FileImport simulated = run(true);
    const FileImport real = run(false);
    require(run(false) == real, "an import does the same twice");

    require((simulated.result != 0) == (real.result != 0), "a simulated import ends like a real one");
    require(real.result == 0 || real.result == (assigned ? 1 : 3) || (!assigned && real.preview.empty()),
            "the result tells what was done");
    require(real.result != 0 || real.rows == 0, "a file that cannot be read leaves no record");
    require(assigned || real.rows == 0, "without an assignment nothing is written");
    require(real.preview.empty(), "a real import fills no preview");
    if (assigned) {
        require(simulated.count >= real.count, "what is imported was shown");
        require(simulated.count == real.count || !real.error.empty(), "what is not imported is told");
    }
    return 0;
}
