// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <string>

#include "framework/ImportExternData.h"
#include "qif/ImportModuleQIF.h"
#include "support/FileImport.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"
#include "support/require.h"
#include "support/ScratchFile.h"

// A QIF file, through a module of one's own and through the front door.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const ScratchFile file("qif");
    const std::string text(FuzzInput(bytes, size).rest());

    const auto module = [&](bool simulate) {
        ImportModuleQIF importer;
        ImportInputParams params;
        params.setInputFileBuffer(text.data(), text.size());
        return FileImport::run(importer, params, simulate,
                               [&](const ImportInputParams& filled) { return importer.importFile(filled); });
    };
    const FileImport simulated = module(true);
    const FileImport real = module(false);

    require(simulated.result == (real.result != 0 ? 2 : 0), "a simulated import ends like a real one");
    require(real.result != 0 || real.rows == 0, "a line that is rejected leaves nothing of the file");
    require(simulated.result != 0 || simulated.preview.empty(), "nor does it show anything");
    require(simulated.result == 0 || simulated.preview.size() == static_cast<std::size_t>(simulated.count) + 1,
            "the preview shows a header and every record");
    require(simulated.count >= real.count, "what is imported was shown");
    require(simulated.count == real.count || !real.error.empty(), "what is not imported is told");
    require(real.count <= std::count(text.begin(), text.end(), '^'), "every record has its end");

    ImportExternData door;
    ImportInputParams params;
    params.m_fileName = file.write(text).c_str();
    const FileImport again = FileImport::run(
        door, params, true, [&](const ImportInputParams& filled) { return door.importFile(filled, ';', nullptr); });
    require(again == simulated, "a file is read like a buffer, and alike twice");
    return 0;
}
