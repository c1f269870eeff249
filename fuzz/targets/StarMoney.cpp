// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>

#include "csv/ImportModuleStarMoney.h"
#include "csv/ImportModuleStarMoney2.h"
#include "support/FileImport.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"
#include "support/require.h"

// The first byte chooses the module (odd: columns by their names), the rest is
// the file.
namespace {

template <typename Module>
FileImport run(const std::string& text, bool simulate) {
    Module module;
    ImportInputParams params;
    params.setInputFileBuffer(text.data(), text.size());
    return FileImport::run(module, params, simulate,
                           [&](const ImportInputParams& filled) { return module.importFile(filled); });
}

template <typename Module>
void check(const std::string& text) {
    const FileImport simulated = run<Module>(text, true);
    const FileImport real = run<Module>(text, false);
    require(run<Module>(text, false) == real, "an import does the same twice");
    require(real.result == 0 || real.result == 1, "the result tells what was done");
    require(simulated.result == 0 || simulated.result == 2, "and of a simulated import, too");
    require(real.result == 0 || simulated.result == 2, "what can be imported can be shown");
    require(real.result == 0 || simulated.count == real.count, "and all of it is imported");
    require(simulated.count >= real.count, "what is imported was shown");
    require(real.result != 0 || !real.error.empty(), "a failure has a reason");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzInput input(bytes, size);
    const bool byName = (input.byte() & 1U) != 0;
    const std::string text(input.rest());
    if (byName)
        check<ImportModuleStarMoney2>(text);
    else
        check<ImportModuleStarMoney>(text);
    return 0;
}
