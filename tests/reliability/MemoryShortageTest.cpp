// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstddef>
#include <string>
#include <vector>

#include <sys/resource.h>

#include "cli/DmimportFixture.h"
#include "cli/HomeBankingTexts.h"

namespace {

constexpr rlim_t kMiB = rlim_t(1) << 20;
constexpr rlim_t kStep = 4 * kMiB;
constexpr rlim_t kMost = 2048 * kMiB;

/// The program with ever more memory, from what it starts with to what it needs.
class MemoryShortageTest : public DmimportTest {
protected:
    Result runWithin(std::vector<std::string> arguments, rlim_t bytes) const {
        ChildProgram child = program(std::move(arguments));
        child.before = [bytes] {
            const rlimit limit{bytes, bytes};
            ::setrlimit(RLIMIT_AS, &limit);
        };
        return child.run();
    }

    /// What the libraries take before the program's first line.
    rlim_t enoughToStart() const {
        rlim_t bytes = 32 * kMiB;
        while (bytes < kMost && runWithin({"--version"}, bytes).status != 0)
            bytes += kStep;
        return bytes;
    }

    /// Every run says what it lacks and leaves nothing, until one has enough.
    void expectToldUntilDone(const std::vector<std::string>& arguments) const {
        int refused = 0;
        Result result;
        for (rlim_t bytes = enoughToStart(); bytes < kMost; bytes += kStep) {
            result = runWithin(arguments, bytes);
            if (result.status == 0)
                break;
            ++refused;
            EXPECT_EQ(result.status, 1) << bytes / kMiB << " MiB: " << result.messages;
            // Known for sure, or all that is left as the reason why the library broke off.
            EXPECT_THAT(result.messages, ::testing::AnyOf(Says("Der Arbeitsspeicher reicht nicht"),
                                                          Says("vermutlich reicht der Arbeitsspeicher nicht")))
                << bytes / kMiB << " MiB";
            EXPECT_FALSE(exists(kStore)) << bytes / kMiB << " MiB";
            EXPECT_EQ(leftovers(), std::vector<std::string>()) << bytes / kMiB << " MiB";
        }
        EXPECT_EQ(result.status, 0) << result.messages;
        EXPECT_GT(refused, 0) << "the file is too small to fill the memory";
    }
};

/// The text again and again.
std::string times(std::size_t count, const std::string& text) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i)
        all += text;
    return all;
}

TEST_F(MemoryShortageTest, DelimitedText) {
    write("viel.csv", "Datum;Empfaenger;Verwendungszweck;Betrag\n" +
                          times(60000, "13.05.2004;A;" + std::string(300, 'x') + ";-1,00\n"));
    expectToldUntilDone({"import", "viel.csv", "--store", kStore});
}

TEST_F(MemoryShortageTest, Qif) {
    write("viel.qif", "!Type:Bank\n" + times(60000, "D13.05.2004\nT-1,00\nPA\nM" + std::string(200, 'x') + "\n^\n"));
    expectToldUntilDone({"import", "viel.qif", "--store", kStore});
}

TEST_F(MemoryShortageTest, Accounts) {
    std::string accounts;
    for (int number = 0; number < 20000; ++number)
        accounts += HomeBankingTexts::account("100", std::to_string(number), "Konto " + std::to_string(number));
    write("konten.xml", HomeBankingTexts::accountList(accounts));
    expectToldUntilDone({"accounts", "konten.xml", "--store", kStore});
}

} // namespace
