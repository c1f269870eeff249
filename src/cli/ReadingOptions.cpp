// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ReadingOptions.h"

#include <string>

#include "cli/ColumnOption.h"
#include "cli/FormatTable.h"
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
    reading.header = options.header;
    reading.unassigned = options.unassigned;
    reading.verbatim = options.verbatim;
    return reading;
}
