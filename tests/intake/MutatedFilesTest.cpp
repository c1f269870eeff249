// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "intake/FileReading.h"

namespace {

constexpr std::string_view kSeeds[] = {
    "Konto;DE00\n\nDatum;Wert;Empfänger;Verwendungszweck;Betrag;Saldo\n"
    "01.02.2024;02.02.2024;Müller;\"Miete\nFebruar\";-500,00;500,00\n02.02.2024;02.02.2024;Firma;Lohn;1.500,00;2.000,"
    "00\n"
    ";;;Endsaldo;;2.000,00\n",
    "Date,Payee,Amount,Type\r\n2024-02-13,\"A, b\",5.00,debit\r\n2024-02-14,C,6.00,credit\r\n",
    "13/02/2024\tText one\t500.00\t\n14/02/2024\tText two\t\t1500.00\n",
    "\xFF\xFE"
    "D\0a\0t\0u\0m\0;\0B\0e\0t\0r\0a\0g\0\n\0",
    "!Type:Bank\nD13.02.2024\nT-500,00\nPa\nMb\n^\nD14.02.2024\nT1500,00\nPb\n^\n!Account\nNx\n^\n",
};
/// What does most harm.
constexpr std::string_view kPieces[] = {"\"",
                                        ";",
                                        ",",
                                        "\n",
                                        "\r",
                                        "^\n",
                                        "!Type:Bank\n",
                                        "\xC3",
                                        "\xEF\xBB\xBF",
                                        "99999999999999999999",
                                        "-",
                                        ".",
                                        "29.02.2023",
                                        "Datum;Betrag\n",
                                        "\t"};

class Mutation {
public:
    explicit Mutation(std::uint32_t seed) : m_state(seed) {}

    std::string of(std::string_view seed) {
        std::string text(seed);
        for (std::uint32_t i = 1 + roll(6); i > 0; --i)
            once(text);
        return text;
    }
    std::uint32_t roll(std::size_t sides) {
        m_state = m_state * 1664525U + 1013904223U;
        return (m_state >> 8U) % static_cast<std::uint32_t>(sides);
    }

private:
    void once(std::string& text) {
        const std::size_t at = roll(text.size() + 1);
        switch (roll(5)) {
        case 0:
            text.erase(at, 1 + roll(20));
            break;
        case 1:
            text.insert(at, kPieces[roll(std::size(kPieces))]);
            break;
        case 2:
            text.insert(at, 1, static_cast<char>(roll(256)));
            break;
        case 3:
            text.insert(roll(text.size() + 1), text.substr(at, 1 + roll(80)));
            break;
        default:
            if (at < text.size())
                text[at] = static_cast<char>(roll(256));
        }
    }

    std::uint32_t m_state;
};

TEST(MutatedFiles, AreAccountedForLineByLine) {
    constexpr int kFiles = 1500;
    Mutation mutation(4711);
    for (int i = 0; i < kFiles && !HasFailure(); ++i) {
        const std::string text = mutation.of(kSeeds[mutation.roll(std::size(kSeeds))]);
        const auto format = Intake::formatByContent(text);
        SCOPED_TRACE("file " + std::to_string(i) + ":\n" + testing::PrintToString(text));
        EXPECT_NO_THROW(FileReading(text, format));
    }
}

} // namespace
