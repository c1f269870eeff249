// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/Intake.h"

#include <algorithm>

#include "intake/DelimitedInspector.h"
#include "intake/DelimitedPreparation.h"
#include "intake/HostTextReader.h"
#include "intake/QifPreparation.h"
#include "intake/StarMoneyLayout.h"
#include "intake/TextTools.h"

namespace {

/// The layouts that the front door fixes for two formats.
struct FixedLayout {
    Import::E_SupportedImportFormats format;
    std::map<std::string, int> columns;
    std::optional<bool> header;
};

const std::vector<FixedLayout>& fixedLayouts() {
    static const std::vector<FixedLayout> layouts = {
        {Import::eFormatTaxData,
         {{"Verwendungszweck", 0},
          {"Betrag", 1},
          {"Datum", 2},
          {"Empfaenger", 3},
          {"Kategorie", 4},
          {"Unterkategorie", 5},
          {"Buchungstext", 6}},
         std::nullopt},
        {Import::eFormatZasterhof,
         {{"Datum", 5},
          {"Buchungstext", 7},
          {"Verwendungszweck", 8},
          {"Empfaenger", 9},
          {"Betrag", 10},
          {"Kategorie", 12},
          {"Unterkategorie", 13}},
         true},
    };
    return layouts;
}

std::string quoted(const std::string& hostText) { return "„" + TextTools::toUtf8(hostText) + "“"; }

std::string utf8Of(char32_t c) {
    std::string out;
    if (c < 0x800) {
        out += static_cast<char>(0xC0U | c >> 6U);
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0U | c >> 12U);
        out += static_cast<char>(0x80U | (c >> 6U & 0x3FU));
    } else {
        out += static_cast<char>(0xF0U | c >> 18U);
        out += static_cast<char>(0x80U | (c >> 12U & 0x3FU));
        out += static_cast<char>(0x80U | (c >> 6U & 0x3FU));
    }
    out += static_cast<char>(0x80U | (c & 0x3FU));
    return out;
}

/// What reading the bytes as text could not keep.
void tellAboutText(const HostFileText& text, IntakeResult& result) {
    auto& messages = result.prepared.messages;
    for (const auto& [character, substitution] : text.substitutions) {
        messages.push_back({substitution.firstLine, "character-replaced",
                            "Das Zeichen „" + utf8Of(character) + "“ hat im Bestand keinen Platz und wurde " +
                                std::to_string(substitution.count) + "-mal durch " + quoted(substitution.replacement) +
                                " ersetzt, zuerst in Zeile " + std::to_string(substitution.firstLine) + ".",
                            false});
    }
    if (text.brokenLine > 0)
        messages.push_back(
            {text.brokenLine, "encoding-broken",
             "Zeile " + std::to_string(text.brokenLine) +
                 ": Die Datei enthält Bytes, die es in ihrer Kodierung nicht gibt; sie wurden durch „?“ ersetzt. "
                 "Falls Umlaute fehlen, bitte mit --encoding eine andere Kodierung angeben.",
             false});
    if (text.text.find('\0') != std::string::npos)
        messages.push_back(
            {0, "zero-bytes", "Die Datei enthält Nullbytes; in Texten werden sie zu Leerzeichen.", false});
}

void readDelimited(const PhysicalLines& physical, const InspectionOptions& options, IntakeResult& result) {
    const DelimitedFile file = DelimitedInspector::inspect(physical.lines, options);
    const ImportPlan& plan = file.plan;
    result.delimiter = plan.delimiter;
    result.header = plan.hasHeader();
    result.preambleLines = plan.preambleLines(file.table);
    result.columns = plan.columns();
    result.confidence = plan.undecided ? std::min(plan.confidence, 0.3) : plan.confidence;
    result.reasons = plan.reasons;
    result.undecided = plan.undecided;
    if (result.format == Import::eFormatStarMoney) {
        if (!plan.undecided && StarMoneyLayout::isReadRight(file, options.centuryWindow)) {
            StarMoneyLayout::prepareFixed(physical, result.prepared);
            result.columns = StarMoneyLayout::columns();
            return;
        }
        result.format = Import::eFormatCSV; // another layout, which the header tells
    }
    std::vector<IntakeMessage> aboutText = std::move(result.prepared.messages);
    result.prepared = DelimitedPreparation::prepare(file, physical, options);
    auto& messages = result.prepared.messages;
    messages.insert(messages.begin(), aboutText.begin(), aboutText.end());
    for (const TablePlan& table : plan.tables) {
        if (table.balance != BalanceProof::none && result.balance != BalanceProof::broken)
            result.balance = table.balance;
        for (const int line : table.balanceBreaks)
            messages.push_back(
                {line, "balance-break",
                 "Zeile " + std::to_string(line) +
                     ": Der Saldo passt nicht zum vorigen Saldo und dem Betrag. Bitte prüfen, ob Buchungen fehlen.",
                 false});
    }
}

void readQif(const PhysicalLines& physical, const InspectionOptions& options, IntakeResult& result) {
    PreparedQif qif = QifPreparation::prepare(physical, options);
    auto& messages = qif.file.messages;
    messages.insert(messages.begin(), result.prepared.messages.begin(), result.prepared.messages.end());
    result.prepared = std::move(qif.file);
    result.confidence = qif.confidence;
    result.reasons = std::move(qif.reasons);
    result.undecided = std::move(qif.undecided);
    result.recordsFound = qif.found;
    if (qif.found == 0 && !result.undecided)
        result.undecided = IntakeMessage{0, "no-bookings",
                                         "In der Datei wurden keine Buchungen gefunden: Es gibt keinen Abschnitt (wie "
                                         "„!Type:Bank“) mit Datensätzen.",
                                         false};
}

} // namespace

namespace Intake {

Import::E_SupportedImportFormats formatByContent(std::string_view bytes) {
    const HostFileText text = HostTextReader::read(bytes.substr(0, 4096));
    for (const std::string_view line : LineSplitting::split(text.text).lines) {
        const std::string_view content = TextTools::trim(line);
        if (content.empty())
            continue;
        const std::string folded = TextTools::fold(content);
        const bool section = folded.starts_with("type ") || folded == "account" || folded.starts_with("option ") ||
                             folded.starts_with("clear ");
        if (content.front() == '!' && section)
            return Import::eFormatQIF;
    }
    return Import::eFormatCSV;
}

IntakeResult read(std::string_view bytes, Import::E_SupportedImportFormats format, const InspectionOptions& options) {
    IntakeResult result;
    result.format = format;
    const HostFileText text = HostTextReader::read(bytes, options.encoding);
    result.encoding = text.encoding;
    result.bom = text.bom;
    const PhysicalLines physical = LineSplitting::split(text.text);
    result.lineEnds = physical.ends;
    tellAboutText(text, result);

    if (format == Import::eFormatQIF) {
        readQif(physical, options, result);
    } else {
        InspectionOptions narrowed = options;
        for (const FixedLayout& layout : fixedLayouts()) {
            if (layout.format != format)
                continue;
            narrowed.columns = layout.columns;
            narrowed.delimiter = ';';
            if (layout.header)
                narrowed.header = layout.header;
        }
        readDelimited(physical, narrowed, result);
    }
    result.prepared.untouched = !result.undecided && result.prepared.text == bytes;
    return result;
}

} // namespace Intake
