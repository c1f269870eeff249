// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include "intake/HostTextReader.h"
#include "intake/Intake.h"
#include "support/chosenOptions.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"
#include "support/require.h"

// The first byte chooses the format, the next two what the user fixed; the rest
// is the file.
namespace {

constexpr Import::E_SupportedImportFormats kFormats[] = {Import::eFormatCSV, Import::eFormatQIF,
                                                         Import::eFormatStarMoney, Import::eFormatCSV};

bool same(const IntakeMessage& a, const IntakeMessage& b) {
    return a.line == b.line && a.code == b.code && a.text == b.text && a.refusal == b.refusal;
}

void requireToldWell(const IntakeMessage& message, const IntakeResult& result) {
    require(!message.code.empty() && !message.text.empty(), "a message says something");
    require(message.line >= 0 && message.line <= static_cast<int>(result.prepared.lines.size()),
            "a message names a line of the file");
}

void requireSound(const IntakeResult& result) {
    require(result.confidence >= 0.0 && result.confidence <= 1.0, "one cannot be surer than sure");
    require(result.prepared.refused >= 0, "refusals are counted");
    if (result.undecided)
        requireToldWell(*result.undecided, result);
    for (const IntakeMessage& message : result.prepared.messages)
        requireToldWell(message, result);
    for (const auto& [field, columns] : result.columns) {
        for (const int column : columns)
            require(column >= 0, "columns count from 0");
    }
    require(result.undecided || result.prepared.text.find('\0') == std::string::npos, "no zero byte is handed over");
}

void requireSame(const IntakeResult& a, const IntakeResult& b) {
    require(a.prepared.text == b.prepared.text && a.prepared.lines == b.prepared.lines,
            "a file is prepared alike twice");
    require(a.delimiter == b.delimiter && a.columns == b.columns && a.confidence == b.confidence, "and planned alike");
    require(a.prepared.messages.size() == b.prepared.messages.size(), "with as many messages");
    for (std::size_t i = 0; i < a.prepared.messages.size(); ++i)
        require(same(a.prepared.messages[i], b.prepared.messages[i]), "and the same ones");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzInput input(bytes, size);
    const unsigned way = input.byte();
    const InspectionOptions options = chosenOptions(input);
    const std::string_view file = input.rest();

    const HostFileText text = HostTextReader::read(file, options.encoding);
    require(options.encoding || text.encoding == HostTextReader::detect(file), "the encoding is the one detected");
    for (const auto& [character, substitution] : text.substitutions)
        require(substitution.count > 0 && substitution.firstLine > 0, "a substitution happened somewhere");

    const auto format = (way & 4U) != 0 ? Intake::formatByContent(file) : kFormats[way & 3U];
    const IntakeResult result = Intake::read(file, format, options);
    requireSound(result);
    requireSame(Intake::read(file, format, options), result);
    if (format == Import::eFormatCSV)
        requireSound(Intake::readAsItStands(file, options));
    return 0;
}
