// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ReadingOptions.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "cli/ColumnOption.h"
#include "cli/FormatTable.h"
#include "cli/ProfileFolder.h"
#include "cli/Suggestion.h"
#include "cli/UsageError.h"
#include "datamodel/HostText.h"

namespace {

char delimiterOf(const std::string& text) {
    if (text == "tab" || text == "\\t")
        return '\t';
    const std::optional<std::string> byte = HostText::utf8ToLatin1(text);
    if (!byte || byte->size() != 1)
        throw UsageError("--delimiter: „" + text +
                         "“ ist nicht genau ein Zeichen; schreiben Sie etwa --delimiter \";\" oder "
                         "--delimiter tab.");
    if (*byte == "\"" || *byte == "\n")
        throw UsageError("--delimiter: Anführungszeichen und Zeilenende trennen keine Spalten; schreiben Sie etwa "
                         "--delimiter \";\".");
    return byte->front();
}

Import::E_SupportedImportFormats formatOf(const std::string& name) {
    if (const FormatTraits* traits = FormatTable::byOptionName(name))
        return traits->format;
    std::vector<std::string> names;
    std::string list;
    for (const FormatTraits& traits : FormatTable::all()) {
        names.emplace_back(traits.optionName);
        list += std::string(list.empty() ? "" : ", ") + traits.optionName;
    }
    throw UsageError("--format: „" + name + "“ gibt es nicht." + Suggestion::question(name, names) +
                     "\nFormate: " + list);
}

Encoding encodingOf(const std::string& name) {
    const std::optional<Encoding> encoding = EncodingNames::parse(name);
    if (!encoding)
        throw UsageError("--encoding: „" + name + "“ gibt es nicht." +
                         Suggestion::question(name, std::vector<std::string>{"latin1", "cp1252", "utf-8", "utf-16"}) +
                         "\nKodierungen: latin1, cp1252, utf-8, utf-16");
    return *encoding;
}

DateOrder dateOrderOf(const std::string& name) {
    if (const std::optional<DateOrder> order = DateCells::parseOrder(name))
        return *order;
    throw UsageError("--date-order: „" + name +
                     "“ gibt es nicht; schreiben Sie dmy (31.12.2004), mdy (12/31/2004) oder ymd (2004-12-31).");
}

char decimalMarkOf(const std::string& text) {
    if (text != "," && text != ".")
        throw UsageError("--decimal: „" + text +
                         "“ trennt keine Dezimalstellen ab; schreiben Sie --decimal , oder "
                         "--decimal .");
    return text.front();
}

/// What the inspection takes and a file that is read as it is does not.
void refuseWithVerbatim(const Options& options) {
    const std::pair<const char*, bool> given[] = {{"--encoding", options.encoding.has_value()},
                                                  {"--date-order", options.dateOrder.has_value()},
                                                  {"--decimal", options.decimal.has_value()},
                                                  {"--profile", options.profile.has_value()},
                                                  {"--save-profile", options.saveProfile.has_value()}};
    for (const auto& [name, isGiven] : given) {
        if (options.verbatim && isGiven)
            throw UsageError(std::string(name) + " und --verbatim schließen einander aus: Mit --verbatim bekommt die "
                                                 "Bibliothek die Datei, wie sie ist.");
    }
}

/// Where the columns are named, nothing else is looked for.
void requireDateAndAmount(const ReadingOptions& reading) {
    const auto has = [&](Import::E_ColumnIndex field) {
        const auto* end = reading.columns->m_pairs + reading.columns->m_count;
        return std::any_of(reading.columns->m_pairs, end,
                           [field](const ColumnAssignment::Pair& pair) { return pair.m_column == field; });
    };
    if (!reading.columns || reading.verbatim)
        return;
    if (!has(Import::eColBetrag))
        throw UsageError(
            "--columns: Die Spalte für „Betrag“ fehlt; schreiben Sie etwa --columns \"0=Datum,3=Betrag\".");
    if (!has(Import::eColDatum))
        throw UsageError("--columns: Die Spalte für „Datum“ fehlt; schreiben Sie etwa --columns \"0=Datum,3=Betrag\".");
}

} // namespace

ReadingOptions ReadingOptions::from(const Options& options) {
    if (options.header && options.noHeader)
        throw UsageError("--header und --no-header schließen einander aus; schreiben Sie eines davon.");
    if (options.unassigned && options.columns)
        throw UsageError("--unassigned und --columns schließen einander aus; schreiben Sie eines davon.");
    ReadingOptions reading;
    if (options.format)
        reading.format = formatOf(*options.format);
    if (options.columns)
        reading.columns = ColumnOption::parse(*options.columns);
    if (options.delimiter)
        reading.delimiter = delimiterOf(*options.delimiter);
    if (options.header || options.noHeader)
        reading.header = options.header;
    refuseWithVerbatim(options);
    if (options.encoding)
        reading.encoding = encodingOf(*options.encoding);
    if (options.dateOrder)
        reading.dateOrder = dateOrderOf(*options.dateOrder);
    if (options.decimal)
        reading.decimalMark = decimalMarkOf(*options.decimal);
    reading.unassigned = options.unassigned;
    reading.verbatim = options.verbatim;
    reading.allowUndated = options.allowUndated;
    requireDateAndAmount(reading);
    if (options.profile)
        ProfileFolder::checkName("--profile", *options.profile);
    if (options.saveProfile)
        ProfileFolder::checkName("--save-profile", *options.saveProfile);
    reading.profile = options.profile;
    reading.saveProfile = options.saveProfile;
    reading.given = options;
    return reading;
}

ReadingOptions ReadingOptions::completedBy(const ReadingOptions& others) const {
    ReadingOptions all = *this;
    const auto complete = [](auto& mine, const auto& theirs) {
        if (!mine)
            mine = theirs;
    };
    complete(all.columns, others.columns);
    complete(all.delimiter, others.delimiter);
    complete(all.header, others.header);
    complete(all.encoding, others.encoding);
    complete(all.dateOrder, others.dateOrder);
    complete(all.decimalMark, others.decimalMark);
    return all;
}

InspectionOptions ReadingOptions::forInspection() const {
    InspectionOptions inspection;
    inspection.encoding = encoding;
    inspection.delimiter = delimiter;
    inspection.header = header;
    inspection.dateOrder = dateOrder;
    inspection.decimalMark = decimalMark;
    inspection.allowUndated = allowUndated;
    if (columns) {
        inspection.columns.emplace();
        for (int i = 0; i < columns->m_count; ++i)
            (*inspection.columns)[ColumnOption::fieldName(columns->m_pairs[i].m_column)] =
                columns->m_pairs[i].m_inputColumn;
    }
    return inspection;
}

void ReadingOptions::noteUseless(const FormatTraits& traits, std::vector<Message>& messages) const {
    if (traits.takesColumns())
        return;
    if (columns)
        messages.push_back(Message::of(Problem::optionIgnored, {"--columns"}));
    if (delimiter)
        messages.push_back(Message::of(Problem::optionIgnored, {"--delimiter"}));
}
