// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/Intake.h"

#include <algorithm>
#include <iterator>

#include "intake/DelimitedInspector.h"
#include "intake/DelimitedPreparation.h"
#include "intake/HostTextReader.h"
#include "intake/MessageTexts.h"
#include "intake/OwnExport.h"
#include "intake/PreparedLines.h"
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

/// The cells of a header, without blank ones behind the last name.
std::vector<std::string> namesOf(const RecordTable& table, std::size_t record) {
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(table.record(record).cellCount));
    for (int column = 0; column < table.record(record).cellCount; ++column)
        names.push_back(TextTools::toUtf8(TextTools::trim(table.cell(record, column))));
    while (!names.empty() && names.back().empty())
        names.pop_back();
    return names;
}

/// Whether the module that fixes a layout finds every field where it looks.
bool keepsLayout(Import::E_SupportedImportFormats format, const PreparedFile& prepared) {
    for (const FixedLayout& layout : fixedLayouts()) {
        if (layout.format != format)
            continue;
        if (layout.header && *layout.header != prepared.header)
            return false;
        return std::all_of(prepared.columns.begin(), prepared.columns.end(), [&](const PreparedFile::Assignment& pair) {
            return layout.columns.at(pair.field) == pair.column;
        });
    }
    return true;
}

/// What reading the bytes as text could not keep.
std::vector<IntakeMessage> aboutText(const HostFileText& text, int lineCount) {
    std::vector<IntakeMessage> messages;
    // Behind the last line there may be nothing but a character without width.
    const auto existing = [&](int line) { return std::min(line, lineCount); };
    for (const auto& [character, substitution] : text.substitutions)
        messages.push_back(Messages::make(MessageId::characterReplaced, existing(substitution.firstLine),
                                          {TextTools::utf8Of(character), std::to_string(substitution.count),
                                           TextTools::toUtf8(substitution.replacement)}));
    if (text.brokenLine > 0)
        messages.push_back(Messages::make(MessageId::encodingBroken, existing(text.brokenLine)));
    if (text.zeroBytes)
        messages.push_back(Messages::make(MessageId::zeroBytes, 0));
    return messages;
}

/// Adds messages; all are in the order of their lines.
void addMessages(std::vector<IntakeMessage> added, std::vector<IntakeMessage>& messages) {
    messages.insert(messages.begin(), std::make_move_iterator(added.begin()), std::make_move_iterator(added.end()));
    std::stable_sort(messages.begin(), messages.end(),
                     [](const IntakeMessage& a, const IntakeMessage& b) { return a.line < b.line; });
}

void readDelimited(const PhysicalLines& physical, const InspectionOptions& options, IntakeResult& result) {
    const DelimitedFile file = DelimitedInspector::inspect(physical.lines, options);
    const ImportPlan& plan = file.plan;
    result.delimiter = plan.delimiter;
    result.header = plan.hasHeader();
    if (!plan.tables.empty() && !plan.undecided) {
        result.dateOrder = plan.tables.front().dateOrder;
        result.decimalMark = plan.tables.front().decimalMark;
    }
    if (plan.header)
        result.headerNames = namesOf(file.table, *plan.header);
    result.preambleLines = plan.preambleLines(file.table);
    result.columns = plan.columns();
    result.confidence = plan.undecided ? std::min(plan.confidence, 0.3) : plan.confidence;
    result.reasons = plan.reasons;
    result.undecided = plan.undecided;
    result.balances = BalanceSeries::of(file);
    if (result.format == Import::eFormatStarMoney) {
        if (!plan.undecided && StarMoneyLayout::isReadRight(file, physical)) {
            StarMoneyLayout::prepareFixed(physical, result.prepared);
            result.columns = StarMoneyLayout::columns();
            return;
        }
        result.format = Import::eFormatCSV; // another layout, which the header tells, or one with damaged lines
    }
    result.prepared = DelimitedPreparation::prepare(file, physical, options);
    if (!keepsLayout(result.format, result.prepared))
        result.format = Import::eFormatCSV;
    std::vector<IntakeMessage> remarks = plan.remarks;
    for (const TablePlan& table : plan.tables) {
        if (table.balance != BalanceProof::none && result.balance != BalanceProof::broken)
            result.balance = table.balance;
        for (const int line : table.balanceBreaks)
            remarks.push_back(Messages::make(MessageId::balanceBreak, line));
    }
    addMessages(std::move(remarks), result.prepared.messages);
}

void adopt(OwnExport&& own, IntakeResult& result) {
    result.ownExport = true;
    result.delimiter = own.prepared.delimiter;
    result.header = true;
    result.headerNames = std::move(own.headerNames);
    result.columns = std::move(own.columns);
    result.undecided = std::move(own.undecided);
    result.confidence = result.undecided ? 0.3 : 1.0;
    result.dateOrder = DateOrder::dayMonthYear;
    result.decimalMark = OwnExport::kDecimalMark;
    result.reasons.push_back({1, -1, "Die Überschriften sind die von „dmimport export“; damit liegt alles fest."});
    result.prepared = std::move(own.prepared);
}

void readQif(const PhysicalLines& physical, const InspectionOptions& options, IntakeResult& result) {
    PreparedQif qif = QifPreparation::prepare(physical, options);
    result.prepared = std::move(qif.file);
    result.confidence = qif.confidence;
    result.reasons = std::move(qif.reasons);
    result.undecided = std::move(qif.undecided);
    result.recordsFound = qif.found;
    if (qif.found == 0 && !result.undecided)
        result.undecided = Messages::make(MessageId::noQifRecords, 0);
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

    if (format == Import::eFormatQIF) {
        readQif(physical, options, result);
    } else if (auto own = format == Import::eFormatCSV ? OwnExport::read(text.text, physical, options) : std::nullopt) {
        adopt(std::move(*own), result);
    } else {
        const bool isStarMoney = format == Import::eFormatStarMoney && StarMoneyLayout::isIn(physical.lines);
        InspectionOptions narrowed = isStarMoney ? StarMoneyLayout::narrowed(options) : options;
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
    addMessages(aboutText(text, static_cast<int>(physical.lines.size())), result.prepared.messages);
    result.prepared.untouched = !result.undecided && result.prepared.text == bytes;
    return result;
}

IntakeResult readAsItStands(std::string_view bytes, const InspectionOptions& options) {
    IntakeResult result;
    const HostFileText text = HostTextReader::read(bytes, options.encoding);
    result.encoding = text.encoding;
    result.bom = text.bom;
    const PhysicalLines physical = LineSplitting::split(text.text);
    result.lineEnds = physical.ends;
    const DelimitedFile file = DelimitedInspector::inspect(physical.lines, options);
    result.delimiter = file.plan.delimiter;
    result.header = options.header.value_or(file.plan.hasHeader() && file.plan.preambleLines(file.table) == 0);

    PreparedLines lines(physical);
    for (int line = 0; line < lines.count(); ++line)
        lines.keep(line);
    result.prepared.text = lines.text();
    result.prepared.untouched = result.prepared.text == bytes;
    result.prepared.header = result.header;
    result.prepared.delimiter = result.delimiter;
    for (const std::string_view line : physical.lines)
        result.prepared.lines.push_back(TextTools::trim(line).empty() ? LineUse::blank : LineUse::ignored);
    return result;
}

} // namespace Intake
