// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <csignal>
#include <filesystem>
#include <sys/mount.h>
#include <sys/resource.h>

#include "cli/DmimportFixture.h"
#include "store/Sql.h"

namespace {

const std::vector<std::string> kImport = {
    "import", "a.csv", "--store", "bestand.db", "--columns", "0=Datum,1=Empfaenger,2=Betrag", "--delimiter", ";"};

class BadStoreTest : public DmimportTest {
protected:
    BadStoreTest() { write("a.csv", "01.02.2004;A;1\n02.02.2004;B;2\n"); }

    /// Both commands that open the store say that code and those words; with
    /// --json the document holds them, too.
    void expectError(const std::vector<std::string>& arguments, const std::string& code, const char* words,
                     const std::function<void()>& before = {}) const {
        for (const bool json : {false, true}) {
            std::vector<std::string> all = arguments;
            if (json)
                all.emplace_back("--json");
            ChildProgram program = this->program(all);
            program.before = before;
            const Result result = program.run();
            EXPECT_EQ(result.status, 3) << result.messages;
            EXPECT_THAT(result.messages, Says("[" + code + "]"));
            EXPECT_THAT(result.messages, Says(words));
            if (json) {
                EXPECT_EQ(Json::parse(result.output).at("error").at("code"), code);
                EXPECT_THAT(Json::parse(result.output).at("error").at("text").get<std::string>(), Says(words));
            }
        }
    }
    static std::vector<std::string> showing(const std::string& store) { return {"show", "--store", store}; }
};

TEST_F(BadStoreTest, Missing) {
    expectError(showing(kStore), "store-missing", "Der Bestand „bestand.db“ wurde nicht gefunden");
}

TEST_F(BadStoreTest, FileThatIsNoStore) {
    const std::string text =
        "Dies ist ein Text, der laenger ist als der Kopf einer Datenbank: " + std::string(200, '-');
    write(kStore, text);
    expectError(kImport, "store-not-a-store", "ist kein Bestand");
    expectError(showing(kStore), "store-not-a-store", "ist kein Bestand");
    EXPECT_EQ(read(kStore), text);
}

TEST_F(BadStoreTest, DatabaseOfAnotherProgram) {
    Sql(path(kStore)).run("create table t (a); insert into t values (1);");
    const std::string bytes = read(kStore);
    expectError(kImport, "store-not-a-store", "ist kein Bestand");
    EXPECT_EQ(read(kStore), bytes);
}

TEST_F(BadStoreTest, NewerVersion) {
    run(kImport);
    Sql(path(kStore)).run("pragma user_version = 999");
    const std::string bytes = read(kStore);
    expectError(kImport, "store-newer-version", "stammt von einer neueren Programmversion");
    expectError(showing(kStore), "store-newer-version", "Aktualisieren Sie das Programm");
    EXPECT_EQ(read(kStore), bytes);
}

TEST_F(BadStoreTest, ReadOnlyFile) {
    run(kImport);
    const std::string bytes = read(kStore);
    std::filesystem::permissions(path(kStore), std::filesystem::perms::owner_read);
    expectError(kImport, "store-read-only", "schreibgeschützt", obeyPermissions);
    EXPECT_EQ(read(kStore), bytes);
    ChildProgram program = this->program(showing(kStore));
    program.before = obeyPermissions;
    EXPECT_EQ(program.run().status, 0) << "it can be read nevertheless";
}

TEST_F(BadStoreTest, Directory) {
    std::filesystem::create_directory(path("ordner"));
    expectError(showing("ordner"), "store-is-directory", "ist ein Ordner");
}

TEST_F(BadStoreTest, BusyStore) {
    run(kImport);
    Sql other(path(kStore));
    other.run("begin immediate");
    expectError(kImport, "store-busy", "wird gerade von");
    other.run("rollback");
    std::vector<std::string> again = kImport;
    again.emplace_back("--again");
    EXPECT_EQ(run(again).status, 0);
}

TEST_F(BadStoreTest, DamagedStore) {
    run(kImport);
    std::string bytes = read(kStore);
    for (std::size_t at = 4096; at < bytes.size(); ++at)
        bytes[at] = static_cast<char>(0xA5);
    write(kStore, bytes);
    const Result result = run(kImport);
    EXPECT_EQ(result.status, 3) << result.messages;
    EXPECT_THAT(result.messages, Says("[store-damaged]"));
    EXPECT_EQ(read(kStore), bytes);
}

TEST_F(BadStoreTest, ValueFromAForeignHandStopsTheShow) {
    run(kImport);
    Sql(path(kStore)).run("update DataSets set Betrag = 'viel' where UniqueID = 2");
    const Result result = run({"show", "--store", kStore});
    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.messages, Says("[store-bad-value]"));
    EXPECT_EQ(result.output, "") << "half a table would look like a whole one";
}

class FullDiskTest : public BadStoreTest {
protected:
    /// Four megabytes of records, far more than there is room for.
    FullDiskTest() {
        std::string rows;
        for (int row = 0; row < 20000; ++row)
            rows += "01.02.2004;" + std::string(200, 'x') + ";1\n";
        write("viel.csv", rows);
        m_import = kImport;
        m_import[1] = "viel.csv";
    }
    std::vector<std::string> m_import;
};

void limitFileSize() {
    const rlimit size{1 << 20, 1 << 20};
    ::setrlimit(RLIMIT_FSIZE, &size);
}

TEST_F(FullDiskTest, FileSizeLimitLeavesTheStoreAsItWas) {
    ASSERT_EQ(run(kImport).status, 0);
    const std::string bytes = read(kStore);
    expectError(m_import, "store-full", "Der Datenträger ist voll", limitFileSize);
    EXPECT_EQ(read(kStore), bytes);
    EXPECT_EQ(show().size(), 2U);
}

TEST_F(FullDiskTest, FullDiskLeavesTheStoreAsItWas) {
    const std::string disk = path("platte");
    std::filesystem::create_directory(disk);
    // Who may not mount gets the limit of the file size here, too.
    const bool mounted = ::mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=1m") == 0;
    struct Unmount {
        std::string disk;
        ~Unmount() { ::umount2(disk.c_str(), MNT_DETACH); }
    } const unmount{disk};

    std::vector<std::string> first = kImport;
    first[3] = "platte/bestand.db";
    ASSERT_EQ(run(first).status, 0);
    const std::string bytes = read("platte/bestand.db");
    m_import[3] = "platte/bestand.db";
    expectError(m_import, "store-full", "Schaffen Sie Platz", mounted ? std::function<void()>() : limitFileSize);
    EXPECT_EQ(read("platte/bestand.db"), bytes);
    first.emplace_back("--again");
    EXPECT_EQ(run(first).status, 0) << "what has room still goes in";
}

} // namespace
