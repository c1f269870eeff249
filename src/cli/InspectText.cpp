// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/InspectText.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>

#include "cli/FileReport.h"
#include "cli/FormatTable.h"
#include "cli/JsonText.h"
#include "cli/SafeText.h"
#include "cli/TextWidth.h"
#include "datamodel/HostText.h"

namespace {

constexpr double kHundredths = 100.0;

std::string_view balanceName(BalanceProof proof) {
    switch (proof) {
    case BalanceProof::certified:
        return "certified";
    case BalanceProof::broken:
        return "broken";
    case BalanceProof::none:
        break;
    }
    return "none";
}

/// ASCII is a part of UTF-8, and needs no word of its own.
std::string_view encodingName(Encoding encoding) {
    return EncodingNames::name(encoding == Encoding::ascii ? Encoding::utf8 : encoding);
}

Json delimiterJson(const IntakeResult& result) {
    if (result.delimiter == '\0')
        return nullptr;
    return HostText::toUtf8({&result.delimiter, 1});
}

/// A single column as a number, several as a list.
Json columnsJson(const IntakeResult& result) {
    Json columns = Json::object();
    for (const auto& [field, inputs] : result.columns)
        columns[field] = inputs.size() == 1 ? Json(inputs.front()) : Json(inputs);
    return columns;
}

std::string columnsText(const IntakeResult& result) {
    std::string text;
    for (const auto& [field, inputs] : result.columns) {
        text += (text.empty() ? "" : ", ") + field + " = ";
        for (std::size_t i = 0; i < inputs.size(); ++i)
            text.append(i == 0 ? "" : "+").append(std::to_string(inputs[i]));
    }
    return text;
}

std::string placeOf(const Reason& reason) {
    std::string place;
    if (reason.line > 0)
        place += "Zeile " + std::to_string(reason.line);
    if (reason.column >= 0)
        place += (place.empty() ? "Spalte " : ", Spalte ") + std::to_string(reason.column);
    return place.empty() ? place : " (" + place + ")";
}

void writeLine(Console& console, std::string_view label, std::string_view value) {
    constexpr std::size_t kLabelWidth = 16;
    std::string line(label);
    line.append(kLabelWidth - std::min(TextWidth::of(label), kLabelWidth - 1), ' ');
    console.write(line + SafeText::printable(value) + "\n");
}

} // namespace

namespace InspectText {

std::string encodingText(const IntakeResult& result) {
    return std::string(encodingName(result.encoding)) + (result.bom ? " mit Bytefolgemarke" : "");
}

std::string lineEndsText(LineEnds ends) {
    switch (ends) {
    case LineEnds::lf:
        return "LF";
    case LineEnds::crlf:
        return "CRLF";
    case LineEnds::cr:
        return "CR";
    case LineEnds::mixed:
        return "gemischt";
    case LineEnds::none:
        break;
    }
    return "keine";
}

std::string balanceText(BalanceProof proof) {
    switch (proof) {
    case BalanceProof::certified:
        return "bestätigt die Lesart";
    case BalanceProof::broken:
        return "passt nicht überall";
    case BalanceProof::none:
        break;
    }
    return "keiner in der Datei";
}

std::string percent(double share) { return std::to_string(std::lround(share * kHundredths)) + " %"; }

std::string reasonText(const Reason& reason) { return reason.text + placeOf(reason); }

void writeJson(Console& console, std::string_view file, const IntakeResult& result,
               const std::optional<std::string>& profile, const std::vector<Message>& messages) {
    Json reasons = Json::array();
    for (const Reason& reason : result.reasons)
        reasons.push_back(reasonText(reason));
    Json document = {{"file", file},
                     {"format", static_cast<int>(result.format)},
                     {"encoding", encodingName(result.encoding)},
                     {"bom", result.bom},
                     {"lineEnds", LineSplitting::name(result.lineEnds)},
                     {"preambleLines", result.preambleLines},
                     {"delimiter", delimiterJson(result)},
                     {"header", result.header},
                     {"headerNames", result.headerNames},
                     {"columns", columnsJson(result)},
                     {"dateOrder", result.dateOrder ? Json(DateCells::name(*result.dateOrder)) : Json(nullptr)},
                     {"decimal", result.decimalMark ? Json(std::string(1, *result.decimalMark)) : Json(nullptr)},
                     {"confidence", std::round(result.confidence * kHundredths) / kHundredths},
                     {"reasons", reasons},
                     {"untouched", result.prepared.untouched},
                     {"balance", balanceName(result.balance)},
                     {"decided", !result.undecided.has_value()},
                     {"profile", profile ? Json(*profile) : Json(nullptr)},
                     {"messages", FileReportText::json(messages)}};
    console.write(JsonText::of(document) + "\n");
}

void writeTable(Console& console, std::string_view file, const IntakeResult& result) {
    const bool delimited = result.delimiter != '\0';
    writeLine(console, "Datei:", file);
    writeLine(console, "Format:", HostText::toUtf8(FormatTable::labelOf(result.format)));
    writeLine(console, "Kodierung:", encodingText(result));
    writeLine(console, "Zeilenenden:", lineEndsText(result.lineEnds));
    if (delimited) {
        writeLine(console, "Vorspann:",
                  std::to_string(result.preambleLines) + (result.preambleLines == 1 ? " Zeile" : " Zeilen"));
        writeLine(console,
                  "Trennzeichen:", result.delimiter == '\t' ? "tab" : HostText::toUtf8({&result.delimiter, 1}));
        writeLine(console, "Kopfzeile:", result.header ? "ja" : "nein");
        writeLine(console, "Spalten:", columnsText(result));
        if (result.dateOrder)
            writeLine(console, "Datum:", DateCells::name(*result.dateOrder));
        if (result.decimalMark)
            writeLine(console, "Dezimalzeichen:", std::string(1, *result.decimalMark));
        writeLine(console, "Saldo:", balanceText(result.balance));
    }
    writeLine(console, "Sicherheit:", percent(result.confidence));
    writeLine(console,
              "Unverändert:", result.prepared.untouched ? "ja" : "nein, sie wird für die Bibliothek hergerichtet");
    if (!result.reasons.empty())
        console.write("Gründe:\n");
    for (const Reason& reason : result.reasons)
        console.write("  - " + SafeText::printable(reasonText(reason)) + "\n");
}

} // namespace InspectText
