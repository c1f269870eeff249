// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ExportChoice.h"

#include <string_view>
#include <tuple>
#include <vector>

#include "cli/SessionNumber.h"
#include "cli/Suggestion.h"
#include "cli/UsageError.h"
#include "datamodel/HostText.h"

namespace {

constexpr const char* kJson = "json";

std::string formatNames(const char* before) {
    std::string list;
    for (const ExportFormat& format : ExportFormats::all())
        list += std::string(list.empty() ? before : ", ") + format.name;
    return list;
}

const ExportFormat& formatOf(const Options& options) {
    if (!options.to && !options.json)
        throw UsageError("Es fehlt das Format der Ausgabe; schreiben Sie etwa --to csv. Möglich sind " +
                         formatNames("") + ".");
    const std::string name = options.to.value_or(kJson);
    const ExportFormat* format = ExportFormats::byName(name);
    if (format == nullptr) {
        std::vector<std::string> names;
        for (const ExportFormat& known : ExportFormats::all())
            names.emplace_back(known.name);
        throw UsageError("Das Format „" + name + "“ gibt es für --to nicht." + Suggestion::question(name, names) +
                         "\nMöglich sind " + formatNames("") + ".");
    }
    if (options.json && name != kJson)
        throw UsageError("--json und --to " + name + " widersprechen sich; schreiben Sie nur eines von beiden.");
    return *format;
}

/// The number in `text` from `first` on; 0 where there is anything but digits.
unsigned number(std::string_view text, std::size_t first, std::size_t count) {
    unsigned value = 0;
    for (const char c : text.substr(first, count)) {
        if (c < '0' || c > '9')
            return 0;
        value = value * 10 + static_cast<unsigned>(c - '0');
    }
    return value;
}

DMDate dayOf(const char* option, const std::string& text) {
    unsigned day = 0;
    unsigned month = 0;
    unsigned year = 0;
    if (text.size() == 10 && text[4] == '-' && text[7] == '-')
        std::tie(year, month, day) = std::tuple(number(text, 0, 4), number(text, 5, 2), number(text, 8, 2));
    else if (text.size() == 10 && text[2] == '.' && text[5] == '.')
        std::tie(day, month, year) = std::tuple(number(text, 0, 2), number(text, 3, 2), number(text, 6, 4));
    if (DMDate::DayWithinMonth(month, day, year) == 0)
        throw UsageError(std::string(option) + ": „" + text +
                         "“ ist kein Tag; schreiben Sie ihn als 2024-12-31 oder 31.12.2024.");
    return {day, month, year};
}

std::string accountOf(const std::string& text) {
    if (text.find('/') == std::string::npos)
        throw UsageError("--account: „" + text +
                         "“ nennt kein Konto; schreiben Sie Bankleitzahl und Kontonummer, etwa --account "
                         "10020030/4711.");
    // What no account of the store can be called stays as it is, and is not found.
    return HostText::fromUtf8(text).value_or(text);
}

bool isBefore(const DMDate& a, const DMDate& b) {
    return std::tuple(a.year(), a.month(), a.day()) < std::tuple(b.year(), b.month(), b.day());
}

} // namespace

ExportChoice ExportChoice::from(const Options& options) {
    ExportChoice choice;
    choice.format = &formatOf(options);
    if (options.session && options.account)
        throw UsageError("--session und --account widersprechen sich: Buchungen eines Kontos gehören zu keiner "
                         "Importsitzung.");
    if (options.session)
        choice.session = sessionNumber(*options.session);
    if (options.since)
        choice.since = dayOf("--since", *options.since);
    if (options.until)
        choice.until = dayOf("--until", *options.until);
    if (!choice.since.isZero() && !choice.until.isZero() && isBefore(choice.until, choice.since))
        throw UsageError("--until liegt vor --since; dazwischen ist kein Tag.");
    if (options.account)
        choice.account = accountOf(*options.account);
    return choice;
}

bool ExportChoice::takes(const ExportRecord& record) const {
    if (session && record.session != *session)
        return false;
    if (since.isZero() && until.isZero())
        return true;
    return !record.day.isZero() && (since.isZero() || !isBefore(record.day, since)) &&
           (until.isZero() || !isBefore(until, record.day));
}
