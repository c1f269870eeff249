// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/DmimportFixture.h"

namespace {

class SeveralFilesTest : public DmimportTest {
protected:
    SeveralFilesTest() {
        write("a.csv", "01.02.2004;A;1\n02.02.2004;B;2\n");
        write("b.csv", "03.02.2004;C;3\n" + std::string(5000, 'x') + "\n");
        write("c.csv", "04.02.2004;D;4\n");
    }
    Result importAll() const {
        return run({"import", "a.csv", "b.csv", "c.csv", "fehlt.csv", "--store", kStore, "--verbatim", "--columns",
                    "0=Datum,1=Empfaenger,2=Betrag", "--delimiter", ";", "--json"});
    }
};

TEST_F(SeveralFilesTest, OneThatFailsKeepsNoOtherFromBeingImported) {
    const Result result = importAll();
    EXPECT_EQ(result.status, 1);
    const Json files = Json::parse(result.output).at("files");
    ASSERT_EQ(files.size(), 4U);
    EXPECT_EQ(files.at(0).at("committed"), true);
    EXPECT_EQ(files.at(1).at("committed"), false);
    EXPECT_EQ(messages(files.at(1)), "line-too-long:2");
    EXPECT_EQ(files.at(2).at("committed"), true);
    EXPECT_EQ(messages(files.at(3)), "file-missing:-");
    EXPECT_EQ(show().size(), 3U);
    EXPECT_EQ(show("sessions").size(), 2U);
    EXPECT_EQ(show().at(2).at("ImportID"), 2) << "a file that was taken back used up no number";
    EXPECT_EQ(show().at(2).at("UniqueID"), 3);
}

TEST_F(SeveralFilesTest, StoreThatCannotBeUsedStopsEverything) {
    write(kStore, "kein Bestand, sondern ein Text, und zwar ein etwas laengerer");
    const Result result = importAll();
    EXPECT_EQ(result.status, 3);
    const Json document = Json::parse(result.output);
    EXPECT_EQ(document.at("files").size(), 1U);
    EXPECT_EQ(document.at("files").at(0).at("committed"), false);
    EXPECT_EQ(document.at("error").at("code"), "store-not-a-store");
}

TEST_F(SeveralFilesTest, EachFileHasItsSummary) {
    const Result result = run({"import", "a.csv", "b.csv", "c.csv", "--store", kStore, "--verbatim", "--columns",
                               "0=Datum,1=Empfaenger,2=Betrag", "--delimiter", ";"});
    EXPECT_EQ(result.output, "a.csv: 2 Datensätze importiert (Sitzung 1).\n"
                             "b.csv: nicht übernommen; der Bestand ist unverändert.\n"
                             "c.csv: 1 Datensatz importiert (Sitzung 2).\n");
}

TEST_F(SeveralFilesTest, DateOrderIsLearnedAfreshForEachFile) {
    write("us.csv", "12/31/2004;A;1\n");
    write("de.csv", "31.12.2004;A;1\n");
    const Result result = run({"import", "us.csv", "de.csv", "us.csv", "--again", "--store", kStore, "--verbatim",
                               "--columns", "0=Datum,1=Empfaenger,2=Betrag", "--delimiter", ";"});
    EXPECT_EQ(result.status, 0) << result.messages;
    for (const Json& row : show())
        EXPECT_EQ(row.at("Datum"), "2004-12-31");
}

} // namespace
