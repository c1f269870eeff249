// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <chrono>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "cli/DmimportFixture.h"
#include "reliability/Campaign.h"
#include "store/Sql.h"

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

/// Imports that are killed at any moment, and what they leave.
class KillTest : public DmimportTest {
protected:
    static constexpr int kBefore = 3; // records that the store has already

    KillTest() {
        fs::create_directory(path("tmp"));
        write("vorher.csv", "13.05.2004;A;Eins;-1,00\n14.05.2004;B;Zwei;-2,00\n15.05.2004;C;Drei;-3,00\n");
        write("nachher.csv", "16.05.2004;D;Vier;-4,00\n");
        std::string many; // UTF-8, so that the library gets a copy
        for (int row = 0; row < m_rows; ++row)
            many += "0" + std::to_string(1 + row % 9) + ".06.2004;Empfaenger Nummer " + std::to_string(row) +
                    ";Ein Verwendungszweck von \xC3\xBC"
                    "blicher L\xC3\xA4nge " +
                    std::to_string(row * 7) + ";-" + std::to_string(row % 1000) + ",50\n";
        write("viele.csv", many);
        EXPECT_EQ(importFile("vorher.csv"), 0);
        fs::rename(path(kStore), path("vorlage.db"));
    }

    void reset() const {
        fs::remove(path(std::string(kStore) + "-journal"));
        fs::copy_file(path("vorlage.db"), path(kStore), fs::copy_options::overwrite_existing);
    }

    std::vector<std::string> importArguments(const std::string& file) const {
        return {"import",      file,          "--store",
                kStore,        "--columns",   "0=Datum,1=Empfaenger,2=Verwendungszweck,3=Betrag",
                "--no-header", "--delimiter", ";",
                "--quiet"};
    }

    int importFile(const std::string& file) const {
        ChildProgram child = program(importArguments(file));
        child.environment["TMPDIR"] = path("tmp");
        return child.run().status;
    }

    /// Starts the import of the large file and kills it after that time. Whether it had ended before.
    bool killAfter(std::chrono::microseconds time) const {
        ChildProgram child = program(importArguments("viele.csv"));
        std::vector<char*> arguments;
        for (std::string& argument : child.arguments)
            arguments.push_back(argument.data());
        arguments.push_back(nullptr);
        const pid_t process = ::fork();
        if (process == 0) {
            ::setenv("TMPDIR", path("tmp").c_str(), 1);
            if (::chdir(child.workingDirectory.c_str()) == 0)
                ::execv(arguments[0], arguments.data());
            ::_exit(127);
        }
        std::this_thread::sleep_for(time);
        ::kill(process, SIGKILL);
        int status = 0;
        ::waitpid(process, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0) << status;
        return WIFEXITED(status);
    }

    /// How many records the store has; they, the counts and the counters agree.
    int records() const {
        Sql sql(path(kStore)); // rolls back what the dead one left
        EXPECT_EQ(sql.value("PRAGMA integrity_check"), "ok");
        const int count = std::stoi(sql.value("SELECT count(*) FROM DataSets"));
        EXPECT_EQ(sql.value("SELECT Anzahl FROM Zeilenzahlen WHERE Tabelle = 'DataSets'"), std::to_string(count));
        EXPECT_EQ(sql.value("SELECT NextUniqueID FROM Bestand"), std::to_string(count + 1));
        EXPECT_EQ(sql.value("SELECT count(DISTINCT UniqueID) FROM DataSets"), std::to_string(count));
        EXPECT_EQ(sql.value("SELECT sum(Datensaetze) FROM Importsessions"), std::to_string(count));
        EXPECT_EQ(sql.value("SELECT NextImportID - 1 FROM Bestand"), sql.value("SELECT count(*) FROM Importsessions"));
        return count;
    }

    const int m_rows = Campaign::choose(6000, 65000);
};

TEST_F(KillTest, StoreHoldsAllOfAnImportOrNothing) {
    reset();
    const auto start = Clock::now();
    ASSERT_EQ(importFile("viele.csv"), 0);
    const auto whole = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start);
    ASSERT_EQ(records(), kBefore + m_rows);

    std::mt19937 random(1);
    const int kills = Campaign::choose(15, 200);
    int all = 0;
    int nothing = 0;
    int rolledBack = 0;
    int left = 0;
    for (int kill = 0; kill < kills; ++kill) {
        reset();
        // Every third one near the end, where the store is written.
        const double from = kill % 3 == 0 ? 0.6 : 0.0;
        const auto after =
            std::uniform_int_distribution<long>(static_cast<long>(from * static_cast<double>(whole.count())),
                                                static_cast<long>(whole.count() + whole.count() / 10))(random);
        const bool ended = killAfter(std::chrono::microseconds(after));
        const fs::path journal = path(std::string(kStore) + "-journal");
        rolledBack += fs::exists(journal) && fs::file_size(journal) > 0 ? 1 : 0;
        left += fs::is_empty(path("tmp")) ? 0 : 1;
        const int count = records();
        ASSERT_TRUE(count == kBefore + m_rows || (count == kBefore && !ended)) << count << " after " << after << " us";
        ++(count == kBefore ? nothing : all);
        ASSERT_EQ(importFile("nachher.csv"), 0) << "the next import works";
        ASSERT_EQ(records(), count + 1);
        EXPECT_TRUE(fs::is_empty(path("tmp"))) << "and has removed what the killed one left";
    }
    std::cout << kills << " kills: " << nothing << " left nothing of the import, " << all << " all of it; "
              << rolledBack << " journals rolled back, " << left << " temporary folders left and removed\n";
    EXPECT_GT(nothing, 0);
}

} // namespace
