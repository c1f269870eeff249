// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ReadingFacts.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "cli/ColumnOption.h"
#include "cli/InspectText.h"
#include "cli/SafeText.h"

namespace {

const char* orderText(DateOrder order) {
    switch (order) {
    case DateOrder::dayMonthYear:
        return "Tag, Monat, Jahr";
    case DateOrder::monthDayYear:
        return "Monat, Tag, Jahr";
    case DateOrder::yearMonthDay:
        break;
    }
    return "Jahr, Monat, Tag";
}

/// "Datum aus Spalte 0 „Buchungstag“": what the file calls the column tells more than its number.
std::string columnText(const std::string& field, const std::vector<int>& inputs,
                       const std::vector<std::string>& names) {
    std::string text = field + (inputs.size() == 1 ? " aus Spalte " : " aus den Spalten ");
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        text += (i == 0 ? "" : " und ") + std::to_string(inputs[i]);
        const auto column = static_cast<std::size_t>(inputs[i]);
        if (inputs[i] >= 0 && column < names.size() && !names[column].empty())
            text += " „" + names[column] + "“";
    }
    return text;
}

std::string columnsText(const IntakeResult& result) {
    std::string text;
    for (const auto& [field, inputs] : result.columns)
        text += (text.empty() ? "" : ", ") + columnText(field, inputs, result.headerNames);
    return text.empty() ? text : text + " (gezählt ab 0)";
}

std::string columnsText(const ColumnAssignment& columns) {
    std::string text;
    for (int i = 0; i < columns.m_count; ++i) {
        const auto& pair = columns.m_pairs[i];
        text +=
            (text.empty() ? "" : ", ") + columnText(ColumnOption::fieldName(pair.m_column), {pair.m_inputColumn}, {});
    }
    return text + " (gezählt ab 0)";
}

void add(std::vector<PageFact>& facts, const char* label, const std::string& value) {
    if (!value.empty())
        facts.push_back({label, SafeText::printable(value)});
}

void enterFound(const FileReading& reading, const IntakeResult& result, std::vector<PageFact>& facts) {
    add(facts, "Kodierung", InspectText::encodingText(result));
    add(facts, "Zeilenenden", InspectText::lineEndsText(result.lineEnds));
    if (result.delimiter != '\0') {
        add(facts, "Trennzeichen", reading.delimiterText());
        add(facts, "Kopfzeile", result.header ? "ja" : "nein");
        add(facts, "Spalten", columnsText(result));
        if (result.dateOrder)
            add(facts, "Reihenfolge im Datum", orderText(*result.dateOrder));
        if (result.decimalMark)
            add(facts, "Dezimalzeichen", *result.decimalMark == ',' ? "Komma" : "Punkt");
        add(facts, "Saldo", InspectText::balanceText(result.balance));
    }
    if (reading.profile())
        add(facts, "Profil", *reading.profile());
    add(facts, "Sicherheit", InspectText::percent(result.confidence));
    add(facts, "An die Bibliothek ging",
        result.prepared.untouched ? "die Datei selbst, unverändert"
                                  : "eine hergerichtete Fassung mit denselben Zeilennummern");
}

void enterVerbatim(const FileReading& reading, std::vector<PageFact>& facts) {
    add(facts, "Wörtlich gelesen", "ja (--verbatim): Byte für Byte, ohne dass ihr Aufbau geprüft wurde");
    if (!reading.traits().recordPerLine)
        return;
    add(facts, "Trennzeichen", reading.delimiterText());
    add(facts, "Kopfzeile", reading.hasHeader() ? "ja" : "nein");
    if (const ColumnAssignment* columns = reading.columns())
        add(facts, "Spalten", columnsText(*columns));
}

/// In hundredths; nothing for what no account holds.
std::optional<std::int64_t> centsOf(const Money& money) {
    constexpr std::int64_t kMost = 1'000'000'000'000'000;
    std::int64_t cents = money.mantissa;
    for (int scale = money.scale; scale > 2; --scale)
        cents /= 10;
    for (int scale = money.scale; scale < 2; ++scale) {
        if (cents > kMost || cents < -kMost)
            return std::nullopt;
        cents *= 10;
    }
    return cents > kMost || cents < -kMost ? std::nullopt : std::optional(cents);
}

std::vector<DayValue> balancesOf(const IntakeResult& result) {
    std::vector<DayValue> values;
    values.reserve(result.balances.size());
    for (const BalanceOfDay& balance : result.balances) {
        const std::optional<std::int64_t> cents = centsOf(balance.balance);
        if (!cents)
            return {};
        values.push_back({std::chrono::year_month_day(std::chrono::year(balance.day.year),
                                                      std::chrono::month(static_cast<unsigned>(balance.day.month)),
                                                      std::chrono::day(static_cast<unsigned>(balance.day.day))),
                          *cents});
    }
    return values;
}

} // namespace

void ReadingFacts::enter(const FileReading& reading, FileChapter& chapter) {
    const IntakeResult* result = reading.intake();
    if (reading.options().verbatim)
        enterVerbatim(reading, chapter.reading);
    if (result == nullptr)
        return;
    enterFound(reading, *result, chapter.reading);
    for (const Reason& reason : result->reasons)
        chapter.reasons.push_back(SafeText::printable(InspectText::reasonText(reason)));
    chapter.balances = balancesOf(*result);
}
