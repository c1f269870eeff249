// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <chrono>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include "cli/DmimportFixture.h"
#include "cli/HomeBankingTexts.h"
#include "reliability/Campaign.h"
#include "store/Sql.h"

namespace {

using Clock = std::chrono::steady_clock;

/// Much at once, and things of extreme size.
class LoadTest : public DmimportTest {
protected:
    /// A file of two records that no other has.
    std::string writeFile(int number) const {
        const std::string name = "f" + std::to_string(number) + ".csv";
        write(name, "Buchungstag;Empfaenger;Verwendungszweck;Betrag\n13.05.2004;A" + std::to_string(number) +
                        ";Eins;-1,00\n14.05.2004;B" + std::to_string(number) + ";Zwei;-2,00\n");
        return name;
    }

    /// Rows, counts and counters agree, and every file has its session.
    void expectSound(int files) const {
        Sql sql(path(kStore));
        EXPECT_EQ(sql.value("PRAGMA integrity_check"), "ok");
        EXPECT_EQ(sql.value("SELECT count(*) FROM DataSets"), std::to_string(2 * files));
        EXPECT_EQ(sql.value("SELECT Anzahl FROM Zeilenzahlen WHERE Tabelle = 'DataSets'"), std::to_string(2 * files));
        EXPECT_EQ(sql.value("SELECT count(DISTINCT ImportFileName) FROM Importsessions"), std::to_string(files));
        EXPECT_EQ(sql.value("SELECT count(DISTINCT UniqueID) || '|' || max(UniqueID) FROM DataSets"),
                  std::to_string(2 * files) + "|" + std::to_string(2 * files));
        EXPECT_EQ(sql.value("SELECT NextImportID || '|' || NextUniqueID FROM Bestand"),
                  std::to_string(files + 1) + "|" + std::to_string(2 * files + 1));
    }

    static void tell(const std::string& what, Clock::time_point start) {
        std::cout << what << ": " << std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count()
                  << " ms\n";
    }
};

TEST_F(LoadTest, ManyFilesOneAfterTheOther) {
    const int files = Campaign::choose(150, 10000);
    std::vector<std::string> arguments = {"import", "--store", kStore, "--quiet"};
    for (int number = 1; number <= files; ++number)
        arguments.push_back(writeFile(number));
    const auto start = Clock::now();
    const Result result = run(arguments);
    EXPECT_EQ(result.status, 0) << result.messages;
    tell(std::to_string(files) + " files by one process", start);
    expectSound(files);
}

TEST_F(LoadTest, EightProcessesAtOnce) {
    const int perProcess = Campaign::choose(8, 1250);
    constexpr int kProcesses = 8;
    std::vector<std::vector<std::string>> calls(kProcesses, {"import", "--store", kStore, "--quiet"});
    for (int number = 1; number <= kProcesses * perProcess; ++number)
        calls[static_cast<std::size_t>(number % kProcesses)].push_back(writeFile(number));
    const auto start = Clock::now();
    std::vector<Result> results(kProcesses);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < calls.size(); ++i)
        threads.emplace_back([&, i] { results[i] = run(calls[i]); });
    for (std::thread& thread : threads)
        thread.join();
    for (const Result& result : results)
        EXPECT_EQ(result.status, 0) << result.messages;
    tell(std::to_string(kProcesses * perProcess) + " files by eight processes", start);
    expectSound(kProcesses * perProcess);
}

TEST_F(LoadTest, ATableIsFilledToItsLastRowAndNotBeyond) {
    std::string rows;
    for (int row = 0; row < 65535; ++row)
        rows += "13.05.2004;A;Z;-1,00\n";
    write("voll.csv", rows);
    write("einer.csv", rows + "13.05.2004;A;Z;-1,00\n");
    const std::vector<std::string> columns = {"--columns", "0=Datum,1=Empfaenger,2=Verwendungszweck,3=Betrag",
                                              "--delimiter", ";", "--no-header"};
    const auto with = [&](const std::string& file, const std::string& store) {
        std::vector<std::string> arguments = {"import", file, "--store", store, "--json"};
        arguments.insert(arguments.end(), columns.begin(), columns.end());
        return arguments;
    };
    EXPECT_EQ(run(with("voll.csv", kStore)).status, 0);
    EXPECT_EQ(Sql(path(kStore)).value("SELECT count(*) FROM DataSets"), "65535");
    const Result one = run(with("einer.csv", "anderer.db"));
    EXPECT_EQ(one.status, 1);
    EXPECT_EQ(messages(Json::parse(one.output).at("files").at(0)), "table-full:65536");
    EXPECT_EQ(Sql(path("anderer.db")).value("SELECT count(*) FROM DataSets"), "65535") << "nothing before it is lost";
}

