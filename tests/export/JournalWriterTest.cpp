// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include <gmock/gmock.h>

#include "export/WrittenText.h"
#include "support/GeneratedBook.h"
#include "support/TemporaryFile.h"

namespace {

using ::testing::HasSubstr;

constexpr const char* kHead = "; Bestand von dmimport\ncommodity EUR\n    format 1000.00 EUR\n";

std::string journal(const BookRow& row) {
    DataManager model;
    RecordBook::add(model, row);
    const std::string text = WrittenText("hledger", model).text;
    EXPECT_EQ(text.substr(0, std::string(kHead).size()), kHead);
    return text.substr(std::string(kHead).size());
}

TEST(JournalWriter, ATransactionARecord) {
    DataManager model;
    RecordBook::addSession(model, 1, "ums\xE4tze.csv");
    RecordNode& row = RecordBook::add(
        model, {{14, 3, 2024}, -12.5, {"B\xE4\x63ker", "Brot und Br\xF6tchen", "Karte", "Essen", "Brot"}});
    RecordBook::set(row, "Zeile", DataType::makeInteger(12));
    RecordBook::add(model, {{15, 3, 2024}, 2500.0, {"Firma", "", "", "", ""}});
    const WrittenText written("hledger", model);
    EXPECT_EQ(written.text, std::string(kHead) + R"(
2024-03-14 * (1) Bäcker | Brot und Brötchen
    ; Buchungstext: Karte
    ; Herkunft: umsätze.csv
    ; Zeile: 12
    ; Sitzung: 1
    Ausgaben:Essen:Brot  12.50 EUR
    Aktiva:Bank  -12.50 EUR

2024-03-15 * (2) Firma
    ; Herkunft: umsätze.csv
    ; Sitzung: 1
    Einnahmen:Unkategorisiert  -2500.00 EUR
    Aktiva:Bank  2500.00 EUR
)");
    EXPECT_EQ(written.lost(Loss::textChanged), 0U);
}

TEST(JournalWriter, WhatMeansSomethingIsReplaced) {
    EXPECT_EQ(journal({{1, 2, 2024}, 1.0, {"* a;  b\tc", "(x) | y\n2024-01-01 z", "k: [2024-01-01]", "A:  B;", ":"}}),
              R"(
2024-02-01 * (1) * a, b c | (x) / y 2024-01-01 z
    ; Buchungstext: k: (2024-01-01)
    ; Sitzung: 1
    Einnahmen:A- B,:-  -1.00 EUR
    Aktiva:Bank  1.00 EUR
)");
}

TEST(JournalWriter, EmptyTextsLeaveNothingBehind) {
    EXPECT_EQ(journal({{1, 2, 2024}, 0.0, {}}), "\n2024-02-01 * (1)\n    ; Sitzung: 1\n"
                                                "    Einnahmen:Unkategorisiert  0.00 EUR\n    Aktiva:Bank  0.00 EUR\n");
    EXPECT_THAT(journal({{1, 2, 2024}, 0.0, {"", "Zweck", "", " ", "Unter"}}),
                testing::AllOf(HasSubstr("* (1) Zweck\n"), HasSubstr("Einnahmen:Unkategorisiert:Unter  ")));
}

TEST(JournalWriter, WhatItCannotHoldIsTold) {
    DataManager model;
    BookRow noAmount({2, 2, 2024}, 0.0, {});
    noAmount.hasAmount = false;
    RecordBook::add(model, {{}, 1.0, {}});
    RecordBook::add(model, {{31, 12, 1399}, 1.0, {}});
    RecordBook::add(model, noAmount);
    RecordBook::add(model, {{2, 2, 2024}, 1e-300, {}});
    RecordBook::add(model, {{2, 2, 2024}, 1.0, {"a;b", "c;d", "", "", ""}});
    const WrittenText written("hledger", model);
    EXPECT_EQ(written.losses.of(Loss::undated), Losses::Ids{1});
    EXPECT_EQ(written.losses.of(Loss::dayOutside), Losses::Ids{2});
    EXPECT_EQ(written.losses.of(Loss::noAmount), Losses::Ids{3});
    EXPECT_EQ(written.losses.of(Loss::amountRounded), Losses::Ids{4});
    EXPECT_EQ(written.losses.of(Loss::textChanged), Losses::Ids{5}) << "once a record";
    EXPECT_THAT(written.text, testing::Not(HasSubstr("(1)")));
    EXPECT_THAT(written.text, testing::Not(HasSubstr("(2)")));
    EXPECT_THAT(written.text, HasSubstr("Unkategorisiert  0.00 EUR")) << "and no sign before a rounded zero";
}

TEST(JournalWriter, LinesAreNoLongerThanLedgerReads) {
    DataManager model;
    const std::string euros(3000, '\x80');
    RecordBook::add(model, {{1, 2, 2024}, 1.0, {euros, euros, euros, euros, euros}});
    const WrittenText written("hledger", model);
    EXPECT_EQ(written.losses.of(Loss::textCut), Losses::Ids{1});
    std::size_t first = 0;
    for (std::size_t end = 0; (end = written.text.find('\n', first)) != std::string::npos; first = end + 1)
        EXPECT_LE(end - first, 4000U);
    EXPECT_THAT(written.text, HasSubstr("\xE2\x82\xAC  -1.00 EUR\n")) << "no character is cut in two";
}

/// What other programs make of a journal. scripts/install-packages.sh brings them.
class JournalProgramsTest : public ::testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        if (run(std::string("command -v ") + program() + " >/dev/null && echo yes") != "yes\n")
            FAIL() << program() << " is not installed; scripts/install-packages.sh brings it";
    }

    static std::string program() { return GetParam(); }

    /// Standard output and errors.
    static std::string run(const std::string& command) {
        std::string output;
        FILE* pipe = ::popen((command + " 2>&1").c_str(), "r");
        std::array<char, 4096> block{};
        for (std::size_t count = 1; pipe != nullptr && (count = std::fread(block.data(), 1, block.size(), pipe)) > 0;)
            output.append(block.data(), count);
        if (pipe != nullptr)
            ::pclose(pipe);
        return output;
    }

    /// What the program answers about a journal of these records; amounts with all their decimals.
    std::string asked(const std::vector<BookRow>& rows, const std::string& question) const {
        DataManager model;
        for (const BookRow& row : rows)
            RecordBook::add(model, row);
        const std::string path = (m_folder.path() / "book.journal").string();
        std::ofstream(path, std::ios::binary) << WrittenText("hledger", model).text;
        return run("LC_ALL=C.UTF-8 " + program() + " -f " + path + " " + question);
    }

