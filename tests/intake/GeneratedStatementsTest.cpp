// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cstdint>
#include <iostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "intake/FileReading.h"
#include "intake/StatementWriter.h"
#include "support/Utf8.h"

namespace {

/// The same numbers on every machine.
class Dice {
public:
    explicit Dice(std::uint32_t seed) : m_state(seed) {}
    /// From 0 to `sides` - 1.
    int roll(int sides) {
        m_state = m_state * 1664525U + 1013904223U;
        return static_cast<int>((m_state >> 8U) % static_cast<std::uint32_t>(sides));
    }
    bool oneIn(int sides) { return roll(sides) == 0; }

private:
    std::uint32_t m_state;
};

struct About {
    const char* payee;
    const char* purpose;
};
constexpr std::array<About, 7> kOut = {{
    {"Bäckerei Süß", "Einkauf Brot und Brötchen"},
    {"Müller Hausverwaltung", "Miete Wohnung 12"},
    {"Stadtwerke", "Abschlag Strom 2024-00123"},
    {"Café de la Gare", "Carte 1234 Paris"},
    {"Versicherung AG", "Beitrag 03/2024"},
    {"Buchladen", "Zahlung Kreditkarte"},
    {"Tankstelle", "Super 95, 40.12 l"},
}};
constexpr std::array<About, 4> kIn = {{
    {"Firma Anton", "Lohn und Gehalt"},
    {"Acme Ltd", "Invoice 47/11, first part"},
    {"Erika", "Gutschrift; danke"},
    {"Finanzamt", "Erstattung 2023"},
}};
constexpr std::array<long, 12> kCents = {-1250,    150000, -123456, -100000, 700,    -99,
                                         25000000, -3330,  -5,      4200,    -75000, -1999};

std::vector<WrittenBooking> bookings(Dice& dice) {
    std::vector<WrittenBooking> list;
    const int count = 1 + dice.roll(9);
    int day = 1 + dice.roll(12);
    int month = 1 + dice.roll(12);
    int year = 2015 + dice.roll(10);
    for (int i = 0; i < count; ++i) {
        const long cents = kCents[static_cast<std::size_t>(dice.roll(12))];
        const About& about =
            cents < 0 ? kOut[static_cast<std::size_t>(dice.roll(7))] : kIn[static_cast<std::size_t>(dice.roll(4))];
        list.push_back({year, month, day, cents, about.payee, about.purpose});
        day += dice.roll(7);
        if (day > 27) {
            day -= 27;
            month = month % 12 + 1;
            year += month == 1 ? 1 : 0;
        }
    }
    return list;
}

StatementLayout layout(Dice& dice) {
    StatementLayout l;
    l.language = dice.roll(StatementLayout::kLanguageCount);
    l.numberForm = dice.roll(StatementLayout::kNumberFormCount);
    do {
        l.dateForm = dice.roll(StatementLayout::kDateFormCount);
    } while (l.monthFirst() && l.decimalComma()); // no country writes so
    l.preamble = dice.roll(StatementLayout::kPreambleCount);
    l.signs = static_cast<StatementLayout::Signs>(dice.roll(static_cast<int>(StatementLayout::Signs::count)));
    l.delimiter = ";,\t|"[dice.roll(4)];
    l.header = !dice.oneIn(5);
    l.quoteAll = dice.oneIn(3);
    l.newestFirst = dice.oneIn(2);
    l.balance = dice.oneIn(3) || l.signs == StatementLayout::Signs::balanceOnly;
    l.valueDate = dice.oneIn(3);
    l.currency = dice.oneIn(3);
    l.reference = dice.oneIn(3);
    l.amountFirst = dice.oneIn(3);
    l.lineEnd = dice.oneIn(2) ? "\r\n" : "\n";
    return l;
}

std::string encoded(const std::string& utf8, Dice& dice) {
    if (dice.oneIn(4))
        return "\xEF\xBB\xBF" + utf8;
    const bool isLatin1 = utf8.find("\xC4") == std::string::npos && utf8.find("\xC5") == std::string::npos;
    return isLatin1 && dice.oneIn(2) ? latin1FromUtf8(utf8) : utf8;
}

/// Amounts without signs are told from income by a balance that falls, and by nothing else.
bool showsItsSigns(const std::vector<WrittenBooking>& written, const StatementLayout& l) {
    return l.signs != StatementLayout::Signs::balanceOnly ||
           std::any_of(written.begin() + 1, written.end(), [](const WrittenBooking& w) { return w.cents < 0; });
}

enum class Verdict { right, refused, wrong };

/// Right: every booking is there. Refused: some or all are not, and that is said.
Verdict judge(const FileReading& file, std::vector<WrittenBooking> written, bool newestFirst) {
    if (newestFirst)
        std::reverse(written.begin(), written.end());
    const auto read = file.datesAndAmounts();
    auto next = written.begin();
    for (const std::string& booking : read) {
        next = std::find_if(next, written.end(), [&](const WrittenBooking& w) { return w.shown() == booking; });
        if (next == written.end())
            return Verdict::wrong;
        ++next;
    }
    if (read.size() == written.size())
        return Verdict::right;
    const bool said =
        !file.undecided().empty() || read.size() + static_cast<std::size_t>(file.refused()) == written.size();
    return said ? Verdict::refused : Verdict::wrong;
}

TEST(GeneratedStatements, AreReadRightOrRefusedButNeverWrong) {
    constexpr int kStatements = 2000;
    Dice dice(20240229);
    int right = 0;
    int withHeader = 0;
    int rightWithHeader = 0;
    for (int i = 0; i < kStatements; ++i) {
        const auto written = bookings(dice);
        StatementLayout l = layout(dice);
        if (!showsItsSigns(written, l))
            l.signs = StatementLayout::Signs::minus;
        const std::string text = encoded(writeStatement(written, l), dice);
        const FileReading file(text);
        const Verdict verdict = judge(file, written, l.newestFirst);
        EXPECT_NE(verdict, Verdict::wrong) << "statement " << i << ", " << l.describe() << '\n'
                                           << text << testing::PrintToString(file.datesAndAmounts());
        right += verdict == Verdict::right ? 1 : 0;
        // The sign of the oldest booking is nowhere where only a balance tells signs.
        const bool tellsAll = l.header && l.signs != StatementLayout::Signs::balanceOnly;
        withHeader += tellsAll ? 1 : 0;
        rightWithHeader += tellsAll && verdict == Verdict::right ? 1 : 0;
    }
    std::cout << right << " of " << kStatements << " right, " << rightWithHeader << " of " << withHeader
              << " with a header\n";
    EXPECT_GE(rightWithHeader * 100, withHeader * 95);
}

} // namespace
