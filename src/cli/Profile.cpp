// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/Profile.h"

#include <algorithm>
#include <iterator>

#include "cli/FormatTable.h"
#include "cli/UsageError.h"
#include "datamodel/HostText.h"

namespace {

constexpr std::string_view kHeaderKey = "header-names";
constexpr std::string_view kFlagKey = "header";
constexpr char kNameSeparator = '|';

struct Key {
    const char* name;
    std::optional<std::string> Options::*value;
};
/// In the order in which they are written.
constexpr Key kKeys[] = {
    {"format", &Options::format},   {"encoding", &Options::encoding},    {"delimiter", &Options::delimiter},
    {"columns", &Options::columns}, {"date-order", &Options::dateOrder}, {"decimal", &Options::decimal},
};

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

/// Names in one line: what would separate or end them is a blank.
std::string joined(const std::vector<std::string>& names) {
    std::string text;
    for (std::string name : names) {
        std::replace_if(
            name.begin(), name.end(), [](char c) { return c == kNameSeparator || c == '\n' || c == '\r'; }, ' ');
        text += (text.empty() ? "" : " | ") + std::string(trimmed(name));
    }
    return text;
}

std::vector<std::string> split(std::string_view text) {
    std::vector<std::string> names;
    for (;;) {
        const std::size_t end = text.find(kNameSeparator);
        names.emplace_back(trimmed(text.substr(0, end)));
        if (end == std::string_view::npos)
            return names;
        text.remove_prefix(end + 1);
    }
}

[[noreturn]] void refuse(std::size_t line, const std::string& why) {
    throw UsageError("Zeile " + std::to_string(line) + ": " + why);
}

void readFlag(Options& options, std::string_view value, std::size_t line) {
    if (value != "yes" && value != "no")
        refuse(line, "„header“ ist „yes“ oder „no“.");
    (value == "yes" ? options.header : options.noHeader) = true;
}

void readLine(Profile& profile, std::string_view content, std::size_t line) {
    const std::size_t equals = content.find('=');
    if (equals == std::string_view::npos)
        refuse(line, "Es fehlt das „=“.");
    const std::string_view key = trimmed(content.substr(0, equals));
    const std::string_view value = trimmed(content.substr(equals + 1));
    if (key == kHeaderKey) {
        profile.header = split(value);
        return;
    }
    if (key == kFlagKey) {
        readFlag(profile.options, value, line);
        return;
    }
    const auto* known = std::find_if(std::begin(kKeys), std::end(kKeys), [key](const Key& k) { return key == k.name; });
    if (known == std::end(kKeys))
        refuse(line, "„" + std::string(key) + "“ ist keine Angabe eines Profils.");
    profile.options.*(known->value) = std::string(value);
}

} // namespace

Profile Profile::of(const std::string& name, const IntakeResult& result, const Options& given) {
    Profile profile;
    profile.name = name;
    profile.header = result.headerNames;
    Options& options = profile.options;
    options.format = FormatTable::of(result.format).optionName;
    options.encoding = given.encoding;
    // Columns that were found are found again; said once and for all they would hide the signs beside them.
    options.columns = given.columns;
    if (result.delimiter != '\0') {
        options.delimiter = result.delimiter == '\t' ? "tab" : HostText::toUtf8({&result.delimiter, 1});
        (result.header ? options.header : options.noHeader) = true;
    }
    if (result.dateOrder)
        options.dateOrder = DateCells::name(*result.dateOrder);
    if (result.decimalMark)
        options.decimal = std::string(1, *result.decimalMark);
    return profile;
}

Profile Profile::parse(const std::string& name, std::string_view text) {
    Profile profile;
    profile.name = name;
    std::size_t line = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view content = trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        ++line;
        if (!content.empty() && content.front() != '#')
            readLine(profile, content, line);
    }
    return profile;
}

std::string Profile::text() const {
    std::string text = "# Profil von dmimport. Die Angaben heißen wie die Optionen der Kommandozeile und lassen sich\n"
                       "# ändern oder streichen; was fehlt, wird in der Datei gefunden. An den Spaltennamen\n"
                       "# (header-names) wird eine Datei wiedererkannt.\n";
    const auto add = [&text](std::string_view key, const std::string& value) {
        text += std::string(key) + " = " + value + "\n";
    };
    if (!header.empty())
        add(kHeaderKey, joined(header));
    for (const Key& key : kKeys) {
        if (const std::optional<std::string>& value = options.*(key.value))
            add(key.name, *value);
    }
    if (options.header || options.noHeader)
        add(kFlagKey, options.header ? "yes" : "no");
    return text;
}