private:
    TemporaryFolder m_folder;
};

TEST_P(JournalProgramsTest, SumsAreThoseOfTheRecords) {
    std::vector<BookRow> rows;
    long cents = 0;
    for (const BookRow& row : GeneratedBook(11).rows(600)) {
        const long value = 1 + static_cast<long>(rows.size()) * 37;
        const bool isSpent = rows.size() % 3 == 0;
        rows.emplace_back(row.day.year() < 1400 ? DMDate(1, 2, 2024) : row.day,
                          static_cast<double>(isSpent ? -value : value) / 100.0, row.texts);
        cents += isSpent ? -value : value;
    }
    char sum[64];
    std::snprintf(sum, sizeof sum, "%ld.%02ld EUR  Aktiva:Bank", cents / 100, cents % 100);
    EXPECT_THAT(asked(rows, "balance Aktiva:Bank"), HasSubstr(sum));
    const std::string all = asked(rows, program() == "ledger" ? "balance" : "balance --depth 1");
    EXPECT_THAT(all,
                testing::EndsWith(program() == "ledger" ? "\n                   0\n" : "\n                   0  \n"));
}

TEST_P(JournalProgramsTest, AccountsAndDescriptionsArriveAsWritten) {
    const std::vector<BookRow> rows = {
        {{1, 2, 2024}, -1.25, {"* a;  b", "! c", "[2024-01-01]", "Haus & Hof: (neu)", "=1 EUR  ; x"}},
        {{1, 2, 2024}, 0.125, {"(9) \xFC", "", "date:2023-01-01", "[A] @ B {2 EUR}", "<C>"}}};
    const std::string accounts = asked(rows, "accounts");
    for (const char* name :
         {"Aktiva:Bank\n", "Ausgaben:Haus & Hof- (neu):=1 EUR , x\n", "Einnahmen:[A] @ B {2 EUR}:<C>\n"})
        EXPECT_THAT(accounts, HasSubstr(name));
    const std::string printed = asked(rows, "print");
    EXPECT_THAT(printed, HasSubstr("(1) * a, b | ! c"));
    EXPECT_THAT(printed, HasSubstr("(2) (9) \xC3\xBC"));
    EXPECT_THAT(program() == "ledger" ? asked(rows, "csv") : printed, HasSubstr("0.125")) << "exact";
    EXPECT_THAT(printed, testing::Not(HasSubstr("2023/01/01")));
}

TEST_P(JournalProgramsTest, OddDaysAndAmountsAreRead) {
    std::vector<BookRow> rows;
    for (const double amount : {9999999999999.99, -9999999999999.99, 1e-7, 5e-324, 0.0, 1.0005})
        rows.emplace_back(DMDate(31, 12, 9999), amount, std::array<std::string, 5>{});
    rows.emplace_back(DMDate(1, 1, 1400), 3.0, std::array<std::string, 5>{});
    EXPECT_THAT(asked(rows, "balance Aktiva:Bank"), HasSubstr("4.00 EUR  Aktiva:Bank"));
}

TEST_P(JournalProgramsTest, NoRecordsAreAJournalToo) { EXPECT_THAT(asked({}, "accounts"), testing::IsEmpty()); }

INSTANTIATE_TEST_SUITE_P(Programs, JournalProgramsTest, ::testing::Values("hledger", "ledger"),
                         [](const auto& program) { return std::string(program.param); });

} // namespace