TEST_F(LoadTest, AThousandAccounts) {
    std::string accounts;
    for (int number = 0; number < 1000; ++number)
        accounts += HomeBankingTexts::account("100", std::to_string(number), "Konto " + std::to_string(number));
    write("konten.xml", HomeBankingTexts::accountList(accounts));
    EXPECT_EQ(run({"accounts", "konten.xml", "--store", kStore, "--quiet"}).status, 0);
    std::vector<std::string> arguments = {"bookings", "--store", kStore, "--quiet"};
    const int lists = Campaign::choose(50, 1000);
    for (int number = 0; number < lists; ++number) {
        const std::string name = "b" + std::to_string(number) + ".xml";
        write(name, HomeBankingTexts::bookingList(
                        HomeBankingTexts::booking("B", "01.02.2004", std::to_string(number) + ",00"),
                        "blz=\"100\" ktonr=\"" + std::to_string(999 - number) + "\""));
        arguments.push_back(name);
    }
    const Result result = run(arguments);
    EXPECT_EQ(result.status, 0) << result.messages;
    Sql sql(path(kStore));
    EXPECT_EQ(sql.value("SELECT count(*) FROM HomeBankingImport"), "1000");
    EXPECT_EQ(sql.value("SELECT count(DISTINCT KontoID) FROM HomeBankingDataSets"), std::to_string(lists));
}

struct Extreme {
    const char* name;
    std::string (*bytes)();
    const char* why;
};

std::ostream& operator<<(std::ostream& out, const Extreme& extreme) { return out << extreme.name; }

const std::string kHead = "Buchungstag;Empfaenger;Verwendungszweck;Betrag\n13.05.2004;A;Eins;-1,00\n";

const Extreme kExtremes[] = {
    {"OneLineOfTenMegabytes", [] { return kHead + std::string(10'000'000, 'x') + "\n14.05.2004;B;Zwei;-2,00\n"; },
     "a line that nobody ends"},
    {"FieldOfTenMegabytes",
     [] { return kHead + "14.05.2004;" + std::string(10'000'000, 'y') + ";Zwei;-2,00\n15.05.2004;C;D;-3,00\n"; },
     "one field of a record"},
    {"AMillionFields", [] { return kHead + std::string(1'000'000, ';') + "\n14.05.2004;B;Zwei;-2,00\n"; },
     "no content"},
    {"NumberOfAThousandDigits",
     [] { return kHead + "14.05.2004;B;Zwei;" + std::string(1000, '9') + ",00\n15.05.2004;C;D;-3,00\n"; }, "an amount"},
    {"YearOfAThousandDigits",
     [] { return kHead + "14.05." + std::string(1000, '2') + ";B;Zwei;1,00\n15.05.2004;C;D;-3,00\n"; }, "a date"},
    {"AMillionBlankLines", [] { return kHead + std::string(1'000'000, '\n') + "14.05.2004;B;Zwei;-2,00\n"; },
     "nothing, often"},
    {"QuoteThatNobodyCloses", [] { return kHead + "14.05.2004;\"" + std::string(3'000'000, 'z'); },
     "to the end of the file"},
    {"AMillionQuotes", [] { return kHead + "14.05.2004;" + std::string(1'000'000, '"') + ";Zwei;-2,00\n"; },
     "in one field"},
};

class ExtremeInput : public DmimportTest, public ::testing::WithParamInterface<Extreme> {};

TEST_P(ExtremeInput, EndsInTimeAndLosesNothingSilently) {
    SCOPED_TRACE(GetParam().why);
    write("a.csv", GetParam().bytes());
    for (const char* mode : {"", "--verbatim"}) {
        std::vector<std::string> arguments = {"import", "a.csv", "--store", kStore, "--json", "--again"};
        if (*mode != '\0')
            arguments.insert(arguments.end(), {mode, "--delimiter", ";", "--header", "--columns",
                                               "0=Datum,1=Empfaenger,2=Verwendungszweck,3=Betrag"});
        const Result result = run(arguments);
        ASSERT_LE(result.status, 1) << result.messages.substr(0, 500);
        const Json file = Json::parse(result.output).at("files").at(0);
        const Json& lines = file.at("lines");
        EXPECT_EQ(lines.at("read").get<int>(), lines.at("records").get<int>() + lines.at("header").get<int>() +
                                                   lines.at("preamble").get<int>() + lines.at("footer").get<int>() +
                                                   lines.at("blank").get<int>() + lines.at("ignored").get<int>());
        EXPECT_EQ(lines.at("records").get<int>(),
                  file.at("importedCount").get<int>() + file.at("refusedCount").get<int>());
        EXPECT_EQ(result.status == 0, file.at("refusedCount") == 0 && file.at("committed") == true);
        EXPECT_LT(result.messages.size(), 20000U) << "of a long line an excerpt is enough";
    }
}

INSTANTIATE_TEST_SUITE_P(Load, ExtremeInput, ::testing::ValuesIn(kExtremes),
                         [](const auto& extreme) { return std::string(extreme.param.name); });

} // namespace
