// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "Bookings.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "framework/Latin1.h"

namespace {

using Words = std::array<std::string_view, 8>;

constexpr Words kShops = {"Stadtwerke", "Bäckerei"_latin1, "Buchladen", "Tankstelle",
                          "Apotheke",   "Baumarkt",        "Bahn",      "Versicherung"};
constexpr Words kNames = {"Ahrens", "Böhme"_latin1,    "Carstens",    "Dietz",
                          "Ebert",  "Fröhlich"_latin1, "Groß"_latin1, "Hansen"};
constexpr Words kGroups = {"Haushalt", "Wohnen", "Auto", "Freizeit", "Reise", "Vorsorge", "Beruf", "Sonstiges"};
constexpr Words kKinds = {"laufend", "einmalig", "jährlich"_latin1, "monatlich",
                          "privat",  "geteilt",  "erstattet",       "offen"};
constexpr Words kPostings = {"LASTSCHRIFT",  "UEBERWEISUNG",  "GUTSCHRIFT", "KARTENZAHLUNG",
                             "DAUERAUFTRAG", "BARAUSZAHLUNG", "ENTGELT",    "ZINSEN"};
constexpr Words kPurposes = {"Rechnung",  "Abschlag", "Kundennummer", "Beitrag",
                             "Lieferung", "Filiale",  "Beleg",        "Vertrag"};

/// A stream of numbers for one booking, so that any line can be made by itself.
class Numbers {
public:
    Numbers(std::uint32_t booking, std::uint32_t stream) : m_state((std::uint64_t{booking} << 8U | stream) + kSeed) {}

    std::uint32_t below(std::uint32_t bound) {
        // splitmix64: defined to the bit, unlike the distributions of the standard library
        m_state += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = m_state;
        mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
        return static_cast<std::uint32_t>((mixed ^ (mixed >> 31U)) % bound);
    }
    std::string_view of(const Words& words) { return words[below(static_cast<std::uint32_t>(words.size()))]; }

private:
    static constexpr std::uint64_t kSeed = 20261121;

    std::uint64_t m_state;
};

enum Stream : std::uint32_t { eDate, eAmount, eTexts };

std::string twoDigits(std::uint32_t number) {
    return {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
}

std::string purpose(Numbers& numbers) {
    constexpr std::size_t kLength = 48;
    const std::uint32_t kind = numbers.below(10);
    std::string text = kind == 0 ? "Nr. \"" + std::to_string(numbers.below(1000)) + "\" " : "";
    while (text.size() < kLength) {
        text += numbers.of(kPurposes);
        text += kind == 1 && text.size() < 20 ? "; " : " ";
    }
    return text + std::to_string(100'000'000 + numbers.below(900'000'000));
}

std::string quoted(const std::string& text) {
    if (text.find_first_of("\";") == std::string::npos)
        return text;
    std::string out = "\"";
    for (const char c : text)
        out.append(c == '"' ? 2 : 1, c);
    return out + '"';
}

} // namespace

const char* const Bookings::kColumns =
    "0=Datum,1=Empfaenger,2=Kategorie,3=Unterkategorie,4=Verwendungszweck,5=Buchungstext,6=Betrag";

const char* Bookings::header() {
    return "Datum;Empfaenger;Kategorie;Unterkategorie;Verwendungszweck;Buchungstext;Betrag";
}

std::string Bookings::date(std::uint32_t number) {
    Numbers numbers(number, eDate);
    return twoDigits(1 + numbers.below(28)) + '.' + twoDigits(1 + numbers.below(12)) + '.' +
           std::to_string(2015 + numbers.below(10));
}

std::string Bookings::amount(std::uint32_t number) {
    Numbers numbers(number, eAmount);
    const std::uint32_t cents = 1 + numbers.below(numbers.below(20) == 0 ? 1'000'000 : 25'000);
    std::string units = std::to_string(cents / 100);
    if (units.size() > 3)
        units.insert(units.size() - 3, 1, '.');
    return (numbers.below(4) != 0 ? "-" : "") + units + ',' + twoDigits(cents % 100);
}

Bookings::Parts Bookings::parts(std::uint32_t number) {
    Numbers numbers(number, eTexts);
    Parts parts;
    parts.payee.append(numbers.of(kShops)).append(" ").append(numbers.of(kNames));
    parts.group = numbers.of(kGroups);
    parts.kind = numbers.of(kKinds);
    parts.purpose = purpose(numbers);
    parts.posting = numbers.of(kPostings);
    return parts;
}

std::string Bookings::line(std::uint32_t number) {
    const Parts texts = parts(number);
    std::string line = date(number) + kDelimiter;
    for (const std::string& text : {texts.payee, texts.group, texts.kind, quoted(texts.purpose), texts.posting})
        line += text + kDelimiter;
    return line + amount(number);
}

std::string Bookings::file(std::uint32_t count) {
    std::string bytes = std::string(header()) + '\n';
    for (std::uint32_t number = 0; number < count; ++number)
        bytes += line(number) + '\n';
    return bytes;
}
