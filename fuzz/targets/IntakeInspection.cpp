// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include "intake/HostTextReader.h"
#include "intake/Intake.h"
#include "support/FuzzInput.h"
#include "support/FuzzTarget.h"
#include "support/require.h"

// The first three bytes choose what the user fixed (a bit each: encoding,
// delimiter, header, date order, decimal mark, columns, undated records, format)
// and to what; the rest is the file.
namespace {

constexpr Encoding kEncodings[] = {Encoding::ascii,   Encoding::utf8,   Encoding::utf16le,
                                   Encoding::utf16be, Encoding::latin1, Encoding::windows1252};
constexpr DateOrder kOrders[] = {DateOrder::dayMonthYear, DateOrder::monthDayYear, DateOrder::yearMonthDay};
constexpr char kDelimiters[] = {';', ',', '\t', '|', ':', ' ', '"', 'a'};
constexpr Import::E_SupportedImportFormats kFormats[] = {Import::eFormatCSV, Import::eFormatQIF,
                                                         Import::eFormatStarMoney, Import::eFormatCSV};

InspectionOptions readOptions(FuzzInput& input) {
    const unsigned fixed = input.byte();
    const unsigned to = input.byte();
    InspectionOptions options;
    if ((fixed & 1U) != 0)
        options.encoding = kEncodings[to % std::size(kEncodings)];
    if ((fixed & 2U) != 0)
        options.delimiter = kDelimiters[to % std::size(kDelimiters)];
    if ((fixed & 4U) != 0)
        options.header = to % 2 == 0;
    if ((fixed & 8U) != 0)
        options.dateOrder = kOrders[to % std::size(kOrders)];
    if ((fixed & 16U) != 0)
        options.decimalMark = to % 2 == 0 ? ',' : '.';
    if ((fixed & 32U) != 0) {
        options.columns = {{"Datum", static_cast<int>(to % 5)},
                           {"Betrag", static_cast<int>(to / 5 % 5)},
                           {"Verwendungszweck", static_cast<int>(to / 25 % 5)}};
        options.furtherPurpose = {static_cast<int>(to % 7)};
    }
    options.allowUndated = (fixed & 64U) != 0;
    return options;
}

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
    const InspectionOptions options = readOptions(input);
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
